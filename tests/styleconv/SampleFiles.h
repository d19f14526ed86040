// Small files that several tests of the tool convert.
#pragma once

#include "tests/support/ShapeFileBuilder.h"
#include "tests/support/ShapeProgramBuilder.h"

#include <string>

namespace samples {

/// A library with the shape MARK, a stroke of one unit.
inline std::string Marks() {
    return test_support::ShapeFileBuilder::Shapes().Shape(130, "MARK", {0x10, 0}).Text();
}

/// A font, 4 units high, with the letter A, a stroke of one unit.
inline std::string Font() {
    return test_support::ShapeFileBuilder::Shapes()
        .FontInfo("FONT", {4, 1, 0})
        .Shape(65, "A", {0x10, 0})
        .Text();
}

/// A drawing in millimetres with these blocks.
inline std::string Drawing(const std::string& blocks, const std::string& tables = "") {
    return R"({"format": "styleconversion/drawing", "version": 1, "insunits": 4,)" + tables +
           R"("layers": [{"name": "0", "lineWeight": 25}], "blocks": [)" + blocks + "]}";
}

} // namespace samples
