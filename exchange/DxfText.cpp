// Texts of a DXF file.
#include "exchange/DxfText.h"

#include "StyleConversion/platform/Characters.h"

#include <algorithm>
#include <array>
#include <optional>

namespace exchange {
namespace {

constexpr std::size_t kCodeDigits = 4;

// "ANSI_1252" is WINDOWS-1252, "DOS850" is CP850, "ISO8859-1" is ISO-8859-1; words that are names stay so.
std::string PageName(std::string_view word) {
    std::string upper(word);
    std::transform(upper.begin(), upper.end(), upper.begin(), [](char c) { return platform::AsciiUpper(c); });
    const auto behind = [&upper](std::string_view start) -> std::optional<std::string> {
        return upper.starts_with(start) ? std::optional(upper.substr(start.size())) : std::nullopt;
    };
    if (const auto number = behind("ANSI_")) {
        constexpr std::size_t kDigitsOfDoubleBytePages = 3;
        return (number->size() == kDigitsOfDoubleBytePages ? "CP" : "WINDOWS-") + *number;
    }
    if (const auto number = behind("DOS")) {
        return "CP" + *number;
    }
    if (const auto number = behind("ISO8859-")) {
        return "ISO-8859-" + *number;
    }
    return upper;
}

std::string ChosenPage(bool isUtf8, std::string_view pageOfFile) {
    if (isUtf8) {
        return "UTF-8";
    }
    std::string name = PageName(pageOfFile);
    return !name.empty() && platform::PageDecoder(name).IsKnown() ? name : "WINDOWS-1252";
}

// The number that the digits at the start of `text` spell; nothing where one of them is none.
std::optional<unsigned> HexNumber(std::string_view text) {
    if (text.size() < kCodeDigits) {
        return std::nullopt;
    }
    unsigned number = 0;
    for (const char c : text.substr(0, kCodeDigits)) {
        const int digit = platform::HexDigitValue(c);
        if (digit < 0) {
            return std::nullopt;
        }
        number = number * 16 + static_cast<unsigned>(digit);
    }
    return number;
}

bool StartsWithCode(std::string_view rest, char letter) {
    return rest.size() > 3 && rest[0] == '\\' && platform::AsciiUpper(rest[1]) == letter && rest[2] == '+';
}

// The two halves of a character above U+FFFF as one, where wide characters have room for it.
void Append(std::wstring& text, const std::wstring& character) {
    const std::uint32_t before = text.empty() ? 0 : static_cast<std::uint32_t>(text.back());
    const std::uint32_t unit = character.empty() ? 0 : static_cast<std::uint32_t>(character.front());
    if (sizeof(wchar_t) > 2 && platform::IsHighSurrogate(before) && platform::IsLowSurrogate(unit)) {
        text.back() = static_cast<wchar_t>(platform::JoinSurrogates(before, unit));
    } else {
        text += character;
    }
}

// Sets `text` to the character of a code at the start of `rest`, and returns how many bytes the code has; 0
// where there is none.
std::size_t ReadCode(std::string_view rest, std::wstring& text) {
    constexpr std::size_t kMark = 3; // "\U+"
    if (StartsWithCode(rest, 'U')) {
        if (const std::optional<unsigned> unit = HexNumber(rest.substr(kMark)); unit && *unit != 0) {
            text = static_cast<wchar_t>(*unit);
            return kMark + kCodeDigits;
        }
    }
    if (StartsWithCode(rest, 'M') && rest[kMark] >= '1' && rest[kMark] <= '5') {
        constexpr std::array<const char*, 5> kPages = {"CP932", "CP950", "CP949", "CP1361", "CP936"};
        const std::optional<unsigned> code = HexNumber(rest.substr(kMark + 1));
        const platform::PageDecoder page(kPages[static_cast<std::size_t>(rest[kMark] - '1')]);
        if (code && *code > 0xff && page.IsKnown()) {
            const char bytes[] = {static_cast<char>(*code >> 8U), static_cast<char>(*code & 0xffU)};
            text = page.ToWide(std::string_view(bytes, sizeof bytes));
            return kMark + 1 + kCodeDigits;
        }
    }
    if (rest.size() > 1 && rest[0] == '^') {
        const char c = rest[1];
        if (c == ' ') {
            text = L'^';
            return 2;
        }
        if (c > '@' && c <= '_') {
            text = static_cast<wchar_t>(c - '@');
            return 2;
        }
    }
    return 0;
}

} // namespace

DxfTextDecoder::DxfTextDecoder(bool isUtf8, std::string_view pageOfFile)
    : page_(ChosenPage(isUtf8, pageOfFile)) {}

bool DxfTextDecoder::ReadsAscii() const {
    std::string ascii;
    for (char c = ' '; c <= '~'; ++c) {
        ascii += c;
    }
    return page_.ToWide(ascii) == std::wstring(ascii.begin(), ascii.end());
}

std::wstring DxfTextDecoder::Decode(std::string_view bytes) const {
    bytes = bytes.substr(0, bytes.find('\0'));
    std::wstring text;
    std::wstring character;
    std::size_t plain = 0; // start of the bytes without codes that are not decoded yet
    for (std::size_t at = 0; at < bytes.size();) {
        const bool mayBeCode = bytes[at] == '\\' || bytes[at] == '^';
        const std::size_t used = mayBeCode ? ReadCode(bytes.substr(at), character) : 0;
        if (used == 0) {
            ++at;
            continue;
        }
        text += page_.ToWide(bytes.substr(plain, at - plain));
        Append(text, character);
        at += used;
        plain = at;
    }
    text += page_.ToWide(bytes.substr(plain));
    return text;
}

} // namespace exchange
