// Numbers are read as C's functions read them in the "C" locale, but for hexadecimal, "inf" and "nan".
#include "StyleConversion/encoding/NumberReader.h"
#include "RandomDoubles.h"

#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <string>

namespace {

using encoding::NumberReading;
using encoding::ReadNumber;
using encoding::ScanNumber;

constexpr double kInfinity = std::numeric_limits<double>::infinity();

struct Row {
    const char* text;
    double value;
    std::size_t used;
};

TEST(NumberReader, ReadsTheLongestNumberAndSaysHowMuchItUsed) {
    const Row rows[] = {
        {"1", 1.0, 1},
        {"-.25", -0.25, 4},
        {"+.5", 0.5, 3},
        {"5.", 5.0, 2},
        {"1e3", 1000.0, 3},
        {"1E+3x", 1000.0, 4},
        {"1e-2,", 0.01, 4},
        {"1e,", 1.0, 1},
        {"1e+,", 1.0, 1},
        {"1e-", 1.0, 1},
        {"1.e2", 100.0, 4},
        {"1.5.5", 1.5, 3},
        {" \t\n\v\f\r7", 7.0, 7},
        {"12abc", 12.0, 2},
        {"0x10", 0.0, 1},
        {"1,5", 1.0, 1},
        {"00012", 12.0, 5},
        {"1d5", 1.0, 1},
        {"-0", -0.0, 2},
        {"1_000", 1.0, 1},
    };
    for (const Row& row : rows) {
        const encoding::NumberReading reading = ReadNumber(row.text);
        EXPECT_EQ(std::bit_cast<std::uint64_t>(reading.value), std::bit_cast<std::uint64_t>(row.value))
            << row.text;
        EXPECT_EQ(reading.used, row.used) << row.text;
    }
}

TEST(NumberReader, UsesNothingWhereThereIsNoNumber) {
    for (const char* text :
         {"",    " ",   "-",    "+",   ".",      "-.",       "+-1", "-+1", "- 1", "e5",
          ".e5", "inf", "-inf", "nan", "NaN(1)", "infinity", "x1",  ",1",  "--1", "\x85"}) {
        EXPECT_EQ(ReadNumber(text).used, 0U) << text;
        EXPECT_EQ(ReadNumber(text).value, 0.0) << text;
    }
}

TEST(NumberReader, AScannedNumberHasAWholeExponentOrNone) {
    for (const char* const text : {"1e", "1E", "1e,", "1e+", "-1.5e-,", " 2e+x", "1eE5", "x", ""}) {
        EXPECT_EQ(ScanNumber(text).used, 0U) << text;
    }
    const Row rows[] = {
        {"1e3", 1000.0, 3}, {"1E-1e", 0.1, 4}, {" 2x", 2.0, 2}, {"1.", 1.0, 2}, {"1,e", 1.0, 1}};
    for (const Row& row : rows) {
        const NumberReading reading = ScanNumber(row.text);
        EXPECT_EQ(reading.value, row.value) << row.text;
        EXPECT_EQ(reading.used, row.used) << row.text;
    }
}

TEST(NumberReader, ANumberOutOfRangeIsInfinityOrZero) {
    const Row rows[] = {
        {"1e999", kInfinity, 5},
        {"-1e999", -kInfinity, 6},
        {"1e-999", 0.0, 6},
        {"-1e-999", -0.0, 7},
        {"1e99999999999999999999", kInfinity, 22},
        {"1e-99999999999999999999", 0.0, 23},
        {"0e999", 0.0, 5},
        {"0e99999999999999999999", 0.0, 22},
        {"0.0001e400", kInfinity, 10},
        {"1.8e308", kInfinity, 7},
        {"2e-324", 0.0, 6},
    };
    for (const Row& row : rows) {
        const encoding::NumberReading reading = ReadNumber(row.text);
        EXPECT_EQ(std::bit_cast<std::uint64_t>(reading.value), std::bit_cast<std::uint64_t>(row.value))
            << row.text;
        EXPECT_EQ(reading.used, row.used) << row.text;
    }
    EXPECT_EQ(ReadNumber(std::string(400, '9')).value, kInfinity);
    EXPECT_EQ(ReadNumber("0." + std::string(400, '0') + "1").value, 0.0);
    EXPECT_EQ(ReadNumber("1" + std::string(400, '0') + "e-400").value, 1.0);
}

void ExpectStrtods(const std::string& text) {
    char* end = nullptr;
    double expected = std::strtod(text.c_str(), &end);
    if (end == text.c_str()) {
        // Some C libraries keep the sign of a number that is not there.
        expected = 0.0;
    }
    const encoding::NumberReading reading = ReadNumber(text);
    ASSERT_EQ(std::bit_cast<std::uint64_t>(reading.value), std::bit_cast<std::uint64_t>(expected)) << text;
    ASSERT_EQ(reading.used, static_cast<std::size_t>(end - text.c_str())) << text;
}

TEST(NumberReader, AgreesWithStrtodOnRandomTexts) {
    constexpr std::string_view kCharacters = "0123456789..eE+- ,";
    std::mt19937_64 random(5);
    for (int i = 0; i < 300'000; ++i) {
        std::string text;
        for (std::uint64_t length = random() % 12; length > 0; --length) {
            text += kCharacters[random() % kCharacters.size()];
        }
        ExpectStrtods(text);
    }
}

TEST(NumberReader, AgreesWithStrtodOnPrintedDoubles) {
    RandomDoubles doubles(6);
    for (int i = 0; i < 200'000; ++i) {
        const double value = i % 2 == 0 ? doubles.Bits() : doubles.Scaled();
        if (std::isfinite(value)) {
            char text[64];
            std::snprintf(text, sizeof text, i % 3 == 0 ? "%.17g" : "%.12g", value);
            ExpectStrtods(text);
        }
    }
}

} // namespace
