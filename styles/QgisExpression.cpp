#include "styles/QgisExpression.h"

#include "styles/Limits.h"
#include "styles/Numbers.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <utility>

namespace styles {
namespace {

using preview::Box;
using preview::Point;

// A buffer of nothing keeps the parts of a polygon that crosses itself that turn one way; in a box beside it
// the others make holes.
constexpr const char* kValid =
    "if(is_valid($geometry),$geometry,union(buffer($geometry,0),difference(bounds($geometry),"
    "buffer(collect_geometries(bounds($geometry),$geometry),0))))";

// What is repeated is anchored at the polygon's own lower left corner: numbers stay small wherever on the map
// it lies, and all views agree. Expressions are kept shallow, for the program's time to parse them doubles
// with nearly each level of brackets; "//" divides and rounds down; "--" would begin a comment.
class TilingExpression {
public:
    TilingExpression(const Tiling& tiling, HatchUnit unit)
        : tiling_(tiling), anchorY_(unit == HatchUnit::kMap ? "y_min($geometry)" : "y_max($geometry)"),
          seen_(kValid) {
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
            std::vector<Piece> pieces;
            for (const Stroke& stroke : tiling_.strokes) {
                Piece& piece = pieces.emplace_back();
                piece.text = "(" + Pair(stroke.from) + "," + Pair(stroke.to) + ")";
                piece.box.Include(stroke.from);
                piece.box.Include(stroke.to);
            }
            groups.push_back(InTurnedPolygon(Repeated("MULTILINESTRING", pieces)));
        }
    }

    void AppendDots(std::vector<std::string>& groups) const {
        if (tiling_.dots.empty()) {
            return;
        }
        std::vector<Piece> pieces;
        for (const Point dot : tiling_.dots) {
            Piece& piece = pieces.emplace_back();
            piece.text = "(" + Pair(dot) + ")";
            piece.box.Include(dot);
        }
        groups.push_back(InTurnedPolygon(Repeated("MULTIPOINT", pieces)));
    }

private:
    // A stroke or a dot, as a part of a geometry's text.
    struct Piece {
        std::string text;
        Box box;
    };

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
        // What touches the end is not lost to rounding. There is always one: a group without a geometry would
        // take the others of its expression with it.
        const double slack = step * 1e-6;
        return std::string("generate_series((") + axis + "_min(@g)-" + anchor + "+" +
               PlainNumber(0.0 - high) + width + ",(" + axis + "_max(@g)-" + anchor + "+" +
               PlainNumber(slack - low) + width + ")";
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

    std::string Repeated(const std::string& type, std::vector<Piece> pieces) const {
        return pieces.size() > kMostInTile ? OneByOne(type, std::move(pieces)) : Tiles(type, pieces);
    }

    static std::string TileOf(const std::string& type, const std::vector<Piece>& pieces) {
        std::string text;
        for (const Piece& piece : pieces) {
            text += (text.empty() ? "" : ",") + piece.text;
        }
        return "geom_from_wkt('" + type + "(" + text + ")')";
    }

    static Box BoxOf(const std::vector<Piece>& pieces) {
        Box box;
        for (const Piece& piece : pieces) {
            box.Include(piece.box.low);
            box.Include(piece.box.high);
        }
        return box;
    }

    std::string Tiles(const std::string& type, const std::vector<Piece>& pieces) const {
        const Box box = BoxOf(pieces);
        return Grid(Series('x', box.low.x, box.high.x, tiling_.stepX),
                    "translate(" + TileOf(type, pieces) + ",x_min($geometry)+@element*" +
                        PlainNumber(tiling_.stepX) + "," + anchorY_ + ")",
                    Series('y', box.low.y, box.high.y, tiling_.stepY),
                    "translate(@r,0,@element*" + PlainNumber(tiling_.stepY) + ")");
    }

    // The pieces of a tile in the order of its longer axis, counted through all tiles: a polygon smaller than
    // a tile takes only those that reach into it. Where pieces are spread evenly, their numbers tell where
    // they are.
    std::string OneByOne(const std::string& type, std::vector<Piece> pieces) const {
        const bool isTall = tiling_.stepY >= tiling_.stepX;
        double Point::*const along = isTall ? &Point::y : &Point::x;
        std::stable_sort(pieces.begin(), pieces.end(), [along](const Piece& a, const Piece& b) {
            return a.box.low.*along < b.box.low.*along;
        });
        const double step = isTall ? tiling_.stepY : tiling_.stepX;
        const double width = step / static_cast<double>(pieces.size());
        double low = std::numeric_limits<double>::infinity();
        double high = -low;
        for (std::size_t i = 0; i < pieces.size(); ++i) {
            low = std::min(low, pieces[i].box.low.*along - width * static_cast<double>(i));
            high = std::max(high, pieces[i].box.high.*along - width * static_cast<double>(i));
        }
        const Box box = BoxOf(pieces);
        const std::string count = std::to_string(pieces.size());
        const std::string piece =
            "geometry_n(" + TileOf(type, pieces) + ",@element-@element//" + count + "*" + count + "+1)";
        const std::string tile = "@element//" + count + "*" + PlainNumber(step);
        if (isTall) {
            return Grid(Series('y', low, high, width),
                        "translate(" + piece + ",0," + anchorY_ + "+" + tile + ")",
                        Series('x', box.low.x, box.high.x, tiling_.stepX),
                        "translate(@r,x_min($geometry)+@element*" + PlainNumber(tiling_.stepX) + ",0)");
        }
        return Grid(Series('x', low, high, width), "translate(" + piece + ",x_min($geometry)+" + tile + ",0)",
                    Series('y', box.low.y, box.high.y, tiling_.stepY),
                    "translate(@r,0," + anchorY_ + "+@element*" + PlainNumber(tiling_.stepY) + ")");
    }

    // What is repeated along one axis, @r, is repeated along the other.
    static std::string Grid(const std::string& series, const std::string& repeated, const std::string& others,
                            const std::string& repeatedRow) {
        return "collect_geometries(with_variable('r',collect_geometries(array_foreach(" + series + "," +
               repeated + ")),array_foreach(" + others + "," + repeatedRow + ")))";
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
