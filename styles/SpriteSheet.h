// The sheet that a style of MapLibre takes its pictures from: where each stands on it, and the index that
// says so.
#pragma once

#include <string>
#include <vector>

namespace styles {

struct SheetPicture {
    std::string name; // of letters, digits and hyphens
    int width = 0;    // pixels
    int height = 0;
    int x = 0; // of its upper left corner
    int y = 0;
};

struct SpriteSheet {
    std::vector<SheetPicture> pictures; // in the order given
    int width = 1;                      // an image has one pixel at least
    int height = 1;
};

/// Puts the pictures side by side, the highest first, in rows. Their places are set, no two of which meet.
SpriteSheet PlaceOnSheet(std::vector<SheetPicture> pictures);

/// The JSON index of the sheet drawn `ratio` times as large.
std::string SheetIndex(const SpriteSheet& sheet, int ratio);

} // namespace styles
