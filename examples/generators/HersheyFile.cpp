// The lines of a Hershey file.
#include "examples/generators/HersheyFile.h"

#include <cstddef>

namespace example_shapes {
namespace {

constexpr std::size_t kCountColumn = 5;
constexpr std::size_t kPairsColumn = 8;

// The number in three columns, filled with blanks on the left; -1 where there is none.
int CountOf(std::string_view columns) {
    int count = -1;
    for (const char character : columns) {
        if (character >= '0' && character <= '9') {
            count = (count < 0 ? 0 : count * 10) + (character - '0');
        } else if (character != ' ' || count >= 0) {
            return -1;
        }
    }
    return count;
}

std::optional<HersheyGlyph> ReadGlyph(std::string_view line) {
    if (line.size() < kPairsColumn + 2) {
        return {};
    }
    const int count = CountOf(line.substr(kCountColumn, kPairsColumn - kCountColumn));
    const std::string_view pairs = line.substr(kPairsColumn);
    if (count < 1 || pairs.size() != 2 * static_cast<std::size_t>(count)) {
        return {};
    }
    HersheyGlyph glyph;
    glyph.left = pairs[0] - 'R';
    glyph.right = pairs[1] - 'R';
    bool penDown = false;
    for (std::size_t i = 2; i < pairs.size(); i += 2) {
        if (pairs.substr(i, 2) == " R") {
            penDown = false;
            continue;
        }
        if (!penDown) {
            glyph.strokes.emplace_back();
            penDown = true;
        }
        glyph.strokes.back().push_back({pairs[i] - 'R', pairs[i + 1] - 'R'});
    }
    return glyph;
}

} // namespace

std::optional<std::vector<HersheyGlyph>> ReadHershey(std::string_view text) {
    std::vector<HersheyGlyph> glyphs;
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        std::string_view line = text.substr(0, end);
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
        if (!line.empty() && line.back() == '\r') {
            line.remove_suffix(1);
        }
        const std::optional<HersheyGlyph> glyph = ReadGlyph(line);
        if (!glyph) {
            return {};
        }
        glyphs.push_back(*glyph);
    }
    return glyphs;
}

} // namespace example_shapes
