// Circles, solid and dashed.
#include "tests/block/BlockTest.h"
#include "tests/block/CirclePoints.h"

#include <numbers>

namespace blocktest {
namespace {

using std::numbers::pi;

class Circle : public BlockTest {
protected:
    // The path of a circle round (1, 2) with dashes of these lengths.
    std::wstring Path(const std::vector<double>& dashes, double radius,
                      std::optional<double> patternLength = std::nullopt) {
        database.AddLinetype(L"DASHED", Dashes(dashes), patternLength);
        block.Add<drawing::Circle>(Dashed(L"DASHED"), OxGePoint3d{1, 2, 3}, radius);
        return Geometry();
    }
};

TEST_F(Circle, SolidIsTwoHalves) {
    block.Add<drawing::Circle>(Solid(), OxGePoint3d{}, 5.0);
    EXPECT_EQ(Geometry(), L"M 5.0,0.0 A 5.0,5.0 0.0 0 1 -5.0,0.0 A 5.0,5.0 0.0 0 1 5.0,0.0");
}

TEST_F(Circle, WithoutALinetypeOrWithoutDashesIsSolid) {
    block.Add<drawing::Circle>(Dashed(L"NOWHERE"), OxGePoint3d{1, 2, 0}, 5.0);
    EXPECT_EQ(Geometry(), L"M 6.0,2.0 A 5.0,5.0 0.0 0 1 -4.0,2.0 A 5.0,5.0 0.0 0 1 6.0,2.0");
}

TEST_F(Circle, AsLongAsThePatternIsSolid) {
    const double radius = 5;
    EXPECT_EQ(Path({5, -5}, radius, radius * 2.0 * pi),
              L"M 6.0,2.0 A 5.0,5.0 0.0 0 1 -4.0,2.0 A 5.0,5.0 0.0 0 1 6.0,2.0");
}

TEST_F(Circle, DashedHoldsAWholeNumberOfRepetitionsStretchedToFit) {
    // A circumference of 31.4 holds 3 patterns of 10, each stretched by 31.4 / 30: a third of the circle,
    // six tenths of it drawn. The sweep flag of the dashes is 0.
    const double radius = 31.4 / (2 * pi);
    const auto on = [&](double degrees) { return OnCircle(1, 2, radius, degrees); };
    const std::wstring dash = L" A 4.99747,4.99747 0.0 0 0 ";
    EXPECT_EQ(Path({6, -4}, radius), L"M 5.99747,2.0" + dash + on(72) + L" M " + on(120) + dash + on(192) +
                                         L" M " + on(240) + dash + on(312) + L" M " + on(360));
}

TEST_F(Circle, NumberOfRepetitionsIsRoundedHalfUp) {
    // The gap that ends each repetition is its " M ".
    struct Case {
        double patterns; // circumference / pattern length
        std::size_t repetitions;
    };
    for (const Case& row : {Case{1.01, 1}, Case{1.49, 1}, Case{1.51, 2}, Case{2.49, 2}, Case{2.51, 3}}) {
        const double circumference = 10 * row.patterns;
        drawing::BlockRecord& other = *database.AddBlock(L"C" + std::to_wstring(circumference));
        database.AddLinetype(L"HALF", Dashes({5, -5}));
        other.Add<drawing::Circle>(Dashed(L"HALF"), OxGePoint3d{}, circumference / (2 * pi));
        const Symbol symbol = Convert(L"C" + std::to_wstring(circumference));
        const std::wstring path = PathAt(symbol, 0).GetGeometry();
        std::size_t gaps = 0;
        for (std::size_t at = path.find(L" M "); at != std::wstring::npos; at = path.find(L" M ", at + 1)) {
            ++gaps;
        }
        EXPECT_EQ(gaps, row.repetitions) << row.patterns;
    }
}

TEST_F(Circle, DashOfHalfTheCircleOrMoreIsLarge) {
    const double radius = 5;
    const double circumference = radius * 2.0 * pi;
    // 0.7 and 0.3 of a pattern a hair shorter than the circle.
    const double pattern = circumference * 0.999999;
    EXPECT_EQ(Path({0.7 * pattern, -0.3 * pattern}, radius),
              L"M 6.0,2.0 A 5.0,5.0 0.0 1 0 " + OnCircle(1, 2, 5, 252) + L" M " + OnCircle(1, 2, 5, 360));
}

TEST_F(Circle, DashOfExactlyHalfTheCircleIsLarge) {
    // One pattern of 6 is stretched by 2 pi / 6 without any rounding that would show: its dash of 3 is pi
    // long.
    EXPECT_EQ(Path({3, -3}, 1), L"M 2.0,2.0 A 1.0,1.0 0.0 1 0 0.0,2.0 M 2.0,2.0");
}

TEST_F(Circle, DashOfLessThanHalfTheCircleIsNotLarge) {
    EXPECT_EQ(Path({2.9, -3.1}, 1),
              L"M 2.0,2.0 A 1.0,1.0 0.0 0 0 " + OnCircle(1, 2, 1, 174) + L" M " + OnCircle(1, 2, 1, 360));
}

TEST_F(Circle, DotIsALineToTheSamePoint) {
    const double radius = 5;
    const double pattern = radius * pi;
    const auto on = [&](double degrees) { return OnCircle(1, 2, 5, degrees); };
    EXPECT_EQ(Path({0, -pattern}, radius),
              L"M 6.0,2.0 L 6.0,2.0 M " + on(180) + L" L " + on(180) + L" M " + on(360));
}

TEST_F(Circle, PatternLengthOfZeroGivesNoRepetitionAtAll) {
    EXPECT_EQ(Path({5, -5}, 5, 0.0), L"M 6.0,2.0");
}

} // namespace
} // namespace blocktest
