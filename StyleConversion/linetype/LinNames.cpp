// Names in linetype files: narrow to wide, upper case, and their order.
#include "StyleConversion/linetype/LinNames.h"

#include "StyleConversion/platform/Characters.h"
#include "StyleConversion/platform/CodePage.h"

#include <algorithm>
#include <cstdint>
#include <new>

namespace LineConverter {
namespace {

bool IsSupplementary(wchar_t c) {
    return static_cast<std::uint32_t>(c) >= platform::kFirstSupplementary;
}

// The first of the character's one or two UTF-16 units.
std::uint32_t FirstUnit(wchar_t c) {
    const auto code = static_cast<std::uint32_t>(c);
    return IsSupplementary(c) ? platform::HighSurrogateOf(code) : code;
}

// Two supplementary characters with the same first unit sort by the second, which is by their codes.
bool SortsBefore(wchar_t first, wchar_t second) {
    const std::uint32_t firstUnit = FirstUnit(first);
    const std::uint32_t secondUnit = FirstUnit(second);
    return firstUnit != secondUnit ? firstUnit < secondUnit
                                   : static_cast<std::uint32_t>(first) < static_cast<std::uint32_t>(second);
}

} // namespace

LinResult AnsiToWide(std::string_view narrow, std::wstring& wide) {
    wide.clear();
    if (narrow.empty()) {
        return kSuccess;
    }
    try {
        platform::ThreadAnsiToWide(narrow, wide);
    } catch (const std::bad_alloc&) {
        return kOutOfMemory;
    }
    return wide.empty() ? kCannotConvert : kSuccess;
}

void MakeUpperCase(std::wstring& text) {
    for (wchar_t& c : text) {
        c = platform::AsciiUpper(c);
    }
}

std::wstring ToUtf16Units(std::wstring_view text) {
    std::wstring units;
    units.reserve(text.size());
    platform::ForEachUtf16Unit(text, [&units](std::uint16_t unit) { units += static_cast<wchar_t>(unit); });
    return units;
}

std::size_t CountUtf16Units(std::wstring_view text) {
    return text.size() + static_cast<std::size_t>(std::count_if(text.begin(), text.end(), IsSupplementary));
}

bool Utf16Less::operator()(const std::wstring& first, const std::wstring& second) const {
    return std::lexicographical_compare(first.begin(), first.end(), second.begin(), second.end(),
                                        SortsBefore);
}

} // namespace LineConverter
