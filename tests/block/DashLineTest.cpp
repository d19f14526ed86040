// Lines and the dashes of their linetypes.
#include "tests/block/BlockTest.h"

namespace blocktest {
namespace {

class DashLine : public BlockTest {
protected:
    // The path of a line with dashes of these lengths.
    std::wstring Path(const std::vector<double>& dashes, const OxGePoint3d& start, const OxGePoint3d& end) {
        database.AddLinetype(L"DASHED", Dashes(dashes));
        block.Add<drawing::Line>(Dashed(L"DASHED"), start, end);
        return Geometry();
    }
};

TEST_F(DashLine, WithoutLinetypeIsSolid) {
    block.Add<drawing::Line>(Dashed(L"NOWHERE"), OxGePoint3d{1, 2, 9}, OxGePoint3d{3, 5, -9});
    EXPECT_EQ(Geometry(), L"M 1.0,2.0 L 3.0,5.0");
}

TEST_F(DashLine, WithALinetypeWithoutDashesIsSolid) {
    EXPECT_EQ(Path({}, {0, 0, 0}, {10, 0, 0}), L"M 0.0,0.0 L 10.0,0.0");
}

TEST_F(DashLine, WithAPatternLengthOfZeroIsSolid) {
    database.AddLinetype(L"NONE", Dashes({1, -1}), 0.0);
    block.Add<drawing::Line>(Dashed(L"NONE"), OxGePoint3d{}, OxGePoint3d{10, 0, 0});
    EXPECT_EQ(Geometry(), L"M 0.0,0.0 L 10.0,0.0");
}

TEST_F(DashLine, WithALinetypeThatCannotBeOpenedIsSolid) {
    database.AddLinetype(L"DASHED", Dashes({1, -1}));
    block.Add<drawing::Line>(Dashed(L"DASHED"), OxGePoint3d{}, OxGePoint3d{10, 0, 0});
    database.Failures().Fail(drawing::Operation::kOpenObject, 1, Oxsys::eWasErased);
    EXPECT_EQ(Geometry(), L"M 0.0,0.0 L 10.0,0.0");
}

TEST_F(DashLine, CentresThePattern) {
    // 2 = 2 x 0.75 + 0.5: the lead is (0.5 + 0.5) / 2.
    EXPECT_EQ(Path({0.5, -0.25}, {0, 0, 0}, {2, 0, 0}),
              L"M 0.0,0.0 L 0.5,0.0 M 0.75,0.0 L 1.25,0.0 M 1.5,0.0 L 2.0,0.0");
}

TEST_F(DashLine, ShorterThanThePatternIsDrawnInTwoHalves) {
    EXPECT_EQ(Path({0.5, -0.25}, {0, 0, 0}, {0.5, 0, 0}), L"M 0.0,0.0 L 0.25,0.0 L 0.5,0.0");
}

TEST_F(DashLine, PatternThatBeginsWithAGapEndsShortByTheGap) {
    // 5 = 2 x 2 + 1: the lead is 1 / 2, and the first gap is skipped: 0.5 + 1 + (1 + 1) + 0.5 = 4.
    EXPECT_EQ(Path({-1, 1}, {0, 0, 0}, {5, 0, 0}),
              L"M 0.0,0.0 L 0.5,0.0 L 1.5,0.0 M 2.5,0.0 L 3.5,0.0 L 4.0,0.0");
}

TEST_F(DashLine, PatternThatBeginsWithADotKeepsTheLength) {
    // 5 = 2 x 2 + 1 as well, but the dot that is skipped has no length.
    EXPECT_EQ(Path({0, -1, 1}, {0, 0, 0}, {5, 0, 0}), L"M 0.0,0.0 L 0.5,0.0 M 1.5,0.0 L 2.5,0.0 L 2.5,0.0 "
                                                      L"M 3.5,0.0 L 4.5,0.0 L 5.0,0.0");
}

TEST_F(DashLine, DotIsALineToTheSamePoint) {
    // 4 = 1 x 3 + 1: the lead is (1 + 1) / 2.
    EXPECT_EQ(Path({1, -1, 0, -1}, {0, 0, 0}, {4, 0, 0}),
              L"M 0.0,0.0 L 1.0,0.0 M 2.0,0.0 L 2.0,0.0 M 3.0,0.0 L 4.0,0.0");
}

TEST_F(DashLine, LeadOutIsDrawnAlsoBehindAGap) {
    // 4 = 2 x 2 exactly: the lead is half of the first dash.
    EXPECT_EQ(Path({1, -1}, {0, 0, 0}, {4, 0, 0}),
              L"M 0.0,0.0 L 0.5,0.0 M 1.5,0.0 L 2.5,0.0 M 3.5,0.0 L 4.0,0.0");
}

TEST_F(DashLine, PatternLengthIsTakenFromTheLinetypeAndNotFromItsDashes) {
    // 5 = 1 x 4 + 1: the lead is (1 + 1) / 2, and the dashes are walked as they are.
    database.AddLinetype(L"LONG", Dashes({1, -1}), 4.0);
    block.Add<drawing::Line>(Dashed(L"LONG"), OxGePoint3d{}, OxGePoint3d{5, 0, 0});
    EXPECT_EQ(Geometry(), L"M 0.0,0.0 L 1.0,0.0 M 2.0,0.0 L 3.0,0.0");
}

TEST_F(DashLine, RunsInEveryDirection) {
    struct Case {
        OxGePoint3d end;
        std::wstring path;
    };
    // Length 4 with (1, -1): stops at 0.5, 1.5, 2.5, 3.5 and 4. What the
    // cosine of a right angle is off by does not show in five decimals.
    const Case cases[] = {
        {{0, 4, 0}, L"M 0.0,0.0 L 0.0,0.5 M 0.0,1.5 L 0.0,2.5 M 0.0,3.5 L 0.0,4.0"},
        {{0, -4, 0}, L"M 0.0,0.0 L 0.0,-0.5 M 0.0,-1.5 L 0.0,-2.5 M 0.0,-3.5 L 0.0,-4.0"},
        {{-4, 0, 0}, L"M 0.0,0.0 L -0.5,0.0 M -1.5,0.0 L -2.5,0.0 M -3.5,0.0 L -4.0,0.0"},
        {{2.4, 3.2, 0}, L"M 0.0,0.0 L 0.3,0.4 M 0.9,1.2 L 1.5,2.0 M 2.1,2.8 L 2.4,3.2"},
        {{-2.4, 3.2, 0}, L"M 0.0,0.0 L -0.3,0.4 M -0.9,1.2 L -1.5,2.0 M -2.1,2.8 L -2.4,3.2"},
        {{-2.4, -3.2, 0}, L"M 0.0,0.0 L -0.3,-0.4 M -0.9,-1.2 L -1.5,-2.0 M -2.1,-2.8 L -2.4,-3.2"},
    };
    database.AddLinetype(L"DASHED", Dashes({1, -1}));
    for (const Case& row : cases) {
        block.Add<drawing::Line>(Dashed(L"DASHED"), OxGePoint3d{}, row.end);
    }
    const std::vector<std::wstring> paths = Geometries();
    for (std::size_t i = 0; i < std::size(cases); ++i) {
        EXPECT_EQ(paths.at(i), cases[i].path);
    }
}

TEST_F(DashLine, WithoutLengthStaysAtItsStart) {
    EXPECT_EQ(Path({0.5, -0.25}, {1, 2, 0}, {1, 2, 0}), L"M 1.0,2.0 L 1.0,2.0 L 1.0,2.0");
}

TEST_F(DashLine, IsScaledToMillimetres) {
    database.SetInsunits(OxDb::kUnitsInches);
    EXPECT_EQ(Path({0.5, -0.25}, {0, 0, 0}, {2, 0, 0}),
              L"M 0.0,0.0 L 12.7,0.0 M 19.05,0.0 L 31.75,0.0 M 38.1,0.0 L 50.8,0.0");
}

TEST_F(DashLine, PathHasColourWeightAndNoFill) {
    database.AddLinetype(L"DASHED", Dashes({1, -1}));
    block.Add<drawing::Line>(
        drawing::EntityProperties{L"0", Rgb(1, 2, 3), static_cast<OxDb::LineWeight>(25), L"dashed"},
        OxGePoint3d{}, OxGePoint3d{4, 0, 0});
    const Symbol symbol = Convert();
    const TylModel::Path& path = PathAt(symbol, 0);
    EXPECT_EQ(path.GetLineColor(), L"ff010203");
    EXPECT_EQ(path.GetLineWeight(), L"0.5");
    EXPECT_EQ(path.GetLineWeightScalable(), L"false");
    EXPECT_EQ(path.GetFillColor(), L"");
}

TEST_F(DashLine, HugeCountsOfRepetitionsGiveNone) {
    // 1e12 / 1e-3 does not fit 32 bits: the conversion gives -2^31, and the rest is the length and 2^31
    // patterns more: half of that, and half a dash, is the lead. The double nearest
    // to 500001073741.82425 ends in .82421875.
    EXPECT_EQ(Path({0.0005, -0.0005}, {0, 0, 0}, {1e12, 0, 0}),
              L"M 0.0,0.0 L 500001073741.82422,0.0 L 1000002147483.64844,0.0");
}

} // namespace
} // namespace blocktest
