#include "conversions/checking/BlockLosses.h"

#include "StyleConversion/block/Faithful.h"

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

// ": 0.105 is written 0.1"
std::string CauseOf(const BlockMeasure& measure) {
    if (measure.cut) {
        return TextOf(*measure.cut);
    }
    return measure.isText ? ": a text" : "";
}

} // namespace

BlockLosses::BlockLosses(std::string file, OxDbDatabase& drawing,
                         const std::vector<std::wstring>& layersToIgnore)
    : file_(std::move(file)), converter_(&drawing) {
    converter_.SetLayersToIgnore(layersToIgnore);
}

std::optional<BlockLoss> BlockLosses::Of(TylModel::SymbolDefinition& strict, const std::string& item,
                                         const Convert& convert) {
    std::unique_ptr<TylModel::SymbolDefinition> faithful = FaithfulSymbol(converter_, convert);
    if (faithful == nullptr) {
        return std::nullopt;
    }
    auto diagnostic = DiagnosticOf(MeasureBlock(strict, *faithful), item);
    return diagnostic ? std::optional(BlockLoss{std::move(*diagnostic), std::move(faithful)}) : std::nullopt;
}

std::optional<Diagnostic> BlockLosses::DiagnosticOf(const BlockMeasure& measure,
                                                    const std::string& item) const {
    const bool isOutOfPlace = !(measure.share < kWarningShare);
    std::string cause = isOutOfPlace ? CauseOf(measure) : std::string();
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
