// Families from the text of their lines.
#include "StyleConversion/pattern/PatternLine.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

namespace {

using pattern::ParsePatternLine;
using pattern::PatternLine;

using Dashes = std::vector<double>;

TEST(PatternLine, WithoutShiftAndDashesIsContinuousOnATileOfTen) {
    const PatternLine line = ParsePatternLine("0, 0, 0, 0, 0.125");
    EXPECT_EQ(line.offset, 0.0);
    EXPECT_EQ(line.spacing, 0.125);
    EXPECT_EQ(line.dashes, Dashes{});
    EXPECT_EQ(line.dashTotal, 10.0);
    EXPECT_EQ(line.repeatX, 10.0);
    EXPECT_EQ(line.repeatY, 0.125);
    EXPECT_EQ(line.rowCount, 1);
    EXPECT_FALSE(line.rotatedTile);
}

TEST(PatternLine, AtAnAngleWithoutDashesHasNoShift) {
    const PatternLine line = ParsePatternLine("45, 0, 0, 0, 0.125");
    EXPECT_EQ(line.angle, 45.0);
    EXPECT_EQ(line.offset, 0.0);
    EXPECT_EQ(line.repeatX, 10.0);
    EXPECT_EQ(line.repeatY, 0.125);
}

TEST(PatternLine, OfFiveZerosHasASpacingOfTen) {
    const PatternLine line = ParsePatternLine("0,0,0,0,0");
    EXPECT_EQ(line.spacing, 10.0);
    EXPECT_EQ(line.repeatX, 10.0);
    EXPECT_EQ(line.repeatY, 10.0);
}

TEST(PatternLine, TakesANegativeZeroSpacingForZero) {
    EXPECT_EQ(ParsePatternLine("0,0,0,0,-0").spacing, 10.0);
}

TEST(PatternLine, KeepsANegativeSpacing) {
    const PatternLine line = ParsePatternLine("0,0,0,0,-2");
    EXPECT_EQ(line.spacing, -2.0);
    EXPECT_EQ(line.repeatY, -2.0);
}

TEST(PatternLine, FillsMissingNumbersWithZeros) {
    for (const char* const text : {"", "0", "0,0", "0,0,0", "0,0,0,0", "x", ",,,,"}) {
        const PatternLine line = ParsePatternLine(text);
        EXPECT_EQ(line.angle, 0.0) << text;
        EXPECT_EQ(line.originX, 0.0) << text;
        EXPECT_EQ(line.originY, 0.0) << text;
        EXPECT_EQ(line.offset, 0.0) << text;
        EXPECT_EQ(line.spacing, 10.0) << text;
        EXPECT_EQ(line.dashes, Dashes{}) << text;
    }
    const PatternLine line = ParsePatternLine("30,1,2");
    EXPECT_EQ(line.angle, 30.0);
    EXPECT_EQ(line.originX, 1.0);
    EXPECT_EQ(line.originY, 2.0);
}

TEST(PatternLine, ReadsNumbersAsFarAsTheyAreNumbers) {
    const PatternLine line = ParsePatternLine(" \t+1.5e1deg, 2 3, -.5, x, 0x10, 1.,\v-2");
    EXPECT_EQ(line.angle, 15.0);
    EXPECT_EQ(line.originX, 2.0);
    EXPECT_EQ(line.originY, -0.5);
    EXPECT_EQ(line.offset, 0.0);
    EXPECT_EQ(line.spacing, 10.0); // "0x10" reads 0
    EXPECT_EQ(line.dashes, (Dashes{1.0, -2.0}));
}

TEST(PatternLine, ReadsNoWordsForNumbers) {
    const PatternLine line = ParsePatternLine("inf,nan,infinity,0,1");
    EXPECT_EQ(line.angle, 0.0);
    EXPECT_EQ(line.originX, 0.0);
    EXPECT_EQ(line.originY, 0.0);
}

TEST(PatternLine, CountsTheNumberBehindATrailingComma) {
    // The dash 1 and the dot that the empty text reads as make one dash.
    EXPECT_EQ(ParsePatternLine("0,0,0,0,1,1,").dashes, Dashes{1.0});
    EXPECT_EQ(ParsePatternLine("0,0,0,0,1,1,-1,").dashes, (Dashes{1.0, -1.0, 0.0}));
    EXPECT_EQ(ParsePatternLine("0,0,0,0,1,").dashes, Dashes{});
}

TEST(PatternLine, MergesNeighbouringDashesOfOneKind) {
    const struct {
        const char* text;
        Dashes dashes;
        double total;
    } rows[] = {
        {"0.5,-0.25,-0.25", {0.5, -0.5}, 1.0},
        {"1,2,-3", {3, -3}, 6},
        {"-1,-2,3", {-3, 3}, 6},
        {"1,-1,1", {1, -1, 1}, 3},
        {"1,0,-1", {1, -1}, 2},       // a dash and a dot are one dash
        {"0,0,-1", {0, -1}, 1},       // two dots are one dot
        {"-1,0,-1", {-1, 0, -1}, 2},  // a dot parts gaps
        {"1,2,4,8,-1", {15, -1}, 16}, // a run
        {"-1,-2,-4", {-7}, 7},
        {"1,-0,-2", {1, -2}, 3}, // a negative zero is a dot
        {"-0,-2", {0, -2}, 2},
    };
    for (const auto& row : rows) {
        const PatternLine line = ParsePatternLine(std::string("0,0,0,0,1,") + row.text);
        EXPECT_EQ(line.dashes, row.dashes) << row.text;
        EXPECT_EQ(line.dashTotal, row.total) << row.text;
    }
}

TEST(PatternLine, SumsMergedDashesFromTheEnd) {
    // From the end: 1e16 + (1 + 1) = 1e16 + 2. From the start each 1 would be rounded away.
    EXPECT_EQ(ParsePatternLine("0,0,0,0,1,1e16,1,1,-1").dashes, (Dashes{1e16 + 2, -1}));
    // From the end: 1 + (1 + 1e16), where 1 + 1e16 is a tie that rounds to the even 1e16, twice.
    EXPECT_EQ(ParsePatternLine("0,0,0,0,1,1,1,1e16,-1").dashes, (Dashes{1e16, -1}));
}

TEST(PatternLine, SumsTheDashCycleFromTheStart) {
    // From the start: (1e16 + 1) + 1 loses both ones, from the end they would make 2.
    EXPECT_EQ(ParsePatternLine("0,0,0,0,1,1e16,-1,1").dashTotal, 1e16);
}

TEST(PatternLine, OfNothingButDotsIsContinuous) {
    const PatternLine line = ParsePatternLine("0,0,0,0.5,1,0,0");
    EXPECT_EQ(line.dashes, Dashes{});
    EXPECT_EQ(line.dashTotal, 10.0);
    EXPECT_EQ(line.offset, 0.0);
    EXPECT_EQ(line.repeatX, 10.0);
    EXPECT_EQ(ParsePatternLine("0,0,0,0.5,1,0").dashes, Dashes{});
}

TEST(PatternLine, OfOneMergedDashHasNoShift) {
    const PatternLine line = ParsePatternLine("0,0,0,0.5,1,1,2");
    EXPECT_EQ(line.dashes, Dashes{3});
    EXPECT_EQ(line.offset, 0.0);
    EXPECT_EQ(line.repeatX, 3.0);
}

TEST(PatternLine, ReducesItsShiftIntoTheDashCycle) {
    const struct {
        const char* shift;
        double offset;
    } rows[] = {
        {"0.25", 0.25}, {"1.25", 0.25}, {"-0.25", 0.75}, {"-1.25", 0.75}, {"1", 0}, {"-3", 0}, {"7.5", 0.5},
    };
    for (const auto& row : rows) {
        const PatternLine line =
            ParsePatternLine(std::string("0,0,0,") + row.shift + ",1,0.5,-0.5"); // a dash cycle of 1
        EXPECT_EQ(line.offset, row.offset) << row.shift;
    }
}

TEST(PatternLine, KeepsTheSignOfAShiftThatReducesToZero) {
    EXPECT_TRUE(std::signbit(ParsePatternLine("0,0,0,-3,1,0.5,-0.5").offset));
    EXPECT_FALSE(std::signbit(ParsePatternLine("0,0,0,3,1,0.5,-0.5").offset));
}

TEST(PatternLine, StacksFourLinesForAShiftOfAQuarter) {
    const PatternLine line = ParsePatternLine("0,0,0,0.25,1,0.5,-0.5");
    EXPECT_EQ(line.offset, 0.25);
    EXPECT_FALSE(line.rotatedTile);
    EXPECT_EQ(line.rowCount, 4);
    EXPECT_EQ(line.repeatX, 1.0);
    EXPECT_EQ(line.repeatY, 4.0);
}

TEST(PatternLine, PrefersTheRotatedTileToTheStackedOne) {
    // Both searches succeed: 45 degrees, cycle 2, shift and spacing 1.
    const PatternLine line = ParsePatternLine("45,0,0,1,1,1,-1");
    EXPECT_TRUE(line.rotatedTile);
    EXPECT_EQ(line.rowCount, 1);
}

TEST(PatternLine, WithoutAnyTileHasARowCountOfMinusOne) {
    const PatternLine line = ParsePatternLine("0,0,0,0.01,1,1,-1"); // 64 lines shift by 0.64 of 2
    EXPECT_EQ(line.rowCount, -1);
    EXPECT_EQ(line.repeatX, 10.0);
    EXPECT_EQ(line.repeatY, 10.0);
}

TEST(PatternLine, SurvivesNumbersOutOfRange) {
    const double infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(ParsePatternLine("1e999,-1e999,1e-999,0,1e999").angle, infinity);
    EXPECT_EQ(ParsePatternLine("0,0,0,1e999,1,1,-1").rowCount, -1); // the shift is no number
    const PatternLine endless = ParsePatternLine("0,0,0,1,1,1e999,-1");
    EXPECT_EQ(endless.dashTotal, infinity);
    EXPECT_EQ(endless.offset, 1.0);
    EXPECT_EQ(endless.rowCount, -1);
    EXPECT_EQ(ParsePatternLine("1e999,0,0,1,1,1,-1").rowCount, 2); // no sine, but a stack
    EXPECT_EQ(ParsePatternLine("45,0,0,1,1e999,1,-1").repeatY, infinity);
}

} // namespace
