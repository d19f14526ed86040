// What of a block will not be drawn, or not as it is in the drawing.
#pragma once

#include "OxDb/OxDb.h"
#include "drawing/Database.h"
#include "styleconv/DashShapes.h"
#include "styleconv/Finding.h"

#include <map>
#include <string>
#include <tuple>
#include <unordered_set>
#include <vector>

namespace styleconv {

/// Counts the entities of blocks by what is wrong with them. What a block's conversion leaves out silently is
/// found by the same rules here.
class BlockCheck {
public:
    /// `file` is what messages call the drawing. Drawing and search must outlive this object.
    BlockCheck(std::string file, const drawing::Database& drawing, ShapeSearch& search,
               const std::vector<std::wstring>& layersToIgnore);

    /// Appends the findings of a block that is open: errors first, then warnings.
    void Check(const OxDbBlockTableRecord& record, std::vector<Finding>& findings);

    /// Appends, as warnings, what a conversion of the block has left out.
    void AddLosses(const OxDbBlockTableRecord& record, std::vector<Finding>& findings);

private:
    // Severity; whether something is lost; what, with "%" for "2 entities".
    using Kind = std::tuple<Severity, bool, std::string>;

    void Count(const OxDbBlockTableRecord& record);
    void CountEntity(OxDbEntity& entity);
    void CountHatch(OxDbHatch& hatch);
    void CountLinetype(const OxDbEntity& entity);
    void CountTextStyle(OxDbObjectId styleId);
    void Lose(std::string what) { ++counts_[{Severity::kError, true, std::move(what)}]; }
    void Surprise(bool isLoss, std::string what) { ++counts_[{Severity::kWarning, isLoss, std::move(what)}]; }

    std::string file_;
    const drawing::Database& drawing_;
    DashShapes dashShapes_;
    std::unordered_set<std::wstring> layersToIgnore_;
    std::map<Kind, std::size_t> counts_; // of the block under check
    bool hasColorByBlock_ = false;
    bool isConverted_ = false;
};

/// "block TREE"
std::string ItemOf(const OxDbBlockTableRecord& record);

} // namespace styleconv
