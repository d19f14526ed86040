#include "conversions/checking/FontCoverage.h"

#include "StyleConversion/linetype/ShxDrawing.h"

#include <cstddef>

namespace conversions {
namespace {

struct Characters {
    unsigned first;
    unsigned last;
};

constexpr Characters kAscii = {0x20, 0x7e};
constexpr Characters kLatin1 = {0xa0, 0xff};

std::string CodePoint(unsigned character) {
    constexpr char kDigits[] = "0123456789ABCDEF";
    return {'U', '+', '0', '0', kDigits[character >> 4], kDigits[character & 15]};
}

// How many of the range the font has. Adds the others to `lacking`; ranges do not go on from one call to the
// next.
unsigned CountIn(const ShxUtility::ShapesInFile& font, Characters range, std::vector<Characters>& lacking) {
    unsigned count = 0;
    bool goesOn = false;
    for (unsigned character = range.first; character <= range.last; ++character) {
        const bool has = LineConverter::FindGlyph(font, static_cast<wchar_t>(character)) != nullptr;
        if (has) {
            ++count;
        } else if (goesOn) {
            lacking.back().last = character;
        } else {
            lacking.push_back({character, character});
        }
        goesOn = !has;
    }
    return count;
}

std::string LackingText(const std::vector<Characters>& lacking) {
    std::string text;
    for (const Characters& range : lacking) {
        text += (text.empty() ? ": lacks " : ", ") + CodePoint(range.first);
        text += range.last == range.first ? "" : " to " + CodePoint(range.last);
    }
    return text;
}

} // namespace

std::vector<std::string> FontCoverage(const ShxUtility::ShapesInFile& font) {
    std::vector<Characters> lacking;
    const unsigned ascii = CountIn(font, kAscii, lacking);
    const unsigned latin1 = CountIn(font, kLatin1, lacking);
    return {std::to_string(ascii), std::to_string(latin1), LackingText(lacking)};
}

} // namespace conversions
