// Turns the families of one pattern into an area symbol that draws what they say.
#pragma once

#include "StyleConversion/pattern/FaithfulTiles.h"
#include "StyleConversion/pattern/PatternLine.h"
#include "TylModel/TylModel.h"

#include <memory>
#include <string>
#include <vector>

namespace pattern {

/// A simple symbol, or a compound of such where families need several tiles; null for a pattern without
/// families. `name` is in the ANSI code page. Dashes stand where the definition has them next to the origin.
/// Families that draw nothing, or that no tile places, are not in it; where all are of this kind, the symbol
/// has an empty path.
std::unique_ptr<TylModel::SymbolDefinition> BuildFaithfulSymbol(const std::string& name,
                                                                const std::vector<PatternLine>& lines,
                                                                const FaithfulTiles& tiles);

/// The path of what one tile draws.
std::wstring FaithfulPath(const FaithfulTile& tile, const std::vector<PatternLine>& lines);

} // namespace pattern
