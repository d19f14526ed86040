// The reading of numbers in the browser gives the doubles that the standard library gives.
#include "StyleConversion/encoding/wasi/FastDecimal.h"
#include "RandomDoubles.h"

#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <gtest/gtest.h>
#include <random>
#include <string>
#include <system_error>

namespace {

// Of what is out of range, infinity or zero is the answer; C's function says which.
void ExpectSameReading(const std::string& text) {
    const char* const end = text.data() + text.size();
    double expected = 0.0;
    const std::from_chars_result right = std::from_chars(text.data(), end, expected);
    if (right.ec == std::errc::result_out_of_range) {
        expected = std::strtod(text.c_str(), nullptr);
    }
    double value = 0.0;
    const std::from_chars_result read = encoding::FastDecimal(text.data(), end, value);
    EXPECT_EQ(read.ptr - text.data(), right.ptr - text.data()) << text;
    if (read.ec == std::errc()) {
        EXPECT_EQ(std::bit_cast<std::uint64_t>(value), std::bit_cast<std::uint64_t>(expected)) << text;
    } else {
        EXPECT_EQ(read.ec, right.ec) << text;
    }
}

std::string Written(const char* format, double value) {
    std::array<char, 2048> text{};
    const int length = std::snprintf(text.data(), text.size(), format, std::fabs(value));
    return {text.data(), static_cast<std::size_t>(length)};
}

TEST(FastDecimal, ReadsHardNumbersAsTheStandardLibraryDoes) {
    for (const char* const text : {
             "0",
             "0.0e999999",
             "5e-324",
             "2.4703282292062327e-324", // less than half of the smallest
             "2.4703282292062328e-324", // more than half of it
             "2.2250738585072011e-308",
             "2.2250738585072014e-308",
             "1.7976931348623157e308",
             "1.7976931348623158e308",
             "1.7976931348623159e308", // rounds up, and beyond
             "1e309",
             "1e-400",
             "1e99999999999999999999",
             "1e-99999999999999999999",
             "9007199254740993", // between two doubles
             "9007199254740993.00000000000000000000000000000001",
             "9007199254740992.99999999999999999999999999999999",
             "0.500000000000000166533453693773481063544750213623046875",
             "3.518437208883201171875e13",
             "6.02214076e23",
             "1.",
             ".5",
             "1e",
             "1e+",
             "1.5e-x",
             "1.5.5",
             "0x10",
             "12abc",
             "1,5",
             "1E05",
         }) {
        ExpectSameReading(text);
    }
    ExpectSameReading(std::string(2000, '9'));
    ExpectSameReading("0." + std::string(2000, '0') + "1");
    ExpectSameReading("0." + std::string(400, '0') + "1e400");
    ExpectSameReading("1" + std::string(400, '0') + "e-400");
}

TEST(FastDecimal, ReadsRandomNumbersAsTheStandardLibraryDoes) {
    RandomDoubles doubles(24);
    for (int turn = 0; turn < 100'000; ++turn) {
        for (const double value :
             {doubles.Bits(), doubles.DecimalLooking(), doubles.Tie(), doubles.Scaled()}) {
            if (std::isfinite(value)) {
                ExpectSameReading(Written("%.17g", value));
                ExpectSameReading(Written("%.6g", value));
            }
        }
    }
}

// Exactly between two doubles, and the last digit one less and one more.
TEST(FastDecimal, RoundsTiesAndTheirNeighboursAsTheStandardLibraryDoes) {
    std::mt19937_64 random(7);
    for (int turn = 0; turn < 50'000; ++turn) {
        // 54 bits, the last of them set, in whole numbers.
        std::uint64_t between = (random() >> 10U) | (1ULL << 53U) | 1U;
        ExpectSameReading(std::to_string(between));
        ExpectSameReading(std::to_string(between) + ".0000000000000000000000000000000001");
        ExpectSameReading(std::to_string(between - 1) + ".9999999999999999999999999999999999");
        // A tie with a fraction: a whole number and a half, a quarter or an eighth, of 54 bits together.
        between &= (1ULL << 54U) - 1;
        for (const unsigned shift : {1U, 2U, 3U}) {
            const std::uint64_t eighths = (between & ((1ULL << shift) - 1)) << (3U - shift);
            const std::string fraction = std::to_string(1000 + eighths * 125).substr(1);
            const std::string text = std::to_string(between >> shift) + "." + fraction;
            ExpectSameReading(text);
            ExpectSameReading(text + "00000000000000000000000001");
            ExpectSameReading(text + "e-30");
        }
    }
}

} // namespace
