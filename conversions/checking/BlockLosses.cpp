#include "conversions/checking/BlockLosses.h"

#include "StyleConversion/block/Faithful.h"
#include "StyleConversion/block/UnitScale.h"

#include <cmath>
#include <memory>
#include <utility>

namespace conversions {
namespace {

std::unique_ptr<TylModel::SymbolDefinition> FaithfulSymbol(BlockConverter& converter,
                                                           const BlockLosses::Convert& convert) {
    const block::FaithfulInUse inUse(block::kMeasuringCurves);
    return std::unique_ptr<TylModel::SymbolDefinition>(convert(converter));
}

using diagnostics::Code;
using diagnostics::Diagnostic;
using diagnostics::Severity;

} // namespace

BlockLosses::BlockLosses(std::string file, drawing::Database& drawing,
                         const std::vector<std::wstring>& layersToIgnore)
    : file_(std::move(file)), drawing_(drawing), converter_(&drawing) {
    converter_.SetLayersToIgnore(layersToIgnore);
}

std::optional<BlockLoss> BlockLosses::Of(TylModel::SymbolDefinition& strict, const std::string& item,
                                         const std::wstring& name, const Convert& convert) {
    std::unique_ptr<TylModel::SymbolDefinition> faithful = FaithfulSymbol(converter_, convert);
    if (faithful == nullptr) {
        return std::nullopt;
    }
    auto diagnostic = DiagnosticOf(MeasureBlock(strict, *faithful), item, name);
    return diagnostic ? std::optional(BlockLoss{std::move(*diagnostic), std::move(faithful)}) : std::nullopt;
}

OxDb::UnitsValue BlockLosses::UnitOf(const std::wstring& name) const {
    const drawing::BlockRecord* const block = drawing_.FindBlock(name);
    return block != nullptr && block::HasUnit(block->Data().units) ? block->Data().units
                                                                   : drawing_.insunits();
}

// ": 0.105 is written 0.1"
std::string BlockLosses::CauseOf(const BlockMeasure& measure, const std::wstring& name) const {
    const OxDb::UnitsValue unit = UnitOf(name);
    if (block::MillimetresPer(unit) == nullptr && std::fabs(measure.scale - 1.0) > kWarningShare) {
        return ": unit " + std::to_string(static_cast<int>(unit)) +
               " has no factor and leaves the scale as it was";
    }
    if (measure.cut) {
        return TextOf(*measure.cut);
    }
    return measure.isText ? ": a text" : "";
}

std::optional<Diagnostic> BlockLosses::DiagnosticOf(const BlockMeasure& measure, const std::string& item,
                                                    const std::wstring& name) const {
    const bool isOutOfPlace = !(measure.share < kWarningShare);
    std::string cause = isOutOfPlace ? CauseOf(measure, name) : std::string();
    diagnostics::Place place(file_, 0, item);
    if (measure.lost > 0) {
        if (isOutOfPlace) {
            cause = ", and others drawn up to " + PercentText(measure.share) + " of its size out of place" +
                    cause;
        }
        return Diagnostic{Severity::kError,
                          Code::kLostParts,
                          std::move(place),
                          {std::to_string(measure.lost), std::to_string(measure.parts), cause}};
    }
    if (!isOutOfPlace) {
        return std::nullopt;
    }
    return Diagnostic{measure.share < kErrorShare ? Severity::kWarning : Severity::kError,
                      Code::kBlockOutOfPlace,
                      std::move(place),
                      {PercentText(measure.share), cause}};
}

} // namespace conversions
