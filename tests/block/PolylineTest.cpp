// Polylines whose linetype starts anew at every segment.
#include "tests/block/BlockTest.h"
#include "tests/block/CirclePoints.h"

#include <algorithm>
#include <cmath>
#include <sstream>

namespace blocktest {
namespace {

using Vertices = std::vector<drawing::BulgeVertex>;

class PolylineSegments : public BlockTest {
protected:
    std::wstring Path(const std::wstring& linetype, const Vertices& vertices, bool closed = false,
                      bool plinegen = false) {
        block.Add<drawing::Polyline>(Dashed(linetype), vertices, closed, plinegen);
        return Geometry();
    }
};

TEST_F(PolylineSegments, OpenPolylineHasOneSegmentLessThanVertices) {
    EXPECT_EQ(Path(L"Continuous", {{{0, 0}}, {{1, 0}}, {{1, 1}}}),
              L"M 0.0,0.0 L 1.0,0.0 M 1.0,0.0 L 1.0,1.0");
}

TEST_F(PolylineSegments, ClosedPolylineHasAsManySegmentsAsVertices) {
    EXPECT_EQ(Path(L"Continuous", {{{0, 0}}, {{1, 0}}, {{1, 1}}}, true),
              L"M 0.0,0.0 L 1.0,0.0 M 1.0,0.0 L 1.0,1.0 M 1.0,1.0 L 0.0,0.0");
}

TEST_F(PolylineSegments, BulgesAreArcsByTheirSense) {
    // A bulge of 1 is a half circle: to the right of the chord counter-clockwise, to its left clockwise.
    EXPECT_EQ(Path(L"Continuous", {{{0, 0}, 1}, {{2, 0}, -1}, {{4, 0}}}),
              L"M 0.0,0.0 A 1.0,1.0 0.0 1 0 2.0,0.0 M 2.0,0.0 A 1.0,1.0 0.0 1 1 4.0,0.0");
}

TEST_F(PolylineSegments, EachSegmentStartsThePattern) {
    database.AddLinetype(L"DASHED", Dashes({0.5, -0.25}));
    EXPECT_EQ(
        Path(L"DASHED", {{{0, 0}}, {{2, 0}}, {{2, 0.5}}}),
        L"M 0.0,0.0 L 0.5,0.0 M 0.75,0.0 L 1.25,0.0 M 1.5,0.0 L 2.0,0.0 M 2.0,0.0 L 2.0,0.25 L 2.0,0.5");
}

TEST_F(PolylineSegments, LinetypeGenerationWithoutDashesDrawsSegments) {
    const std::wstring expected = L"M 0.0,0.0 L 1.0,0.0 M 1.0,0.0 L 1.0,1.0";
    const Vertices vertices{{{0, 0}}, {{1, 0}}, {{1, 1}}};
    for (const wchar_t* const linetype : {L"Continuous", L"NOWHERE"}) {
        block.Add<drawing::Polyline>(Dashed(linetype), vertices, false, true);
    }
    for (const std::wstring& path : Geometries()) {
        EXPECT_EQ(path, expected);
    }
}

TEST_F(PolylineSegments, CoincidentSegmentsAddNothing) {
    EXPECT_EQ(Path(L"Continuous", {{{0, 0}}, {{0, 0}}, {{1, 0}}, {{1, 0}, 1}, {{1, 0}}}),
              L"M 0.0,0.0 L 1.0,0.0");
}

TEST_F(PolylineSegments, PolylineWithoutSegmentsAddsNoPathButItsParameters) {
    const drawing::EntityProperties byLayer{L"0", ByLayer(), OxDb::kLnWtByLayer, L"Continuous"};
    block.Add<drawing::Polyline>(byLayer, Vertices{}, false, false);
    block.Add<drawing::Polyline>(byLayer, Vertices{}, true, true);
    block.Add<drawing::Polyline>(byLayer, Vertices{{{1, 1}}}, false, true);
    block.Add<drawing::Polyline>(byLayer, Vertices{{{1, 1}}}, true, false);
    block.Add<drawing::Polyline>(byLayer, Vertices{{{1, 1}}, {{1, 1}}}, true, false);
    const Symbol symbol = Convert();
    EXPECT_EQ(symbol->GetGraphics().GetCount(), 0);
    EXPECT_EQ(Identifiers(symbol), (std::vector<std::wstring>{L"COLORBYLAYER0", L"LWBYLAYER0", L"ROTATION"}));
}

TEST_F(PolylineSegments, SegmentThatCannotBeReadIsLeftOut) {
    database.Failures().Fail(drawing::Operation::kGetLineSegAt, 2, Oxsys::eInvalidIndex);
    EXPECT_EQ(Path(L"Continuous", {{{0, 0}}, {{1, 0}}, {{2, 0}}, {{3, 0}}}),
              L"M 0.0,0.0 L 1.0,0.0 M 2.0,0.0 L 3.0,0.0");
    database.Failures().Clear();
    database.Failures().Fail(drawing::Operation::kGetLineSegAt, 1, Oxsys::eInvalidIndex);
    EXPECT_EQ(Geometry(), L"M 1.0,0.0 L 2.0,0.0 M 2.0,0.0 L 3.0,0.0");
}

// A linetype that runs on over the vertices.
class PolylineWalk : public BlockTest {
protected:
    std::wstring Path(const std::vector<double>& dashes, const Vertices& vertices, bool closed = false) {
        database.AddLinetype(L"DASHED", Dashes(dashes));
        block.Add<drawing::Polyline>(Dashed(L"DASHED"), vertices, closed, true);
        return Geometry();
    }
};

TEST_F(PolylineWalk, DashThatCrossesAVertexIsDrawnInTwoPieces) {
    // 6 = 2 x 3: the lead is half of the first dash. The dash from 2.5 on is cut at 3 and ends at 4.5.
    EXPECT_EQ(Path({2, -1}, {{{0, 0}}, {{3, 0}}, {{3, 3}}}),
              L"M 0.0,0.0 L 1.0,0.0 M 2.0,0.0 L 3.0,0.0 L 3.0,1.0 M 3.0,2.0 L 3.0,3.0");
}

TEST_F(PolylineWalk, GapThatCrossesAVertexMovesTwice) {
    // 6 = 3 x 2: stops at 0.5, 1.5, 2.5, then a gap from 2.5 to 3.5 over the vertex at 3.
    EXPECT_EQ(Path({1, -1}, {{{0, 0}}, {{3, 0}}, {{3, 3}}}),
              L"M 0.0,0.0 L 0.5,0.0 M 1.5,0.0 L 2.5,0.0 M 3.0,0.0 M 3.0,0.5 L 3.0,1.5 M 3.0,2.5 L 3.0,3.0");
}

TEST_F(PolylineWalk, EntryThatEndsAtAVertexNeedsNoSecondPiece) {
    // 4 = 2 x 2: stops at 0.5, 1.5, 2.5, 3.5; the vertex is at 1.5.
    EXPECT_EQ(Path({1, -1}, {{{0, 0}}, {{1.5, 0}}, {{4, 0}}}),
              L"M 0.0,0.0 L 0.5,0.0 M 1.5,0.0 L 2.5,0.0 M 3.5,0.0 L 4.0,0.0");
}

TEST_F(PolylineWalk, ShorterThanThePatternRunsOnFromTheSecondEntryWithoutALeadOut) {
    // Half of 3 is drawn; then the gap of 1, then the dash of 5 until the end.
    EXPECT_EQ(Path({5, -1}, {{{0, 0}}, {{3, 0}}}), L"M 0.0,0.0 L 1.5,0.0 M 2.5,0.0 L 3.0,0.0");
}

TEST_F(PolylineWalk, ClosedPolylineIsWalkedBackToItsStart) {
    // 8 = 4 x 2: stops at 0.5, 1.5 and so on to 7.5.
    EXPECT_EQ(Path({1, -1}, {{{0, 0}}, {{2, 0}}, {{2, 2}}, {{0, 2}}}, true),
              L"M 0.0,0.0 L 0.5,0.0 M 1.5,0.0 L 2.0,0.0 L 2.0,0.5 M 2.0,1.5 L 2.0,2.0 "
              L"L 1.5,2.0 M 0.5,2.0 L 0.0,2.0 L 0.0,1.5 M 0.0,0.5 L 0.0,0.0");
}

TEST_F(PolylineWalk, WhatIsLeftBehindTheLeadOutIsWalkedWithThePattern) {
    // 5 = 2 x 2 + 1: the lead is 0.5. The first gap is skipped, the lead-out ends at 4, and the pattern goes
    // on with the gap of dash 0.
    EXPECT_EQ(Path({-1, 1}, {{{0, 0}}, {{5, 0}}}),
              L"M 0.0,0.0 L 0.5,0.0 L 1.5,0.0 M 2.5,0.0 L 3.5,0.0 L 4.0,0.0 M 5.0,0.0");
}

TEST_F(PolylineWalk, LeadOutMayBeginOnALaterSegment) {
    // As before, with vertices at 3.5 and 3.75: the lead-out is cut in two.
    EXPECT_EQ(Path({-1, 1}, {{{0, 0}}, {{3.5, 0}}, {{3.75, 0}}, {{5, 0}}}),
              L"M 0.0,0.0 L 0.5,0.0 L 1.5,0.0 M 2.5,0.0 L 3.5,0.0 L 3.75,0.0 L 4.0,0.0 M 5.0,0.0");
}

TEST_F(PolylineWalk, DotsAreLinesToTheSamePointAlsoInFrontOfALeadWithoutLength) {
    // 4 = 4 x 1 with a dot last: the lead has no length and is a dot itself. Eight entries, the lead-in the
    // first, then the lead-out, another dot; the skipped gap is left over and walked.
    EXPECT_EQ(Path({-1, 0}, {{{0, 0}}, {{4, 0}}}),
              L"M 0.0,0.0 L 0.0,0.0 L 0.0,0.0 M 1.0,0.0 L 1.0,0.0 M 2.0,0.0 L 2.0,0.0 M 3.0,0.0 L 3.0,0.0 "
              L"L 3.0,0.0 M 4.0,0.0 L 4.0,0.0");
}

TEST_F(PolylineWalk, DrawnEntryStartsAgainAtFullLengthBehindAnArc) {
    // A half circle of radius 1, then 4 straight up: 7.14 = 2 x 3 + 1.14, the lead 1.57 is a quarter circle.
    // The gap of 1 ends 1 radian after the lowest point; the dash of 2 is cut by the arc's end and is drawn
    // whole behind it.
    EXPECT_EQ(Path({2, -1}, {{{0, 0}, 1}, {{2, 0}}, {{2, 4}}}),
              L"M 0.0,0.0 A 1.0,1.0 0.0 0 0 1.0,-1.0 M 1.84147,-0.54 A 1.0,1.0 0.0 0 0 2.0,0.0 L 2.0,2.0 "
              L"M 2.0,3.0 L 2.0,4.0");
}

TEST_F(PolylineWalk, GapThatIsCutByAnArcIsNotRestarted) {
    // A half circle of radius 1, then 4 up, with (0.5, -3): 7.14 = 2 x 3.5 + 0.14, the lead is 0.32. The gap
    // has 2.82 of the arc and 0.18 of the line.
    EXPECT_EQ(Path({0.5, -3}, {{{0, 0}, 1}, {{2, 0}}, {{2, 4}}}),
              L"M 0.0,0.0 A 1.0,1.0 0.0 0 0 " +
                  OnCircle(1, 0, 1, 180 + 0.3207963267948966 * 180 / 3.141592653589793) +
                  L" M 2.0,0.0 M 2.0,0.1792 L 2.0,0.6792 M 2.0,3.6792 L 2.0,4.0");
}

TEST_F(PolylineWalk, LargeFlagBehindACutIsJudgedFromTheWholeEntry) {
    // A half circle of radius 0.5 is 1.57 long; the lead of 2.29 is cut by its end. 2.29 / 0.5 is more than
    // pi, though the half circle is not. Then the lead runs again at full length.
    EXPECT_EQ(Path({2, -1}, {{{0, 0}, 1}, {{1, 0}}, {{1, 4}}}),
              L"M 0.0,0.0 A 0.5,0.5 0.0 1 0 1.0,0.0 L 1.0,2.2854 M 1.0,3.2854 L 1.0,4.0");
}

TEST_F(PolylineWalk, LargeFlagBehindACutIsNotJudgedFromWhatIsDrawn) {
    // A quarter circle of radius 1 is 1.57 long, and a line of 6 follows: 7.57 = 1 x 7 + 0.57. The lead
    // of 3.29 is longer than half the circle.
    const double quarter = 0.41421356237309503; // the bulge of a right angle
    EXPECT_EQ(Path({6, -1}, {{{0, 0}, quarter}, {{1, 1}}, {{1, 7}}}),
              L"M 0.0,0.0 A 1.0,1.0 0.0 1 0 1.0,1.0 L 1.0,4.2854 M 1.0,5.2854 L 1.0,7.0");
}

TEST_F(PolylineWalk, ClockwiseArcsAreWalkedWithTheAngleFalling) {
    // The half circle over (1, 0) from (0, 0), radius 1, with (2, -1): 3.14 = 1 x 3 + 0.14, the lead is 1.07.
    const double lead = (2 + 0.14159265358979312) / 2;
    const auto on = [&](double length) { return OnCircle(1, 0, 1, 180 - length * 180 / 3.141592653589793); };
    const std::wstring path = Path({2, -1}, {{{0, 0}, -1}, {{2, 0}}});
    EXPECT_EQ(path, L"M 0.0,0.0 A 1.0,1.0 0.0 0 1 " + on(lead) + L" M " + on(lead + 1) +
                        L" A 1.0,1.0 0.0 0 1 2.0,0.0");
}

TEST_F(PolylineWalk, DotsOnArcsAreLinesToTheSamePoint) {
    // 3.14 = 2 x 1.5 + 0.14: the lead is 0.57.
    const double lead = (1 + 0.14159265358979312) / 2;
    const auto on = [&](double length) { return OnCircle(1, 0, 1, 180 + length * 180 / 3.141592653589793); };
    const std::wstring arc = L" A 1.0,1.0 0.0 0 0 ";
    // What the last point's zero is signed with is a matter of rounding.
    const std::wstring expected = L"M 0.0,0.0" + arc + on(lead) + L" L " + on(lead) + L" M " +
                                  on(lead + 0.5) + arc + on(lead + 1.5) + L" L " + on(lead + 1.5) + L" M " +
                                  on(lead + 2) + arc + L"2.0,";
    EXPECT_EQ(Path({1, 0, -0.5}, {{{0, 0}, 1}, {{2, 0}}}).substr(0, expected.size()), expected);
}

TEST_F(PolylineWalk, CoincidentSegmentsAreNoPartOfIt) {
    EXPECT_EQ(Path({2, -1}, {{{0, 0}}, {{0, 0}}, {{3, 0}}, {{3, 0}}, {{3, 3}}}),
              L"M 0.0,0.0 L 1.0,0.0 M 2.0,0.0 L 3.0,0.0 L 3.0,1.0 M 3.0,2.0 L 3.0,3.0");
}

TEST_F(PolylineWalk, RestOfAGapThatAVertexCutsIsNoRoundOfThePattern) {
    // 1 = 10 x 0.1 but for the rounding. The third gap ends at the vertex, or as little before it as doubles
    // differ there: its rest is gone at once, and the dots go on.
    const std::wstring path = Path({0, -0.1}, {{{0, 0}}, {{0.3, 0}}, {{0.3, 0.7}}});
    EXPECT_NE(path.find(L" M 0.3,0.0 L 0.3,0.0 M 0.3,0.1 L 0.3,0.1 M 0.3,0.2 L 0.3,0.2"), path.npos) << path;
}

TEST_F(PolylineWalk, GapOrDashByItselfGoesOnBehindAVertex) {
    // 4.3 is 42 x 0.1 and all but 0.1, which the leads share, of the dash with the first dash's length.
    const Vertices vertices{{{0, 0}}, {{1.8, 0}}, {{1.8, 2.5}}};
    EXPECT_NE(Path({-0.1}, vertices).find(L" M 1.8,0.05 M 1.8,0.15 M 1.8,0.25"), std::wstring::npos);
    database.AddLinetype(L"DASH", Dashes({0.1}));
    block.Add<drawing::Polyline>(Dashed(L"DASH"), vertices, false, true);
    EXPECT_NE(Geometries().back().find(L" L 1.8,0.1 L 1.8,0.2 L 1.8,0.3"), std::wstring::npos);
}

// The longest of the pieces that a path of absolute moves and lines draws.
double LongestPiece(const std::wstring& path) {
    std::wistringstream words(path);
    wchar_t command = 0;
    wchar_t comma = 0;
    double x = 0;
    double y = 0;
    double longest = 0;
    for (double fromX = 0, fromY = 0; words >> command >> x >> comma >> y; fromX = x, fromY = y) {
        if (command == L'L') {
            longest = std::max(longest, std::hypot(x - fromX, y - fromY));
        }
    }
    return longest;
}

TEST_F(PolylineWalk, NoSideOfARectangleTurnsSolid) {
    // In metres, so that the millimetres that come out are whole but for the leads. Nothing drawn is longer
    // than the lead, half of what the pattern leaves over, or the dash.
    database.SetInsunits(OxDb::kUnitsMeters);
    for (int spacing = 50; spacing <= 1200; spacing += 50) { // millimetres
        const double length = spacing / 1000.0;
        const std::wstring name = L"_" + std::to_wstring(spacing);
        database.AddLinetype(L"DOT" + name, Dashes({0, -length}));
        database.AddLinetype(L"GAP" + name, Dashes({-length}));
        database.AddLinetype(L"DASH" + name, Dashes({length}));
        for (int width = 3; width <= 27; width += 3) {
            for (int height = 2; height <= 26; height += 6) {
                const Vertices rectangle{
                    {{0, 0}}, {{width / 10.0, 0}}, {{width / 10.0, height / 10.0}}, {{0, height / 10.0}}};
                for (const wchar_t* const kind : {L"DOT", L"GAP", L"DASH"}) {
                    block.Add<drawing::Polyline>(Dashed(kind + name), rectangle, true, true);
                }
            }
        }
    }
    std::size_t index = 0;
    const std::vector<std::wstring> paths = Geometries();
    for (int spacing = 50; spacing <= 1200; spacing += 50) {
        for (int width = 300; width <= 2700; width += 300) {
            for (int height = 200; height <= 2600; height += 600) {
                for (const bool dash : {false, false, true}) {
                    const std::wstring& path = paths.at(index++);
                    const int around = 2 * (width + height);
                    const bool none = around < spacing;
                    // Where the pattern fits but for the rounding, one repetition more or less is left over.
                    const double rest = none ? around : around % spacing == 0 ? spacing : around % spacing;
                    const double lead = (dash && !none ? rest + spacing : rest) / 2.0;
                    EXPECT_LE(LongestPiece(path), std::max(lead, dash ? spacing : 0.0) + 0.1)
                        << spacing << " round " << width << " by " << height << ", dash " << dash;
                }
            }
        }
    }
    EXPECT_EQ(index, paths.size());
}

TEST_F(PolylineWalk, LinetypeOfDotsOnlyDrawsTheRestSolid) {
    // With a length of 1 that its one dot does not have: 3.5 = 3 x 1 + 0.5, the lead is 0.25, and the dot
    // behind it is a whole round of the pattern that gets nowhere.
    database.AddLinetype(L"DOTS", Dashes({0}), 1.0);
    block.Add<drawing::Polyline>(Dashed(L"DOTS"), Vertices{{{0, 0}}, {{2.5, 0}}, {{2.5, 1}, 1}, {{2.5, 2}}},
                                 false, true);
    // 3.5 + a half circle of radius 0.5: 5.07, a lead of 0.0354.
    EXPECT_EQ(Geometry(),
              L"M 0.0,0.0 L 0.0354,0.0 L 0.0354,0.0 L 2.5,0.0 L 2.5,1.0 A 0.5,0.5 0.0 1 0 2.5,2.0");
}

TEST_F(PolylineWalk, DashesTooShortToCountDrawTheRestSolid) {
    // 1e-30 changes nothing of a length of 10.
    database.AddLinetype(L"DUST", Dashes({1e-30, -1e-30}), 5.0);
    block.Add<drawing::Polyline>(Dashed(L"DUST"), Vertices{{{0, 0}}, {{20, 0}}, {{20, 1}}}, false, true);
    // 21 = 4 x 5 + 1: a lead of 0.5, then one round of a gap and a dash of no length.
    EXPECT_EQ(Geometry(), L"M 0.0,0.0 L 0.5,0.0 M 0.5,0.0 L 0.5,0.0 L 20.0,0.0 L 20.0,1.0");
}

TEST_F(PolylineWalk, CountsOfRepetitionsThatDoNotFitWrapAndEnd) {
    // 10 / 1e-9 gives -2^31 repetitions; with two dashes that is a count of 0, which never comes back to 0.
    // The lead is (4 + 10 + 2.147483648) / 2.
    database.AddLinetype(L"TWO", Dashes({4, -4}), 1e-9);
    database.AddLinetype(L"THREE", Dashes({4, -4, 0}), 1e-9);
    const Vertices vertices{{{0, 0}}, {{10, 0}}};
    block.Add<drawing::Polyline>(Dashed(L"TWO"), vertices, false, true);
    block.Add<drawing::Polyline>(Dashed(L"THREE"), vertices, false, true);
    for (const std::wstring& path : Geometries()) {
        EXPECT_EQ(path, L"M 0.0,0.0 L 8.07374,0.0 M 10.0,0.0");
    }
}

TEST_F(PolylineWalk, DashesWithoutAPatternLengthAreWalked) {
    // 6 / 0 gives -2^31 repetitions, of no length each: the lead is (1 + 6) / 2, then the pattern goes on
    // with its gap. With two dashes the count of entries is 0 and no lead-out comes.
    database.AddLinetype(L"NONE", Dashes({1, -0.5}), 0.0);
    block.Add<drawing::Polyline>(Dashed(L"NONE"), Vertices{{{0, 0}}, {{3, 0}}, {{3, 3}}}, false, true);
    EXPECT_EQ(Geometry(), L"M 0.0,0.0 L 3.0,0.0 L 3.0,0.5 M 3.0,1.0 L 3.0,2.0 M 3.0,2.5 L 3.0,3.0");
}

TEST_F(PolylineWalk, LengthsThatAreNotFiniteEnd) {
    database.AddLinetype(L"DASHED", Dashes({1, -1}));
    database.AddLinetype(L"ENDLESS", Dashes({1, -1}), std::numeric_limits<double>::infinity());
    for (const wchar_t* const linetype : {L"DASHED", L"ENDLESS"}) {
        block.Add<drawing::Polyline>(Dashed(linetype), Vertices{{{0, 0}}, {{1e300, 0}}, {{0, 0}}}, false,
                                     true);
        block.Add<drawing::Polyline>(Dashed(linetype), Vertices{{{0, 0}}, {{HUGE_VAL, 0}}, {{0, 0}}}, false,
                                     true);
        block.Add<drawing::Polyline>(Dashed(linetype), Vertices{{{0, 0}}, {{NAN, 0}}, {{0, 0}}}, false, true);
    }
    EXPECT_EQ(Geometries().size(), 6U);
}

} // namespace
} // namespace blocktest
