#include "conversions/reading/Shown.h"

#include "StyleConversion/encoding/PathCommands.h"
#include "StyleConversion/platform/CodePage.h"
#include "StyleConversion/platform/Utf8.h"

#include <cmath>
#include <cstddef>

namespace conversions {
namespace {

// At most `longest` characters of a text in the file's encoding.
std::string ShownStart(std::string_view text, std::size_t longest) {
    // No encoding has more bytes to a character, so that none of those shown is cut.
    constexpr std::size_t kMostBytes = 4;
    const std::wstring wide = platform::AnsiToWide(text.substr(0, (longest + 1) * kMostBytes));
    if (wide.size() <= longest) {
        return ShownText(wide);
    }
    // Where characters have 16 bits, the second half of a pair stays with the first.
    const bool cutsPair = wide[longest] >= 0xdc00 && wide[longest] <= 0xdfff;
    return ShownText(std::wstring_view(wide).substr(0, longest - (cutsPair ? 1 : 0))) + "…";
}

} // namespace

std::string ShownName(std::string_view name) {
    constexpr std::size_t kLongest = 200;
    return ShownStart(name, kLongest);
}

std::string ShownLine(std::string_view text) {
    constexpr std::size_t kLongest = 160;
    return ShownStart(text, kLongest);
}

std::string RoundedText(double value, double parts) {
    return platform::WideToValidUtf8(encoding::FormatNumber(std::round(value * parts) / parts));
}

} // namespace conversions
