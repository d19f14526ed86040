#include "styles/UprightCell.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

using namespace styles;

constexpr double kExact = 1e-9;

Tiling Strokes(double angle, double stepX, double stepY) {
    Tiling tiling;
    tiling.angle = angle;
    tiling.stepX = stepX;
    tiling.stepY = stepY;
    tiling.strokes.push_back({{0, 0}, {stepX / 2, 0}});
    return tiling;
}

Tiling Rows(double angle, double stepX, double stepY) {
    Tiling tiling = Strokes(angle, stepX, stepY);
    tiling.strokes.clear();
    tiling.rows.push_back(0);
    return tiling;
}

// Level groups repeat in the smallest common multiple of their steps; a group turned by 45 degrees whose
// steps are a and b in the larger of a and b times the root of 2 where one divides the other; 3-4-5 triangles
// give whole numbers: level, 5 units of a side hold 4 of one axis and 3 of the other; upright, 20/3 and 15/4
// units hold a step, and 60 are the first to hold both. Lines without an end
// ask only for the step across them.
TEST(UprightCell, IsTheSmallestThatRepeatsAllGroups) {
    const double kPythagoras = std::atan2(3.0, 4.0) * 180 / std::acos(-1.0);
    const double kRoot2 = std::sqrt(2.0);
    const struct {
        const char* name;
        std::vector<Tiling> tilings;
        double width;
        double height;
    } kCases[] = {
        {"one group", {Strokes(0, 4, 5)}, 4, 5},
        {"two level groups", {Strokes(0, 4, 5), Strokes(0, 6, 2)}, 12, 10},
        {"a quarter turn", {Strokes(90, 4, 5)}, 5, 4},
        {"half a turn", {Strokes(180, 4, 5)}, 4, 5},
        {"half of a right angle", {Strokes(45, 1, 2)}, 2 * kRoot2, 2 * kRoot2},
        {"both diagonals", {Strokes(45, 3, 2), Strokes(135, 1, 1)}, 6 * kRoot2, 6 * kRoot2},
        {"a triangle of 3, 4 and 5", {Strokes(kPythagoras, 4, 3)}, 5, 60},
        {"lines without an end", {Rows(45, 100, 1)}, kRoot2, kRoot2},
        {"level lines", {Rows(0, 100, 3)}, 0, 3},
        {"upright lines", {Rows(90, 100, 3)}, 3, 0},
        {"level and upright lines", {Rows(0, 7, 3), Rows(90, 7, 2)}, 2, 3},
    };
    for (const auto& test : kCases) {
        const auto cell = SmallestUprightCell(test.tilings, 100, kExact);
        ASSERT_TRUE(cell.has_value()) << test.name;
        EXPECT_NEAR(cell->across.length, test.width, 1e-9) << test.name;
        EXPECT_LE(cell->across.error, kExact) << test.name;
        EXPECT_NEAR(cell->upright.length, test.height, 1e-9) << test.name;
        EXPECT_LE(cell->upright.error, kExact) << test.name;
    }
}

TEST(UprightCell, IsNoneWhereOneStepIsTooLong) {
    EXPECT_FALSE(SmallestUprightCell({Strokes(0, 101, 1)}, 100, kExact).has_value());
    EXPECT_TRUE(SmallestUprightCell({Strokes(0, 100, 1)}, 100, kExact).has_value());
}

// Multiples of the root of 2 near whole numbers: 1.414, 2.828, 4.243, 5.657, 7.071, 8.485, 9.899; the fifth
// is within 0.071.
TEST(UprightCell, IsTheBestOneWhereNoneIsExact) {
    const std::vector<Repetition> kRepetitions = {{1.0, 1.0}, {1.0, std::sqrt(2.0)}};
    const auto side = CommonSide(kRepetitions, 10, kExact);
    ASSERT_TRUE(side.has_value());
    EXPECT_NEAR(side->length, 5 * std::sqrt(2.0), 1e-12);
    EXPECT_NEAR(side->error, 5 * std::sqrt(2.0) - 7, 1e-12);
}

TEST(UprightCell, IsTheFirstThatIsGoodEnough) {
    const std::vector<Repetition> kRepetitions = {{1.0, 1.0}, {1.0, std::sqrt(2.0)}};
    const auto side = CommonSide(kRepetitions, 10, 0.2);
    ASSERT_TRUE(side.has_value());
    EXPECT_NEAR(side->length, 2 * std::sqrt(2.0), 1e-12); // 0.172 from 3
}

TEST(UprightCell, OfTheSmallestStepsIsFoundInTime) {
    const std::vector<Repetition> kRepetitions = {{1.0, 1e-300}, {1.0, std::sqrt(2.0) * 1e-300}};
    EXPECT_TRUE(CommonSide(kRepetitions, 1000, 0.0).has_value());
}

} // namespace
