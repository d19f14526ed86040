// "%.5f" and its trimming of zeros.
#include "StyleConversion/encoding/TrimmedNumber.h"

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

// The doubles' layout: value = significand * 2^(exponent - kExponentBias).
constexpr int kSignificandBits = 52;
constexpr int kExponentBias = 1075;

// |value| * 10^5, rounded to the nearest integer and to the even one of two as near, which is what printf
// does with the exact binary value. For |value| < kFastLimit.
//
// |value| * 10^5 = significand * 3125 * 2^(exponent + 5), where significand * 3125 < 2^65: the product is
// held in 33 bits above 32 bits, and what the negative power of two shifts out decides the rounding.
std::uint64_t RoundedHundredThousandths(double value) {
    const auto bits = std::bit_cast<std::uint64_t>(value);
    const auto biased = static_cast<int>((bits >> kSignificandBits) & 0x7ff);
    const std::uint64_t fraction = bits & ((std::uint64_t{1} << kSignificandBits) - 1);
    const std::uint64_t significand =
        biased == 0 ? fraction : fraction | (std::uint64_t{1} << kSignificandBits);
    const int shift = kExponentBias - (biased == 0 ? 1 : biased) - 5;

    const std::uint64_t low = (significand & 0xffffffff) * 3125;
    const std::uint64_t upper = (significand >> 32) * 3125 + (low >> 32);
    const std::uint64_t lower = low & 0xffffffff;
    if (shift > 66) {
        return 0; // Less than 2^65 / 2^67: below one half.
    }
    if (shift <= 0) {
        return ((upper << 32) | lower) << -shift;
    }
    if (shift <= 32) {
        const std::uint64_t quotient = (upper << (32 - shift)) | (lower >> shift);
        const std::uint64_t rest = lower & ((std::uint64_t{1} << shift) - 1);
        const std::uint64_t half = std::uint64_t{1} << (shift - 1);
        return quotient + ((rest > half || (rest == half && (quotient & 1) != 0)) ? 1 : 0);
    }
    const int upperShift = shift - 32;
    const std::uint64_t quotient = upper >> upperShift;
    const std::uint64_t rest = upper & ((std::uint64_t{1} << upperShift) - 1);
    const std::uint64_t half = std::uint64_t{1} << (upperShift - 1);
    const bool above = rest > half || (rest == half && (lower != 0 || (quotient & 1) != 0));
    return quotient + (above ? 1 : 0);
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
