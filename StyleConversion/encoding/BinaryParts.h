// A finite double as an integer times a power of two.
#pragma once

#include <bit>
#include <cstdint>

namespace encoding {

/// |value| = significand * 2^exponent, with a significand below 2^53.
struct BinaryParts {
    std::uint64_t significand = 0;
    int exponent = 0;
};

inline BinaryParts TakeApart(double value) {
    constexpr int kFractionBits = 52;
    constexpr int kBias = 1075;
    const auto bits = std::bit_cast<std::uint64_t>(value);
    const auto biased = static_cast<int>((bits >> kFractionBits) & 0x7ff);
    const std::uint64_t fraction = bits & ((std::uint64_t{1} << kFractionBits) - 1);
    return biased == 0 ? BinaryParts{fraction, 1 - kBias}
                       : BinaryParts{fraction | (std::uint64_t{1} << kFractionBits), biased - kBias};
}

} // namespace encoding
