// The path pieces of blocks: scaled, trimmed, and each but the first beginning with a blank.
#include "StyleConversion/encoding/ScaledPath.h"

#include <gtest/gtest.h>

namespace {

using encoding::Point;

std::wstring LinePiece(Point from, Point to, double scale = 1.0) {
    std::wstring path;
    encoding::AppendLineToString(path, from, to, scale);
    return path;
}

TEST(ScaledPath, APointIsTwoScaledNumbersWithAComma) {
    std::wstring path;
    encoding::AppendPoint(path, L"", {1.0, 2.0}, 25.4);
    EXPECT_EQ(path, L"25.4,50.8");
    encoding::AppendPoint(path, L"", {12.5, -3.0}, 1.0);
    EXPECT_EQ(path, L"25.4,50.812.5,-3.0");
}

TEST(ScaledPath, AHorizontalLineIsRelative) {
    EXPECT_EQ(LinePiece({0, 0}, {10, 0}), L" h 10.0");
    EXPECT_EQ(LinePiece({10, 5}, {4, 5}, 10.0), L" h -60.0");
}

TEST(ScaledPath, AVerticalLineIsRelative) {
    EXPECT_EQ(LinePiece({0, 0}, {0, -4}), L" v -4.0");
}

TEST(ScaledPath, AnyOtherLineIsAbsolute) {
    EXPECT_EQ(LinePiece({0, 0}, {3, 4}), L" L 3.0,4.0");
    EXPECT_EQ(LinePiece({7, 7}, {3, 4}, 2.0), L" L 6.0,8.0");
}

TEST(ScaledPath, ALineWithoutLengthIsAbsolute) {
    EXPECT_EQ(LinePiece({0, 0}, {0, 0}), L" L 0.0,0.0");
    EXPECT_EQ(LinePiece({5, 5}, {5 + 5e-7, 5 - 5e-7}), L" L 5.0,5.0");
}

TEST(ScaledPath, TheToleranceIsInDrawingUnitsWhateverTheScale) {
    EXPECT_EQ(LinePiece({0, 0}, {9e-7, 5}, 1e6), L" v 5000000.0");
    EXPECT_EQ(LinePiece({0, 0}, {5, 2e-6}, 1.0), L" L 5.0,0.0");
}

// Exactly 1e-6 is neither below nor above the tolerance.
TEST(ScaledPath, ASegmentWithADifferenceOfExactlyTheToleranceIsLost) {
    EXPECT_EQ(LinePiece({0, 0}, {1e-6, 5}), L"");
    EXPECT_EQ(LinePiece({0, 0}, {5, 1e-6}), L"");
    EXPECT_EQ(LinePiece({0, 0}, {1e-6, 1e-6}), L"");
}

// With the other difference below the tolerance the relative form is chosen first: the exact one is not
// below.
TEST(ScaledPath, ExactlyTheToleranceBesideASmallerDifferenceIsRelative) {
    EXPECT_EQ(LinePiece({0, 0}, {0, 1e-6}, 1e6), L" v 1.0");
    EXPECT_EQ(LinePiece({0, 0}, {1e-6, 0}, 1e6), L" h 1.0");
}

TEST(ScaledPath, AnArcHasRadiiRotationFlagsAndEnd) {
    std::wstring path;
    encoding::AppendArcString(path, 5.0, 5.0, 0.0, false, true, {10.0, 0.0}, 1.0);
    EXPECT_EQ(path, L" A 5.0,5.0 0.0 0 1 10.0,0.0");
    encoding::AppendArcString(path, 2.0, 1.0, 90.0, true, false, {1.0, 2.0}, 10.0);
    EXPECT_EQ(path, L" A 5.0,5.0 0.0 0 1 10.0,0.0 A 20.0,10.0 90.0 1 0 10.0,20.0");
}

} // namespace
