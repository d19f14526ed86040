// "%.5f" and its trimming of zeros.
#include "StyleConversion/encoding/TrimmedNumber.h"

#include "StyleConversion/encoding/BinaryParts.h"
#include "StyleConversion/encoding/ExactNumbers.h"
#include "StyleConversion/encoding/WideProduct.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>

namespace encoding {
namespace {

constexpr std::uint32_t kDecimals = 5;
constexpr std::uint32_t kTenToDecimals = 100000;

// Below this, value * 10^5 fits 64 bits.
constexpr double kFastLimit = 1e14;

// |value| * 10^5, rounded as printf rounds, for |value| < kFastLimit.
std::uint64_t RoundedHundredThousandths(double value) {
    // Below 2^40 the product of doubles is less than 2^-13 off. It settles which way to round unless it comes
    // close to a half.
    constexpr double kSmallProduct = 1099511627776.0;
    constexpr double kTooClose = 0.001;
    const double product = std::fabs(value) * kTenToDecimals;
    if (product < kSmallProduct) {
        const auto whole = static_cast<std::int64_t>(product);
        const double overHalf = product - static_cast<double>(whole) - 0.5;
        if (std::fabs(overHalf) > kTooClose) {
            return static_cast<std::uint64_t>(whole + (overHalf > 0.0 ? 1 : 0));
        }
    }
    // Exactly: 10^5 is 3125 and a shift.
    const BinaryParts parts = TakeApart(value);
    return ShiftRounded(Multiply(parts.significand, 3125), -(parts.exponent + 5));
}

wchar_t Digit(std::uint64_t value) {
    return static_cast<wchar_t>(L'0' + static_cast<wchar_t>(value));
}

wchar_t* WriteWhole(wchar_t* target, std::uint64_t whole) {
    std::size_t length = 1;
    for (std::uint64_t power = 10; power <= whole; power *= 10) {
        ++length;
    }
    for (std::size_t i = length; i > 0; --i) {
        target[i - 1] = Digit(whole % 10);
        whole /= 10;
    }
    return target + length;
}

// The first decimal, and those behind it up to a zero.
wchar_t* WriteDecimals(wchar_t* target, std::uint32_t decimals) {
    constexpr std::uint32_t kFirstPlace = kTenToDecimals / 10;
    do {
        *target++ = Digit(decimals / kFirstPlace);
        decimals = decimals % kFirstPlace * 10;
    } while (decimals >= kFirstPlace);
    return target;
}

// The text of a value that has fewer than 15 digits before its point, trimmed already.
wchar_t* WriteShortTrimmed(wchar_t* target, double value) {
    const std::uint64_t scaled = RoundedHundredThousandths(value);
    if (std::bit_cast<std::int64_t>(value) < 0) {
        *target++ = L'-';
    }
    target = WriteWhole(target, scaled / kTenToDecimals);
    *target++ = L'.';
    return WriteDecimals(target, static_cast<std::uint32_t>(scaled % kTenToDecimals));
}

} // namespace

wchar_t* WriteTrimmed(wchar_t* target, double value) {
    if (AreNumbersExact()) {
        return WriteShortest(target, value);
    }
    if (value > -kFastLimit && value < kFastLimit) {
        return WriteShortTrimmed(target, value);
    }
    char buffer[kLongestTrimmed];
    char* const end = std::to_chars(buffer, buffer + kLongestTrimmed, value, std::chars_format::fixed,
                                    static_cast<int>(kDecimals))
                          .ptr;
    auto length = static_cast<std::size_t>(end - buffer);
    const std::size_t original = length;
    // Required: R1
    for (std::size_t back = 1; back < kDecimals && back <= original; ++back) {
        if (buffer[original - back] == '0') {
            length = original - back;
        }
    }
    return std::copy(buffer, buffer + length, target);
}

std::wstring Double2TrimmedString(double value) {
    wchar_t buffer[kLongestTrimmed];
    return std::wstring(buffer, WriteTrimmed(buffer, value));
}

} // namespace encoding
