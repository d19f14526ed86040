// What every object of the in-memory database does alike: ids, closing, and the common part of entities.
#pragma once

#include "OxDb/OxDbEntity.h"
#include "drawing/database/Core.h"

namespace drawing {

/// An object of a database, as an implementation of the interface class `Interface`.
template <class Interface>
class Resident : public Interface {
public:
    const OxRxClass* isA() const override { return Interface::desc(); }
    Oxsys::ErrorStatus close() override { return CloseObject(stub_); }
    OxDbObjectId objectId() const override { return OxDbObjectId(&stub_); }
    bool isResident() const override { return stub_.resident != 0 && stub_.erased == 0; }

    /// What the object's ids point to, and what it shares with the rest of its drawing.
    OxDbStub& Stub() const { return stub_; }
    Core& SharedCore() const { return *stub_.core; }

protected:
    template <class... Args>
    /// `args` are the interface class's own.
    explicit Resident(Core& core, const Args&... args) : Interface(args...), stub_(core, this) {}

    /// Counts a call of `operation`; the status that it is planned to fail with, or eOk. `failed` says
    /// whether it fails (with eOk too: then it hands out nothing).
    bool Fails(Operation operation, Oxsys::ErrorStatus& status) const {
        return stub_.core->failures.CallFails(operation, status);
    }

private:
    // Counting is no change of the object.
    mutable OxDbStub stub_;
};

/// How an entity is drawn, whatever its class.
struct EntityProperties {
    std::wstring layer = L"0";
    OxCmColor color = ByLayerColor();
    OxDb::LineWeight lineWeight = OxDb::kLnWtByLayer;
    /// A name of the linetype table, or "ByLayer", "ByBlock" or "Continuous". A name that the table does not
    /// have gives the entity an id that cannot be opened.
    std::wstring linetype = L"ByLayer";
    bool hidden = false; ///< conversions look at it only where they are asked to
    /// What its dashes are multiplied by, beside the drawing's own scale, where they are asked to.
    double linetypeScale = 1.0;

    /// The colour of the entity's layer.
    static OxCmColor ByLayerColor() {
        OxCmColor color;
        color.setByLayer();
        return color;
    }
};

/// An entity of a block.
template <class Interface>
class ResidentEntity : public Resident<Interface> {
public:
    wchar_t* layer() const override {
        Oxsys::ErrorStatus status = Oxsys::eOk;
        if (this->Fails(Operation::kEntityLayer, status)) {
            return nullptr;
        }
        return AllocateText(this->SharedCore().names.Text(Drawn().layer));
    }
    OxCmColor color() const override { return Drawn().color; }
    OxDb::LineWeight lineWeight() const override { return Drawn().lineWeight; }
    OxDbObjectId linetypeId() const override {
        Core& core = this->SharedCore();
        const NameIndex name = Drawn().linetype;
        return IdOrMissing(core, core.names.Things(name).linetype, name);
    }

    /// What it was made with.
    EntityProperties Properties() const {
        const NamePool& names = this->SharedCore().names;
        const DrawnAs& drawn = Drawn();
        return {names.Text(drawn.layer),  drawn.color,        drawn.lineWeight, names.Text(drawn.linetype),
                this->Stub().hidden != 0, drawn.linetypeScale};
    }
    /// Before the drawing is converted.
    void Recolor(const OxCmColor& color) {
        DrawnAs drawn = Drawn();
        drawn.color = color;
        this->Stub().drawnAs = this->SharedCore().drawnAs.Intern(drawn);
    }

    // Drawings are open for reading.
    Oxsys::ErrorStatus setColor(const OxCmColor& /*color*/) override { return Oxsys::eNotApplicable; }
    Oxsys::ErrorStatus setLineWeight(OxDb::LineWeight /*lineWeight*/) override {
        return Oxsys::eNotApplicable;
    }
    Oxsys::ErrorStatus setLinetype(OxDbObjectId /*linetypeId*/) override { return Oxsys::eNotApplicable; }

protected:
    template <class... Args>
    ResidentEntity(Core& core, const EntityProperties& properties, const Args&... args)
        : Resident<Interface>(core, args...) {
        this->Stub().drawnAs =
            core.drawnAs.Intern({core.names.Intern(properties.layer), core.names.Intern(properties.linetype),
                                 properties.color, properties.lineWeight, properties.linetypeScale});
        this->Stub().hidden = properties.hidden ? 1 : 0;
    }

private:
    const DrawnAs& Drawn() const { return this->SharedCore().drawnAs.At(this->Stub().drawnAs); }
};

/// A curve: the failing reads of the interface over ones that cannot fail.
template <class Interface>
class ResidentCurve : public ResidentEntity<Interface> {
public:
    Oxsys::ErrorStatus getStartParam(double& parameter) const override {
        return Read(Operation::kGetStartParam, parameter, StartParameter());
    }
    Oxsys::ErrorStatus getEndParam(double& parameter) const override {
        return Read(Operation::kGetEndParam, parameter, EndParameter());
    }
    Oxsys::ErrorStatus getPointAtParam(double parameter, OxGePoint3d& point) const override {
        return Read(Operation::kGetPointAtParam, point, PointAt(parameter));
    }
    Oxsys::ErrorStatus getStartPoint(OxGePoint3d& point) const override {
        return Read(Operation::kGetStartPoint, point, PointAt(StartParameter()));
    }
    Oxsys::ErrorStatus getEndPoint(OxGePoint3d& point) const override {
        return Read(Operation::kGetEndPoint, point, PointAt(EndParameter()));
    }

protected:
    using ResidentEntity<Interface>::ResidentEntity;

    /// Where the curve's own parameter begins and ends, and the point that it has there, in drawing units.
    virtual double StartParameter() const = 0;
    virtual double EndParameter() const = 0;
    virtual OxGePoint3d PointAt(double parameter) const = 0;

private:
    // Sets `out` unless the call is planned to fail.
    template <class T>
    Oxsys::ErrorStatus Read(Operation operation, T& out, const T& value) const {
        Oxsys::ErrorStatus status = Oxsys::eOk;
        if (!this->Fails(operation, status)) {
            out = value;
        }
        return status;
    }
};

} // namespace drawing
