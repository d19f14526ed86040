#include "styleconv/Messages.h"

#include "StyleConversion/platform/CodePage.h"
#include "documents/ShownText.h"
#include "styleconv/Progress.h"

#include <cstdio>
#include <utility>

namespace styleconv {

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

std::string ShownLine(std::string_view text) {
    constexpr std::size_t kLongest = 160;
    return Shown(platform::AnsiToWide(text.substr(0, kLongest))) + (text.size() > kLongest ? "…" : "");
}

} // namespace styleconv
