// Turns the families of one pattern into an area symbol.
#pragma once

#include "StyleConversion/pattern/PatternLine.h"
#include "TylModel/SymbolDefinition.h"

#include <memory>
#include <string>
#include <vector>

namespace pattern {

/// A simple symbol with one path and one area usage for each group of families that share an angle and a
/// tile; a compound of them where there are several groups. Null when no family has a tile. `name` is in the
/// ANSI code page.
///
/// Sorts `lines`, and turns the origins of those that it draws in their own frame: another symbol made from
/// the same lines differs, which is wanted.
std::unique_ptr<TylModel::SymbolDefinition> BuildAreaSymbol(const std::string& name,
                                                            std::vector<PatternLine>& lines);

/// The path of one family inside its tile: "M x,y h length" for each dash of each row, or "M x,y L x,y" where
/// the tile is rotated. Turns the line's origin unless the tile is rotated.
std::wstring BuildLinePath(PatternLine& line);

} // namespace pattern
