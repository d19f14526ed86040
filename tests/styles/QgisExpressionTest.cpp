#include "styles/QgisExpression.h"

#include "styles/Limits.h"

#include <gtest/gtest.h>

namespace {

using namespace styles;

const std::string kWhole =
    "if(is_valid($geometry),$geometry,union(buffer($geometry,0),difference(bounds($geometry),"
    "buffer(collect_geometries(bounds($geometry),$geometry),0))))";
// What of the polygon the map shows, for hatches in map units.
const std::string kSeen =
    "intersection(" + kWhole + ",coalesce(transform(@map_extent,@map_crs,@layer_crs),bounds($geometry)))";

Tiling TilingOf(double angle, double stepX, double stepY) {
    Tiling tiling;
    tiling.angle = angle;
    tiling.stepX = stepX;
    tiling.stepY = stepY;
    return tiling;
}

// What one expression says; nothing where there is none.
std::string Only(const std::vector<std::string>& expressions) {
    EXPECT_LE(expressions.size(), 1U);
    return expressions.empty() ? "" : expressions.front();
}

std::string OnlyLines(const std::vector<Tiling>& tilings, HatchUnit unit) {
    return Only(LinesExpressions(tilings, unit));
}

std::string OnlyDots(const std::vector<Tiling>& tilings, HatchUnit unit) {
    return Only(DotsExpressions(tilings, unit));
}

TEST(QgisExpression, RowsAreLinesFromOneSideOfThePolygonToTheOther) {
    Tiling tiling = TilingOf(0, 10, 5);
    tiling.rows = {1.5};
    EXPECT_EQ(
        OnlyLines({tiling}, HatchUnit::kMap),
        "with_variable('g'," + kSeen +
            ",intersection(collect_geometries(array_foreach("
            "generate_series((y_min(@g)-y_min($geometry)+-1.5)//5,(y_max(@g)-y_min($geometry)+-1.499995)//5),"
            "make_line(make_point(x_min(@g),y_min($geometry)+@element*5+1.5),"
            "make_point(x_max(@g),y_min($geometry)+@element*5+1.5)))),@g))");
}

TEST(QgisExpression, ColumnsAreLinesFromItsFootToItsHead) {
    Tiling tiling = TilingOf(0, 10, 5);
    tiling.columns = {2};
    EXPECT_EQ(
        OnlyLines({tiling}, HatchUnit::kMap),
        "with_variable('g'," + kSeen +
            ",intersection(collect_geometries(array_foreach("
            "generate_series((x_min(@g)-x_min($geometry)+-2)//10,(x_max(@g)-x_min($geometry)+-1.99999)//10),"
            "make_line(make_point(x_min($geometry)+@element*10+2,y_min(@g)),"
            "make_point(x_min($geometry)+@element*10+2,y_max(@g))))),@g))");
}

TEST(QgisExpression, StrokesAreTilesOfTheTurnedPolygonThatAreTurnedBack) {
    Tiling tiling = TilingOf(30, 4, 3);
    tiling.strokes = {{{0, 0}, {1, 2}}, {{2, -1}, {3, 0}}};
    const std::string anchor = ",make_point(x_min($geometry),y_min($geometry)))";
    EXPECT_EQ(
        OnlyLines({tiling}, HatchUnit::kMap),
        "rotate(with_variable('g',rotate(" + kSeen + ",30" + anchor +
            ",intersection(collect_geometries(with_variable('r',collect_geometries(array_foreach("
            "generate_series((x_min(@g)-x_min($geometry)+-3)//4,(x_max(@g)-x_min($geometry)+0.000004)//4),"
            "translate(geom_from_wkt('MULTILINESTRING((0 0,1 2),(2 -1,3 0))'),"
            "x_min($geometry)+@element*4,y_min($geometry)))),array_foreach("
            "generate_series((y_min(@g)-y_min($geometry)+-2)//3,(y_max(@g)-y_min($geometry)+1.000003)//3),"
            "translate(@r,0,@element*3)))),@g)),330" +
            anchor);
}

// What repeats nine strokes one by one that are 2 units apart across, of which number e begins at 10 e and
// ends 4 beyond: the first one that reaches into a polygon from y on begins above y - 4.
std::string NineStrokes(const std::string& tile, bool isTall) {
    const std::string piece =
        "translate(geometry_n(geom_from_wkt('MULTILINESTRING(" + tile + ")'),@element-@element//9*9+1),";
    const std::string x = "generate_series((x_min(@g)-x_min($geometry)+";
    const std::string y = "generate_series((y_min(@g)-y_min($geometry)+";
    const std::string tall =
        y + "-4)//10,(y_max(@g)-y_min($geometry)+0.00001)//10)," + piece +
        "0,y_min($geometry)+@element//9*90))),array_foreach(" + x +
        "-1)//2,(x_max(@g)-x_min($geometry)+0.000002)//2),translate(@r,x_min($geometry)+@element*2,0))))";
    const std::string wide =
        x + "-4)//10,(x_max(@g)-x_min($geometry)+0.00001)//10)," + piece +
        "x_min($geometry)+@element//9*90,0))),array_foreach(" + y +
        "-1)//2,(y_max(@g)-y_min($geometry)+0.000002)//2),translate(@r,0,y_min($geometry)+@element*2))))";
    return "with_variable('g'," + kSeen +
           ",intersection(collect_geometries(with_variable('r',collect_geometries(array_foreach(" +
           (isTall ? tall : wide) + ",@g))";
}

TEST(QgisExpression, StrokesOfALargeTileAreRepeatedOneByOneAlongItsLongerAxis) {
    static_assert(kMostInTile == 8);
    Tiling tall = TilingOf(0, 2, 90);
    Tiling wide = TilingOf(0, 90, 2);
    // In the order of neither axis.
    for (const double foot : {40, 50, 60, 70, 80, 0, 10, 20, 30}) {
        tall.strokes.push_back({{0, foot}, {1, foot + 4}});
        wide.strokes.push_back({{foot, 0}, {foot + 4, 1}});
    }
    EXPECT_EQ(OnlyLines({tall}, HatchUnit::kMap),
              NineStrokes("(0 0,1 4),(0 10,1 14),(0 20,1 24),(0 30,1 34),(0 40,1 44),(0 50,1 54),(0 60,1 64),"
                          "(0 70,1 74),(0 80,1 84)",
                          true));
    EXPECT_EQ(OnlyLines({wide}, HatchUnit::kMap),
              NineStrokes("(0 0,4 1),(10 0,14 1),(20 0,24 1),(30 0,34 1),(40 0,44 1),(50 0,54 1),(60 0,64 1),"
                          "(70 0,74 1),(80 0,84 1)",
                          false));
}

TEST(QgisExpression, OnThePageYPointsDown) {
    Tiling tiling = TilingOf(30, 4, 3);
    tiling.strokes = {{{0, 0}, {1, 2}}};
    const std::string anchor = ",make_point(x_min($geometry),y_max($geometry)))";
    EXPECT_EQ(
        OnlyLines({tiling}, HatchUnit::kMillimetre),
        "rotate(with_variable('g',rotate(" + kWhole + ",330" + anchor +
            ",intersection(collect_geometries(with_variable('r',collect_geometries(array_foreach("
            "generate_series((x_min(@g)-x_min($geometry)+-1)//4,(x_max(@g)-x_min($geometry)+0.000004)//4),"
            "translate(geom_from_wkt('MULTILINESTRING((0 0,1 -2))'),"
            "x_min($geometry)+@element*4,y_max($geometry)))),array_foreach("
            "generate_series((y_min(@g)-y_max($geometry)+0)//3,(y_max(@g)-y_max($geometry)+2.000003)//3),"
            "translate(@r,0,@element*3)))),@g)),30" +
            anchor);
}

TEST(QgisExpression, DotsAreAnExpressionOfTheirOwn) {
    Tiling tiling = TilingOf(0, 4, 3);
    tiling.dots = {{1, 2}};
    EXPECT_EQ(OnlyLines({tiling}, HatchUnit::kMap), "");
    const std::string dots = OnlyDots({tiling}, HatchUnit::kMap);
    EXPECT_NE(dots.find("geom_from_wkt('MULTIPOINT((1 2))')"), std::string::npos);
    EXPECT_EQ(OnlyDots({tiling, tiling}, HatchUnit::kMap), "collect_geometries(" + dots + "," + dots + ")");
}

// "--" begins a comment.
TEST(QgisExpression, ManyGroupsAreSeveralExpressions) {
    std::vector<Tiling> tilings;
    std::vector<std::string> alone;
    static_assert(kMostGroups == 2);
    for (std::size_t i = 0; i < 2 * kMostGroups + 1; ++i) {
        Tiling tiling = TilingOf(0, 10, 5);
        tiling.rows = {static_cast<double>(i)};
        tiling.dots = {{static_cast<double>(i), 1}};
        tilings.push_back(tiling);
        alone.push_back(OnlyLines({tiling}, HatchUnit::kMap));
    }
    const std::vector<std::string> lines = LinesExpressions(tilings, HatchUnit::kMap);
    ASSERT_EQ(lines.size(), 3U);
    EXPECT_EQ(lines[0], "collect_geometries(" + alone[0] + "," + alone[1] + ")");
    EXPECT_EQ(lines[1], "collect_geometries(" + alone[2] + "," + alone[3] + ")");
    EXPECT_EQ(lines[2], alone[4]);
    EXPECT_EQ(DotsExpressions(tilings, HatchUnit::kMap).size(), 3U);
    tilings.resize(kMostGroups);
    EXPECT_EQ(LinesExpressions(tilings, HatchUnit::kMap).size(), 1U);
}

TEST(QgisExpression, NoNumberMakesAComment) {
    Tiling tiling = TilingOf(-400, 4, 3);
    tiling.rows = {-1, 1};
    tiling.columns = {-1, 1};
    tiling.strokes = {{{-3, -4}, {3, 4}}};
    tiling.dots = {{-1, -1}};
    for (const HatchUnit unit : {HatchUnit::kMap, HatchUnit::kMillimetre}) {
        for (const std::string& lines : LinesExpressions({tiling}, unit)) {
            EXPECT_EQ(lines.find("--"), std::string::npos);
        }
        EXPECT_EQ(OnlyDots({tiling}, unit).find("--"), std::string::npos);
    }
}

// A hundred thousand strokes of four on a square unit.
TEST(QgisExpression, ALimitOfStrokesIsALimitOfArea) {
    EXPECT_EQ(EnabledExpression(4, HatchUnit::kMap),
              "area(intersection(bounds($geometry),coalesce(transform(@map_extent,@map_crs,@layer_crs),"
              "bounds($geometry))))<25000");
    EXPECT_EQ(EnabledExpression(4, HatchUnit::kMillimetre), "area(bounds($geometry))<25000");
}

TEST(QgisExpression, QuotesAndBackslashesOfLiteralsAreDoubled) {
    EXPECT_EQ(QgisLiteral("O'Neill \\ Sons"), "'O''Neill \\\\ Sons'");
}

} // namespace
