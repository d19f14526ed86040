// A symbol as one picture that a map program repeats over an area or along a line, or puts at a point.
#pragma once

#include "styles/Loss.h"
#include "styles/MarkerParts.h"

#include <optional>
#include <string>

namespace styles {

/// How far from its place a picture may leave a part, in pixels, and still be seamless.
inline constexpr double kSeamless = 0.1;

struct MapPicture {
    std::string svg; // empty where there is no picture
    int width = 0;   // pixels
    int height = 0;
    double error = 0.0; // pixels by which parts that should meet at its edges miss each other
    Losses losses;
};

/// `scale` multiplies all lengths but pens. Where no picture repeats the area, it has no SVG and the loss
/// says why; the best one with its error where `approximates`.
MapPicture AreaPicture(const preview::ResolvedSymbol& symbol, double scale, bool approximates);

/// One repeat of the line, which runs through the middle from left to right, upside down: so map programs lay
/// it along lines.
MapPicture LinePicture(const preview::ResolvedSymbol& symbol, double scale);

/// The insertion point is the middle.
MapPicture PointPicture(const preview::ResolvedSymbol& symbol, double scale);

} // namespace styles
