// Names in linetype files: narrow to wide, upper case, and their order.
#pragma once

#include "StyleConversion/linetype/LinResult.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace LineConverter {

/// The text style of texts that name none.
inline constexpr const wchar_t* kStandardStyle = L"STANDARD";

/// Converts bytes in the code page in force. kCannotConvert when text becomes nothing, kOutOfMemory when
/// memory runs out; an empty text is converted to an empty one.
LinResult AnsiToWide(std::string_view narrow, std::wstring& wide);

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
