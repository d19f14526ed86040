// From a hatch's boundary and pattern to its lines.
#include "drawing/HatchEvaluation.h"

#include "drawing/NurbCurveData.h"
#include "drawing/geometry/Hatch.h"

namespace drawing {
namespace {

geometry::Point ToPoint(const OxGePoint2d& point) {
    return {point.x, point.y};
}

void AppendEdge(const OxGeCurve2d& edge, geometry::HatchLoop& loop) {
    switch (edge.type()) {
    case OxGe::kLineSeg2d: {
        const auto& line = static_cast<const OxGeLineSeg2d&>(edge);
        loop.edges.emplace_back(geometry::LineEdge{ToPoint(line.startPoint()), ToPoint(line.endPoint())});
        break;
    }
    case OxGe::kCircArc2d: {
        const auto& arc = static_cast<const OxGeCircArc2d&>(edge);
        loop.edges.emplace_back(geometry::ArcEdge{ToPoint(arc.center()), arc.radius(), arc.startAng(),
                                                  arc.endAng(), arc.isClockWise()});
        break;
    }
    case OxGe::kEllipArc2d: {
        const auto& arc = static_cast<const OxGeEllipArc2d&>(edge);
        const OxGeVector2d axis = arc.majorAxis();
        loop.edges.emplace_back(geometry::EllipseEdge{ToPoint(arc.center()),
                                                      {axis.x, axis.y},
                                                      arc.radiusRatio(),
                                                      arc.startAng(),
                                                      arc.endAng(),
                                                      arc.isClockWise()});
        break;
    }
    default:
        // A spline whose data makes no curve leaves a gap, which the loop closes with a straight line.
        if (const OxGeNurbCurveData* const data = static_cast<const OxGeNurbCurve2d&>(edge).data()) {
            loop.edges.emplace_back(geometry::SplineEdge{data->curve});
        }
        break;
    }
}

geometry::HatchLoop ToLoop(const HatchLoop& loop) {
    if (loop.polyline) {
        std::vector<geometry::BulgeVertex> vertices;
        vertices.reserve(loop.polyline->vertices.size());
        for (const BulgeVertex& vertex : loop.polyline->vertices) {
            vertices.push_back({ToPoint(vertex.point), vertex.bulge});
        }
        return geometry::LoopFromVertices(vertices);
    }
    geometry::HatchLoop edges;
    for (const std::unique_ptr<OxGeCurve2d>& edge : loop.edges) {
        AppendEdge(*edge, edges);
    }
    return edges;
}

Oxsys::ErrorStatus ToErrorStatus(geometry::Status status) {
    switch (status) {
    case geometry::Status::kOk:
        return Oxsys::eOk;
    case geometry::Status::kTooManyLines:
        return Oxsys::eTooManyHatchLines;
    default:
        return Oxsys::eDegenerateGeometry;
    }
}

} // namespace

Oxsys::ErrorStatus EvaluatePattern(const std::vector<HatchLoop>& loops,
                                   const std::vector<HatchFamily>& pattern, std::size_t most,
                                   std::vector<HatchLine>& lines) {
    std::vector<geometry::HatchLoop> boundary;
    boundary.reserve(loops.size());
    for (const HatchLoop& loop : loops) {
        boundary.push_back(ToLoop(loop));
    }
    std::vector<geometry::HatchFamily> families;
    families.reserve(pattern.size());
    for (const HatchFamily& family : pattern) {
        families.push_back(
            {family.angle, ToPoint(family.base), {family.offset.x, family.offset.y}, family.dashes});
    }
    std::vector<geometry::HatchLine> found;
    const geometry::Status status = geometry::EvaluateHatch(boundary, families, most, found);
    lines.clear();
    lines.reserve(found.size());
    for (const geometry::HatchLine& line : found) {
        lines.push_back({{line.start.x, line.start.y}, {line.end.x, line.end.y}});
    }
    return ToErrorStatus(status);
}

} // namespace drawing
