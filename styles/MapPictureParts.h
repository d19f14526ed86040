// What the makers of a map program's pictures share.
#pragma once

#include "preview/PartDrawing.h"
#include "styles/Ink.h"
#include "styles/Numbers.h"

#include <cmath>
#include <string>

namespace styles {

using preview::kPixelsPerMillimetre;

/// To a thousandth of a pixel.
inline std::string PixelText(double pixels) {
    return PlainNumber(std::round(pixels * 1e3) / 1e3);
}

inline std::string PixelText(preview::Point pixels) {
    return PixelText(pixels.x) + "," + PixelText(pixels.y);
}

/// Opens a picture of whole pixels that shows `width` by `height` of them, stretched to its size.
void OpenPicture(preview::SvgWriter& svg, int pixelsAcross, int pixelsUpright, double width, double height);

/// Writes strokes, and dots, which are strokes without a length, in one ink.
void DrawInk(preview::SvgWriter& svg, const std::string& strokes, const std::string& dots, const Ink& ink);

/// A part whose pen is, at this scale, the one that styles give it.
preview::Part WithPen(const preview::Part& part, double scale);

/// So many whole pixels that they are `count` times a side with the least stretching, within what a picture
/// may have.
struct WholeSide {
    int pixels = 1;
    int count = 1;
};
WholeSide WholePixels(double side);

} // namespace styles
