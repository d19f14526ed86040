// The segments of a polyline that have a length: straight ones and arcs.
#pragma once

#include "OxDb/OxDbPolyline.h"
#include "StyleConversion/block/Angles.h"

namespace block {

struct PolylineSegment {
    bool isArc = false;
    OxGePoint2d start;
    OxGePoint2d end;
    /// Along the segment; drawing units.
    double length = 0.0;
    /// Arcs only: the included angle, and the circle.
    double sweep = 0.0;
    ArcTravel travel{};
};

inline unsigned int CountSegments(const OxDbPolyline& polyline) {
    const unsigned int vertices = polyline.numVerts();
    return polyline.isClosed() || vertices == 0 ? vertices : vertices - 1;
}

/// False for a segment of any other kind, and for one that cannot be read.
inline bool ReadSegment(const OxDbPolyline& polyline, unsigned int index, PolylineSegment& segment) {
    switch (polyline.segType(index)) {
    case OxDbPolyline::kLine: {
        OxGeLineSeg2d line;
        if (polyline.getLineSegAt(index, line) != Oxsys::eOk) {
            return false;
        }
        segment.isArc = false;
        segment.start = line.startPoint();
        segment.end = line.endPoint();
        segment.length = line.length();
        return true;
    }
    case OxDbPolyline::kArc: {
        OxGeCircArc3d arc;
        if (polyline.getArcSegAt(index, arc) != Oxsys::eOk) {
            return false;
        }
        segment.isArc = true;
        segment.start = InPlane(arc.startPoint());
        segment.end = InPlane(arc.endPoint());
        segment.sweep = Sweep(arc.startAng(), arc.endAng());
        segment.length = arc.radius() * segment.sweep;
        segment.travel = {InPlane(arc.center()), arc.radius(), arc.normal().z < 0.0};
        return true;
    }
    default:
        return false;
    }
}

} // namespace block
