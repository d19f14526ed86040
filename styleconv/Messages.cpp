#include "styleconv/Messages.h"

#include "StyleConversion/encoding/PathCommands.h"
#include "StyleConversion/platform/CodePage.h"
#include "StyleConversion/platform/Utf8.h"
#include "documents/ShownText.h"
#include "styleconv/Progress.h"

#include <cmath>
#include <cstdio>
#include <utility>

namespace styleconv {
namespace {

// At most `longest` characters of a text in the file's encoding.
std::string ShownStart(std::string_view text, std::size_t longest) {
    // No encoding has more bytes to a character, so that none of those shown is cut.
    constexpr std::size_t kMostBytes = 4;
    const std::wstring wide = platform::AnsiToWide(text.substr(0, (longest + 1) * kMostBytes));
    if (wide.size() <= longest) {
        return Shown(wide);
    }
    // Where characters have 16 bits, the second half of a pair stays with the first.
    const bool cutsPair = wide[longest] >= 0xdc00 && wide[longest] <= 0xdfff;
    return Shown(std::wstring_view(wide).substr(0, longest - (cutsPair ? 1 : 0))) + "…";
}

} // namespace

void Say(std::string_view file, std::string_view what) {
    std::string line = Shown(file);
    line += ": ";
    line += what;
    SayLine(std::move(line));
}

void SayLine(std::string line) {
    line += '\n';
    ClearProgress();
    // Nowhere is left to say that standard error cannot be written.
    std::fwrite(line.data(), 1, line.size(), stderr);
}

void SayAtLine(std::string_view file, std::size_t line, std::string_view what) {
    Say(file, "line " + std::to_string(line) + ": " + std::string(what));
}

void SayAtByte(std::string_view file, std::size_t byte, std::string_view what) {
    Say(file, "byte " + std::to_string(byte) + ": " + std::string(what));
}

void SayMissing(std::string_view file, std::string_view what, bool isTolerant) {
    Say(file, (isTolerant ? "warning: " : "") + std::string(what));
}

std::string Shown(std::wstring_view name) {
    return documents::ShownText(name);
}

std::string Shown(std::string_view name) {
    return documents::ShownText(name);
}

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

} // namespace styleconv
