// What is said of the strict symbol of a block: what it does not draw, or draws elsewhere.
#pragma once

#include "OxDb/OxDb.h"
#include "StyleConversion/block/BlockConverter.h"
#include "TylModel/TylModel.h"
#include "conversions/checking/BlockMeasure.h"
#include "diagnostics/Diagnostic.h"
#include "drawing/database/Database.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace conversions {

/// What a symbol loses, and the one that does not.
struct BlockLoss {
    diagnostics::Diagnostic diagnostic;
    std::unique_ptr<TylModel::SymbolDefinition> faithful;
};

/// Measures strict symbols of one drawing by its faithful ones.
class BlockLosses {
public:
    using Convert = std::function<TylModel::SymbolDefinition*(BlockConverter&)>;

    /// `file` is what messages call the drawing, which must outlive this object.
    BlockLosses(std::string file, drawing::Database& drawing,
                const std::vector<std::wstring>& layersToIgnore);

    /// What the symbol loses: an error where a part is lost, or is out of place by kErrorShare; nothing where
    /// all is in its place. `convert` converts the block of that name once more, by the converter that it is
    /// given.
    std::optional<BlockLoss> Of(TylModel::SymbolDefinition& strict, const std::string& item,
                                const std::wstring& name, const Convert& convert);

private:
    std::optional<diagnostics::Diagnostic> DiagnosticOf(const BlockMeasure& measure, const std::string& item,
                                                        const std::wstring& name) const;
    std::string CauseOf(const BlockMeasure& measure, const std::wstring& name) const;
    OxDb::UnitsValue UnitOf(const std::wstring& name) const;

    std::string file_;
    const drawing::Database& drawing_;
    BlockConverter converter_; // of its own: a strict one may remember the scale of the last block
};

} // namespace conversions
