// Names in linetype files: narrow to wide, upper case, and their order.
#pragma once

#include "StyleConversion/linetype/LinResult.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace LineConverter {

/// Converts bytes in the code page in force. kCannotConvert when text becomes nothing, kOutOfMemory when
/// memory runs out; an empty text is converted to an empty one.
LinResult AnsiToWide(std::string_view narrow, std::wstring& wide);

/// `c` in upper case where it is one of a to z.
constexpr char UpperCase(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}
constexpr wchar_t UpperCase(wchar_t c) {
    return c >= L'a' && c <= L'z' ? static_cast<wchar_t>(c - L'a' + L'A') : c;
}

/// Turns a to z into upper case, in place, and no other letters.
void MakeUpperCase(std::wstring& text);

/// The text as UTF-16 units, each in one element, whatever the width of wchar_t.
std::wstring ToUtf16Units(std::wstring_view text);

/// How many UTF-16 units the text has.
std::size_t CountUtf16Units(std::wstring_view text);

/// Sorts by UTF-16 unit, on systems with wider characters too, so that styles and files are resolved in the
/// same order everywhere: characters above U+FFFF come before U+E000.
struct Utf16Less {
    bool operator()(const std::wstring& first, const std::wstring& second) const;
};

} // namespace LineConverter
