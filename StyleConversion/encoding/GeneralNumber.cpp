// "%.15g" by exact integer arithmetic, where the value's size allows it.
//
// A second way beside std::to_chars: by that alone, converting simple linetypes takes 20 to 37 % more
// instructions.
#include "StyleConversion/encoding/GeneralNumber.h"

#include "StyleConversion/encoding/BinaryParts.h"
#include "StyleConversion/encoding/WideProduct.h"

#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>

namespace encoding {
namespace {

constexpr int kSignificantDigits = 15;

// Decimal exponents below the first, and from the second on, are written in scientific form.
constexpr int kSmallestFixedExponent = -4;
constexpr int kSmallestScientificExponent = kSignificantDigits;

// The exact arithmetic multiplies by 5^0 to 5^27, the powers that fit 64 bits: the values whose first digit
// stands from 27 - 14 places behind the point to 14 places before it.
constexpr double kSmallestFast = 1e-12;
constexpr double kSmallestTooLarge = 1e15;
constexpr int kPowers = 28;

constexpr std::array<std::uint64_t, kPowers> MakePowersOfFive() {
    std::array<std::uint64_t, kPowers> powers{};
    std::uint64_t power = 1;
    for (std::uint64_t& entry : powers) {
        entry = power;
        power *= 5;
    }
    return powers;
}

constexpr std::array<std::uint64_t, kPowers> kPowersOfFive = MakePowersOfFive();
constexpr std::uint64_t kTenTo8 = 100'000'000;
constexpr std::uint64_t kTenTo14 = 100'000'000'000'000;
constexpr std::uint64_t kTenTo15 = 1'000'000'000'000'000;

// The 15 digits d0 … d14 of a number d0.d1 … d14 * 10^exponent. Zeros at their end do not count.
struct Decimal {
    std::array<char, kSignificantDigits> digits{};
    int count = 0;
    int exponent = 0;
};

// |value| * 10^power, rounded. The product is exact: 10^power is 5^power and a shift.
std::uint64_t Scaled(const BinaryParts& parts, int power) {
    return ShiftRounded(Multiply(parts.significand, kPowersOfFive[static_cast<std::size_t>(power)]),
                        -(parts.exponent + power));
}

Decimal ToDecimal(double magnitude) {
    const BinaryParts parts = TakeApart(magnitude);
    // floor(log10) from the binary exponent, at most one too small: 1233 / 4096 is just below log10(2).
    const int log2 = parts.exponent + static_cast<int>(std::bit_width(parts.significand)) - 1;
    int exponent = (log2 * 1233) >> 12;
    std::uint64_t scaled = Scaled(parts, kSignificantDigits - 1 - exponent);
    if (scaled > kTenTo15) {
        ++exponent;
        scaled = Scaled(parts, kSignificantDigits - 1 - exponent);
    }
    if (scaled == kTenTo15) {
        // Nines rounded up, or the power of ten itself: the digits are the same.
        ++exponent;
        scaled = kTenTo14;
    }
    Decimal decimal;
    decimal.exponent = exponent;
    decimal.count = kSignificantDigits;
    decimal.digits.fill('0');
    if (scaled % kTenTo8 == 0) { // as of all short decimals
        scaled /= kTenTo8;
        decimal.count -= 8;
    }
    for (auto i = static_cast<std::size_t>(decimal.count); i > 0; --i) {
        decimal.digits[i - 1] = static_cast<char>('0' + scaled % 10);
        scaled /= 10;
    }
    while (decimal.count > 1 && decimal.digits[static_cast<std::size_t>(decimal.count) - 1] == '0') {
        --decimal.count;
    }
    return decimal;
}

wchar_t* WriteDigits(wchar_t* target, const Decimal& decimal, int from, int to) {
    for (int i = from; i < to; ++i) {
        *target++ = static_cast<wchar_t>(decimal.digits[static_cast<std::size_t>(i)]);
    }
    return target;
}

wchar_t* WriteFixed(wchar_t* target, const Decimal& decimal) {
    const int integerDigits = decimal.exponent + 1;
    if (integerDigits <= 0) {
        *target++ = L'0';
        *target++ = L'.';
        for (int i = integerDigits; i < 0; ++i) {
            *target++ = L'0';
        }
        return WriteDigits(target, decimal, 0, decimal.count);
    }
    target = WriteDigits(target, decimal, 0, integerDigits);
    if (decimal.count > integerDigits) {
        *target++ = L'.';
        target = WriteDigits(target, decimal, integerDigits, decimal.count);
    }
    return target;
}

// Only exponents with at most two digits come here.
wchar_t* WriteScientific(wchar_t* target, const Decimal& decimal) {
    target = WriteDigits(target, decimal, 0, 1);
    if (decimal.count > 1) {
        *target++ = L'.';
        target = WriteDigits(target, decimal, 1, decimal.count);
    }
    *target++ = L'e';
    *target++ = decimal.exponent < 0 ? L'-' : L'+';
    const int magnitude = std::abs(decimal.exponent);
    *target++ = static_cast<wchar_t>(L'0' + magnitude / 10);
    *target++ = static_cast<wchar_t>(L'0' + magnitude % 10);
    return target;
}

// Every double, by the standard library.
wchar_t* WriteAny(wchar_t* target, double value) {
    std::array<char, kLongestGeneral + 1> text{};
    const char* const end = std::to_chars(text.data(), text.data() + text.size(), value,
                                          std::chars_format::general, kSignificantDigits)
                                .ptr;
    for (const char* c = text.data(); c != end; ++c) {
        *target++ = static_cast<wchar_t>(*c);
    }
    return target;
}

} // namespace

wchar_t* WriteGeneral(wchar_t* target, double value) {
    const double magnitude = std::fabs(value);
    if (magnitude == 0) {
        if (std::signbit(value)) {
            *target++ = L'-';
        }
        *target++ = L'0';
        return target;
    }
    if (!(magnitude >= kSmallestFast && magnitude < kSmallestTooLarge)) {
        return WriteAny(target, value);
    }
    if (value < 0) {
        *target++ = L'-';
    }
    const Decimal decimal = ToDecimal(magnitude);
    const bool fixed =
        decimal.exponent >= kSmallestFixedExponent && decimal.exponent < kSmallestScientificExponent;
    return fixed ? WriteFixed(target, decimal) : WriteScientific(target, decimal);
}

} // namespace encoding
