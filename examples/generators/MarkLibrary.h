// The shapes of the example library.
#pragma once

#include "tests/support/ShapeFileBuilder.h"

namespace example_shapes {

/// A "shapes " library of marks for linetypes, each about one unit large and drawn with codes of its own.
test_support::ShapeFileBuilder MarkLibrary();

} // namespace example_shapes
