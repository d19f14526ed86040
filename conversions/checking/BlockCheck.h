// What of a block will not be drawn, or not as it is in the drawing.
#pragma once

#include "OxDb/OxDb.h"
#include "conversions/checking/DashShapes.h"
#include "conversions/reading/DrawingView.h"
#include "diagnostics/Diagnostic.h"
#include "drawing/database/Database.h"

#include <map>
#include <string>
#include <tuple>
#include <unordered_set>
#include <vector>

namespace conversions {

/// Counts the entities of blocks by what is wrong with them. What a block's conversion leaves out silently is
/// found by the same rules here.
class BlockCheck {
public:
    /// `file` is what messages call the drawing. Drawing and files must outlive this object.
    BlockCheck(std::string file, const drawing::Database& drawing, DrawingShapeFiles& files,
               const std::vector<std::wstring>& layersToIgnore);

    /// Appends what is wrong with a block that is open, or a copy of one: errors first, then warnings. A copy
    /// may start at its base point.
    void Check(const OxDbBlockTableRecord& record, bool startsAtBasePoint,
               diagnostics::Diagnostics& diagnostics);

    /// Appends, as warnings, what a conversion of the block has left out.
    void AddLosses(const OxDbBlockTableRecord& record, diagnostics::Diagnostics& diagnostics);

private:
    // Severity; whether something is lost; what; whether it was skipped.
    using Kind = std::tuple<diagnostics::Severity, bool, Loss, diagnostics::Outcome>;

    void Count(const OxDbBlockTableRecord& record);
    void CountEntity(OxDbEntity& entity);
    void CountNotDrawn(const OxDbEntity& entity);
    void CompareDashes(const OxDbEntity& entity);
    bool IsHidden(const OxDbEntity& entity) const;
    bool IsWhite(const OxDbEntity& entity) const;
    const drawing::BlockRecord* BlockOf(const OxDbBlockTableRecord& record) const;
    void CountHatch(OxDbHatch& hatch);
    void CountLinetype(const OxDbEntity& entity);
    void CountTextStyle(OxDbObjectId styleId);
    void Lose(diagnostics::Code code, std::vector<std::string> subjects = {});
    void Surprise(bool isLoss, diagnostics::Code code, std::vector<std::string> subjects = {});
    void AddCounted(const Kind& kind, std::size_t count, diagnostics::Severity severity,
                    const std::string& item, diagnostics::Diagnostics& diagnostics) const;

    std::string file_;
    const drawing::Database& drawing_;
    DashShapes dashShapes_;
    std::unordered_set<std::wstring> layersToIgnore_;
    std::map<Kind, std::size_t> counts_; // of the block under check
    bool hasColorByBlock_ = false;
    bool isConverted_ = false;
};

} // namespace conversions
