#include "styles/MapPictureParts.h"

#include "styles/Limits.h"

#include <algorithm>

namespace styles {
namespace {

// Sides of small cells are put together to about this many pixels, so that whole pixels fit them better.
constexpr double kComfortableSide = 256;

// Stretching that comes to a tenth of a pixel in the largest picture.
constexpr double kUnseen = 1e-4;

} // namespace

void OpenPicture(preview::SvgWriter& svg, int pixelsAcross, int pixelsUpright, double width, double height) {
    svg.Open("svg").Set("xmlns", "http://www.w3.org/2000/svg");
    svg.Set("width", std::to_string(pixelsAcross)).Set("height", std::to_string(pixelsUpright));
    svg.Set("viewBox", "0 0 " + PlainNumber(width) + " " + PlainNumber(height));
    svg.Set("preserveAspectRatio", "none").Set("fill", "none").Set("stroke-linejoin", "bevel");
}

void DrawInk(preview::SvgWriter& svg, const std::string& strokes, const std::string& dots, const Ink& ink) {
    const auto draw = [&](const std::string& data, const char* cap) {
        if (data.empty()) {
            return;
        }
        svg.Open("path").Set("d", data).Set("stroke", preview::ColorText(ink.color));
        if (ink.color.alpha != 255) {
            svg.Set("stroke-opacity", ink.color.alpha / 255.0);
        }
        svg.Set("stroke-width", PixelText(ink.pen * kPixelsPerMillimetre)).Set("stroke-linecap", cap).Close();
    };
    draw(strokes, "butt");
    draw(dots, "round");
}

preview::Part WithPen(const preview::Part& part, double scale) {
    const auto* const path = std::get_if<preview::PathPart>(&part);
    if (path == nullptr) {
        return part;
    }
    preview::PathPart drawn = *path;
    drawn.weight.value = PenOf(*path, scale) / scale;
    return drawn;
}

WholeSide WholePixels(double side) {
    WholeSide best;
    double least = 1.0; // stretching, as a part of a side
    const double most = std::min<double>(kLargestPicture, std::max(side, kComfortableSide));
    for (int count = 1; count == 1 || (count * side <= most && count <= kComfortableSide); ++count) {
        const double pixels = std::clamp(std::round(count * side), 1.0, double{kLargestPicture});
        const double stretching = std::fabs(pixels - count * side) / (count * side);
        if (count == 1 || stretching < least) {
            least = stretching;
            best = {static_cast<int>(pixels), count};
        }
        if (least <= kUnseen) {
            break;
        }
    }
    return best;
}

} // namespace styles
