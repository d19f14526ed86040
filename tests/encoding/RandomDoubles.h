// Doubles that number formatting and reading find hard: random bits, decimal-looking values, ties.
#pragma once

#include <bit>
#include <cmath>
#include <cstdint>
#include <random>

/// A reproducible stream of them.
class RandomDoubles {
public:
    explicit RandomDoubles(std::uint64_t seed) : random_(seed) {}

    /// Any of the 2^64 bit patterns.
    double Bits() { return std::bit_cast<double>(random_()); }

    /// What drawings hold: a decimal number with up to seven decimals and up to nine digits before the point.
    double DecimalLooking() {
        const auto decimals = static_cast<int>(random_() % 8);
        const auto digits = static_cast<double>(random_() % 10'000'000'000'000'000ULL >> (random_() % 50));
        const double value = digits / std::pow(10.0, decimals);
        return (random_() & 1) != 0 ? -value : value;
    }

    /// A multiple of 2^-k, many of which lie exactly between two texts with five decimals.
    double Tie() {
        const auto numerator = static_cast<double>(static_cast<std::int64_t>(random_()) >> (random_() % 56));
        return std::ldexp(numerator, -static_cast<int>(random_() % 40));
    }

    /// A magnitude from 1e-25 to 1e25 with random digits.
    double Scaled() {
        const double unit = static_cast<double>(random_() >> 11) / 9007199254740992.0;
        return (unit - 0.5) * std::pow(10.0, static_cast<double>(random_() % 51) - 25.0);
    }

private:
    std::mt19937_64 random_;
};
