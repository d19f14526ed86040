#include "styles/QgisExpression.h"

#include "styles/Limits.h"
#include "styles/Numbers.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace styles {
namespace {

using preview::Box;
using preview::Point;

// What is repeated is anchored at the polygon's own lower left corner: numbers stay small wherever on the map
// it lies, and all views agree. Expressions are kept shallow, for the program's time to parse them doubles
// with nearly each level of brackets; "//" divides and rounds down; "--" would begin a comment.
class TilingExpression {
public:
    TilingExpression(const Tiling& tiling, HatchUnit unit)
        : tiling_(tiling), anchorY_(unit == HatchUnit::kMap ? "y_min($geometry)" : "y_max($geometry)"),
          seen_("if(is_valid($geometry),$geometry,buffer($geometry,0))") {
        if (unit == HatchUnit::kMap) {
            // Only what the map shows.
            seen_ = "intersection(" + seen_ +
                    ",coalesce(transform(@map_extent,@map_crs,@layer_crs),bounds($geometry)))";
        } else {
            Mirror();
        }
    }

    void AppendLines(std::vector<std::string>& groups) const {
        for (const double y : tiling_.rows) {
            groups.push_back(InTurnedPolygon(Row(y)));
        }
        for (const double x : tiling_.columns) {
            groups.push_back(InTurnedPolygon(Column(x)));
        }
        if (!tiling_.strokes.empty()) {
            std::string tile;
            Box box;
            for (const Stroke& stroke : tiling_.strokes) {
                tile += (tile.empty() ? "(" : ",(") + Pair(stroke.from) + "," + Pair(stroke.to) + ")";
                box.Include(stroke.from);
                box.Include(stroke.to);
            }
            groups.push_back(InTurnedPolygon(Tiles("MULTILINESTRING(" + tile + ")", box)));
        }
    }

    void AppendDots(std::vector<std::string>& groups) const {
        if (tiling_.dots.empty()) {
            return;
        }
        std::string tile;
        Box box;
        for (const Point dot : tiling_.dots) {
            tile += (tile.empty() ? "(" : ",(") + Pair(dot) + ")";
            box.Include(dot);
        }
        groups.push_back(InTurnedPolygon(Tiles("MULTIPOINT(" + tile + ")", box)));
    }

private:
    // For an axis that points down.
    void Mirror() {
        tiling_.angle = 0.0 - tiling_.angle;
        for (double& y : tiling_.rows) {
            y = 0.0 - y;
        }
        for (Stroke& stroke : tiling_.strokes) {
            stroke.from.y = 0.0 - stroke.from.y;
            stroke.to.y = 0.0 - stroke.to.y;
        }
        for (Point& dot : tiling_.dots) {
            dot.y = 0.0 - dot.y;
        }
    }

    static std::string Pair(Point point) { return PlainNumber(point.x) + " " + PlainNumber(point.y); }

    // The numbers of the repetitions between two ends of the polygon that reach into it.
    std::string Series(char axis, double low, double high, double step) const {
        const std::string anchor = axis == 'x' ? "x_min($geometry)" : anchorY_;
        const std::string width = ")//" + PlainNumber(step);
        return std::string("generate_series((") + axis + "_min(@g)-" + anchor + "+" +
               PlainNumber(0.0 - high) + width + ",(" + axis + "_max(@g)-" + anchor + "+" +
               PlainNumber(0.0 - low) + width + "+1)";
    }

    std::string Row(double y) const {
        const std::string at = anchorY_ + "+@element*" + PlainNumber(tiling_.stepY) + "+" + PlainNumber(y);
        return "collect_geometries(array_foreach(" + Series('y', y, y, tiling_.stepY) +
               ",make_line(make_point(x_min(@g)," + at + "),make_point(x_max(@g)," + at + "))))";
    }

    std::string Column(double x) const {
        const std::string at =
            "x_min($geometry)+@element*" + PlainNumber(tiling_.stepX) + "+" + PlainNumber(x);
        return "collect_geometries(array_foreach(" + Series('x', x, x, tiling_.stepX) +
               ",make_line(make_point(" + at + ",y_min(@g)),make_point(" + at + ",y_max(@g)))))";
    }

    std::string Tiles(const std::string& tile, const Box& box) const {
        return "collect_geometries(with_variable('r',collect_geometries(array_foreach(" +
               Series('x', box.low.x, box.high.x, tiling_.stepX) + ",translate(geom_from_wkt('" + tile +
               "'),x_min($geometry)+@element*" + PlainNumber(tiling_.stepX) + "," + anchorY_ +
               "))),array_foreach(" + Series('y', box.low.y, box.high.y, tiling_.stepY) +
               ",translate(@r,0,@element*" + PlainNumber(tiling_.stepY) + "))))";
    }

    // Each group is cut by itself: cutting lines that cross each other takes longer.
    std::string InTurnedPolygon(const std::string& lines) const {
        const double angle = std::fmod(std::fmod(tiling_.angle, 360.0) + 360.0, 360.0);
        const std::string inside = ",intersection(" + lines + ",@g))";
        if (angle == 0.0) {
            return "with_variable('g'," + seen_ + inside;
        }
        const std::string anchor = ",make_point(x_min($geometry)," + anchorY_ + "))";
        return "rotate(with_variable('g',rotate(" + seen_ + "," + PlainNumber(angle) + anchor + inside + "," +
               PlainNumber(360.0 - angle) + anchor;
    }

    Tiling tiling_;
    std::string anchorY_;
    std::string seen_;
};

using Groups = std::vector<std::string>;

std::string Collected(Groups::const_iterator first, Groups::const_iterator last) {
    if (last - first == 1) {
        return *first;
    }
    std::string text = "collect_geometries(";
    for (; first != last; ++first) {
        text += *first + ",";
    }
    text.back() = ')';
    return text;
}

Groups InExpressions(const Groups& groups) {
    Groups expressions;
    for (auto first = groups.begin(); first != groups.end();) {
        const auto last = first + std::min<std::ptrdiff_t>(kMostGroups, groups.end() - first);
        expressions.push_back(Collected(first, last));
        first = last;
    }
    return expressions;
}

} // namespace

std::vector<std::string> LinesExpressions(const std::vector<Tiling>& tilings, HatchUnit unit) {
    std::vector<std::string> groups;
    for (const Tiling& tiling : tilings) {
        TilingExpression(tiling, unit).AppendLines(groups);
    }
    return InExpressions(groups);
}

std::vector<std::string> DotsExpressions(const std::vector<Tiling>& tilings, HatchUnit unit) {
    std::vector<std::string> groups;
    for (const Tiling& tiling : tilings) {
        TilingExpression(tiling, unit).AppendDots(groups);
    }
    return InExpressions(groups);
}

std::string EnabledExpression(double density, HatchUnit unit) {
    const std::string limit = PlainNumber(kMostStrokes / density);
    if (unit == HatchUnit::kMap) {
        return "area(intersection(bounds($geometry),coalesce(transform(@map_extent,@map_crs,@layer_crs),"
               "bounds($geometry))))<" +
               limit;
    }
    return "area(bounds($geometry))<" + limit;
}

std::string QgisLiteral(std::string_view utf8) {
    std::string text = "'";
    for (const char c : utf8) {
        if (c == '\'' || c == '\\') {
            text += c;
        }
        text += c;
    }
    return text + "'";
}

} // namespace styles
