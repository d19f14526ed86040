// Single characters, whatever their width: blanks, letter case, hexadecimal digits, UTF-16 units, byte-order
// marks. Depends on no locale and on nothing else of the project.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace platform {

/// Space, tab, line feed, vertical tab, form feed or carriage return.
template <class Char>
constexpr bool IsBlank(Char c) {
    return c == Char(' ') || (c >= Char('\t') && c <= Char('\r'));
}

/// The text without the blanks at its two ends.
template <class Char>
constexpr std::basic_string_view<Char> WithoutBlanks(std::basic_string_view<Char> text) {
    while (!text.empty() && IsBlank(text.front())) {
        text.remove_prefix(1);
    }
    while (!text.empty() && IsBlank(text.back())) {
        text.remove_suffix(1);
    }
    return text;
}

/// The letters A to Z as a to z, and the other way round; everything else is left as it is.
template <class Char>
constexpr Char AsciiLower(Char c) {
    return c >= Char('A') && c <= Char('Z') ? static_cast<Char>(c - Char('A') + Char('a')) : c;
}
template <class Char>
constexpr Char AsciiUpper(Char c) {
    return c >= Char('a') && c <= Char('z') ? static_cast<Char>(c - Char('a') + Char('A')) : c;
}

/// Capital letters as small ones: Latin, Greek and Cyrillic letters that have exactly one of each. Everything
/// else is left as it is.
constexpr wchar_t FoldCase(wchar_t c) {
    const auto code = static_cast<char32_t>(c);
    const auto shifted = [code](char32_t by) { return static_cast<wchar_t>(code + by); };
    if (code < 0x80) {
        return AsciiLower(c);
    }
    if (code <= 0xFF) { // Latin-1; U+00D7 is the multiplication sign
        return code >= 0xC0 && code <= 0xDE && code != 0xD7 ? shifted(32) : c;
    }
    if (code <= 0x17F) { // Latin Extended-A: pairs, capitals at even or at odd places
        const bool capitalsEven =
            (code <= 0x137 && code != 0x130 && code != 0x131) || (code >= 0x14A && code <= 0x177);
        const bool capitalsOdd = (code >= 0x139 && code <= 0x148) || (code >= 0x179 && code <= 0x17E);
        return ((capitalsEven && code % 2 == 0) || (capitalsOdd && code % 2 == 1)) ? shifted(1) : c;
    }
    if (code >= 0x391 && code <= 0x3AB) { // Greek; U+03A2 is not assigned
        return code != 0x3A2 ? shifted(32) : c;
    }
    if (code >= 0x400 && code <= 0x42F) { // Cyrillic
        return shifted(code <= 0x40F ? 80 : 32);
    }
    return c;
}

/// The digits 0 to 15, in lower case: kHexDigits[15] is 'f'.
inline constexpr std::string_view kHexDigits = "0123456789abcdef";

/// The value of a hexadecimal digit in either case, 0 to 15; -1 for any other character.
template <class Char>
constexpr int HexDigitValue(Char c) {
    const Char lower = AsciiLower(c);
    if (lower >= Char('0') && lower <= Char('9')) {
        return static_cast<int>(lower - Char('0'));
    }
    return lower >= Char('a') && lower <= Char('f') ? static_cast<int>(lower - Char('a')) + 10 : -1;
}

/// The two digits of a byte, in lower case, behind `text`.
template <class String>
constexpr void AppendHexByte(String& text, std::uint8_t byte) {
    text += static_cast<typename String::value_type>(kHexDigits[byte >> 4U]);
    text += static_cast<typename String::value_type>(kHexDigits[byte & 0xfU]);
}

/// Code points from here on take two UTF-16 units: a high and a low surrogate, which stand for nothing alone.
inline constexpr std::uint32_t kFirstSupplementary = 0x10000;
inline constexpr std::uint32_t kLastCodePoint = 0x10ffff;

constexpr bool IsHighSurrogate(std::uint32_t code) {
    return code >= 0xd800 && code <= 0xdbff;
}
constexpr bool IsLowSurrogate(std::uint32_t code) {
    return code >= 0xdc00 && code <= 0xdfff;
}
constexpr bool IsSurrogate(std::uint32_t code) {
    return code >= 0xd800 && code <= 0xdfff;
}

/// The two units of a code point from kFirstSupplementary on, and the code point of two such units.
constexpr std::uint16_t HighSurrogateOf(std::uint32_t codePoint) {
    return static_cast<std::uint16_t>(0xd800 + (((codePoint - kFirstSupplementary) >> 10U) & 0x3ffU));
}
constexpr std::uint16_t LowSurrogateOf(std::uint32_t codePoint) {
    return static_cast<std::uint16_t>(0xdc00 + ((codePoint - kFirstSupplementary) & 0x3ffU));
}
constexpr std::uint32_t JoinSurrogates(std::uint32_t high, std::uint32_t low) {
    return kFirstSupplementary + ((high - 0xd800) << 10U) + (low - 0xdc00);
}

/// Calls `use` with each UTF-16 unit of the text in order. Where wide characters have 32 bits, those above
/// U+FFFF give two units.
template <class Use>
constexpr void ForEachUtf16Unit(std::wstring_view text, Use use) {
    for (const wchar_t c : text) {
        const auto code = static_cast<std::uint32_t>(c);
        if (sizeof(wchar_t) > 2 && code >= kFirstSupplementary) {
            use(HighSurrogateOf(code));
            use(LowSurrogateOf(code));
        } else {
            use(static_cast<std::uint16_t>(code));
        }
    }
}

/// What may stand before the first character of a file in UTF-8.
inline constexpr std::string_view kUtf8ByteOrderMark = "\xef\xbb\xbf";

/// Whether bytes start with the mark, and the bytes behind it where they do.
constexpr bool StartsWithByteOrderMark(std::string_view bytes) {
    return bytes.substr(0, kUtf8ByteOrderMark.size()) == kUtf8ByteOrderMark;
}
constexpr std::string_view WithoutByteOrderMark(std::string_view bytes) {
    return StartsWithByteOrderMark(bytes) ? bytes.substr(kUtf8ByteOrderMark.size()) : bytes;
}

} // namespace platform
