// Splines, which are walked as polylines through points along them.
#include "StyleConversion/block/SplineSampling.h"
#include "tests/block/BlockTest.h"

#include <cmath>

namespace blocktest {
namespace {

using drawing::Operation;
using Texts = std::vector<std::wstring>;

drawing::FitData Through(std::vector<OxGePoint3d> points) {
    drawing::FitData data;
    data.points = std::move(points);
    return data;
}

// A cubic of one piece.
drawing::NurbsData Cubic(const std::vector<OxGePoint3d>& controlPoints) {
    drawing::NurbsData data;
    data.controlPoints = controlPoints;
    data.knots = {0, 0, 0, 0, 1, 1, 1, 1};
    return data;
}

class SplineEntities : public BlockTest {
protected:
    template <class Data>
    const drawing::Spline& Add(const Data& data, const drawing::EntityProperties& properties = Solid()) {
        return block.Add<drawing::Spline>(properties, data);
    }

    // The number of points of a solid path, which is "M x,y" and then " L x,y" for each segment.
    static std::size_t CountPoints(const std::wstring& path) {
        std::size_t count = 1;
        for (const wchar_t c : path) {
            count += c == L'L' ? 1 : 0;
        }
        return count;
    }
};

TEST_F(SplineEntities, StraightSplineRunsFromItsStartToItsEnd) {
    // Solid splines are drawn segment by segment, each with a move of its own.
    Add(Cubic({{0, 0, 0}, {1, 0, 0}, {2, 0, 0}, {3, 0, 0}}));
    const std::wstring path = Geometry();
    EXPECT_EQ(path.substr(0, 9), L"M 0.0,0.0");
    EXPECT_EQ(path.substr(path.size() - 10), L" L 3.0,0.0");
    for (const wchar_t c : path) {
        EXPECT_NE(c, L'A');
    }
}

TEST_F(SplineEntities, HasAtLeastAsManySamplesAsControlPoints) {
    const drawing::Spline& spline = Add(Cubic({{0, 0, 0}, {1, 1e-3, 0}, {2, 0, 0}, {3, 0, 0}}));
    EXPECT_GE(block::SampleSpline(spline).length(), 4);
}

TEST_F(SplineEntities, SamplesStayWithinAThousandthOfTheExtent) {
    // y = 4 x (1 - x) as a cubic: the tolerance is 0.001 of the larger side, which is 1.
    const drawing::Spline& spline =
        Add(Cubic({{0, 0, 0}, {1.0 / 3, 4.0 / 3, 0}, {2.0 / 3, 4.0 / 3, 0}, {1, 0, 0}}));
    const OxGePoint2dArray points = block::SampleSpline(spline);
    ASSERT_GE(points.length(), 4);
    for (int i = 0; i < points.length(); ++i) {
        EXPECT_NEAR(points[i].y, 4 * points[i].x * (1 - points[i].x), 1e-12);
        if (i > 0) {
            // A parabola is furthest from its chord where the chord's middle is: by (width)^2 upright.
            const double width = points[i].x - points[i - 1].x;
            const double slope = 4 - 8 * (points[i].x + points[i - 1].x) / 2;
            EXPECT_LE(width * width / std::sqrt(1 + slope * slope), 0.001 * (1 + 1e-9));
        }
    }
}

TEST_F(SplineEntities, HasAtLeastAsManySamplesAsFitPoints) {
    const drawing::Spline& spline = Add(Through({{0, 0, 0}, {1, 1, 0}, {2, 0, 0}, {3, 1, 0}, {4, 0, 0}}));
    const OxGePoint2dArray points = block::SampleSpline(spline);
    ASSERT_GE(points.length(), 5);
    EXPECT_NEAR(points[0].x, 0, 1e-12);
    EXPECT_NEAR(points[points.length() - 1].x, 4, 1e-12);
}

TEST_F(SplineEntities, StraightOneThroughManyPointsStaysWithItsEndsWhenNoToleranceGivesMore) {
    const drawing::Spline& spline = Add(Through({{0, 0, 0}, {1, 0, 0}, {2, 0, 0}, {3, 0, 0}, {4, 0, 0}}));
    const OxGePoint2dArray points = block::SampleSpline(spline);
    ASSERT_GE(points.length(), 2);
    EXPECT_NEAR(points[0].x, 0, 1e-12);
    EXPECT_NEAR(points[points.length() - 1].x, 4, 1e-12);
}

TEST_F(SplineEntities, EndTangentsCountWhenTheSplineHasThem) {
    drawing::FitData data = Through({{0, 0, 0}, {1, 0, 0}});
    data.startTangent = {0, 1, 0};
    data.endTangent = {0, -1, 0};
    EXPECT_NEAR(block::SampleSpline(Add(data))[1].y, 0, 1e-12);
    data.tangentsExist = true;
    const OxGePoint2dArray points = block::SampleSpline(Add(data));
    ASSERT_GT(points.length(), 2);
    EXPECT_GT(points[1].y, 0.0);
}

TEST_F(SplineEntities, SinglePointHasAPathWithoutLength) {
    Add(Cubic({{1, 2, 0}, {1, 2, 0}, {1, 2, 0}, {1, 2, 0}}), Drawn(L"0", ByLayer(), -1));
    // All its samples are one point: none of the segments has a length, and none is drawn.
    const Symbol symbol = Convert();
    EXPECT_EQ(symbol->GetGraphics().GetCount(), 0);
    EXPECT_EQ(Identifiers(symbol), (Texts{L"COLORBYLAYER0", L"LWBYLAYER0", L"ROTATION"}));
}

TEST_F(SplineEntities, ThatCannotBeReadOrMakeNoCurveAddNothing) {
    drawing::NurbsData data = Cubic({{0, 0, 0}, {1, 1, 0}, {2, 0, 0}, {3, 0, 0}});
    data.knots = {0, 1, 2};
    Add(data, Drawn(L"0", ByLayer(), -1));
    Add(Through({}), Drawn(L"0", ByLayer(), -1));
    Symbol symbol = Convert();
    EXPECT_EQ(symbol->GetGraphics().GetCount(), 0);
    EXPECT_EQ(Identifiers(symbol), Texts{L"ROTATION"});
}

TEST_F(SplineEntities, FailingReadsAddNothing) {
    Add(Cubic({{0, 0, 0}, {1, 1, 0}, {2, 0, 0}, {3, 0, 0}}), Drawn(L"0", ByLayer(), -1));
    Add(Through({{0, 0, 0}, {1, 1, 0}}), Drawn(L"0", ByLayer(), -1));
    database.Failures().Fail(Operation::kGetFitData, 1, Oxsys::eInvalidInput);
    database.Failures().Fail(Operation::kGetNurbsData, 1, Oxsys::eInvalidInput);
    const Symbol symbol = Convert();
    EXPECT_EQ(symbol->GetGraphics().GetCount(), 0);
    EXPECT_EQ(Identifiers(symbol), Texts{L"ROTATION"});
}

TEST_F(SplineEntities, ByLayerValuesAreThoseOfLayerZero) {
    database.AddLayer(L"Roads", Index(1), static_cast<OxDb::LineWeight>(50));
    Add(Through({{0, 0, 0}, {1, 1, 0}}), Drawn(L"Roads", ByLayer(), -1));
    const Symbol symbol = Convert();
    EXPECT_EQ(Identifiers(symbol), (Texts{L"COLORBYLAYER0", L"LWBYLAYER0", L"ROTATION"}));
    EXPECT_EQ(PathAt(symbol, 0).GetLineColor(), L"%COLORBYLAYER0%");
}

TEST_F(SplineEntities, LayerFilterLooksAtTheSplinesOwnLayer) {
    Add(Through({{0, 0, 0}, {1, 1, 0}}), Drawn(L"Roads", Rgb(0, 0, 0)));
    BlockConverter converter(&database);
    converter.SetLayersToIgnore({L"0"});
    const Symbol kept(dynamic_cast<TylModel::SimpleSymbolDefinition*>(converter.Convert(L"B")));
    EXPECT_EQ(kept->GetGraphics().GetCount(), 1);
    converter.SetLayersToIgnore({L"Roads"});
    const Symbol dropped(dynamic_cast<TylModel::SimpleSymbolDefinition*>(converter.Convert(L"B")));
    EXPECT_EQ(dropped->GetGraphics().GetCount(), 0);
}

TEST_F(SplineEntities, ColourAndLineWeightAreTheSplinesOwn) {
    Add(Through({{0, 0, 0}, {1, 1, 0}}), Drawn(L"0", Rgb(1, 2, 3), 25));
    const Symbol symbol = Convert();
    EXPECT_EQ(PathAt(symbol, 0).GetLineColor(), L"ff010203");
    EXPECT_EQ(PathAt(symbol, 0).GetLineWeight(), L"0.5");
}

TEST_F(SplineEntities, DashesRunOnOverTheSamples) {
    // A straight spline of length 4 with (1, -1): stops at 0.5, 1.5, 2.5, 3.5. There is one move to the start
    // and then only those of the gaps, whatever the samples are.
    database.AddLinetype(L"DASHED", Dashes({1, -1}));
    Add(Through({{0, 0, 0}, {1, 0, 0}, {2, 0, 0}, {4, 0, 0}}), Dashed(L"DASHED"));
    const std::wstring path = Geometry();
    EXPECT_EQ(path.substr(0, 9), L"M 0.0,0.0");
    EXPECT_NE(path.find(L" L 0.5,0.0 M "), std::wstring::npos);
    EXPECT_NE(path.find(L" M 1.5,0.0 L "), std::wstring::npos);
    EXPECT_NE(path.find(L" L 2.5,0.0 M "), std::wstring::npos);
    EXPECT_NE(path.find(L" M 3.5,0.0 L "), std::wstring::npos);
    EXPECT_EQ(path.find(L"M 0.0,0.0", 1), std::wstring::npos);
}

TEST_F(SplineEntities, ClosedSplineReturnsToItsStart) {
    drawing::NurbsData data = Cubic({{0, 0, 0}, {2, 2, 0}, {4, 2, 0}, {4, 0, 0}});
    data.closed = true;
    const OxGePoint2dArray points = block::SampleSpline(Add(data));
    ASSERT_GT(points.length(), 4);
    EXPECT_TRUE(points[0].isEqualTo(points[points.length() - 1]));
}

TEST_F(SplineEntities, RationalSplineTakesItsWeights) {
    // A quarter of a circle.
    drawing::NurbsData data;
    data.degree = 2;
    data.controlPoints = {{1, 0, 0}, {1, 1, 0}, {0, 1, 0}};
    data.knots = {0, 0, 0, 1, 1, 1};
    data.weights = {1, std::sqrt(0.5), 1};
    for (const OxGePoint2d& point : block::SampleSpline(Add(data))) {
        EXPECT_NEAR(point.x * point.x + point.y * point.y, 1.0, 1e-12);
    }
}

// A zigzag of so many fit points that any tolerance gives too few samples or a thousand.
drawing::FitData Zigzag(int count) {
    drawing::FitData data;
    for (int i = 0; i < count; ++i) {
        data.points.push_back({static_cast<double>(i), i % 2 == 0 ? 0.0 : 1e-3, 0});
    }
    return data;
}

TEST_F(SplineEntities, SamplingOfManyPointsEnds) {
    // With more than a thousand points to match, too few samples and very many meet: the search for a
    // tolerance would go back and forth.
    for (const int count : {1000, 1001, 1500, 4000}) {
        const OxGePoint2dArray points = block::SampleSpline(Add(Zigzag(count)));
        EXPECT_GE(points.length(), count) << count;
    }
}

TEST_F(SplineEntities, ExtremeExtentsEnd) {
    for (const double size : {1e-320, 1e-160, 1e9, 1e150, 1e308}) {
        Add(Through({{0, 0, 0}, {size, size, 0}, {2 * size, 0, 0}}));
        Add(Cubic({{-size, 0, 0}, {0, size, 0}, {0, -size, 0}, {size, 0, 0}}));
    }
    EXPECT_LE(Geometries().size(), 10U);
}

TEST_F(SplineEntities, VerySmallOnesHaveFewSamples) {
    Add(Through({{0, 0, 0}, {1, 1, 0}}));
    EXPECT_LE(CountPoints(Geometry()), 100U);
}

} // namespace
} // namespace blocktest
