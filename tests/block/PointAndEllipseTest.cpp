// Points and ellipses, which have no dashes.
#include "tests/block/BlockTest.h"
#include "tests/block/CirclePoints.h"

#include <limits>
#include <numbers>

namespace blocktest {
namespace {

using std::numbers::pi;

class PointAndEllipse : public BlockTest {
protected:
    std::wstring EllipsePath(const drawing::EllipseData& data) {
        drawing::BlockRecord& other = *database.AddBlock(L"E" + std::to_wstring(++count_));
        other.Add<drawing::Ellipse>(Dashed(L"DASHED"), data);
        return PathAt(Convert(L"E" + std::to_wstring(count_)), 0).GetGeometry();
    }

    // A path of the upper half of an ellipse with radii 2 and 1, as far as its flags go: the arc from start
    // to end angle.
    std::wstring Flags(double startAngle, double endAngle) {
        const std::wstring path = EllipsePath({{}, {2, 0, 0}, 0.5, startAngle, endAngle});
        const std::size_t start = path.find(L"A 2.0,1.0 0.0 ");
        return start == std::wstring::npos ? path : path.substr(start + 14, 3);
    }

private:
    int count_ = 0;
};

TEST_F(PointAndEllipse, PointIsALineWithoutLength) {
    block.Add<drawing::Point>(Dashed(L"DASHED"), OxGePoint3d{1, 2, 3});
    const Symbol symbol = Convert();
    EXPECT_EQ(PathAt(symbol, 0).GetGeometry(), L"M 1.0,2.0 L 1.0,2.0");
    EXPECT_EQ(PathAt(symbol, 0).GetLineWeightScalable(), L"false");
}

TEST_F(PointAndEllipse, WholeEllipseIsTwoHalvesWithBothFlagsSet) {
    EXPECT_EQ(EllipsePath({{1, 2, 0}, {4, 0, 0}, 0.5, 0, 2 * pi}),
              L"M 5.0,2.0 A 4.0,2.0 0.0 1 1 -3.0,2.0 A 4.0,2.0 0.0 1 1 5.0,2.0");
}

TEST_F(PointAndEllipse, RotationIsInDegreesAndNotScaled) {
    database.SetInsunits(OxDb::kUnitsCentimeters);
    // The start is at the top, the minor axis (-2, 0).
    EXPECT_EQ(EllipsePath({{0, 0, 0}, {0, 4, 0}, 0.5, 0, 2 * pi}),
              L"M 0.0,40.0 A 40.0,20.0 90.0 1 1 0.0,-40.0 A 40.0,20.0 90.0 1 1 0.0,40.0");
}

TEST_F(PointAndEllipse, RotationLiesWithinHalfATurnEitherWay) {
    struct Case {
        OxGeVector3d major;
        std::wstring rotation;
    };
    const Case cases[] = {{{4, 0, 0}, L"0.0"},    {{3, 3, 0}, L"45.0"},     {{-3, 3, 0}, L"135.0"},
                          {{-4, 0, 0}, L"180.0"}, {{-3, -3, 0}, L"-135.0"}, {{0, -4, 0}, L"-90.0"}};
    for (const Case& row : cases) {
        const std::wstring path = EllipsePath({{}, row.major, 0.5, 0, 1});
        EXPECT_NE(path.find(L" " + row.rotation + L" 0 0 "), std::wstring::npos) << path;
    }
}

TEST_F(PointAndEllipse, LinetypeIsNeverApplied) {
    database.AddLinetype(L"DASHED", Dashes({1, -1}));
    EXPECT_EQ(EllipsePath({{0, 0, 0}, {4, 0, 0}, 0.5, 0, pi / 2}), L"M 4.0,0.0 A 4.0,2.0 0.0 0 0 0.0,2.0");
    EXPECT_EQ(database.Failures().Calls(drawing::Operation::kOpenObject), 0U);
}

TEST_F(PointAndEllipse, AxesInSpaceCountWithTheirWholeLength) {
    // A major axis of (3, 0, 4) is 5 long; its minor axis (0, 3, 0) x 0.5.
    EXPECT_EQ(EllipsePath({{0, 0, 0}, {3, 0, 4}, 0.5, 0, pi / 2}), L"M 3.0,0.0 A 5.0,1.5 0.0 0 0 0.0,1.5");
}

TEST_F(PointAndEllipse, ArcIsLargeFromHalfATurnOn) {
    struct Case {
        double start;
        double end;
        std::wstring flags;
    };
    const Case cases[] = {
        {0, 1, L"0 0"},
        {0, std::nextafter(pi, 0.0), L"0 0"},
        {0, pi, L"1 0"},
        {0, 6, L"1 0"},
        // End below start: a turn is added. -5 is 1.28, -1 is 5.28.
        {6, 1, L"0 0"},
        {2, 1, L"1 0"},
        {20, 1, L"1 0"}, // -19 + 4 turns = 6.13
        // Turns that are too many are taken away.
        {0, 7, L"0 0"},  // 0.72
        {0, 17, L"1 0"}, // 4.43
        // Two turns exactly: one stays.
        {0, 4 * pi, L"1 0"},
        {0, 0, L"0 0"},
    };
    for (const Case& row : cases) {
        EXPECT_EQ(Flags(row.start, row.end), row.flags) << row.start << " to " << row.end;
    }
}

TEST_F(PointAndEllipse, AnglesOfAnySizeEnd) {
    const double angles[] = {1e6, 1e7, 1e300, std::numeric_limits<double>::max()};
    for (const double angle : angles) {
        EXPECT_EQ(Flags(0, angle).size(), 3U) << angle;
        EXPECT_EQ(Flags(angle, 0).size(), 3U) << angle;
    }
    EXPECT_EQ(Flags(0, std::numeric_limits<double>::infinity()).size(), 3U);
    EXPECT_EQ(Flags(0, std::numeric_limits<double>::quiet_NaN()).size(), 3U);
}

TEST_F(PointAndEllipse, LongSweepIsDividedBeforeTurnsAreTakenAway) {
    // 2e6 = 318309 turns and 5.56 radians; 1e7 = 1591549 turns and 2.71 radians.
    EXPECT_EQ(Flags(0, 2e6), std::fmod(2e6, 2 * pi) >= pi ? L"1 0" : L"0 0");
    EXPECT_EQ(Flags(0, 1e7), std::fmod(1e7, 2 * pi) >= pi ? L"1 0" : L"0 0");
}

} // namespace
} // namespace blocktest
