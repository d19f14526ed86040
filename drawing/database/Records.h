// Records of the layer, linetype and text style tables.
#pragma once

#include "OxDb/OxDbLayerTable.h"
#include "OxDb/OxDbLinetypeTableRecord.h"
#include "OxDb/OxDbTextStyleTable.h"
#include "drawing/database/Resident.h"

#include <optional>
#include <string>
#include <vector>

namespace drawing {

/// A record with its name.
template <class Interface, Operation getNameOperation>
class NamedRecord : public Resident<Interface> {
public:
    Oxsys::ErrorStatus getName(const wchar_t*& name) const override {
        Oxsys::ErrorStatus status = Oxsys::eOk;
        name = nullptr;
        if (!this->Fails(getNameOperation, status)) {
            name = name_.c_str();
        }
        return status;
    }

    /// The name without a failure.
    const std::wstring& Name() const { return name_; }

protected:
    NamedRecord(Core& core, std::wstring name) : Resident<Interface>(core), name_(std::move(name)) {}
    void SetName(std::wstring name) { name_ = std::move(name); }

private:
    std::wstring name_;
};

/// Whether what is on a layer is shown. Conversions look at it only where they are asked to.
enum class LayerState : std::uint8_t {
    kShown,
    kOff,
    kFrozen, ///< with all that is in the blocks inserted on it
};

/// A layer: what entities by layer are drawn in.
class OXDB_API LayerRecord : public NamedRecord<OxDbLayerTableRecord, Operation::kLayerGetName> {
public:
    /// Nothing is checked.
    LayerRecord(Core& core, std::wstring name, const OxCmColor& color, OxDb::LineWeight lineWeight);
    OxCmColor color() const override { return color_; }
    OxDb::LineWeight lineWeight() const override { return lineWeight_; }

    /// Shown unless it was set otherwise.
    LayerState State() const { return state_; }
    void SetState(LayerState state) { state_ = state; }
    /// The name of the linetype of what is by layer; "Continuous" unless it was set otherwise. Conversions
    /// look at it only where they are asked to.
    const std::wstring& Linetype() const { return linetype_; }
    void SetLinetype(std::wstring name) { linetype_ = std::move(name); }
    /// Before the drawing is converted.
    void Recolor(const OxCmColor& color) { color_ = color; }

private:
    OxCmColor color_;
    OxDb::LineWeight lineWeight_;
    LayerState state_ = LayerState::kShown;
    std::wstring linetype_ = L"Continuous";
};

/// One dash of a linetype and what it carries.
struct Dash {
    double length = 0.0;     // drawing units: dash above 0, gap below, dot 0
    std::wstring shapeStyle; // name of a text style; empty when the dash carries nothing
    int shapeNumber = 0;     // 0: the dash carries the text
    std::optional<std::wstring> text;
    OxGeVector2d offset;
    double scale = 1.0;
    double rotation = 0.0; // radians
};

/// A linetype with its dashes. An index that no dash has gives an empty dash.
class OXDB_API LinetypeRecord : public NamedRecord<OxDbLinetypeTableRecord, Operation::kLinetypeGetName> {
public:
    /// Without `patternLength` it is the sum of the magnitudes of the dash lengths.
    LinetypeRecord(Core& core, std::wstring name, std::vector<Dash> dashes,
                   std::optional<double> patternLength);
    ~LinetypeRecord() override;

    double patternLength() const override { return patternLength_; }
    int numDashes() const override { return static_cast<int>(dashes_.size()); }
    double dashLengthAt(int index) const override;
    OxDbObjectId shapeStyleAt(int index) const override;
    int shapeNumberAt(int index) const override;
    OxGeVector2d shapeOffsetAt(int index) const override;
    double shapeScaleAt(int index) const override;
    double shapeRotationAt(int index) const override;
    Oxsys::ErrorStatus textAt(int index, const wchar_t*& text) const override;

    /// The dashes in order.
    const std::vector<Dash>& Dashes() const { return dashes_; }

private:
    const Dash& DashAt(int index) const;

    std::vector<Dash> dashes_;
    double patternLength_;
};

/// A text style as its record hands it out.
struct TextStyleData {
    std::wstring fileName;        // of a shape font, or of a shape file
    std::wstring bigFontFileName; // of what characters of two bytes are drawn with
    std::wstring typeface;        // instead of a shape font
    bool bold = false;
    bool italic = false;
    bool isShapeFile = false;
    bool isVertical = false;
    double obliquingAngle = 0.0; // radians
    double textSize = 0.0;       // drawing units; 0: each text has its own
    double xScale = 1.0;         // width of characters
    std::int32_t flagBits = 0;
    std::int32_t characterSet = 0;
    std::int32_t pitchAndFamily = 0;
};

/// A text style.
class OXDB_API TextStyleRecord : public NamedRecord<OxDbTextStyleTableRecord, Operation::kTextStyleGetName> {
public:
    /// Nothing is checked.
    TextStyleRecord(Core& core, std::wstring name, TextStyleData data);
    ~TextStyleRecord() override;

    Oxsys::ErrorStatus fileName(wchar_t*& name) const override;
    Oxsys::ErrorStatus bigFontFileName(wchar_t*& name) const override;
    Oxsys::ErrorStatus font(wchar_t*& typeface, bool& bold, bool& italic, std::int32_t& characterSet,
                            std::int32_t& pitchAndFamily) const override;
    std::int32_t flagBits() const override { return data_.flagBits; }
    bool isShapeFile() const override { return data_.isShapeFile; }
    bool isVertical() const override { return data_.isVertical; }
    double obliquingAngle() const override { return data_.obliquingAngle; }
    double textSize() const override { return data_.textSize; }
    double xScale() const override { return data_.xScale; }

    /// All of it.
    const TextStyleData& Data() const { return data_; }

private:
    Oxsys::ErrorStatus HandOut(Operation operation, const std::wstring& text, wchar_t*& out) const;

    TextStyleData data_;
};

} // namespace drawing
