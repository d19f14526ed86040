// Names in linetype files: narrow to wide, upper case, and their order.
#include "StyleConversion/linetype/LinNames.h"

#include "StyleConversion/platform/CodePage.h"

#include <algorithm>
#include <cstdint>
#include <new>

namespace LineConverter {
namespace {

constexpr std::uint32_t kFirstSurrogate = 0xD800;
constexpr std::uint32_t kFirstLowSurrogate = 0xDC00;
constexpr std::uint32_t kFirstSupplementary = 0x10000;

bool IsSupplementary(wchar_t c) {
    return static_cast<std::uint32_t>(c) >= kFirstSupplementary;
}

// The first of the character's one or two UTF-16 units.
std::uint32_t FirstUnit(wchar_t c) {
    const auto code = static_cast<std::uint32_t>(c);
    return code < kFirstSupplementary ? code : kFirstSurrogate + ((code - kFirstSupplementary) >> 10);
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
        platform::AnsiToWide(narrow, wide);
    } catch (const std::bad_alloc&) {
        return kOutOfMemory;
    }
    return wide.empty() ? kCannotConvert : kSuccess;
}

void MakeUpperCase(std::wstring& text) {
    for (wchar_t& c : text) {
        c = UpperCase(c);
    }
}

std::wstring ToUtf16Units(std::wstring_view text) {
    std::wstring units;
    units.reserve(text.size());
    for (const wchar_t c : text) {
        if (IsSupplementary(c)) {
            const std::uint32_t offset = static_cast<std::uint32_t>(c) - kFirstSupplementary;
            units += static_cast<wchar_t>(FirstUnit(c));
            units += static_cast<wchar_t>(kFirstLowSurrogate + (offset & 0x3FF));
        } else {
            units += c;
        }
    }
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
