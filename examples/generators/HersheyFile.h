// Reads strokes from a file of Hershey letter forms.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace example_shapes {

/// In the file's units, y downward, the origin in the middle of the glyph.
struct HersheyPoint {
    int x = 0;
    int y = 0;
};

struct HersheyGlyph {
    /// Where the glyph's cell begins and ends along x.
    int left = 0;
    int right = 0;
    /// Each drawn without lifting the pen.
    std::vector<std::vector<HersheyPoint>> strokes;
};

/// One glyph a line, in file order: a number of five columns that says nothing here, a count of pairs of
/// three columns, and the pairs. A pair is two characters, each a distance from "R"; the first pair is left
/// and right, and " R" lifts the pen. Nothing where a line is not of this form.
std::optional<std::vector<HersheyGlyph>> ReadHershey(std::string_view text);

} // namespace example_shapes
