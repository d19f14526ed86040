// What faithful symbols draw where the required ones draw something else: what the drawing shows.
#include "tests/block/BlockTest.h"

#include "StyleConversion/block/Faithful.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <sstream>

namespace blocktest {
namespace {

using std::numbers::pi;

using Texts = std::vector<std::wstring>;

struct At {
    double x;
    double y;
};

double Distance(At a, At b) {
    return std::hypot(a.x - b.x, a.y - b.y);
}

// An arc of a path as points: the end that is given, radii, turn and flags, by the formulas of SVG's appendix
// on elliptical arcs; here a sweep flag of 1 is clockwise.
void AddArc(std::vector<At>& points, double rx, double ry, double turn, bool large, bool clockwise, At to) {
    const At from = points.back();
    const double c = std::cos(turn * pi / 180.0);
    const double s = std::sin(turn * pi / 180.0);
    const double hx = (from.x - to.x) / 2;
    const double hy = (from.y - to.y) / 2;
    const double x = (c * hx + s * hy) / rx;
    const double y = (-s * hx + c * hy) / ry;
    const double square = x * x + y * y;
    const double factor =
        square >= 1 ? 0.0 : std::sqrt((1 - square) / square) * (large == !clockwise ? -1.0 : 1.0);
    const double grow = square > 1 ? std::sqrt(square) : 1.0;
    const At center{factor * y, -factor * x};
    const double begin = std::atan2(y / grow - center.y, x / grow - center.x);
    double sweep = std::atan2(-y / grow - center.y, -x / grow - center.x) - begin;
    sweep += clockwise && sweep > 0 ? -2 * pi : !clockwise && sweep < 0 ? 2 * pi : 0.0;
    constexpr int kPieces = 2000;
    for (int i = 1; i <= kPieces; ++i) {
        const double angle = begin + sweep * i / kPieces;
        const double px = rx * grow * (center.x + std::cos(angle));
        const double py = ry * grow * (center.y + std::sin(angle));
        points.push_back({c * px - s * py + (from.x + to.x) / 2, s * px + c * py + (from.y + to.y) / 2});
    }
}

// The subpaths of a path, each as points so dense that lines between them are near enough.
std::vector<std::vector<At>> PointsDrawn(const std::wstring& path) {
    std::wistringstream in(path);
    std::vector<std::vector<At>> subpaths;
    wchar_t command = 0;
    wchar_t comma = 0;
    while (in >> command) {
        At to{};
        if (command == L'M') {
            in >> to.x >> comma >> to.y;
            subpaths.push_back({to});
        } else if (command == L'L') {
            in >> to.x >> comma >> to.y;
            subpaths.back().push_back(to);
        } else if (command == L'A') {
            double rx = 0;
            double ry = 0;
            double turn = 0;
            int large = 0;
            int sweep = 0;
            in >> rx >> comma >> ry >> turn >> large >> sweep >> to.x >> comma >> to.y;
            AddArc(subpaths.back(), rx, ry, turn, large != 0, sweep != 0, to);
        } else {
            ADD_FAILURE() << "command " << static_cast<int>(command);
            break;
        }
    }
    return subpaths;
}

double DistanceToSegment(At p, At a, At b) {
    const double square = (b.x - a.x) * (b.x - a.x) + (b.y - a.y) * (b.y - a.y);
    const double share =
        square == 0 ? 0
                    : std::clamp(((p.x - a.x) * (b.x - a.x) + (p.y - a.y) * (b.y - a.y)) / square, 0.0, 1.0);
    return Distance(p, {a.x + share * (b.x - a.x), a.y + share * (b.y - a.y)});
}

double DistanceToPath(At p, const std::vector<std::vector<At>>& subpaths) {
    double nearest = 1e300;
    for (const auto& subpath : subpaths) {
        for (std::size_t i = 1; i < subpath.size(); ++i) {
            nearest = std::min(nearest, DistanceToSegment(p, subpath[i - 1], subpath[i]));
        }
    }
    return nearest;
}

class Faithful : public BlockTest {
protected:
    std::wstring FaithfulPath() {
        const block::FaithfulInUse faithful;
        return Geometry();
    }

    Symbol FaithfulSymbol() {
        const block::FaithfulInUse faithful;
        return Convert();
    }

    void AddSolid(std::vector<drawing::HatchLoop> loops) {
        drawing::HatchData data;
        data.solid = true;
        data.loops = std::move(loops);
        block.Add<drawing::Hatch>(Solid(), std::move(data));
    }

    static drawing::HatchLoop Polygon(std::vector<drawing::BulgeVertex> vertices) {
        drawing::HatchLoop loop;
        loop.polyline = drawing::PolylineLoop{std::move(vertices), true};
        return loop;
    }

    static drawing::TextData TextAtOrigin(const std::wstring& text) {
        drawing::TextData data;
        data.position = {1, 2, 0};
        data.height = 3;
        data.text = text;
        data.style = L"";
        return data;
    }
};

TEST_F(Faithful, NumbersAreNotCut) {
    block.Add<drawing::Line>(Solid(), OxGePoint3d{0.105, 0.70711, 0}, OxGePoint3d{2.10305, 3.003333, 0});
    EXPECT_EQ(FaithfulPath(), L"M 0.105,0.70711 L 2.10305,3.003333");
    EXPECT_EQ(Geometry(), L"M 0.1,0.7 L 2.1,3.0");
}

TEST_F(Faithful, ThePolylineOfAFillIsClosedWithItsLastBulge) {
    AddSolid({Polygon({{{0, 0}}, {{2, 0}, 0.0}, {{2, 2}, 1.0}})});
    // Back from (2,2) over a half circle of which that is the diameter.
    EXPECT_EQ(FaithfulPath(), L"M 0,0 L 2,0 L 2,2 A 1.4142135623730951,1.4142135623730951 0 0 0 0,0");
}

TEST_F(Faithful, AMultiPolygonHasItsLastSide) {
    block.Add<drawing::MPolygon>(
        Solid(), std::vector<drawing::PolylineLoop>{{{{{0, 0}}, {{2, 0}}, {{2, 2}}}, false}}, Rgb(1, 2, 3));
    EXPECT_EQ(FaithfulPath(), L"M 0,0 L 2,0 L 2,2 L 0,0");
}

TEST_F(Faithful, AnEdgeThatIsAllButLevelIsKept) {
    drawing::HatchLoop loop;
    loop.edges = {OxGeLineSeg2d({0, 0}, {5, 0.000001}), OxGeLineSeg2d({5, 0.000001}, {5, 3}),
                  OxGeLineSeg2d({5, 3}, {0, 0})};
    AddSolid({loop});
    EXPECT_EQ(FaithfulPath(), L"M 0,0 L 5,1e-06 L 5,3 L 0,0");
}

TEST_F(Faithful, EllipticalEdgesKeepTheirTurn) {
    for (const bool clockwise : {false, true}) {
        for (const double turn : {0.0, 0.7, 2.5, -1.2}) {
            for (const double end : {2.0, 5.5, 2 * pi}) {
                const double start = end == 2 * pi ? 0.0 : 0.4;
                const OxGeEllipArc2d arc({3, 1}, {2 * std::cos(turn), 2 * std::sin(turn)}, 0.3, start, end,
                                         clockwise);
                drawing::HatchLoop loop;
                loop.edges = {arc};
                drawing::Database other;
                other.SetInsunits(OxDb::kUnitsMillimeters);
                other.AddLayer(L"0", Rgb(0, 0, 0));
                drawing::HatchData data;
                data.solid = true;
                data.loops = {loop};
                other.AddBlock(L"B")->Add<drawing::Hatch>(Solid(), data);
                const block::FaithfulInUse faithful;
                const Symbol symbol(
                    static_cast<TylModel::SimpleSymbolDefinition*>(BlockConverter(&other).Convert(L"B")));
                const auto path = PointsDrawn(PathAt(symbol, 0).GetGeometry());
                for (int i = 0; i <= 100; ++i) {
                    const OxGePoint2d point = arc.pointAt(start + (end - start) * i / 100);
                    EXPECT_LT(DistanceToPath({point.x, point.y}, path), 1e-6)
                        << clockwise << turn << end << i;
                }
                // And not the other way round the ellipse.
                if (end != 2 * pi) {
                    const OxGePoint2d beyond = arc.pointAt((start + end) / 2 + pi);
                    EXPECT_GT(DistanceToPath({beyond.x, beyond.y}, path), 0.05) << clockwise << turn << end;
                }
            }
        }
    }
}

TEST_F(Faithful, SplineEdgesAreFilled) {
    OxGePoint2dArray points;
    for (const OxGePoint2d& point :
         {OxGePoint2d{0, 0}, OxGePoint2d{1, 2}, OxGePoint2d{3, 2}, OxGePoint2d{4, 0}}) {
        points.append(point);
    }
    const auto curve = std::make_shared<const OxGeNurbCurve2d>(points, OxGeTol());
    drawing::HatchLoop loop;
    loop.edges = {curve, OxGeLineSeg2d({4, 0}, {0, 0})};
    AddSolid({loop});
    const auto path = PointsDrawn(FaithfulPath());
    ASSERT_EQ(path.size(), 1U);
    OxGePoint2dArray samples;
    OxGeDoubleArray parameters;
    OxGeInterval interval;
    curve->getInterval(interval);
    curve->getSamplePoints(interval.lowerBound(), interval.upperBound(), 1e-9, samples, parameters);
    ASSERT_GT(samples.logicalLength(), 1000);
    for (int i = 0; i < samples.logicalLength(); i += 101) {
        EXPECT_LT(DistanceToPath({samples[i].x, samples[i].y}, path), 4.1e-6);
    }
}

TEST_F(Faithful, ASplineIsDrawnCloselyInTheColourOfItsOwnLayer) {
    database.AddLayer(L"ROADS", Rgb(9, 8, 7));
    drawing::FitData fit;
    fit.points = {{0, 0, 0}, {1, 2, 0}, {3, 2, 0}, {4, 0, 0}};
    block.Add<drawing::Spline>(
        drawing::EntityProperties{L"ROADS", ByLayer(), OxDb::kLnWtByLayer, L"Continuous"}, fit);
    const Symbol symbol = FaithfulSymbol();
    EXPECT_EQ(PathAt(symbol, 0).GetLineColor(), L"%COLORBYLAYERROADS%");
    EXPECT_EQ(PathAt(symbol, 0).GetLineWeight(), L"%LWBYLAYERROADS%");
    const auto curve = drawing::BuildCurve(fit);
    OxGePoint2dArray samples;
    OxGeDoubleArray parameters;
    OxGeInterval interval;
    curve->getInterval(interval);
    curve->getSamplePoints(interval.lowerBound(), interval.upperBound(), 1e-9, samples, parameters);
    const auto path = PointsDrawn(PathAt(symbol, 0).GetGeometry());
    for (int i = 0; i < samples.logicalLength(); i += 101) {
        EXPECT_LT(DistanceToPath({samples[i].x, samples[i].y}, path), 4.1e-6);
    }
}

TEST_F(Faithful, LineWeightsAreMillimetres) {
    const struct {
        int weight;
        const wchar_t* text;
    } rows[] = {{25, L"0.25"}, {200, L"2"}, {211, L"2.11"}, {0, L"0"}, {OxDb::kLnWtByLwDefault, L"0.25"}};
    for (const auto& row : rows) {
        block.Add<drawing::Point>(Drawn(L"0", Rgb(0, 0, 0), row.weight), OxGePoint3d{});
    }
    const Symbol symbol = FaithfulSymbol();
    for (std::int32_t i = 0; i < 5; ++i) {
        EXPECT_EQ(PathAt(symbol, i).GetLineWeight(), rows[i].text);
    }
}

TEST_F(Faithful, TextsHaveTheirExactAngleAndTheirPlace) {
    const struct {
        int horizontal;
        int vertical;
        bool hasPoint;
        const wchar_t* across;
        const wchar_t* up;
        const wchar_t* x;
    } rows[] = {
        {0, 0, true, L"'Left'", L"'Baseline'", L"1"},
        {1, 0, true, L"", L"'Baseline'", L"7"},
        {2, 0, true, L"'Right'", L"'Baseline'", L"7"},
        {0, 1, true, L"'Left'", L"'Bottom'", L"7"},
        {2, 2, true, L"'Right'", L"", L"7"},
        {0, 3, true, L"'Left'", L"'Top'", L"7"},
        {4, 0, true, L"", L"", L"7"},
        {3, 0, true, L"'Left'", L"'Baseline'", L"1"},
        {5, 0, true, L"'Left'", L"'Baseline'", L"1"},
        // Without its point a text stands where it begins.
        {2, 3, false, L"'Left'", L"'Baseline'", L"1"},
    };
    for (const auto& row : rows) {
        drawing::TextData data = TextAtOrigin(L"x");
        data.rotation = 0.5;
        data.horizontalMode = static_cast<OxDb::TextHorzMode>(row.horizontal);
        data.verticalMode = static_cast<OxDb::TextVertMode>(row.vertical);
        if (row.hasPoint) {
            data.alignmentPoint = OxGePoint3d{7, 8, 0};
        }
        block.Add<drawing::Text>(Solid(), data);
    }
    const Symbol symbol = FaithfulSymbol();
    for (std::int32_t i = 0; i < 10; ++i) {
        const TylModel::Text& text = TextAt(symbol, i);
        EXPECT_EQ(text.GetAngle(), L"28.64788975654116") << i;
        EXPECT_EQ(text.GetHorizontalAlignment(), rows[i].across) << i;
        EXPECT_EQ(text.GetVerticalAlignment(), rows[i].up) << i;
        EXPECT_EQ(text.GetPositionX(), rows[i].x) << i;
    }
}

TEST_F(Faithful, ControlCodesOfTextsAreCarriedOut) {
    block.Add<drawing::Text>(Solid(), TextAtOrigin(L"45%%d \\U+00C4"));
    block.Add<drawing::Text>(Solid(), TextAtOrigin(L"%%uRoad%%u"));
    block.Add<drawing::Text>(Solid(), TextAtOrigin(L"it's"));
    block.Add<drawing::AttributeDefinition>(Solid(), TextAtOrigin(L"5%%p1"), L"TAG", L"Tag");
    const Symbol symbol = FaithfulSymbol();
    EXPECT_EQ(TextAt(symbol, 0).GetContent(), L"'45\u00b0 \u00c4'");
    EXPECT_EQ(TextAt(symbol, 2).GetContent(), L"'it''s'");
    EXPECT_EQ(ParameterAt(symbol, 0).GetDefaultValue(), L"'5\u00b11'");
    EXPECT_EQ(TextAt(symbol, 0).GetUnderlined(), L"");
    EXPECT_EQ(TextAt(symbol, 1).GetContent(), L"'Road'");
    EXPECT_EQ(TextAt(symbol, 1).GetUnderlined(), L"true");
}

TEST_F(Faithful, ParagraphTextsAreLinesWithoutCodes) {
    const struct {
        const wchar_t* contents;
        Texts lines;
    } rows[] = {
        {L"One\\PTwo", {L"'One'", L"'Two'"}},
        {L"{\\fArial|b1;\\H2.5x;Bold} \\C1;red", {L"'Bold red'"}},
        {L"a\\~b \\\\ \\{c\\}", {L"'a\u00a0b \\ {c}'"}},
        {L"1\\S1/2; \\S+0.1^-0.2; \\S3#4;", {L"'11/2 +0.1/-0.2 3/4'"}},
        {L"90%%d\\U+2205", {L"'90\u00b0\u2205'"}},
        {L"\\pxqc;\\A1;\\Lx\\l\\Oy\\o\\Kz\\k", {L"'xyz'"}},
        {L"a^Ib^Jc^ d", {L"'a\tb'", L"'c^d'"}},
        {L"first\\P\\Pthird", {L"'first'", L"'third'"}},
        {L"\\Hno end", {L"'no end'"}},
        {L"end\\", {L"'end\\'"}},
    };
    for (const auto& row : rows) {
        drawing::Database other;
        other.SetInsunits(OxDb::kUnitsMillimeters);
        drawing::ParagraphTextData data;
        data.contents = row.contents;
        data.style = L"";
        other.AddBlock(L"B")->Add<drawing::ParagraphText>(Solid(), data);
        const block::FaithfulInUse faithful;
        const Symbol symbol(
            static_cast<TylModel::SimpleSymbolDefinition*>(BlockConverter(&other).Convert(L"B")));
        Texts lines;
        for (std::int32_t i = 0; i < symbol->GetGraphics().GetCount(); ++i) {
            lines.push_back(TextAt(symbol, i).GetContent());
        }
        EXPECT_EQ(lines, row.lines) << testing::PrintToString(std::wstring(row.contents));
    }
}

// Two lines of height 3: base lines 5 apart, 8 from the top of the first to the base line of the second.
TEST_F(Faithful, ParagraphTextsStandAtTheirAttachment) {
    const struct {
        int attachment;
        const wchar_t* across;
        const wchar_t* firstY;
        const wchar_t* secondY;
    } rows[] = {{1, L"'Left'", L"-3", L"-8"}, {2, L"", L"-3", L"-8"},     {3, L"'Right'", L"-3", L"-8"},
                {4, L"'Left'", L"1", L"-4"},  {5, L"", L"1", L"-4"},      {6, L"'Right'", L"1", L"-4"},
                {7, L"'Left'", L"5", L"0"},   {9, L"'Right'", L"5", L"0"}};
    for (const auto& row : rows) {
        drawing::ParagraphTextData data;
        data.contents = L"a\\Pb";
        data.textHeight = 3;
        data.style = L"";
        data.attachment = row.attachment;
        block.Add<drawing::ParagraphText>(Solid(), data);
    }
    const Symbol symbol = FaithfulSymbol();
    for (std::int32_t i = 0; i < 8; ++i) {
        const TylModel::Text& first = TextAt(symbol, 2 * i);
        EXPECT_EQ(first.GetHorizontalAlignment(), rows[i].across) << i;
        EXPECT_EQ(first.GetVerticalAlignment(), L"'Baseline'") << i;
        EXPECT_EQ(first.GetPositionX(), L"0") << i;
        EXPECT_EQ(first.GetPositionY(), rows[i].firstY) << i;
        EXPECT_EQ(TextAt(symbol, 2 * i + 1).GetPositionY(), rows[i].secondY) << i;
    }
}

TEST_F(Faithful, APatternThatBeginsWithAGapReachesTheEnd) {
    database.AddLinetype(L"GAP", Dashes({-1, 1}));
    block.Add<drawing::Line>(Dashed(L"GAP"), OxGePoint3d{0, 0, 0}, OxGePoint3d{5, 0, 0});
    EXPECT_EQ(FaithfulPath(), L"M 0,0 L 0.5,0 M 1.5,0 L 2.5,0 M 3.5,0 L 4.5,0 L 5,0");
}

TEST_F(Faithful, DashesGoOnBehindAnArcWhereTheyWereCut) {
    database.AddLinetype(L"DASHED", Dashes({2, -1}));
    // A half circle of radius 1 and a line of 10: 13.14 long, the lead-in is (2 + 1.14) / 2 = 1.57.
    block.Add<drawing::Polyline>(Dashed(L"DASHED"),
                                 std::vector<drawing::BulgeVertex>{{{0, 0}, 1.0}, {{2, 0}}, {{12, 0}}}, false,
                                 true);
    const auto path = PointsDrawn(FaithfulPath());
    double drawn = 0;
    for (const auto& subpath : path) {
        for (std::size_t i = 1; i < subpath.size(); ++i) {
            drawn += Distance(subpath[i - 1], subpath[i]);
        }
    }
    // Four repetitions have four gaps of 1.
    EXPECT_NEAR(drawn, pi + 10 - 4, 1e-5);
    EXPECT_NEAR(path.back().back().x, 12, 1e-9);
}

TEST_F(Faithful, APolylineShorterThanItsPatternIsSolid) {
    database.AddLinetype(L"LONG", Dashes({20, -1}));
    block.Add<drawing::Polyline>(
        Dashed(L"LONG"), std::vector<drawing::BulgeVertex>{{{0, 0}}, {{2, 0}}, {{2, 3}}}, false, true);
    EXPECT_EQ(FaithfulPath(), L"M 0,0 L 2,0 L 2,3");
}

TEST_F(Faithful, UnitsHaveTheirExactFactors) {
    const struct {
        int unit;
        const wchar_t* millimetres;
    } rows[] = {{2, L"304.8"}, {8, L"2.54e-05"}, {21, L"304.8006096012192"}, {99, L"1"}, {1, L"25.4"}};
    for (const auto& row : rows) {
        drawing::Database other;
        other.SetInsunits(static_cast<OxDb::UnitsValue>(row.unit));
        other.AddBlock(L"B")->Add<drawing::Point>(Solid(), OxGePoint3d{1, 0, 0});
        const block::FaithfulInUse faithful;
        const Symbol symbol(
            static_cast<TylModel::SimpleSymbolDefinition*>(BlockConverter(&other).Convert(L"B")));
        EXPECT_EQ(PathAt(symbol, 0).GetGeometry(),
                  std::wstring(L"M ") + row.millimetres + L",0 L " + row.millimetres + L",0");
    }
}

TEST_F(Faithful, NothingOfItIsLeftBehind) {
    block.Add<drawing::Point>(Solid(), OxGePoint3d{0.105, 0, 0});
    FaithfulPath();
    EXPECT_FALSE(block::IsFaithful());
    EXPECT_EQ(Geometry(), L"M 0.1,0.0 L 0.1,0.0");
}

} // namespace
} // namespace blocktest
