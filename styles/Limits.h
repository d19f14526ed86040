// Bounds of styles: symbols may come from damaged or hostile files, and a map program must not hang on them.
#pragma once

#include <cstddef>

namespace styles {

/// Strokes of a hatch in one feature. A map program takes about a second for so many; beyond it, it draws
/// none.
inline constexpr double kMostStrokes = 100'000;

/// Groups of a hatch in one expression. A map program takes a millisecond or more to read each, and it reads
/// expressions again and again.
inline constexpr std::size_t kMostGroups = 2;

/// Strokes of a tile that a map program repeats together. It cuts all of them by the polygon, which may be
/// much smaller than the tile: those of larger tiles are repeated one by one.
inline constexpr std::size_t kMostInTile = 8;

/// Layers of one line symbol that repeat a mark.
inline constexpr std::size_t kMostMarks = 1'000;

/// Pixels of a side of a picture that a map program repeats: it keeps the pictures of a style on one sheet.
inline constexpr int kLargestPicture = 1'024;

/// Pixels of a row of pictures on such a sheet, which is drawn twice as large, too.
inline constexpr int kSheetRow = 2'048;

/// Strokes in one such picture. More leave no paper between them.
inline constexpr double kMostPictureStrokes = 50'000;

} // namespace styles
