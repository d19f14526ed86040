// Bounds of styles: symbols may come from damaged or hostile files, and a map program must not hang on them.
#pragma once

#include <cstddef>

namespace styles {

/// Strokes of a hatch in one feature. A map program takes about a second for so many; beyond it, it draws
/// none.
inline constexpr double kMostStrokes = 100'000;

/// Layers of one line symbol that repeat a mark.
inline constexpr std::size_t kMostMarks = 1'000;

} // namespace styles
