// How large an area symbol is shown: lines stand well apart, and yet enough of the pattern is seen.

#include "preview/PictureParts.h"

namespace preview {
namespace {

// The mean distance of neighbouring lines in a picture of kUsualWidth pixels; larger pictures show both more
// of the pattern and the pattern larger.
constexpr double kSpacing = 12;
constexpr double kUsualWidth = 300;
// A tile's side as a multiple of that distance where a tile holds next to nothing.
constexpr double kSparsest = 2.5;
// Dashes shorter than this do not show their direction. They are enlarged, as long as the picture is so many
// tiles high.
constexpr double kLegibleDash = 7;
constexpr double kFewestTiles = 2;

// How much one member draws: the length of its lines, and its dots, in one tile.
struct Ink {
    double length = 0.0;
    double lines = 0.0;
    double dots = 0.0;
};

Ink InkOf(const Member& member) {
    Ink ink;
    for (const Part& part : member.parts) {
        const auto* const path = std::get_if<PathPart>(&part);
        if (path == nullptr) {
            ink.dots += 1;
            continue;
        }
        const auto add = [&](Point from, Point to) {
            const double length = Length(to - from);
            ink.length += length;
            ++(length == 0.0 ? ink.dots : ink.lines);
        };
        ForEachPiece(
            path->outline, [&](Point from, Point to, bool) { add(from, to); },
            [&](Point from, Point, Point, Point to, bool) { add(from, to); });
    }
    return ink;
}

// What decides how large a pattern is shown.
struct Texture {
    double density = 0.0; // lines per unit
    double smallestTile = std::numeric_limits<double>::infinity();
    double length = 0.0; // of the lines of one tile of each member
    double lines = 0.0;
    double size = 0.0; // of the largest drawing of a tile
};

Texture TextureOf(const ResolvedSymbol& symbol) {
    Texture texture;
    for (const Member& member : symbol.members) {
        texture.size = std::max({texture.size, member.bounds.Width(), member.bounds.Height()});
        if (member.repeatX && member.repeatY) {
            const Ink ink = InkOf(member);
            const double side = std::sqrt(*member.repeatX) * std::sqrt(*member.repeatY);
            texture.density += ink.length / side / side + std::sqrt(ink.dots) / side;
            texture.smallestTile = std::min(texture.smallestTile, side);
            texture.length += ink.length;
            texture.lines += ink.lines;
        }
    }
    return texture;
}

} // namespace

double AreaScale(const ResolvedSymbol& symbol, Canvas& canvas) {
    const Texture texture = TextureOf(symbol);
    const double wanted = kSpacing * std::sqrt(canvas.style.width / kUsualWidth);
    double scale = wanted / std::min(1 / texture.density, texture.smallestTile / kSparsest);
    const double legible = kLegibleDash * texture.lines / texture.length;
    const double largestTile = (canvas.style.height - 2 * kAreaMargin) / kFewestTiles / texture.smallestTile;
    if (legible > scale) {
        scale = std::max(scale, std::min(legible, largestTile));
    }
    const double someSteps = 5 * wanted / texture.size;
    if (!std::isfinite(scale) || scale <= 0.0) {
        scale = someSteps;
    }
    if (texture.size > 0.0 && texture.size * scale < 1.0) {
        canvas.Note(kRepeatTooLong);
        scale = someSteps;
    }
    return std::isfinite(scale) && scale > 0.0 ? scale : 1.0;
}

} // namespace preview
