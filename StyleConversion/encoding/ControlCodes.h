// The "%%" codes in texts.
#pragma once

#include <string>
#include <string_view>

namespace encoding {

/// A text without its control codes, and whether all of its characters are overlined or underlined: so too
/// when there are none.
struct DecodedText {
    std::wstring characters;
    bool overlined = true;
    bool underlined = true;
};

/// Carries out "%%C" (diameter sign), "%%D" (degree sign), "%%P" (plus-minus sign), "%%O" and "%%U" (overline
/// and underline on and off), letters in either case, and "%%" with one to three decimal digits: the
/// character of that code. "%%" before anything else is dropped; a single "%" stays. Where
/// `readUnicodeCodes`, "\U+" and four hexadecimal digits are the character of that code, too.
DecodedText DecodeControlCodes(std::wstring_view text, bool readUnicodeCodes = false);

/// Whether the text starts with "\U+" and four hexadecimal digits.
bool StartsWithUnicodeCode(std::wstring_view text);

} // namespace encoding
