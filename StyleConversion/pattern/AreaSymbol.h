// Turns the families of one pattern into an area symbol.
#pragma once

#include "StyleConversion/pattern/AreaDefinition.h"
#include "StyleConversion/pattern/PatternLine.h"
#include "TylModel/TylModel.h"

#include <memory>
#include <string>
#include <vector>

namespace pattern {

/// How a tile lies: its angle in degrees and its size, without signs.
struct Tile {
    double angle = 0.0;
    double width = 0.0;
    double height = 0.0;
};

/// The tile of a family that has one, and whether two count as the same.
Tile TileOf(const PatternLine& line);
bool IsSameTile(const Tile& first, const Tile& second);

/// The order in which families are drawn: an order of all doubles, NaN above the numbers.
bool IsDrawnBefore(const PatternLine& first, const PatternLine& second);

/// Builds the symbols of any number of patterns, one after another, in the same memory for their paths.
class AreaSymbolBuilder {
public:
    /// A simple symbol with one path and one area usage for each group of families that share an angle and a
    /// tile; a compound of them where there are several groups. Null when no family has a tile. `name` is in
    /// the ANSI code page.
    ///
    /// Sorts `lines`, and turns the origins of those that it draws in their own frame: another symbol made
    /// from the same lines differs.
    /// Required: R37
    std::unique_ptr<TylModel::SymbolDefinition> Build(const std::string& name,
                                                      std::vector<PatternLine>& lines);

private:
    void Take(PatternLine& line);
    void JoinGroup(PatternLine& line);
    void StartGroup(PatternLine& line, const Tile& tile);

    std::wstring name_;
    Definitions definitions_; // one for each group
    std::wstring path_;       // of the last group
    Tile previous_;           // of the line before
};

/// What AreaSymbolBuilder::Build makes of one pattern.
std::unique_ptr<TylModel::SymbolDefinition> BuildAreaSymbol(const std::string& name,
                                                            std::vector<PatternLine>& lines);

} // namespace pattern
