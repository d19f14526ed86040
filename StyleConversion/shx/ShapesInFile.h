// A shape file in memory: its shapes, and where to find each by number and by name.
#pragma once

#include "StyleConversion/shx/CharArray.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace ShxUtility {

/// The kind of a file, and a bit in a mask of accepted kinds.
enum ShapeFileKind : std::int32_t {
    /// A "shapes " file without font information: a library of shapes.
    kShapes = 1,
    /// A "shapes " file with font information: a font.
    kFont = 2,
    /// A "unifont " file: a font whose shape numbers have 16 bits.
    kUnifont = 4,
    /// A "bigfont " file: known, and refused.
    kBigfont = 8,
};

/// A mask that accepts every kind.
inline constexpr std::uint32_t kAllKinds = 0xffffffff;

/// One entry of a file.
struct Shape {
    /// 0 is the font information.
    std::uint16_t number = 0;
    /// The bytes before the terminator, in the code page of whoever made the file. May be empty.
    std::string name;
    /// The program; empty for the font information.
    CharArray data;
};

struct ShapesInFile {
    /// 0 until a header has been read.
    ShapeFileKind kind = ShapeFileKind{0};
    /// The font information behind its name: above, below, modes, and whatever follows. Empty in a library.
    std::vector<std::uint8_t> fontInfo;
    /// From number to position in `shapes`. Number 0 is not in it.
    std::map<std::uint16_t, std::size_t> numberIndex;
    /// From name to position in `shapes`: names that are not empty, each of the first shape that has it.
    std::map<std::string, std::size_t> nameIndex;
    /// All entries in file order, the font information among them.
    std::vector<Shape> shapes;
    /// Version 1.0 of the format; false for 1.1.
    bool isVersion10 = false;
};

} // namespace ShxUtility
