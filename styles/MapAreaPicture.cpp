// The smallest cell that repeats all groups of an area, as a picture.
#include "styles/AreaCell.h"
#include "styles/Limits.h"
#include "styles/MapPicture.h"
#include "styles/MapPictureParts.h"

#include <algorithm>

namespace styles {

MapPicture AreaPicture(const preview::ResolvedSymbol& symbol, double scale, bool approximates) {
    MapPicture picture;
    const AreaParts area = AreaPartsInPixels(symbol, scale);
    picture.losses = area.losses;
    if (area.layers.empty()) {
        picture.losses.insert(Loss::kNoInk);
        return picture;
    }
    const auto cell = CellOf(area, kLargestPicture, approximates);
    if (!cell) {
        picture.losses.insert(Loss::kNoCell);
        return picture;
    }
    picture.error = std::max(cell->across.error, cell->upright.error);
    const WholeSide across = WholePixels(cell->across.length);
    const WholeSide upright = WholePixels(cell->upright.length);
    const preview::Point size{cell->across.length * across.count, cell->upright.length * upright.count};
    picture.width = across.pixels;
    picture.height = upright.pixels;
    preview::SvgWriter svg(picture.svg);
    OpenPicture(svg, picture.width, picture.height, size.x, size.y);
    if (!DrawArea(area, size, svg)) {
        picture.svg.clear();
        picture.losses.insert(Loss::kTooDense);
        return picture;
    }
    svg.Close();
    return picture;
}

} // namespace styles
