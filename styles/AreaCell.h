// The cell that repeats all groups of an area, and what is drawn in it.
#pragma once

#include "preview/SvgWriter.h"
#include "styles/AreaParts.h"
#include "styles/UprightCell.h"

#include <optional>

namespace styles {

/// AreaPartsOf in pixels; pens stay in millimetres.
AreaParts AreaPartsInPixels(const preview::ResolvedSymbol& symbol, double scale);

/// The smallest cell of sides up to `longest`; a side in which nothing changes has some length. With
/// `approximates` the best one, else none where none is seamless.
std::optional<UprightCell> CellOf(const AreaParts& area, double longest, bool approximates);

/// Writes what shows of an area in a box at the origin. False where that is too many strokes.
bool DrawArea(const AreaParts& area, preview::Point size, preview::SvgWriter& svg);

} // namespace styles
