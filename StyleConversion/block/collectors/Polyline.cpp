// Lightweight polylines, and splines, which are polylines through points along them.
#include "StyleConversion/block/BlockSymbol.h"
#include "StyleConversion/block/Dashes.h"
#include "StyleConversion/block/Faithful.h"
#include "StyleConversion/block/Opened.h"
#include "StyleConversion/block/PathPoints.h"
#include "StyleConversion/block/SplineSampling.h"

#include <optional>
#include <vector>

namespace {

// What OxDbPolyline::segType answers; other kinds have no length.
constexpr int kStraightSegment = 0;
constexpr int kArcSegment = 1;

// The part of a segment's length that the computed ends of arcs are off their vertices by.
constexpr double kRounding = 1e-9;

bool ReadStraightSegment(OxDbPolyline& polyline, unsigned int index, block::PolylineSegment& segment) {
    OxGeLineSeg2d line;
    if (polyline.getLineSegAt(index, line) != Oxsys::eOk) {
        return false;
    }
    segment.start = line.startPoint();
    segment.end = line.endPoint();
    segment.length = line.length();
    return true;
}

bool ReadArcSegment(OxDbPolyline& polyline, unsigned int index, block::PolylineSegment& segment) {
    OxGeCircArc3d arc;
    if (polyline.getArcSegAt(index, arc) != Oxsys::eOk) {
        return false;
    }
    segment.isArc = true;
    segment.start = block::InPlane(arc.startPoint());
    segment.end = block::InPlane(arc.endPoint());
    segment.sweep = block::Sweep(arc.startAng(), arc.endAng());
    segment.length = arc.radius() * segment.sweep;
    segment.travel = {block::InPlane(arc.center()), arc.radius(), arc.normal().z < 0.0};
    return true;
}

// False for a segment of any other kind, and for one that cannot be read.
bool ReadSegment(OxDbPolyline& polyline, unsigned int index, block::PolylineSegment& segment) {
    switch (static_cast<int>(polyline.segType(index))) {
    case kStraightSegment:
        return ReadStraightSegment(polyline, index, segment);
    case kArcSegment:
        return ReadArcSegment(polyline, index, segment);
    default:
        return false;
    }
}

template <class Use>
void ForEachSegment(OxDbPolyline& polyline, Use use) {
    const auto vertices = static_cast<unsigned int>(polyline.numVerts());
    const unsigned int count = polyline.isClosed() || vertices == 0 ? vertices : vertices - 1;
    for (unsigned int i = 0; i < count; ++i) {
        block::PolylineSegment segment;
        if (ReadSegment(polyline, i, segment)) {
            use(segment);
        }
    }
}

} // namespace

void BlockConverter::CollectGeometryFromPolyline(OxDbBlockTableRecord& record, OxDbPolyline& polyline,
                                                 block::BlockSymbol& symbol) const {
    StrokePolyline(record, polyline, polyline, symbol);
}

void BlockConverter::StrokePolyline(OxDbBlockTableRecord& record, OxDbPolyline& polyline, OxDbEntity& owner,
                                    block::BlockSymbol& symbol) const {
    auto& [path, shapes] = symbol.StartPath();
    block::Linetype linetype(polyline);
    // Whatever the pattern length is: only segments by themselves look at it.
    if (polyline.hasPlinegen() && linetype.Get() != nullptr && block::CountDashes(*linetype.Get()) >= 1) {
        double length = 0.0;
        ForEachSegment(polyline, [&](const block::PolylineSegment& segment) { length += segment.length; });
        Dashes dashes(*this, *linetype.Get(), path, shapes);
        PolylineDashes alongPolyline(dashes, block::FitDashes(*linetype.Get(), length));
        ForEachSegment(polyline, [&](const block::PolylineSegment& segment) { alongPolyline.Add(segment); });
    } else if (block::IsFaithful() && !block::HasPattern(linetype.Get())) {
        StrokeJoined(polyline, path);
    } else {
        ForEachSegment(polyline, [&, &path = path, &shapes = shapes](const block::PolylineSegment& segment) {
            if (segment.isArc) {
                const auto& [center, radius, clockwise] = segment.travel;
                ParseDashArc(linetype.Get(), segment.start, segment.end, center, radius, segment.sweep,
                             clockwise, path, shapes);
            } else {
                ParseDashLine(linetype.Get(), segment.start, segment.end, path, shapes);
            }
        });
    }
    linetype.Close();
    const std::wstring color = GetEntityColor(record, owner, owner.color(), symbol);
    symbol.AdoptStroke(color, GetEntityLineweight(record, owner, symbol));
}

void BlockConverter::StrokeJoined(OxDbPolyline& polyline, std::wstring& path) const {
    std::optional<OxGePoint2d> end;
    ForEachSegment(polyline, [&](const block::PolylineSegment& segment) {
        if (!end || block::Distance(*end, segment.start) > kRounding * segment.length) {
            block::StartAt(path, segment.start, scale_);
        }
        if (segment.isArc) {
            const auto& [center, radius, clockwise] = segment.travel;
            AppendArcString(&path, radius, radius, 0.0, segment.sweep >= block::kPi, clockwise, segment.end);
        } else {
            block::LineTo(path, segment.end, scale_);
        }
        end = segment.end;
    });
}

void BlockConverter::CollectGeometryFromSpline(OxDbBlockTableRecord& record, OxDbSpline& spline,
                                               block::BlockSymbol& symbol) const {
    const std::vector<block::CurveVertex> vertices = block::SampleSpline(spline);
    if (vertices.empty()) {
        return;
    }
    // Required: R20
    OxDbPolyline polyline;
    unsigned int index = 0;
    for (const block::CurveVertex& vertex : vertices) {
        static_cast<void>(polyline.addVertexAt(index, vertex.point, vertex.bulge, -1.0, -1.0));
        ++index;
    }
    static_cast<void>(polyline.setColor(spline.color()));
    static_cast<void>(polyline.setLineWeight(spline.lineWeight()));
    static_cast<void>(polyline.setLinetype(spline.linetypeId()));
    polyline.setPlinegen(true);
    if (block::IsFaithful()) {
        StrokePolyline(record, polyline, spline, symbol);
    } else {
        CollectGeometryFromPolyline(record, polyline, symbol);
    }
}
