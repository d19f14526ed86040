// What of a drawing is converted, and how it is seen.
#include "conversions/reading/DrawingView.h"

#include "conversions/reading/Shown.h"
#include "drawing/entities/Recolor.h"

#include <map>
#include <utility>

namespace conversions {
namespace {

using diagnostics::Code;
using diagnostics::Diagnostics;
using diagnostics::Outcome;
using diagnostics::Severity;

using Counts = std::map<std::wstring, std::size_t>;

void TellDrawn(const Counts& counts, const std::string& as, const diagnostics::Place& place,
               Diagnostics& diagnostics) {
    for (const auto& [className, count] : counts) {
        const std::string shown =
            className == OxDbPolyline::desc()->name() ? "polyline" : ShownText(className);
        diagnostics.push_back({Severity::kNote, Code::kDrawnAs, place, {shown, as}, Outcome::kNone, count});
    }
}

void TellLosses(const drawing::BlockCopyLosses& losses, const diagnostics::Place& place,
                Diagnostics& diagnostics) {
    if (losses.recursive > 0) {
        diagnostics.push_back({Severity::kWarning,
                               Code::kRecursiveInsert,
                               place,
                               {std::to_string(drawing::kDeepestInsert)},
                               Outcome::kNone,
                               losses.recursive});
    }
    Counts missing;
    for (const std::wstring& inserted : losses.missing) {
        ++missing[inserted];
    }
    for (const auto& [inserted, count] : missing) {
        diagnostics.push_back(
            {Severity::kWarning, Code::kMissingBlock, place, {ShownText(inserted)}, Outcome::kNone, count});
    }
}

} // namespace

std::string ItemOf(const OxDbBlockTableRecord& record) {
    const wchar_t* name = nullptr;
    return "block " +
           (record.getName(name) == Oxsys::eOk && name != nullptr ? ShownText(name) : std::string());
}

void SetUnitAndColor(const DrawingView& view, drawing::Database& drawing, Diagnostics& diagnostics) {
    if (view.units != OxDb::kUnitsUndefined && drawing.insunits() == OxDb::kUnitsUndefined) {
        drawing.SetInsunits(view.units);
        std::erase_if(diagnostics, [](const diagnostics::Diagnostic& diagnostic) {
            return diagnostic.code == Code::kNoUnit;
        });
    }
    if (view.whiteAs) {
        constexpr std::uint8_t kWhite = 7;
        drawing::ReplaceColor(drawing, kWhite, *view.whiteAs);
    }
}

bool ChangesBlocks(const DrawingView& view) {
    const drawing::BlockCopyOptions& options = view.seenAs;
    return options.expandsInserts || options.startsAtBasePoint || options.leavesOutHidden ||
           options.drawsOthers || options.drawsDashes;
}

std::unique_ptr<drawing::BlockRecord> CopyAsSeen(const DrawingView& view, const std::string& file,
                                                 drawing::Database& drawing,
                                                 const drawing::BlockRecord& block,
                                                 Diagnostics& diagnostics) {
    drawing::BlockCopyLosses losses;
    std::unique_ptr<drawing::BlockRecord> copy = CopyBlock(drawing, block, view.seenAs, losses);
    diagnostics::Place place;
    place.file = file;
    place.item = ItemOf(block);
    if (losses.isCut) {
        diagnostics.push_back({Severity::kError,
                               Code::kTooManyEntities,
                               std::move(place),
                               {std::to_string(drawing::kMostCopiedEntities)}});
        return nullptr;
    }
    TellLosses(losses, place, diagnostics);
    TellDrawn(losses.filled, "a filled area", place, diagnostics);
    TellDrawn(losses.fromBlocks, "the block that it names", place, diagnostics);
    TellDrawn(losses.paths, "a polyline", place, diagnostics);
    return copy;
}

} // namespace conversions
