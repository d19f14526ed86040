// Paths that are bytes, by custom UTF-8.
#include "StyleConversion/platform/Characters.h"
#include "StyleConversion/platform/Files.h"
#include "StyleConversion/platform/Utf8.h"

#include <algorithm>

namespace platform {
namespace {

std::wstring LowerOf(std::wstring_view text) {
    std::wstring lower(text);
    for (wchar_t& c : lower) {
        c = AsciiLower(c);
    }
    return lower;
}

} // namespace

PathParts SplitPath(std::wstring_view path) {
    PathParts parts;
    const std::size_t separator = path.find_last_of(L"/\\");
    const std::size_t nameStart = separator == std::wstring_view::npos ? 0 : separator + 1;
    parts.directory = path.substr(0, nameStart);
    const std::wstring_view name = path.substr(nameStart);
    const std::size_t point = std::min(name.rfind(L'.'), name.size());
    parts.fileName = name.substr(0, point);
    parts.extension = name.substr(point);
    return parts;
}

int CompareIgnoringCase(const wchar_t* first, const wchar_t* second) {
    return LowerOf(first).compare(LowerOf(second));
}

std::wstring PathFromBytes(std::string_view bytes) {
    return Utf8ToWide(bytes);
}

std::string PathToBytes(std::wstring_view path) {
    return WideToUtf8Bytes(path);
}

} // namespace platform
