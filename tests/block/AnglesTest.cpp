// Directions and included angles.
#include "StyleConversion/block/Angles.h"

#include <cmath>
#include <gtest/gtest.h>
#include <numbers>

namespace blocktest {
namespace {

using std::numbers::pi;

TEST(Angles, DirectionIsTakenFromTheQuotientAndAHalfTurnMoreToTheLeft) {
    struct Case {
        OxGePoint2d from;
        OxGePoint2d to;
        double angle;
    };
    const Case cases[] = {
        {{1, 2}, {4, 6}, std::atan(4.0 / 3.0)},
        {{1, 2}, {4, -2}, std::atan(-4.0 / 3.0)},
        {{1, 2}, {-2, 6}, std::atan(4.0 / -3.0) + pi},
        {{1, 2}, {-2, -2}, std::atan(-4.0 / -3.0) + pi},
        {{1, 2}, {5, 2}, 0.0},
        {{1, 2}, {-5, 2}, pi},
        // Vertical ones are exact, and one without length points down.
        {{1, 2}, {1, 2.5}, 1.5707963267948966},
        {{1, 2}, {1, -7}, -1.5707963267948966},
        {{1, 2}, {1, 2}, -1.5707963267948966},
        // Nearly vertical is not vertical: the quotient is infinite, or nearly so.
        {{0, 0}, {-5e-324, -1}, std::atan(HUGE_VAL) + pi},
    };
    for (const Case& row : cases) {
        EXPECT_EQ(block::CalcLineAngle(row.from, row.to), row.angle) << row.to.x << ", " << row.to.y;
    }
}

TEST(Angles, SweepIsTheDifferenceAndATurnMoreOnlyWhereThatIsNegative) {
    EXPECT_EQ(block::Sweep(1, 3), 2.0);
    EXPECT_EQ(block::Sweep(3, 1), -2.0 + 6.283185307179586);
    EXPECT_EQ(block::Sweep(2, 2), 0.0);
    // One turn, whatever the difference.
    EXPECT_EQ(block::Sweep(0, 20), 20.0);
    EXPECT_EQ(block::Sweep(20, 0), -20.0 + 6.283185307179586);
}

} // namespace
} // namespace blocktest
