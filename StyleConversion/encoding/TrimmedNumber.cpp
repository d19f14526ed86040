// "%.5f" and its trimming of zeros.
#include "StyleConversion/encoding/TrimmedNumber.h"

#include "StyleConversion/encoding/BinaryParts.h"
#include "StyleConversion/encoding/WideProduct.h"
#include "StyleConversion/encoding/Widening.h"

#include <bit>
#include <charconv>
#include <cstddef>
#include <cstdint>

namespace encoding {
namespace {

constexpr std::size_t kDecimals = 5;

// Sign, 309 digits before the point, the point, the decimals: the longest text of a finite double.
constexpr std::size_t kLongestText = 1 + 309 + 1 + kDecimals;

// Below this, value * 10^5 fits 64 bits.
constexpr double kFastLimit = 1e14;

// |value| * 10^5, rounded as printf rounds: 10^5 is 3125 and a shift. For |value| < kFastLimit.
std::uint64_t RoundedHundredThousandths(double value) {
    const BinaryParts parts = TakeApart(value);
    return ShiftRounded(Multiply(parts.significand, 3125), -(parts.exponent + 5));
}

// The text of a value that has fewer than 15 digits before its point, trimmed already.
void AppendShortTrimmed(std::wstring& text, double value) {
    std::uint64_t scaled = RoundedHundredThousandths(value);
    wchar_t buffer[24];
    wchar_t* const end = buffer + 24;
    wchar_t* first = end;
    wchar_t* cut = end;
    for (std::size_t decimal = kDecimals; decimal > 0; --decimal) {
        const auto digit = static_cast<wchar_t>(L'0' + static_cast<wchar_t>(scaled % 10));
        scaled /= 10;
        *--first = digit;
        if (digit == L'0' && decimal > 1) {
            cut = first;
        }
    }
    *--first = L'.';
    do {
        *--first = static_cast<wchar_t>(L'0' + static_cast<wchar_t>(scaled % 10));
        scaled /= 10;
    } while (scaled != 0);
    if (std::bit_cast<std::int64_t>(value) < 0) {
        *--first = L'-';
    }
    text.append(first, cut);
}

} // namespace

void AppendTrimmed(std::wstring& text, double value) {
    if (value > -kFastLimit && value < kFastLimit) {
        AppendShortTrimmed(text, value);
        return;
    }
    char buffer[kLongestText];
    char* const end = std::to_chars(buffer, buffer + kLongestText, value, std::chars_format::fixed,
                                    static_cast<int>(kDecimals))
                          .ptr;
    auto length = static_cast<std::size_t>(end - buffer);
    const std::size_t original = length;
    // The scan does not stop at another digit: a zero further left still cuts the text there. That is wanted.
    for (std::size_t back = 1; back < kDecimals && back <= original; ++back) {
        if (buffer[original - back] == '0') {
            length = original - back;
        }
    }
    AppendAscii(text, buffer, length);
}

std::wstring Double2TrimmedString(double value) {
    std::wstring text;
    AppendTrimmed(text, value);
    return text;
}

} // namespace encoding
