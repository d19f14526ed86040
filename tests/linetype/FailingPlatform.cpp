// A platform layer whose every service fails on request: text that becomes nothing, files that cannot be
// closed.
#include "FailingPlatform.h"

#include "StyleConversion/platform/CodePage.h"
#include "StyleConversion/platform/Files.h"

namespace linetypetest {

std::string fileContent;
bool closingFails = false;

} // namespace linetypetest

namespace {

struct Cookie {
    std::size_t position = 0;
};

ssize_t ReadContent(void* cookie, char* buffer, std::size_t size) {
    std::size_t& position = static_cast<Cookie*>(cookie)->position;
    const std::size_t count = linetypetest::fileContent.copy(buffer, size, position);
    position += count;
    return static_cast<ssize_t>(count);
}

int CloseContent(void* cookie) {
    delete static_cast<Cookie*>(cookie);
    return linetypetest::closingFails ? -1 : 0;
}

} // namespace

namespace platform {

std::wstring AnsiToWide(std::string_view narrow) {
    if (narrow.find('?') != std::string_view::npos) {
        return {};
    }
    return {narrow.begin(), narrow.end()};
}

void AnsiToWide(std::string_view narrow, std::wstring& wide) {
    wide = AnsiToWide(narrow);
}

void ThreadAnsiToWide(std::string_view narrow, std::wstring& wide) {
    AnsiToWide(narrow, wide);
}

std::string WideToAnsi(std::wstring_view /*wide*/) {
    return {};
}

std::size_t FindInMultiByte(std::string_view text, char sought) {
    return text.find(sought);
}

std::FILE* OpenForReading(const wchar_t* /*path*/) {
    return fopencookie(new Cookie, "rb", {ReadContent, nullptr, nullptr, CloseContent});
}

std::FILE* OpenForReadingIgnoringCase(const wchar_t* path) {
    return OpenForReading(path);
}

PathParts SplitPath(std::wstring_view path) {
    return {{}, {}, std::wstring(path), {}};
}

int CompareIgnoringCase(const wchar_t* first, const wchar_t* second) {
    return std::wstring(first).compare(second);
}

} // namespace platform
