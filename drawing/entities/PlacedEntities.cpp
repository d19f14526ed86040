// Copies of entities, put through a map of the plane.
#include "drawing/entities/PlacedEntities.h"

#include "drawing/entities/EntityVisit.h"
#include "drawing/geometry/NurbCurveData.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <numbers>
#include <utility>
#include <variant>

namespace drawing {
namespace {

constexpr double kTurn = 2.0 * std::numbers::pi;

/// An ellipse through centre + u cos t + v sin t, by its axes: the point at t is at the parameter t - shift,
/// counted the other way round where it is reversed.
struct Axes {
    OxGeVector2d major;
    double ratio = 1.0;
    double shift = 0.0;
    bool isReversed = false;
};

Axes AxesOf(const OxGeVector2d& u, const OxGeVector2d& v) {
    // The turn by which the two conjugate radii become the axes.
    double shift =
        0.5 * std::atan2(2.0 * (u.x * v.x + u.y * v.y), u.x * u.x + u.y * u.y - v.x * v.x - v.y * v.y);
    const auto at = [&](double t) {
        return OxGeVector2d{u.x * std::cos(t) + v.x * std::sin(t), u.y * std::cos(t) + v.y * std::sin(t)};
    };
    Axes axes;
    axes.major = at(shift);
    const OxGeVector2d minor = at(shift + std::numbers::pi / 2.0);
    const double length = std::hypot(axes.major.x, axes.major.y);
    axes.ratio = length > 0.0 ? std::hypot(minor.x, minor.y) / length : 1.0;
    axes.shift = shift;
    axes.isReversed = axes.major.x * minor.y - axes.major.y * minor.x < 0.0;
    return axes;
}

// Circular arcs along what the arcs of a polyline become where circles do not stay circles: pieces of
// ellipses.
class ArcsAlongEllipses {
public:
    explicit ArcsAlongEllipses(const PlaneMap& map) : map_(map) {}

    std::vector<BulgeVertex> Of(const std::vector<BulgeVertex>& vertices, bool closed) {
        for (std::size_t i = 0; i < vertices.size(); ++i) {
            const BulgeVertex& from = vertices[i];
            const bool isLast = i + 1 == vertices.size() && !closed;
            if (from.bulge == 0.0 || isLast) {
                placed_.push_back({map_.Of(from.point), 0.0});
            } else {
                AddSegment(from, vertices[(i + 1) % vertices.size()].point);
            }
        }
        return std::move(placed_);
    }

private:
    static constexpr double kQuarter = kTurn / 4.0;
    static constexpr double kTolerance = 5e-7; // of the size
    static constexpr int kMostHalvings = 10;

    void AddSegment(const BulgeVertex& from, const OxGePoint2d& to) {
        const double sweep = 4.0 * std::atan(from.bulge);
        const double x = to.x - from.point.x;
        const double y = to.y - from.point.y;
        const double toCenter = (1.0 - from.bulge * from.bulge) / (4.0 * from.bulge);
        center_ = {(from.point.x + to.x) * 0.5 - y * toCenter, (from.point.y + to.y) * 0.5 + x * toCenter};
        radius_ = {from.point.x - center_.x, from.point.y - center_.y};
        tolerance_ = kTolerance * std::hypot(radius_.x, radius_.y) * std::min(std::fabs(sweep), 1.0) *
                     std::max(std::hypot(map_.a, map_.c), std::hypot(map_.b, map_.d));
        const int count = static_cast<int>(std::ceil(std::fabs(sweep) / kQuarter));
        for (int piece = 0; piece < count; ++piece) {
            AddPiece(sweep * piece / count, sweep * (piece + 1) / count, kMostHalvings);
        }
    }

    // The point at an angle from the segment's start, put through the map.
    OxGePoint2d At(double angle) const {
        const OxGeVector2d turned = PlaneMap::Turn(angle).OfVector(radius_);
        return map_.Of(OxGePoint2d{center_.x + turned.x, center_.y + turned.y});
    }

    // One arc through start, middle and end; or, where that leaves the ellipse, the arcs of both halves.
    void AddPiece(double start, double end, int halvings) {
        const double middle = 0.5 * (start + end);
        const OxGePoint2d first = At(start);
        const OxGePoint2d last = At(end);
        const double bulge = geometry::BulgeThrough(first, At(middle), last);
        if (halvings > 0 && (IsOff(first, last, bulge, At(0.5 * (start + middle))) ||
                             IsOff(first, last, bulge, At(0.5 * (middle + end))))) {
            AddPiece(start, middle, halvings - 1);
            AddPiece(middle, end, halvings - 1);
        } else {
            placed_.push_back({first, bulge});
        }
    }

    bool IsOff(const OxGePoint2d& first, const OxGePoint2d& last, double bulge,
               const OxGePoint2d& point) const {
        if (bulge == 0.0) {
            return false;
        }
        const double x = last.x - first.x;
        const double y = last.y - first.y;
        const double toCenter = (1.0 - bulge * bulge) / (4.0 * bulge);
        const OxGePoint2d center = {(first.x + last.x) * 0.5 - y * toCenter,
                                    (first.y + last.y) * 0.5 + x * toCenter};
        const double radius = std::hypot(first.x - center.x, first.y - center.y);
        return std::fabs(std::hypot(point.x - center.x, point.y - center.y) - radius) > tolerance_;
    }

    const PlaneMap& map_;
    std::vector<BulgeVertex> placed_;
    OxGePoint2d center_;
    OxGeVector2d radius_;
    double tolerance_ = 0.0;
};

std::vector<BulgeVertex> Placed(const std::vector<BulgeVertex>& vertices, bool closed, const PlaneMap& map) {
    const bool hasArcs = std::any_of(vertices.begin(), vertices.end(),
                                     [](const BulgeVertex& vertex) { return vertex.bulge != 0.0; });
    if (hasArcs && !map.KeepsCircles()) {
        return ArcsAlongEllipses(map).Of(vertices, closed);
    }
    std::vector<BulgeVertex> placed = vertices;
    for (BulgeVertex& vertex : placed) {
        vertex.point = map.Of(vertex.point);
        vertex.bulge = map.IsMirrored() ? -vertex.bulge : vertex.bulge;
    }
    return placed;
}

PolylineLoop Placed(const PolylineLoop& loop, const PlaneMap& map) {
    return {Placed(loop.vertices, true, map), loop.hasBulges};
}

class PlaceEdge {
public:
    explicit PlaceEdge(const PlaneMap& map) : map_(map) {}

    HatchEdge operator()(const OxGeLineSeg2d& line) const {
        return OxGeLineSeg2d(map_.Of(line.startPoint()), map_.Of(line.endPoint()));
    }
    HatchEdge operator()(const OxGeCircArc2d& arc) const {
        if (!map_.KeepsCircles()) {
            return (*this)(OxGeEllipArc2d(arc.center(), {arc.radius(), 0.0}, 1.0, arc.startAng(),
                                          arc.endAng(), arc.isClockWise()));
        }
        // Angles of clockwise arcs count clockwise, and go on doing so unless the map mirrors.
        const bool isClockwise = arc.isClockWise() != map_.IsMirrored();
        const double base = map_.Direction(0.0);
        const double shift = isClockwise ? -base : base;
        return OxGeCircArc2d(map_.Of(arc.center()), arc.radius() * map_.Stretch(0.0), arc.startAng() + shift,
                             arc.endAng() + shift, isClockwise);
    }
    HatchEdge operator()(const OxGeEllipArc2d& arc) const {
        const Axes axes = AxesOf(map_.OfVector(arc.majorAxis()), map_.OfVector(arc.minorAxis()));
        return OxGeEllipArc2d(map_.Of(arc.center()), axes.major, axes.ratio, arc.startAng() - axes.shift,
                              arc.endAng() - axes.shift, axes.isReversed);
    }
    HatchEdge operator()(const std::shared_ptr<const OxGeNurbCurve2d>& spline) const {
        if (!spline->isDefined()) {
            return spline;
        }
        const geometry::NurbsCurve& curve = spline->data()->curve;
        OxGePoint2dArray points;
        OxGeDoubleArray weights;
        for (const geometry::Point& point : curve.controlPoints) {
            points.append(map_.Of(point));
        }
        for (const double weight : curve.weights) {
            weights.append(weight);
        }
        const OxGeKnotVector knots(static_cast<int>(curve.knots.size()), curve.knots.data());
        return curve.weights.empty()
                   ? std::make_shared<const OxGeNurbCurve2d>(curve.degree, knots, points)
                   : std::make_shared<const OxGeNurbCurve2d>(curve.degree, knots, points, weights);
    }

private:
    const PlaneMap& map_;
};

HatchLoop Placed(const HatchLoop& loop, const PlaneMap& map) {
    HatchLoop placed;
    if (loop.polyline) {
        placed.polyline = Placed(*loop.polyline, map);
    }
    for (const HatchEdge& edge : loop.edges) {
        placed.edges.push_back(std::visit(PlaceEdge(map), edge));
    }
    return placed;
}

HatchFamily Placed(const HatchFamily& family, const PlaneMap& map) {
    HatchFamily placed;
    placed.angle = map.Direction(family.angle);
    placed.base = map.Of(family.base);
    const OxGeVector2d offset = map.OfVector(OxGeVector2d{family.offset.x, family.offset.y});
    placed.offset = {offset.x, offset.y};
    const double stretch = map.Stretch(family.angle);
    for (const double dash : family.dashes) {
        placed.dashes.push_back(dash * stretch);
    }
    return placed;
}

class PlaceSpline {
public:
    explicit PlaceSpline(const PlaneMap& map) : map_(map) {}

    SplineData operator()(FitData fit) const {
        Place(fit.points);
        fit.startTangent = map_.OfVector(fit.startTangent);
        fit.endTangent = map_.OfVector(fit.endTangent);
        return fit;
    }
    SplineData operator()(NurbsData nurbs) const {
        Place(nurbs.controlPoints);
        return nurbs;
    }

private:
    void Place(std::vector<OxGePoint3d>& points) const {
        for (OxGePoint3d& point : points) {
            point = map_.Of(point);
        }
    }

    const PlaneMap& map_;
};

class PlaceShape {
public:
    explicit PlaceShape(const PlaneMap& map) : map_(map) {}

    OtherShape operator()(std::monostate none) const { return none; }
    OtherShape operator()(FilledCorners area) const {
        Place(area.corners);
        return area;
    }
    OtherShape operator()(OpenPath path) const {
        Place(path.points);
        return path;
    }
    // The name tells that there is something to draw; who draws it does so from the entity itself.
    OtherShape operator()(OwnBlock own) const {
        own.position = map_.Of(own.position);
        return own;
    }

private:
    void Place(std::vector<OxGePoint3d>& points) const {
        for (OxGePoint3d& point : points) {
            point = map_.Of(point);
        }
    }

    const PlaneMap& map_;
};

class PlaceEntity {
public:
    PlaceEntity(BlockRecord& block, const EntityProperties& properties, const PlaneMap& map)
        : block_(block), properties_(properties), map_(map) {}

    void operator()(const Point& point) { Add<Point>(map_.Of(point.position())); }
    void operator()(const Line& line) { Add<Line>(map_.Of(line.startPoint()), map_.Of(line.endPoint())); }

    void operator()(const Arc& arc) {
        ArcData data = arc.Data();
        const bool isMirrored = data.normal.z < 0.0; // cosines are negated
        if (!map_.KeepsCircles()) {
            AddEllipse(data.center, {isMirrored ? -data.radius : data.radius, 0.0}, {0.0, data.radius},
                       data.startAngle, data.endAngle);
            return;
        }
        const bool becomesMirrored = isMirrored != map_.IsMirrored();
        // Where the parameter 0 has gone: to the direction `zero`, which a mirrored arc calls pi - zero.
        const double zero = map_.Direction(isMirrored ? std::numbers::pi : 0.0);
        const double shift = becomesMirrored ? std::numbers::pi - zero : zero;
        data.center = map_.Of(data.center);
        data.radius *= map_.Stretch(0.0);
        data.startAngle += shift;
        data.endAngle += shift;
        data.normal = {0.0, 0.0, becomesMirrored ? -1.0 : 1.0};
        Add<Arc>(data);
    }

    void operator()(const Circle& circle) {
        if (map_.KeepsCircles()) {
            Add<Circle>(map_.Of(circle.center()), circle.radius() * map_.Stretch(0.0));
        } else {
            AddEllipse(circle.center(), {circle.radius(), 0.0}, {0.0, circle.radius()}, 0.0, kTurn);
        }
    }

    void operator()(const Ellipse& ellipse) {
        const OxGeVector3d major = ellipse.majorAxis();
        const OxGeVector3d minor = ellipse.minorAxis();
        AddEllipse(ellipse.center(), {major.x, major.y}, {minor.x, minor.y}, ellipse.startAngle(),
                   ellipse.endAngle());
    }

    void operator()(const Polyline& polyline) {
        auto& placed =
            block_.Add<Polyline>(properties_, Placed(polyline.Vertices(), polyline.isClosed(), map_),
                                 polyline.isClosed(), polyline.hasPlinegen());
        if (polyline.Widths() != nullptr && map_.KeepsCircles()) {
            placed.SetWidths(PlacedWidths(*polyline.Widths()));
        }
    }
    void operator()(const Spline& spline) { Add<Spline>(std::visit(PlaceSpline(map_), spline.Data())); }

    void operator()(const Hatch& hatch) {
        const HatchData& data = hatch.Data();
        HatchData placed;
        placed.solid = data.solid;
        for (const HatchLoop& loop : data.loops) {
            placed.loops.push_back(Placed(loop, map_));
        }
        if (data.pattern) {
            placed.pattern.emplace();
            for (const HatchFamily& family : *data.pattern) {
                placed.pattern->push_back(Placed(family, map_));
            }
        }
        if (data.lines) {
            placed.lines.emplace();
            for (const HatchLine& line : *data.lines) {
                placed.lines->push_back({map_.Of(line.start), map_.Of(line.end)});
            }
        }
        Add<Hatch>(std::move(placed));
    }

    void operator()(const MPolygon& polygon) {
        std::vector<PolylineLoop> loops;
        for (const PolylineLoop& loop : polygon.Loops()) {
            loops.push_back(Placed(loop, map_));
        }
        Add<MPolygon>(std::move(loops), polygon.fillColor());
    }

    void operator()(const Text& text) { Add<Text>(PlacedText(text.Data())); }
    void operator()(const AttributeDefinition& definition) {
        Add<AttributeDefinition>(PlacedText(definition.Data()), definition.tagConst(),
                                 definition.promptConst());
    }
    void operator()(const ParagraphText& text) {
        ParagraphTextData data = text.Data();
        const double width = map_.Stretch(data.rotation);
        const double height = map_.Stretch(data.rotation + std::numbers::pi / 2.0);
        data.location = map_.Of(data.location);
        data.rotation = map_.Direction(data.rotation);
        data.textHeight *= height;
        data.actualWidth *= width;
        data.actualHeight *= height;
        Add<ParagraphText>(std::move(data));
    }

    void operator()(const BlockReference& /*insert*/) { Add<OtherEntity>(std::wstring(L"insert")); }
    void operator()(const OtherEntity& other) {
        Add<OtherEntity>(std::wstring(other.isA()->name()), std::visit(PlaceShape(map_), other.Shape()));
    }

private:
    template <class T, class... Args>
    void Add(Args&&... args) {
        block_.Add<T>(properties_, std::forward<Args>(args)...);
    }

    void AddEllipse(const OxGePoint3d& center, const OxGeVector2d& u, const OxGeVector2d& v, double start,
                    double end) {
        const Axes axes = AxesOf(map_.OfVector(u), map_.OfVector(v));
        EllipseData data;
        data.center = map_.Of(center);
        data.majorAxis = {axes.major.x, axes.major.y, 0.0};
        data.radiusRatio = axes.ratio;
        data.startAngle = axes.isReversed ? axes.shift - end : start - axes.shift;
        data.endAngle = axes.isReversed ? axes.shift - start : end - axes.shift;
        Add<Ellipse>(data);
    }

    std::vector<SegmentWidth> PlacedWidths(std::vector<SegmentWidth> widths) const {
        const double stretch = map_.Stretch(0.0);
        for (SegmentWidth& width : widths) {
            width = {width.start * stretch, width.end * stretch};
        }
        return widths;
    }
    TextData PlacedText(TextData data) const {
        data.position = map_.Of(data.position);
        if (data.alignmentPoint) {
            data.alignmentPoint = map_.Of(*data.alignmentPoint);
        }
        data.height *= map_.Stretch(data.rotation + std::numbers::pi / 2.0);
        data.rotation = map_.Direction(data.rotation);
        return data;
    }
    BlockRecord& block_;
    const EntityProperties& properties_;
    const PlaneMap& map_;
};

} // namespace

void AddPlaced(BlockRecord& block, OxDbObjectId entity, const EntityProperties& properties,
               const PlaneMap& map) {
    VisitEntity(entity, PlaceEntity(block, properties, map));
}

void AddPlacedPolyline(BlockRecord& block, const std::vector<BulgeVertex>& vertices,
                       const EntityProperties& properties, const PlaneMap& map) {
    block.Add<Polyline>(properties, Placed(vertices, false, map), false, false);
}

void AddPlacedArea(BlockRecord& block, const std::vector<BulgeVertex>& outline,
                   const EntityProperties& properties, const PlaneMap& map) {
    PolylineLoop loop;
    loop.vertices = Placed(outline, true, map);
    loop.hasBulges = std::any_of(loop.vertices.begin(), loop.vertices.end(),
                                 [](const BulgeVertex& vertex) { return vertex.bulge != 0.0; });
    HatchData area;
    area.solid = true;
    area.loops.emplace_back();
    area.loops.back().polyline = std::move(loop);
    block.Add<Hatch>(properties, std::move(area));
}

EntityProperties PropertiesOf(OxDbObjectId entity) {
    return VisitEntity(entity, [](const auto& itself) { return itself.Properties(); });
}

} // namespace drawing
