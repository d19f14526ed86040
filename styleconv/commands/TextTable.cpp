#include "styleconv/commands/TextTable.h"

#include <algorithm>
#include <cstdint>

namespace styleconv {
namespace {

constexpr std::size_t kBlanksBetween = 2;

struct Range {
    std::uint32_t first;
    std::uint32_t last;
};

// Marks on the character before, and characters that only join or direct others.
constexpr Range kWithoutWidth[] = {{0x0300, 0x036f}, {0x0483, 0x0489}, {0x0591, 0x05bd}, {0x064b, 0x065f},
                                   {0x1ab0, 0x1aff}, {0x1dc0, 0x1dff}, {0x200b, 0x200f}, {0x20d0, 0x20ff},
                                   {0xfe00, 0xfe0f}, {0xfe20, 0xfe2f}, {0xfeff, 0xfeff}};
// Of East Asian scripts, full-width forms and pictographs.
constexpr Range kWide[] = {{0x1100, 0x115f},   {0x2e80, 0x303e},  {0x3041, 0x33ff}, {0x3400, 0x4dbf},
                           {0x4e00, 0x9fff},   {0xa000, 0xa4cf},  {0xac00, 0xd7a3}, {0xf900, 0xfaff},
                           {0xfe30, 0xfe6f},   {0xff00, 0xff60},  {0xffe0, 0xffe6}, {0x1f300, 0x1f64f},
                           {0x1f900, 0x1f9ff}, {0x20000, 0x3fffd}};

template <std::size_t Count>
bool IsIn(const Range (&ranges)[Count], std::uint32_t character) {
    return std::any_of(std::begin(ranges), std::end(ranges), [&](const Range& range) {
        return character >= range.first && character <= range.last;
    });
}

// The character that begins at the byte, of text that is UTF-8.
std::uint32_t CharacterAt(std::string_view text, std::size_t at, std::size_t bytes) {
    const auto first = static_cast<unsigned char>(text[at]);
    std::uint32_t character = bytes == 1 ? first : first & (0x7fU >> bytes);
    for (std::size_t i = 1; i < bytes; ++i) {
        character = (character << 6U) | (static_cast<unsigned char>(text[at + i]) & 0x3fU);
    }
    return character;
}

std::size_t BytesOf(char first) {
    const auto byte = static_cast<unsigned char>(first);
    return byte < 0xc0 ? 1 : byte < 0xe0 ? 2 : byte < 0xf0 ? 3 : 4;
}

} // namespace

std::size_t DisplayWidth(std::string_view text) {
    std::size_t width = 0;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t bytes = std::min(BytesOf(text[at]), text.size() - at);
        const std::uint32_t character = CharacterAt(text, at, bytes);
        width += IsIn(kWithoutWidth, character) ? 0 : IsIn(kWide, character) ? 2 : 1;
        at += bytes;
    }
    return width;
}

std::string TableText(const std::vector<std::vector<std::string>>& rows) {
    std::vector<std::size_t> widths;
    for (const std::vector<std::string>& row : rows) {
        widths.resize(std::max(widths.size(), row.size()));
        for (std::size_t i = 0; i < row.size(); ++i) {
            widths[i] = std::max(widths[i], DisplayWidth(row[i]));
        }
    }
    std::string text;
    for (const std::vector<std::string>& row : rows) {
        std::string line;
        for (std::size_t i = 0; i < row.size(); ++i) {
            line += row[i];
            line.append(widths[i] - DisplayWidth(row[i]) + kBlanksBetween, ' ');
        }
        line.erase(line.find_last_not_of(' ') + 1);
        text += line + "\n";
    }
    return text;
}

} // namespace styleconv
