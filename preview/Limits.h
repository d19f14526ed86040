// Bounds of what is read for a picture and of what is put into it. Symbols may come from damaged or hostile
// files; a picture must end in bounded time and text.
#pragma once

#include <cstddef>

namespace preview {

/// Terms that one expression may need, those of parameters that it refers to included. Converters write two
/// at most; defaults that refer to one another in a circle would never end.
inline constexpr int kMostTerms = 64;

/// How many "%" are tried as the end of one reference, since identifiers may hold "%" themselves.
inline constexpr int kMostReferenceEnds = 16;

/// Repetitions of one member along one sample line. The longest sample line is about 300 pixels long: what
/// stands closer than a pixel is not seen apart.
inline constexpr int kMostRepetitions = 400;

/// Copies of one tile in one sample area; with tiles of a pixel the area would hold more.
inline constexpr int kMostTiles = 20'000;

/// Path commands that the copies of one member are made of, the ones that turn out to be out of sight
/// included. The first copy is always drawn, whatever its length.
inline constexpr std::size_t kMostCopiedCommands = 4'000'000;

/// Path commands of a tile that a page still takes to show more of a hatch.
inline constexpr std::size_t kMostTileCommands = 2'000;

/// Path commands that the copies of one member may add to the picture.
inline constexpr std::size_t kMostDrawnCommands = 100'000;

/// Pixels from the middle of a picture beyond which nothing is written; renderers lose precision there.
inline constexpr double kFarthestPixel = 1e6;

} // namespace preview
