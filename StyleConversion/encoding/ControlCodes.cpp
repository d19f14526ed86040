#include "StyleConversion/encoding/ControlCodes.h"

#include "StyleConversion/platform/Characters.h"

#include <algorithm>
#include <cstddef>

namespace encoding {
namespace {

// The most decimal digits that follow "%%" as one character code.
constexpr std::size_t kCharacterCodeDigits = 3;

// The hexadecimal digits that follow "\U+" as one character code, where that is read at all.
constexpr std::size_t kUnicodeCodeDigits = 4;

// Required: R35
constexpr wchar_t kDiameterSign = 8709;
constexpr wchar_t kDegreeSign = 176;
constexpr wchar_t kPlusMinusSign = 177;

bool IsDigit(wchar_t c) {
    return c >= L'0' && c <= L'9';
}

constexpr std::wstring_view kUnicodeMark = L"\\U+";
constexpr std::size_t kUnicodeCodeLength = kUnicodeMark.size() + kUnicodeCodeDigits;

class Decoder {
public:
    explicit Decoder(bool readUnicodeCodes) : readUnicodeCodes_(readUnicodeCodes) {}

    DecodedText Decode(std::wstring_view text) {
        for (std::size_t position = 0; position < text.size();) {
            if (readUnicodeCodes_ && StartsWithUnicodeCode(text.substr(position))) {
                UnicodeCode(text.substr(position));
                position += kUnicodeCodeLength;
                continue;
            }
            if (text.substr(position, 2) != L"%%") {
                Emit(text[position++]);
                continue;
            }
            position += 2;
            position += Code(text.substr(position));
        }
        return std::move(decoded_);
    }

private:
    void Emit(wchar_t c) {
        decoded_.characters += c;
        decoded_.overlined = decoded_.overlined && overline_;
        decoded_.underlined = decoded_.underlined && underline_;
    }

    // Carries out the code at the start of `text` and returns how many characters it has behind its "%%".
    std::size_t Code(std::wstring_view text) {
        if (text.empty()) {
            return 0;
        }
        if (IsDigit(text[0])) {
            return CharacterCode(text);
        }
        switch (platform::AsciiUpper(text[0])) {
        case L'C':
            Emit(kDiameterSign);
            break;
        case L'D':
            Emit(kDegreeSign);
            break;
        case L'P':
            Emit(kPlusMinusSign);
            break;
        case L'O':
            overline_ = !overline_;
            break;
        case L'U':
            underline_ = !underline_;
            break;
        default:
            Emit(text[0]);
            break;
        }
        return 1;
    }

    std::size_t CharacterCode(std::wstring_view text) {
        int code = 0;
        std::size_t digits = 0;
        while (digits < kCharacterCodeDigits && digits < text.size() && IsDigit(text[digits])) {
            code = code * 10 + static_cast<int>(text[digits] - L'0');
            ++digits;
        }
        Emit(static_cast<wchar_t>(code));
        return digits;
    }

    void UnicodeCode(std::wstring_view text) {
        int code = 0;
        for (const wchar_t digit : text.substr(kUnicodeMark.size(), kUnicodeCodeDigits)) {
            code = code * 16 + platform::HexDigitValue(digit);
        }
        Emit(static_cast<wchar_t>(code));
    }

    bool readUnicodeCodes_;
    DecodedText decoded_;
    bool overline_ = false;
    bool underline_ = false;
};

} // namespace

bool StartsWithUnicodeCode(std::wstring_view text) {
    if (text.size() < kUnicodeCodeLength || !text.starts_with(kUnicodeMark)) {
        return false;
    }
    const std::wstring_view digits = text.substr(kUnicodeMark.size(), kUnicodeCodeDigits);
    return std::all_of(digits.begin(), digits.end(),
                       [](wchar_t digit) { return platform::HexDigitValue(digit) >= 0; });
}

DecodedText DecodeControlCodes(std::wstring_view text, bool readUnicodeCodes) {
    return Decoder(readUnicodeCodes).Decode(text);
}

} // namespace encoding
