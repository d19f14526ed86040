// The path of one family inside its tile.
#include "StyleConversion/pattern/LinePath.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace {

using pattern::AppendLinePath;
using pattern::ParsePatternLine;
using pattern::PatternLine;

std::wstring PathOf(PatternLine line) {
    std::wstring path;
    AppendLinePath(path, line);
    return path;
}

std::wstring PathOf(const char* family) {
    return PathOf(ParsePatternLine(family));
}

TEST(LinePath, DrawsEveryRowOfAStack) {
    EXPECT_EQ(PathOf("0,1,2,0.25,1,0.5,-0.5"),
              L"M 1.0,2.0 h 0.5 M 1.25,3.0 h 0.5 M 1.5,4.0 h 0.5 M 1.75,5.0 h 0.5");
}

TEST(LinePath, AdvancesOverGaps) {
    EXPECT_EQ(PathOf("0,0,0,0,1,0.5,-0.5"), L"M 0.0,0.0 h 0.5");
    EXPECT_EQ(PathOf("0,0,0,0,1,-1,2,-3,4,-5"), L"M 1.0,0.0 h 2.0 M 6.0,0.0 h 4.0");
}

TEST(LinePath, SeparatesRowsAndDashesByOneBlank) {
    EXPECT_EQ(PathOf("0,0,0,5,1,-1,2,-3,4"),
              L"M 1.0,0.0 h 2.0 M 6.0,0.0 h 4.0 M 6.0,1.0 h 2.0 M 11.0,1.0 h 4.0");
}

TEST(LinePath, DrawsADotAsAZeroLengthSegment) {
    EXPECT_EQ(PathOf("0,0,0,0,1,0,-1"), L"M 0.0,0.0 h 0.0");
    EXPECT_EQ(PathOf("0,0,0,0,1,-0,-1"), L"M 0.0,0.0 h -0.0"); // a negative zero is a dot too
}

TEST(LinePath, OfAContinuousFamilySpansTheTile) {
    EXPECT_EQ(PathOf("0,1,2,0,1"), L"M 1.0,2.0 h 10.0");
}

TEST(LinePath, OfNothingButAGapIsEmpty) {
    EXPECT_EQ(PathOf("0,0,0,0,1,-1"), L"");
    EXPECT_EQ(PathOf("0,0,0,0,1,-1,-2"), L"");
}

TEST(LinePath, InARotatedTileIsTurnedAboutItsOrigin) {
    // 45 degrees from (1, 2): a dash of 1 ends at (1 + sqrt(0.5), 2 + sqrt(0.5)).
    // 1.70711 is cut at its zero decimal to 1.7; 2.70711 likewise.
    EXPECT_EQ(PathOf("45,1,2,1,1,1,-1"), L"M 1.0,2.0 L 1.7,2.7");
}

TEST(LinePath, InARotatedTileKeepsTheOriginItself) {
    PatternLine line = ParsePatternLine("45,1,2,1,1,1,-1");
    std::wstring path;
    AppendLinePath(path, line);
    EXPECT_EQ(line.originX, 1.0);
    EXPECT_EQ(line.originY, 2.0);
}

TEST(LinePath, WritesNegativeZeros) {
    // Turning (-0, -0) by -0 degrees: x' = -0 * 1 - -0 * -0 = -0, y' = -0 * -0 + -0 * 1 = 0. To x the first
    // row adds 0 * offset, and the shift of -3 in a cycle of 1 is an offset of -0.
    EXPECT_EQ(PathOf("0,-0,-0,-3,1,0.5,-0.5"), L"M -0.0,0.0 h 0.5");
    EXPECT_EQ(PathOf("0,-0,-0,3,1,0.5,-0.5"), L"M 0.0,0.0 h 0.5");
}

TEST(LinePath, RoundsASmallNegativeNumberToANegativeZero) {
    EXPECT_EQ(PathOf("0,-0.000001,-0.000001,0,1"), L"M -0.0,-0.0 h 10.0");
}

TEST(LinePath, WritesNumbersThatAreNotFinite) {
    PatternLine line;
    line.repeatX = std::numeric_limits<double>::infinity();
    EXPECT_EQ(PathOf(line), L"M 0.0,0.0 h inf");
}

TEST(LinePath, IsAppendedWithoutABlankBeforeIt) {
    std::wstring path = L"before";
    PatternLine line = ParsePatternLine("0,0,0,0,1");
    AppendLinePath(path, line);
    EXPECT_EQ(path, L"beforeM 0.0,0.0 h 10.0");
}

} // namespace
