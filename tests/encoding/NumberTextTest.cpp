// The number texts are those of printf in the "C" locale, for every double.
#include "RandomDoubles.h"
#include "StyleConversion/encoding/PathCommands.h"
#include "StyleConversion/encoding/TrimmedNumber.h"

#include <clocale>
#include <cmath>
#include <cstdio>
#include <gtest/gtest.h>
#include <limits>
#include <string>

namespace {

constexpr int kValuesPerKind = 300'000;

std::string Narrow(const std::wstring& wide) {
    return {wide.begin(), wide.end()};
}

std::string Printf(const char* format, double value) {
    // Not every C library shows the sign of what is no number; it is shown here.
    if (std::isnan(value)) {
        return std::signbit(value) ? "-nan" : "nan";
    }
    char buffer[512];
    const int length = std::snprintf(buffer, sizeof buffer, format, value);
    return {buffer, static_cast<std::size_t>(length)};
}

// The trimming, done the slow way on what printf wrote.
std::string TrimmedByHand(double value) {
    const std::string full = Printf("%.5f", value);
    std::string kept = full;
    for (std::size_t back = 1; back <= 4 && back <= full.size(); ++back) {
        if (full[full.size() - back] == '0') {
            kept = full.substr(0, full.size() - back);
        }
    }
    return kept;
}

void ExpectPrintfTexts(double value) {
    ASSERT_EQ(Narrow(encoding::Double2TrimmedString(value)), TrimmedByHand(value)) << Printf("%a", value);
    ASSERT_EQ(Narrow(encoding::FormatNumber(value)), Printf("%.15g", value)) << Printf("%a", value);
}

TEST(NumberText, IsPrintfsForRandomBitPatterns) {
    RandomDoubles doubles(1);
    for (int i = 0; i < kValuesPerKind; ++i) {
        ExpectPrintfTexts(doubles.Bits());
    }
}

TEST(NumberText, IsPrintfsForDecimalLookingValues) {
    RandomDoubles doubles(2);
    for (int i = 0; i < kValuesPerKind; ++i) {
        ExpectPrintfTexts(doubles.DecimalLooking());
    }
}

TEST(NumberText, IsPrintfsForTies) {
    RandomDoubles doubles(3);
    for (int i = 0; i < kValuesPerKind; ++i) {
        ExpectPrintfTexts(doubles.Tie());
    }
}

TEST(NumberText, IsPrintfsForRandomMagnitudes) {
    RandomDoubles doubles(4);
    for (int i = 0; i < kValuesPerKind; ++i) {
        ExpectPrintfTexts(doubles.Scaled());
    }
}

TEST(NumberText, IsPrintfsWhereTheFastPathEnds) {
    for (const double edge : {1e14, 99999999999999.99, 5e-6, 4.999999999999e-6, 1e-20, 0.5, 1.0}) {
        for (const double value : {edge, std::nextafter(edge, 0.0), std::nextafter(edge, 1e300)}) {
            ExpectPrintfTexts(value);
            ExpectPrintfTexts(-value);
        }
    }
}

TEST(NumberText, IsPrintfsAroundPowersOfTen) {
    for (int exponent = -30; exponent <= 30; ++exponent) {
        double value = std::pow(10.0, exponent);
        for (int step = 0; step < 40; ++step) {
            value = std::nextafter(value, 0.0);
        }
        for (int step = 0; step < 80; ++step) {
            ExpectPrintfTexts(value);
            value = std::nextafter(value, 1e300);
        }
    }
}

// 15 nines and a digit that rounds them up, and 16 digits of which the last is 5: the even neighbour is
// taken.
TEST(NumberText, IsPrintfsWhereFifteenDigitsAreRounded) {
    for (const double value : {9.999999999999996, 0.99999999999999967, 99999999999999.95, 1234567890123.125,
                               1234567890123.375, 562949953421312.5, 562949953421313.5, 0.1234567890123455}) {
        ExpectPrintfTexts(value);
    }
}

TEST(NumberText, IsPrintfsAtTheEndsOfTheRange) {
    using Limits = std::numeric_limits<double>;
    for (const double value : {0.0, -0.0, Limits::denorm_min(), -Limits::denorm_min(), Limits::min(),
                               Limits::max(), Limits::lowest(), 1e308, -1e308, Limits::infinity(),
                               -Limits::infinity(), Limits::quiet_NaN(), -Limits::quiet_NaN()}) {
        ExpectPrintfTexts(value);
    }
}

// 1e308 with five decimals has 315 characters; the trimming cuts at the first of its decimal zeros but one.
TEST(NumberText, OfAHugeValueIsWhole) {
    const std::wstring text = encoding::Double2TrimmedString(1e308);
    EXPECT_EQ(text.size(), 309U + 2U);
    EXPECT_EQ(text.substr(0, 5), L"10000");
    EXPECT_EQ(text.substr(text.size() - 2), L".0");
}

TEST(NumberText, DoesNotFollowTheLocale) {
    const std::string before = std::setlocale(LC_ALL, nullptr);
    for (const char* name : {"de_DE.UTF-8", "C.UTF-8", "fr_FR.UTF-8"}) {
        std::setlocale(LC_ALL, name);
        EXPECT_EQ(encoding::Double2TrimmedString(1234567.25), L"1234567.25");
        EXPECT_EQ(encoding::FormatNumber(1234567.25), L"1234567.25");
    }
    std::setlocale(LC_ALL, before.c_str());
}

} // namespace
