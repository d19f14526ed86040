// Doubles become 32-bit integers by truncation, with one answer for all that does not fit.
#include "StyleConversion/encoding/IntegerConversion.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace {

using encoding::ToInt32;

constexpr std::int32_t kNoFit = std::numeric_limits<std::int32_t>::min();

TEST(IntegerConversion, TruncatesTowardZero) {
    EXPECT_EQ(ToInt32(0.0), 0);
    EXPECT_EQ(ToInt32(-0.0), 0);
    EXPECT_EQ(ToInt32(2.999), 2);
    EXPECT_EQ(ToInt32(-2.999), -2);
    EXPECT_EQ(ToInt32(-0.999), 0);
}

TEST(IntegerConversion, TakesTheWholeRange) {
    EXPECT_EQ(ToInt32(2147483647.0), 2147483647);
    EXPECT_EQ(ToInt32(2147483647.999), 2147483647);
    EXPECT_EQ(ToInt32(-2147483648.0), kNoFit);
    EXPECT_EQ(ToInt32(-2147483647.999), -2147483647);
}

TEST(IntegerConversion, WhatDoesNotFitIsTheSmallestInteger) {
    using Limits = std::numeric_limits<double>;
    for (const double value : {2147483648.0, -2147483649.0, 1e300, -1e300, Limits::infinity(),
                               -Limits::infinity(), Limits::quiet_NaN()}) {
        EXPECT_EQ(ToInt32(value), kNoFit) << value;
    }
}

} // namespace
