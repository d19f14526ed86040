// Products of 64-bit integers, without loss.
#pragma once

#include <cstdint>

namespace encoding {

/// An unsigned integer of 128 bits.
struct WideProduct {
    std::uint64_t high = 0;
    std::uint64_t low = 0;
};

inline WideProduct Multiply(std::uint64_t a, std::uint64_t b) {
    const std::uint64_t lowA = a & 0xffffffff;
    const std::uint64_t highA = a >> 32;
    const std::uint64_t lowB = b & 0xffffffff;
    const std::uint64_t highB = b >> 32;
    const std::uint64_t low = lowA * lowB;
    const std::uint64_t crossA = highA * lowB + (low >> 32);
    const std::uint64_t crossB = lowA * highB + (crossA & 0xffffffff);
    return {highA * highB + (crossA >> 32) + (crossB >> 32), (crossB << 32) | (low & 0xffffffff)};
}

/// `product` / 2^shift, rounded to the nearest integer and to the even one of two as near: what printf does
/// with an exact value. The quotient must fit 64 bits.
inline std::uint64_t ShiftRounded(WideProduct product, int shift) {
    if (shift <= 0) {
        return product.low << -shift;
    }
    if (shift > 128) {
        return 0; // below one half
    }
    // Let the bits that are shifted out stand at the top of `rest`; whether any stood below them in `sticky`.
    std::uint64_t quotient = 0;
    std::uint64_t rest = 0;
    bool sticky = false;
    if (shift < 64) {
        quotient = (product.high << (64 - shift)) | (product.low >> shift);
        rest = product.low << (64 - shift);
    } else if (shift == 64) {
        quotient = product.high;
        rest = product.low;
    } else if (shift < 128) {
        quotient = product.high >> (shift - 64);
        rest = (product.high << (128 - shift)) | (product.low >> (shift - 64));
        sticky = (product.low << (128 - shift)) != 0;
    } else {
        rest = product.high;
        sticky = product.low != 0;
    }
    constexpr std::uint64_t kHalf = std::uint64_t{1} << 63;
    const bool up = rest > kHalf || (rest == kHalf && (sticky || (quotient & 1) != 0));
    return quotient + (up ? 1 : 0);
}

} // namespace encoding
