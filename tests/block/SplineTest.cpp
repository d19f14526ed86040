// Splines, which are walked as polylines through points along them.
#include "StyleConversion/block/SplineSampling.h"

#include "OxDb/OxGeNurbCurve2d.h"
#include "tests/block/BlockTest.h"

#include <algorithm>
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

OxGePoint2dArray Sampled(OxDbSpline& spline) {
    OxGePoint2dArray points;
    for (const block::CurveVertex& vertex : block::SampleSpline(spline)) {
        points.append(vertex.point);
    }
    return points;
}

class SplineEntities : public BlockTest {
protected:
    template <class Data>
    drawing::Spline& Add(const Data& data, const drawing::EntityProperties& properties = Solid()) {
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
    drawing::Spline& spline = Add(Cubic({{0, 0, 0}, {1, 1e-3, 0}, {2, 0, 0}, {3, 0, 0}}));
    EXPECT_GE(Sampled(spline).length(), 4);
}

TEST_F(SplineEntities, SamplesStayWithinAThousandthOfTheExtent) {
    // y = 4 x (1 - x) as a cubic: the tolerance is 0.001 of the larger side, which is 1.
    drawing::Spline& spline =
        Add(Cubic({{0, 0, 0}, {1.0 / 3, 4.0 / 3, 0}, {2.0 / 3, 4.0 / 3, 0}, {1, 0, 0}}));
    const OxGePoint2dArray points = Sampled(spline);
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
    drawing::Spline& spline = Add(Through({{0, 0, 0}, {1, 1, 0}, {2, 0, 0}, {3, 1, 0}, {4, 0, 0}}));
    const OxGePoint2dArray points = Sampled(spline);
    ASSERT_GE(points.length(), 5);
    EXPECT_NEAR(points[0].x, 0, 1e-12);
    EXPECT_NEAR(points[points.length() - 1].x, 4, 1e-12);
}

TEST_F(SplineEntities, StraightOneThroughManyPointsStaysWithItsEndsWhenNoToleranceGivesMore) {
    drawing::Spline& spline = Add(Through({{0, 0, 0}, {1, 0, 0}, {2, 0, 0}, {3, 0, 0}, {4, 0, 0}}));
    const OxGePoint2dArray points = Sampled(spline);
    ASSERT_GE(points.length(), 2);
    EXPECT_NEAR(points[0].x, 0, 1e-12);
    EXPECT_NEAR(points[points.length() - 1].x, 4, 1e-12);
}

TEST_F(SplineEntities, EndTangentsCountWhenTheSplineHasThem) {
    drawing::FitData data = Through({{0, 0, 0}, {1, 0, 0}});
    data.startTangent = {0, 1, 0};
    data.endTangent = {0, -1, 0};
    EXPECT_NEAR(Sampled(Add(data))[1].y, 0, 1e-12);
    data.tangentsExist = true;
    const OxGePoint2dArray points = Sampled(Add(data));
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

TEST_F(SplineEntities, PatternLongerThanTheSplineIsDrawnToItsMiddleOnly) {
    // Lead-in to the middle, then a gap over all the samples that follow.
    database.AddLinetype(L"LONG", Dashes({10, -10}));
    Add(Cubic({{0, 0, 0}, {1, 2, 0}, {2, 2, 0}, {3, 0, 0}}), Dashed(L"LONG"));
    const std::wstring path = Geometry();
    const std::size_t gap = path.find(L" M ");
    ASSERT_NE(gap, std::wstring::npos);
    EXPECT_NE(path.find(L" L "), std::wstring::npos);
    EXPECT_EQ(path.find(L" L ", gap), std::wstring::npos);
    EXPECT_EQ(path.substr(path.size() - 10), L" M 3.0,0.0");
}

OxGeNurbCurve2d CurveOf(const drawing::NurbsData& data) {
    OxGePoint2dArray points;
    for (const OxGePoint3d& point : data.controlPoints) {
        points.append({point.x, point.y});
    }
    OxGeDoubleArray knots;
    for (const double knot : data.knots) {
        knots.append(knot);
    }
    return {data.degree, OxGeKnotVector(knots, 1e-9), points, false};
}

OxGePoint2dArray SamplesOf(const OxGeNurbCurve2d& curve, double tolerance) {
    OxGeInterval interval(1e-12);
    curve.getInterval(interval);
    OxGePoint2dArray points;
    OxGeDoubleArray parameters;
    curve.getSamplePoints(interval.lowerBound(), interval.upperBound(), tolerance, points, parameters);
    return points;
}

double FirstTolerance(const OxGeNurbCurve2d& curve) {
    OxGePoint2d minimum;
    OxGePoint2d maximum;
    curve.boundBlock().getMinMaxPoints(minimum, maximum);
    return 0.001 * std::max(maximum.x - minimum.x, maximum.y - minimum.y);
}

void ExpectEqualPoints(const OxGePoint2dArray& found, const OxGePoint2dArray& expected) {
    ASSERT_EQ(found.length(), expected.length());
    for (int i = 0; i < found.length(); ++i) {
        EXPECT_EQ(found[i].x, expected[i].x) << i;
        EXPECT_EQ(found[i].y, expected[i].y) << i;
    }
}

TEST_F(SplineEntities, ToleranceIsAThousandthOfTheLargerSide) {
    // Bows as high as 3/4 of the control points: 8 wide and 0.75 high, and the same upright.
    const drawing::NurbsData wide = Cubic({{0, 0, 0}, {1, 1, 0}, {7, 1, 0}, {8, 0, 0}});
    const drawing::NurbsData tall = Cubic({{0, 0, 0}, {1, 1, 0}, {1, 7, 0}, {0, 8, 0}});
    for (const drawing::NurbsData* const data : {&wide, &tall}) {
        const OxGeNurbCurve2d curve = CurveOf(*data);
        const OxGePoint2dArray expected = SamplesOf(curve, 0.001 * 8.0);
        ASSERT_GE(expected.length(), 4);
        ASSERT_GT(SamplesOf(curve, 0.001 * 0.75).length(), expected.length());
        ExpectEqualPoints(Sampled(Add(*data)), expected);
    }
}

TEST_F(SplineEntities, ToleranceIsHalvedWhileThereAreFewerSamplesThanControlPoints) {
    for (const double height : {0.01, 1e-3, 1e-4, 1e-5}) {
        const drawing::NurbsData data = Cubic({{0, 0, 0}, {1, height, 0}, {2, height, 0}, {3, 0, 0}});
        const OxGeNurbCurve2d curve = CurveOf(data);
        double tolerance = 0.001 * 3.0;
        ASSERT_LT(SamplesOf(curve, tolerance).length(), 4);
        while (SamplesOf(curve, tolerance).length() < 4) {
            tolerance *= 0.5;
        }
        ASSERT_GT(tolerance, 1e-6);
        ExpectEqualPoints(Sampled(Add(data)), SamplesOf(curve, tolerance));
    }
}

TEST_F(SplineEntities, ToleranceIsHalvedWhileThereAreFewerSamplesThanFitPoints) {
    OxGePoint2dArray points;
    for (const OxGePoint2d& point : {OxGePoint2d{0, 0}, {1, 0.01}, {2, 0.01}, {3, 0}}) {
        points.append(point);
    }
    const OxGeNurbCurve2d curve(points);
    double tolerance = FirstTolerance(curve);
    ASSERT_LT(SamplesOf(curve, tolerance).length(), 4);
    while (SamplesOf(curve, tolerance).length() < 4) {
        tolerance *= 0.5;
    }
    ASSERT_EQ(SamplesOf(curve, tolerance).length(), 4) << "or one point more would not show";
    ExpectEqualPoints(Sampled(Add(Through({{0, 0, 0}, {1, 0.01, 5}, {2, 0.01, 0}, {3, 0, 0}}))),
                      SamplesOf(curve, tolerance));
}

TEST_F(SplineEntities, ToleranceIsHalvedNoFurtherThanAMillionth) {
    // A bow so flat that two samples do until the tolerance is a tenth of that.
    const double height = 4e-7;
    const drawing::NurbsData data = Cubic({{0, 0, 0}, {1, height, 0}, {2, height, 0}, {3, 0, 0}});
    ASSERT_GE(SamplesOf(CurveOf(data), 1e-8).length(), 4);
    EXPECT_EQ(Sampled(Add(data)).length(), 2);
}

// Goes round a circle again and again, `perTurn` control points each time. On a radius of 1000 tolerances, a
// chord takes 0.126 of an angle, so that a turn has about 50 samples.
drawing::NurbsData Coil(int count, double perTurn, double radius) {
    drawing::NurbsData data;
    data.knots = {0, 0, 0};
    for (int i = 0; i < count; ++i) {
        const double angle = 2 * 3.141592653589793 * i / perTurn;
        data.controlPoints.push_back({radius * std::cos(angle), radius * std::sin(angle), 0});
        if (i < count - 2) {
            data.knots.push_back(i);
        }
    }
    data.knots.insert(data.knots.end(), 3, count - 3);
    return data;
}

TEST_F(SplineEntities, ToleranceIsDoubledWhileThereAreAThousandAndOneSamplesOrMore) {
    const drawing::NurbsData data = Coil(200, 6, 50);
    const OxGeNurbCurve2d curve = CurveOf(data);
    const double tolerance = FirstTolerance(curve);
    ASSERT_GE(SamplesOf(curve, tolerance).length(), 1001);
    ASSERT_GE(SamplesOf(curve, 2 * tolerance).length(), 1001);
    ASSERT_LT(SamplesOf(curve, 4 * tolerance).length(), 1001);
    ASSERT_LT(4 * tolerance, 1.0);
    ExpectEqualPoints(Sampled(Add(data)), SamplesOf(curve, 4 * tolerance));
}

TEST_F(SplineEntities, ToleranceOfOneAndMoreIsNotDoubled) {
    for (const double radius : {700.0, 300.0}) {
        const drawing::NurbsData data = Coil(250, 6, radius);
        const OxGeNurbCurve2d curve = CurveOf(data);
        double tolerance = FirstTolerance(curve);
        // 1.3, or 0.56 and then 1.1.
        tolerance *= radius < 500 ? 2 : 1;
        ASSERT_GE(tolerance, 1.0);
        ASSERT_GE(SamplesOf(curve, tolerance).length(), 1001);
        ExpectEqualPoints(Sampled(Add(data)), SamplesOf(curve, tolerance));
    }
}

TEST_F(SplineEntities, AThousandSamplesAreNotYetTooMany) {
    bool met[2] = {};
    for (int step = 0; step < 320 && !(met[0] && met[1]); ++step) {
        const drawing::NurbsData data = Coil(150, 7.4 + 0.005 * step, 50);
        const OxGeNurbCurve2d curve = CurveOf(data);
        const double tolerance = FirstTolerance(curve);
        const OxGePoint2dArray samples = SamplesOf(curve, tolerance);
        if (samples.length() == 1000) {
            met[0] = true;
            ExpectEqualPoints(Sampled(Add(data)), samples);
        } else if (samples.length() == 1001) {
            met[1] = true;
            ExpectEqualPoints(Sampled(Add(data)), SamplesOf(curve, 2 * tolerance));
        }
    }
    EXPECT_TRUE(met[0]);
    EXPECT_TRUE(met[1]);
}

TEST_F(SplineEntities, ClosedSplineReturnsToItsStart) {
    drawing::NurbsData data = Cubic({{0, 0, 0}, {2, 2, 0}, {4, 2, 0}, {4, 0, 0}});
    data.closed = true;
    const OxGePoint2dArray points = Sampled(Add(data));
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
    for (const OxGePoint2d& point : Sampled(Add(data))) {
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
        const OxGePoint2dArray points = Sampled(Add(Zigzag(count)));
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
