// Colours, line weights, integers, booleans, quotes and references as texts.
#include "StyleConversion/encoding/ValueForms.h"

#include <gtest/gtest.h>
#include <limits>

namespace {

using namespace encoding;

TEST(ValueForms, AColorIsAlphaRedGreenBlueInLowerCase) {
    EXPECT_EQ(ColorString(0xff0000), L"ffff0000");
    EXPECT_EQ(ColorString((18U << 16) | (52U << 8) | 86U), L"ff123456");
    EXPECT_EQ(ColorString(0xABCDEF), L"ffabcdef");
    EXPECT_EQ(ColorString(0), L"ff000000");
}

TEST(ValueForms, TheBitsAboveAColorAreNotLookedAt) {
    EXPECT_EQ(ColorString(0xc2010203U), L"ff010203");
}

TEST(ValueForms, ALineWeightIsTwiceItsMillimetres) {
    EXPECT_EQ(LineweightString(0), L"0.0");
    EXPECT_EQ(LineweightString(25), L"0.5");
    EXPECT_EQ(LineweightString(30), L"0.6");
    EXPECT_EQ(LineweightString(35), L"0.7");
    EXPECT_EQ(LineweightString(211), L"4.22");
}

// 5 * 0.01 * 2.0 has no second decimal, 13 * 0.01 * 2.0 = 0.26.
TEST(ValueForms, ALineWeightIsTrimmedLikeEveryNumber) {
    EXPECT_EQ(LineweightString(5), L"0.1");
    EXPECT_EQ(LineweightString(13), L"0.26");
    EXPECT_EQ(LineweightString(100), L"2.0");
}

TEST(ValueForms, ALineWeightOutsideItsRangeIsZero) {
    for (const std::int32_t code : {-1, -2, -3, 212, 1000, std::numeric_limits<std::int32_t>::min(),
                                    std::numeric_limits<std::int32_t>::max()}) {
        EXPECT_EQ(LineweightString(code), L"0.0") << code;
    }
}

TEST(ValueForms, AnIntegerIsItsDecimalDigits) {
    EXPECT_EQ(IntegerString(0), L"0");
    EXPECT_EQ(IntegerString(-45), L"-45");
    EXPECT_EQ(IntegerString(std::numeric_limits<std::int32_t>::min()), L"-2147483648");
    EXPECT_EQ(IntegerString(std::numeric_limits<std::int32_t>::max()), L"2147483647");
}

TEST(ValueForms, BooleansQuotesAndReferences) {
    EXPECT_EQ(BooleanString(true), L"true");
    EXPECT_EQ(BooleanString(false), L"false");
    EXPECT_EQ(Quoted(L"Left"), L"'Left'");
    EXPECT_EQ(Quoted(L"it's"), L"'it's'");
    EXPECT_EQ(ParameterReference(L"ROTATION"), L"%ROTATION%");
}

} // namespace
