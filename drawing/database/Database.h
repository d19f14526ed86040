// The drawing database in memory: filling it, making its calls fail, counting what is open.
#pragma once

#include "OxDb/OxDbDatabase.h"
#include "drawing/database/Blocks.h"
#include "drawing/database/Records.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace drawing {

/// A drawing. Names of a table count once, without regard to case. Everything added belongs to the database
/// and goes with it. Not for more than one thread at a time.
class OXDB_API Database : public OxDbDatabase {
public:
    Database();
    ~Database() override;

    /// The unit of what is in no block.
    void SetInsunits(OxDb::UnitsValue units) { insunits_ = units; }
    /// What all dashes are multiplied by, where conversions are asked to; above 0.
    double LinetypeScale() const { return linetypeScale_; }
    void SetLinetypeScale(double scale) { linetypeScale_ = scale; }
    /// Whether it was drawn with metric linetypes and patterns, or with those in inches, if it says so.
    std::optional<bool> IsMetric() const { return isMetric_; }
    void SetMetric(bool isMetric) { isMetric_ = isMetric; }

    /// Each gives the added record, or null when the table has the name already.
    LayerRecord* AddLayer(const std::wstring& name, const OxCmColor& color,
                          OxDb::LineWeight lineWeight = OxDb::kLnWtByLwDefault);
    /// "ByLayer", "ByBlock" and "Continuous" are there, without dashes; one added stands before its built-in
    /// namesake.
    LinetypeRecord* AddLinetype(const std::wstring& name, std::vector<Dash> dashes,
                                std::optional<double> patternLength = std::nullopt);
    TextStyleRecord* AddTextStyle(const std::wstring& name, TextStyleData data);
    BlockRecord* AddBlock(const std::wstring& name, const BlockData& data = {});

    /// A block that is filled before its name is known, and added then. When the name is taken, null comes
    /// back and the block is deleted with its entities.
    std::unique_ptr<BlockRecord> MakeBlock();
    BlockRecord* AddBlock(const std::wstring& name, const BlockData& data,
                          std::unique_ptr<BlockRecord> block);
    /// Deletes a block that was made and not added, with its entities: its inserts are no references any
    /// more.
    void Discard(std::unique_ptr<BlockRecord> block);

    /// The records of each table in the order of addition; of the linetypes, not those that are always there.
    std::vector<LayerRecord*> Layers() const;
    std::vector<LinetypeRecord*> Linetypes() const;
    std::vector<TextStyleRecord*> TextStyles() const;
    std::vector<BlockRecord*> Blocks() const;
    /// The record of a name in any case of its letters; null where there is none.
    LayerRecord* FindLayer(const std::wstring& name) const;
    LinetypeRecord* FindLinetype(const std::wstring& name) const;
    BlockRecord* FindBlock(const std::wstring& name) const;

    /// The name by which the drawing refers to something that it does not have; null for any other id.
    const std::wstring* MissingName(OxDbObjectId id) const;

    /// Marks the object as erased: it is then opened only where erased objects may be.
    static void Erase(OxDbObjectId id) { id.stub()->erased = 1; }
    /// Lets the object answer that it is not resident; it can be opened as before.
    static void MakeNonResident(OxDbObjectId id) { id.stub()->resident = 0; }

    /// Which calls fail, for tests; and how often objects were opened and closed so far.
    FailurePlan& Failures() { return core_->failures; }
    const ObjectCounts& Counts() const { return core_->counts; }
    /// How many lines the pattern of one hatch may give: evaluating one with more fails. Without a limit set
    /// here it is the most that an `int` counts.
    void LimitHatchLines(std::int32_t most) { core_->maximumHatchLines = static_cast<std::size_t>(most); }
    /// The limit that is in force.
    std::size_t MostHatchLines() const { return core_->maximumHatchLines; }
    /// How often evaluating a hatch was given up because it has too many lines.
    std::uint64_t HatchesTooDense() const { return core_->hatchesTooDense; }
    /// True when each object was closed exactly as often as it was opened.
    bool IsEverythingClosed() const { return Counts().OpenNow() == 0 && Counts().wronglyClosed == 0; }
    /// How many times the object is open now.
    static std::uint32_t OpenCount(OxDbObjectId id) { return id.stub()->openCount; }

    Oxsys::ErrorStatus getSymbolTable(OxDbBlockTable*& table, OxDb::OpenMode mode) override;
    Oxsys::ErrorStatus getSymbolTable(OxDbLayerTable*& table, OxDb::OpenMode mode) override;
    Oxsys::ErrorStatus getSymbolTable(OxDbTextStyleTable*& table, OxDb::OpenMode mode) override;
    OxDb::UnitsValue insunits() const override { return insunits_; }

private:
    struct Tables;

    std::unique_ptr<Core> core_;
    std::unique_ptr<Tables> tables_;
    OxDb::UnitsValue insunits_ = OxDb::kUnitsUndefined;
    double linetypeScale_ = 1.0;
    std::optional<bool> isMetric_;
};

} // namespace drawing
