// The two searches for a tile, their limits and tolerances.
#include "StyleConversion/pattern/RepeatTile.h"

#include "StyleConversion/pattern/PatternLimits.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

using pattern::FindRotatedTile;
using pattern::FindStackedTile;
using pattern::PatternLine;

PatternLine Family(double angle, double offset, double spacing, double dashTotal) {
    PatternLine line;
    line.angle = angle;
    line.offset = offset;
    line.spacing = spacing;
    line.dashTotal = dashTotal;
    line.dashes = {dashTotal / 2, -dashTotal / 2};
    return line;
}

// At 45 degrees with equal shift and spacing the beginnings of neighbouring lines lie straight above each
// other, sqrt(2) * shift apart, and a cycle of 2 * n shifts needs n lines to come back to the same height:
// the tile is n * sqrt(2) wide.
TEST(RotatedTile, SpansAsManyLinesAsTheCycleNeeds) {
    for (const int n : {1, 2, 3, 10, 511}) {
        PatternLine line = Family(45, 1, 1, 2.0 * n);
        ASSERT_TRUE(FindRotatedTile(line)) << n;
        EXPECT_TRUE(line.rotatedTile);
        EXPECT_EQ(line.rowCount, 1);
        EXPECT_NEAR(line.repeatX, -n * std::sqrt(2.0), 1e-9);
        EXPECT_NEAR(line.repeatY, std::sqrt(2.0), 1e-9);
    }
}

TEST(RotatedTile, MayHaveNegativeSides) {
    PatternLine line = Family(45, 1, 1, 2);
    ASSERT_TRUE(FindRotatedTile(line));
    EXPECT_LT(line.repeatX, 0);
}

TEST(RotatedTile, TriesUpTo511LinesToTheSide) {
    PatternLine last = Family(45, 1, 1, 2.0 * pattern::kLatticeSearch);
    EXPECT_TRUE(FindRotatedTile(last));
    PatternLine beyond = Family(45, 1, 1, 2.0 * (pattern::kLatticeSearch + 1));
    EXPECT_FALSE(FindRotatedTile(beyond));
    EXPECT_EQ(pattern::kLatticeSearch, 511);
}

TEST(RotatedTile, TriesUpTo511LinesUpwards) {
    // A negative spacing swaps the two directions.
    PatternLine last = Family(45, 1, -1, 2.0 * pattern::kLatticeSearch);
    EXPECT_TRUE(FindRotatedTile(last));
    EXPECT_NEAR(std::fabs(last.repeatY), 511 * std::sqrt(2.0), 1e-9);
    EXPECT_NEAR(std::fabs(last.repeatX), std::sqrt(2.0), 1e-9);
    PatternLine beyond = Family(45, 1, -1, 2.0 * (pattern::kLatticeSearch + 1));
    EXPECT_FALSE(FindRotatedTile(beyond));
}

TEST(RotatedTile, AllowsATenThousandthOfDeviation) {
    // After ten lines the cycle is off by this share of itself, and so is the area.
    PatternLine within = Family(45, 1, 1, 20 * 1.00009);
    EXPECT_TRUE(FindRotatedTile(within));
    PatternLine outside = Family(45, 1, 1, 20 * 1.00011);
    EXPECT_FALSE(FindRotatedTile(outside));
}

TEST(RotatedTile, MustHaveTheAreaOfOneLatticeCell) {
    // Sixty degrees on a lattice of hexagons: three lines to the side, one up, which is two cells.
    PatternLine line = Family(60, 1.5, std::sqrt(3.0) / 2, 3);
    EXPECT_FALSE(FindRotatedTile(line));
    EXPECT_FALSE(line.rotatedTile);
    EXPECT_EQ(line.repeatX, 10.0);
    EXPECT_EQ(line.repeatY, 10.0);
}

TEST(RotatedTile, NeedsAShiftAndALineThatIsNeitherLevelNorUpright) {
    PatternLine unshifted = Family(45, 0, 1, 2);
    EXPECT_FALSE(FindRotatedTile(unshifted));
    PatternLine level = Family(0, 1, 1, 2);
    EXPECT_FALSE(FindRotatedTile(level));
    // The cosine of 90 degrees is not exactly 0 in doubles; the area gives the family away.
    PatternLine upright = Family(90, 1, 1, 2);
    EXPECT_FALSE(FindRotatedTile(upright));
}

TEST(RotatedTile, IsNotFoundForNumbersThatAreNotFinite) {
    const double infinity = std::numeric_limits<double>::infinity();
    const double nan = std::numeric_limits<double>::quiet_NaN();
    for (const double odd : {infinity, -infinity, nan}) {
        PatternLine angle = Family(odd, 1, 1, 2);
        EXPECT_FALSE(FindRotatedTile(angle));
        PatternLine offset = Family(45, odd, 1, 2);
        EXPECT_FALSE(FindRotatedTile(offset));
        PatternLine spacing = Family(45, 1, odd, 2);
        EXPECT_FALSE(FindRotatedTile(spacing));
        PatternLine total = Family(45, 1, 1, odd);
        EXPECT_FALSE(FindRotatedTile(total));
    }
}

void ExpectStack(PatternLine line, int rows) {
    ASSERT_TRUE(FindStackedTile(line));
    EXPECT_EQ(line.rowCount, rows);
    EXPECT_EQ(line.repeatX, line.dashTotal);
    EXPECT_EQ(line.repeatY, rows * line.spacing);
    EXPECT_FALSE(line.rotatedTile);
}

void ExpectNoStack(PatternLine line) {
    EXPECT_FALSE(FindStackedTile(line));
    EXPECT_EQ(line.rowCount, 1);
    EXPECT_EQ(line.repeatX, 10.0);
    EXPECT_EQ(line.repeatY, 10.0);
}

TEST(StackedTile, EndsWhereTheShiftsMakeWholeCycles) {
    ExpectStack(Family(0, 0.25, 1, 1), 4);
    ExpectStack(Family(0, 3, 0.5, 10), 10); // three whole cycles
    ExpectStack(Family(0, 0.75, 2, 1), 4);
    ExpectStack(Family(0, 5, -1, 5), 1); // a shift of one whole cycle
}

TEST(StackedTile, TriesUpTo64Lines) {
    ExpectStack(Family(0, 1, 1, 64), 64);
    ExpectNoStack(Family(0, 1, 1, 65));
    EXPECT_EQ(pattern::kStackSearch, 64);
}

TEST(StackedTile, TakesTheBestOfSeveralNearPhases) {
    // Cycle 66.9, shift 4: 17 lines are 1.1 over, 33 and 34 are 1.8 under and 2.2 over, 50 are 0.7 under.
    ExpectStack(Family(0, 4, 1, 66.9), 50);
}

TEST(StackedTile, MustComeNearerThanAQuarterOfTheShift) {
    // Cycle 67, shift 4: 17 lines are 1 over and 50 are 1 under, which is a quarter.
    ExpectNoStack(Family(0, 4, 1, 67));
    // A little longer a cycle, and 17 lines are 0.9375 over; a little shorter, and 50 are 0.8125 under.
    ExpectStack(Family(0, 4, 1, 67.0625), 17);
    ExpectStack(Family(0, 4, 1, 66.9375), 50);
}

TEST(StackedTile, StopsAtTheFirstPhaseWithinATenThousandth) {
    // One line is 0.00005 short of the cycle; six lines would be exact.
    ExpectStack(Family(0, 0.00025, 1, 0.0003), 1);
}

TEST(StackedTile, NeedsAShift) {
    ExpectNoStack(Family(0, 0, 1, 1));
    ExpectNoStack(Family(0, -0.0, 1, 1));
}

TEST(StackedTile, IsNotFoundForNumbersThatAreNotFinite) {
    const double infinity = std::numeric_limits<double>::infinity();
    const double nan = std::numeric_limits<double>::quiet_NaN();
    ExpectNoStack(Family(0, nan, 1, 1));
    ExpectNoStack(Family(0, 1, 1, nan));
    ExpectNoStack(Family(0, 1, 1, infinity));
}

} // namespace
