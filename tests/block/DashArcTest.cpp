// Arcs and the dashes of their linetypes.
#include "tests/block/BlockTest.h"
#include "tests/block/CirclePoints.h"

#include <numbers>

namespace blocktest {
namespace {

using std::numbers::pi;

class DashArc : public BlockTest {
protected:
    // The path of an arc of radius 2 round (10, 20) from 30 degrees on. `stops` are where the pieces end, in
    // degrees of travel; their dashes are lengths along the arc.
    std::wstring Path(const std::vector<double>& dashes, double degrees, bool clockwise = false) {
        database.AddLinetype(L"DASHED", Dashes(dashes));
        drawing::ArcData data;
        data.center = {10, 20, 0};
        data.radius = 2;
        // A clockwise arc's parameters run in its own, mirrored plane: 150 there is 30 here.
        data.startAngle = (clockwise ? 150 : 30) * pi / 180;
        data.endAngle = data.startAngle + degrees * pi / 180;
        data.normal = {0, 0, clockwise ? -1.0 : 1.0};
        block.Add<drawing::Arc>(Dashed(L"DASHED"), data);
        return Geometry();
    }

    // The point after so many degrees of travel from the start at 30 degrees.
    static std::wstring On(double degrees) { return OnCircle(10, 20, 2, 30 + degrees); }

    // The length along the arc of so many degrees.
    static double Length(double degrees) { return 2 * degrees * pi / 180; }

    static constexpr const wchar_t* kArc = L" A 2.0,2.0 0.0 0 0 ";
    static constexpr const wchar_t* kLargeArc = L" A 2.0,2.0 0.0 1 0 ";
    static constexpr const wchar_t* kClockwise = L" A 2.0,2.0 0.0 0 1 ";
};

drawing::ArcData ArcOf(double startAngle, double endAngle, double normalZ = 1.0) {
    drawing::ArcData data;
    data.radius = 5;
    data.startAngle = startAngle;
    data.endAngle = endAngle;
    data.normal = {0, 0, normalZ};
    return data;
}

TEST_F(DashArc, SolidArcIsOnePiece) {
    block.Add<drawing::Arc>(Solid(), ArcOf(0, pi / 2));
    EXPECT_EQ(Geometry(), L"M 5.0,0.0 A 5.0,5.0 0.0 0 0 0.0,5.0");
}

TEST_F(DashArc, ArcWithItsNormalDownRunsClockwise) {
    block.Add<drawing::Arc>(Solid(), ArcOf(0, pi / 2, -1.0));
    // Mirrored: from (-5, 0) to the top, where x is a negative zero.
    EXPECT_EQ(Geometry(), L"M -5.0,0.0 A 5.0,5.0 0.0 0 1 -0.0,5.0");
}

TEST_F(DashArc, SweepOfExactlyPiIsLarge) {
    block.Add<drawing::Arc>(Solid(), ArcOf(0, pi));
    EXPECT_EQ(Geometry(), L"M 5.0,0.0 A 5.0,5.0 0.0 1 0 -5.0,0.0");
}

TEST_F(DashArc, SweepJustBelowPiIsNotLarge) {
    block.Add<drawing::Arc>(Solid(), ArcOf(0, std::nextafter(pi, 0.0)));
    EXPECT_EQ(Geometry(), L"M 5.0,0.0 A 5.0,5.0 0.0 0 0 -5.0,0.0");
}

TEST_F(DashArc, OfNoSweepIsNotLarge) {
    block.Add<drawing::Arc>(Solid(), ArcOf(0, 0));
    EXPECT_EQ(Geometry(), L"M 5.0,0.0 A 5.0,5.0 0.0 0 0 5.0,0.0");
}

TEST_F(DashArc, EndBelowTheStartRunsOnThroughAFullTurn) {
    // From 270 degrees to 45: 135 degrees. From 45 to 270: 225 degrees, large.
    block.Add<drawing::Arc>(Solid(), ArcOf(pi * 1.5, pi / 4));
    block.Add<drawing::Arc>(Solid(), ArcOf(pi / 4, pi * 1.5));
    const std::vector<std::wstring> paths = Geometries();
    EXPECT_EQ(paths.at(0), L"M -0.0,-5.0 A 5.0,5.0 0.0 0 0 " + OnCircle(0, 0, 5, 45));
    EXPECT_EQ(paths.at(1), L"M " + OnCircle(0, 0, 5, 45) + L" A 5.0,5.0 0.0 1 0 -0.0,-5.0");
}

TEST_F(DashArc, CentresThePattern) {
    // 100 = 2 x 40 + 20 degrees: the lead is (20 + 20) / 2.
    EXPECT_EQ(Path({Length(20), -Length(20)}, 100), L"M " + On(0) + kArc + On(20) + L" M " + On(40) + kArc +
                                                        On(60) + L" M " + On(80) + kArc + On(100));
}

TEST_F(DashArc, ClockwiseArcTakesEveryStepDown) {
    EXPECT_EQ(Path({Length(20), -Length(20)}, 100, true), L"M " + On(0) + kClockwise + On(-20) + L" M " +
                                                              On(-40) + kClockwise + On(-60) + L" M " +
                                                              On(-80) + kClockwise + On(-100));
}

TEST_F(DashArc, ShorterThanThePatternIsDrawnInTwoHalves) {
    EXPECT_EQ(Path({Length(100), -Length(50)}, 60), L"M " + On(0) + kArc + On(30) + kArc + On(60));
}

TEST_F(DashArc, PatternThatBeginsWithAGapEndsShortByTheGap) {
    // 100 = 2 x 40 + 20: the lead is 10, and the first gap is skipped.
    EXPECT_EQ(Path({-Length(20), Length(20)}, 100), L"M " + On(0) + kArc + On(10) + kArc + On(30) + L" M " +
                                                        On(50) + kArc + On(70) + kArc + On(80));
}

TEST_F(DashArc, PatternThatBeginsWithADotKeepsTheLength) {
    EXPECT_EQ(Path({0, -Length(20), Length(20)}, 100), L"M " + On(0) + kArc + On(10) + L" M " + On(30) +
                                                           kArc + On(50) + L" L " + On(50) + L" M " + On(70) +
                                                           kArc + On(90) + kArc + On(100));
}

TEST_F(DashArc, LargeFlagIsDecidedForEachPiece) {
    // 350 = 1 x 330 + 20: the lead is 10 (the first dash is a gap), and the dash of 200 degrees is large,
    // though the whole arc is larger still and the other pieces are not.
    EXPECT_EQ(Path({-Length(100), Length(200), -Length(10), Length(20)}, 350),
              L"M " + On(0) + kArc + On(10) + kLargeArc + On(210) + L" M " + On(220) + kArc + On(240) + kArc +
                  On(250));
}

TEST_F(DashArc, LinetypeThatCannotBeOpenedIsSolid) {
    database.Failures().Fail(drawing::Operation::kOpenObject, 1, Oxsys::eWasErased);
    EXPECT_EQ(Path({Length(20), -Length(20)}, 100), L"M " + On(0) + kArc + On(100));
}

TEST_F(DashArc, OfRadiusZeroEnds) {
    database.AddLinetype(L"DASHED", Dashes({1, -1}));
    drawing::ArcData data = ArcOf(0, 1);
    data.radius = 0;
    block.Add<drawing::Arc>(Dashed(L"DASHED"), data);
    // The lead is 0 / 0: no number, on every machine with some sign.
    EXPECT_NE(Geometry().find(L"nan"), std::wstring::npos);
}

} // namespace
} // namespace blocktest
