// Makes a shape font of Hershey letter forms.
#pragma once

#include "examples/generators/HersheyFile.h"
#include "tests/support/ShapeFileBuilder.h"

#include <vector>

namespace example_shapes {

/// A "shapes " font of the printable ASCII characters, 32 to 126, from the glyphs in that order; later ones
/// are left out. Units are those of the glyphs: capitals are 21 high and letters reach 7 below the baseline.
///
/// A glyph begins on the baseline at its left end and leaves the pen at its right end. Drawn vertically, it
/// begins above its middle and ends there, one line below.
test_support::ShapeFileBuilder StrokeFont(const std::vector<HersheyGlyph>& glyphs);

} // namespace example_shapes
