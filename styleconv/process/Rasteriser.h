// Pictures as PNG. A library of the system draws them; it is looked for when it is needed, so that the tool
// works where it is not installed.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace styleconv {

/// Why no picture can be made here; empty where it can.
std::string WhyNoRasteriser();

/// Where an SVG document is drawn, in pixels from the upper left corner.
struct PlacedPicture {
    std::string_view svg;
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
};

/// A whole PNG file, or what went wrong.
struct Raster {
    std::string png;
    std::string problem; // empty where there is none
};

/// The document as large as it says it is.
Raster DrawPicture(std::string_view svg);

/// Pictures on clear ground; nothing reaches out of its place.
Raster DrawPictures(const std::vector<PlacedPicture>& pictures, int width, int height);

} // namespace styleconv
