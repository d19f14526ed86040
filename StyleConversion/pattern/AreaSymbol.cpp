// Families sorted into groups, each group a symbol.
#include "StyleConversion/pattern/AreaSymbol.h"

#include "StyleConversion/encoding/TrimmedNumber.h"
#include "StyleConversion/pattern/LinePath.h"
#include "StyleConversion/pattern/PatternLimits.h"
#include "StyleConversion/platform/CodePage.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace pattern {
namespace {

using TylModel::SymbolDefinition;

// Less than, with NaN above all numbers: an order of all doubles, as sorting needs it.
bool Precedes(double first, double second) {
    return first < second || (std::isnan(second) && !std::isnan(first));
}

UsageTexts TextsOf(const Tile& tile) {
    return {tile.angle != 0 ? encoding::Double2TrimmedString(tile.angle) : std::wstring(),
            encoding::Double2TrimmedString(tile.width), encoding::Double2TrimmedString(tile.height)};
}

} // namespace

Tile TileOf(const PatternLine& line) {
    return {line.rotatedTile ? 0.0 : line.angle, std::fabs(line.repeatX), std::fabs(line.repeatY)};
}

bool IsSameTile(const Tile& first, const Tile& second) {
    return std::fabs(first.angle - second.angle) < kSameTileTolerance &&
           std::fabs(first.width - second.width) < kSameTileTolerance &&
           std::fabs(first.height - second.height) < kSameTileTolerance;
}

bool IsDrawnBefore(const PatternLine& first, const PatternLine& second) {
    if (first.rotatedTile != second.rotatedTile) {
        return first.rotatedTile;
    }
    const Tile firstTile = TileOf(first);
    const Tile secondTile = TileOf(second);
    for (const auto key : {&Tile::angle, &Tile::width, &Tile::height}) {
        if (Precedes(firstTile.*key, secondTile.*key)) {
            return true;
        }
        if (Precedes(secondTile.*key, firstTile.*key)) {
            return false;
        }
    }
    return false;
}

std::unique_ptr<SymbolDefinition> AreaSymbolBuilder::Build(const std::string& name,
                                                           std::vector<PatternLine>& lines) {
    std::stable_sort(lines.begin(), lines.end(), IsDrawnBefore);
    platform::AnsiToWide(name, name_);
    definitions_.clear();
    path_.clear();
    previous_ = {};
    for (PatternLine& line : lines) {
        Take(line);
    }
    if (definitions_.empty()) {
        return nullptr;
    }
    AdoptPath(*definitions_.back(), path_); // though it may be empty
    return Joined(name_, definitions_);
}

void AreaSymbolBuilder::Take(PatternLine& line) {
    if (line.rowCount < 0) {
        return; // Required: R42
    }
    const Tile tile = TileOf(line);
    if (IsSameTile(tile, previous_)) {
        JoinGroup(line);
    } else {
        StartGroup(line, tile);
    }
    previous_ = tile;
}

// The blank is written even behind an empty path, but not for a family that draws nothing.
// Required: R36
void AreaSymbolBuilder::JoinGroup(PatternLine& line) {
    path_ += L' ';
    const std::size_t start = path_.size();
    AppendLinePath(path_, line);
    if (path_.size() == start) {
        path_.pop_back();
    }
}

void AreaSymbolBuilder::StartGroup(PatternLine& line, const Tile& tile) {
    if (!definitions_.empty() && !path_.empty()) {
        AdoptPath(*definitions_.back(), path_);
    }
    definitions_.push_back(MakeDefinition(name_, TextsOf(tile)));
    path_.clear();
    AppendLinePath(path_, line);
}

std::unique_ptr<SymbolDefinition> BuildAreaSymbol(const std::string& name, std::vector<PatternLine>& lines) {
    return AreaSymbolBuilder().Build(name, lines);
}

} // namespace pattern
