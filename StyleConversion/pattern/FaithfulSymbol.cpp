// Each dash of a family is drawn once for each class of places that the tile does not make the same.
#include "StyleConversion/pattern/FaithfulSymbol.h"

#include "StyleConversion/encoding/GeneralNumber.h"
#include "StyleConversion/encoding/PathPiece.h"
#include "StyleConversion/pattern/AreaDefinition.h"
#include "StyleConversion/platform/CodePage.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace pattern {
namespace {

std::wstring TextOf(double value) {
    wchar_t buffer[encoding::kLongestGeneral];
    return {static_cast<const wchar_t*>(buffer),
            static_cast<const wchar_t*>(encoding::WriteGeneral(buffer, value))};
}

// Places this near the lower sides of a tile, as a share of the sides, are on them.
constexpr double kOnSide = 1e-9;
// What is a smaller share of a tile is nothing but the last digits of sines.
constexpr double kNothing = 1e-13;

// Room for so many dashes is made beforehand; half of what a family lists are gaps.
constexpr std::size_t kMostReserved = 1024;
constexpr std::size_t kCharactersOfDash = 40;

// Paths of families in one tile.
class TilePath {
public:
    TilePath(const FaithfulTile& tile, const std::vector<PatternLine>& lines)
        : rectangle_(tile.rectangle), frame_(DirectionAt(0.0 - tile.rectangle.angle)),
          nothing_(kNothing * std::max(rectangle_.width, rectangle_.height)) {
        std::size_t dashes = 0;
        for (const TiledFamily& family : tile.families) {
            dashes += static_cast<std::size_t>(family.fit.Cells()) * lines[family.family].dashes.size();
        }
        path_.reserve(std::min(dashes, kMostReserved) * kCharactersOfDash);
        for (const TiledFamily& family : tile.families) {
            if (tile.isContinuous) {
                AppendContinuous(lines[family.family]);
            } else {
                AppendDashes(lines[family.family], family.fit);
            }
        }
    }

    std::wstring Take() { return std::move(path_); }

private:
    // From the drawing's frame into the tile's.
    Vector Turned(double x, double y) const {
        return {x * frame_.x - y * frame_.y, x * frame_.y + y * frame_.x};
    }

    double Clean(double value) const { return std::fabs(value) < nothing_ ? 0.0 : value; }

    // What draws a dash from where the path stands. All dashes of one length have the same.
    static std::wstring Stroke(const Vector& direction, double length) {
        encoding::PathPiece piece;
        if (direction.y == 0.0) {
            piece.Words(L" h ").General(length * direction.x);
        } else {
            piece.Words(L" l ").General(length * direction.x).Words(L",").General(length * direction.y);
        }
        std::wstring stroke;
        piece.AppendTo(stroke);
        return stroke;
    }

    void AppendLine(const Vector& from, const std::wstring& stroke) {
        encoding::PathPiece piece;
        piece.Words(path_.empty() ? L"M " : L" M ").General(Clean(from.x)).Words(L",");
        piece.General(Clean(from.y)).AppendTo(path_);
        path_ += stroke;
    }

    void AppendContinuous(const PatternLine& line) {
        const double y = Turned(line.originX, line.originY).y;
        const double lines = std::floor(y / rectangle_.height + kOnSide);
        AppendLine({0.0, y - lines * rectangle_.height}, Stroke({1.0, 0.0}, rectangle_.width));
    }

    // A dash of a cycle: where it begins for the lattice's origin, and what draws it.
    struct Dash {
        Vector start;
        std::wstring stroke;
    };

    // The lattice of the tile is a part of the family's. Every class of places that differ by a vector of the
    // tile's has just one with so few lines and cycles.
    void AppendDashes(const PatternLine& line, const FamilyFit& fit) {
        const FamilyLattice lattice(line, rectangle_.angle);
        const std::int64_t lines = std::max<std::int64_t>(1, std::gcd(fit.right.lines, fit.up.lines));
        const std::int64_t cycles = fit.Cells() / lines;
        const std::vector<Dash> dashes = DashesOf(line, lattice);
        for (std::int64_t row = 0; row < lines; ++row) {
            for (std::int64_t cycle = 0; cycle < cycles; ++cycle) {
                for (const Dash& dash : dashes) {
                    AppendLine(IntoTile(lattice, fit, dash.start, {cycle, row}), dash.stroke);
                }
            }
        }
    }

    std::vector<Dash> DashesOf(const PatternLine& line, const FamilyLattice& lattice) const {
        const Vector origin = Turned(line.originX, line.originY);
        const Vector& direction = lattice.Direction();
        std::vector<Dash> dashes;
        double before = 0.0; // of the cycle
        for (const double dash : line.dashes) {
            if (dash >= 0) {
                dashes.push_back({{origin.x + before * direction.x, origin.y + before * direction.y},
                                  Stroke(direction, dash)});
            }
            before += std::fabs(dash);
        }
        return dashes;
    }

    // Where the dash is that lies at `start` for the lattice's origin, of those in the same class that which
    // begins inside the tile. Counted in steps of the family's own lattice, so that it is in its right place.
    Vector IntoTile(const FamilyLattice& lattice, const FamilyFit& fit, const Vector& start,
                    const LatticePoint& point) const {
        const Vector place = Sum(start, lattice.At(point));
        const std::int64_t right = TilesUpTo(place.x / rectangle_.width);
        const std::int64_t up = TilesUpTo(place.y / rectangle_.height);
        return Sum(start, lattice.At({point.cycles - right * fit.right.cycles - up * fit.up.cycles,
                                      point.lines - right * fit.right.lines - up * fit.up.lines}));
    }

    // What lies farther away stays outside.
    static std::int64_t TilesUpTo(double tiles) {
        constexpr double kFarthest = 1e9;
        return static_cast<std::int64_t>(std::clamp(std::floor(tiles + kOnSide), -kFarthest, kFarthest));
    }

    static Vector Sum(const Vector& first, const Vector& second) {
        return {first.x + second.x, first.y + second.y};
    }

    const Rectangle& rectangle_;
    Vector frame_;
    double nothing_;
    std::wstring path_;
};

UsageTexts TextsOf(const Rectangle& rectangle) {
    return {rectangle.angle != 0.0 ? TextOf(rectangle.angle) : std::wstring(), TextOf(rectangle.width),
            TextOf(rectangle.height)};
}

} // namespace

std::wstring FaithfulPath(const FaithfulTile& tile, const std::vector<PatternLine>& lines) {
    return TilePath(tile, lines).Take();
}

std::unique_ptr<TylModel::SymbolDefinition> BuildFaithfulSymbol(const std::string& name,
                                                                const std::vector<PatternLine>& lines,
                                                                const FaithfulTiles& tiles) {
    const std::wstring wideName = platform::AnsiToWide(name);
    Definitions definitions;
    for (const FaithfulTile& tile : tiles.tiles) {
        definitions.push_back(MakeDefinition(wideName, TextsOf(tile.rectangle)));
        AdoptPath(*definitions.back(), FaithfulPath(tile, lines));
    }
    if (definitions.empty() && !lines.empty()) {
        definitions.push_back(
            MakeDefinition(wideName, TextsOf(Rectangle{0.0, kDefaultLength, kDefaultLength})));
        AdoptPath(*definitions.back(), {});
    }
    return Joined(wideName, definitions);
}

} // namespace pattern
