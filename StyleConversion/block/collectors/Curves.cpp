// Points, lines, arcs, circles and ellipses: one stroke each.
#include "StyleConversion/block/BlockSymbol.h"
#include "StyleConversion/block/Dashes.h"
#include "StyleConversion/block/Limits.h"
#include "StyleConversion/block/Opened.h"
#include "StyleConversion/block/PathPoints.h"

#include <cmath>

namespace {

// Brought into 0 to 2 pi. Step by step, since the digits of that are required; a sweep so long that the steps
// would not end (or would change nothing) is divided first. What is not finite becomes NaN.
double WithinOneTurn(double sweep) {
    if (std::fabs(sweep) > block::kLongSweep) {
        sweep = std::fmod(sweep, block::kTwoPi);
    }
    while (sweep < 0.0) {
        sweep += block::kTwoPi;
    }
    while (sweep > block::kTwoPi) {
        sweep -= block::kTwoPi;
    }
    return sweep;
}

} // namespace

void BlockConverter::CollectGeometryFromPoint(OxDbBlockTableRecord& record, OxDbPoint& point,
                                              block::BlockSymbol& symbol) const {
    std::wstring& path = symbol.StartPath().path;
    const OxGePoint2d position = block::InPlane(point.position());
    block::StartAt(path, position, scale_);
    block::LineTo(path, position, scale_);
    const std::wstring color = GetEntityColor(record, point, point.color(), symbol);
    symbol.AdoptStroke(color, GetEntityLineweight(record, point, symbol));
}

void BlockConverter::CollectGeometryFromLine(OxDbBlockTableRecord& record, OxDbLine& line,
                                             block::BlockSymbol& symbol) const {
    auto& [path, shapes] = symbol.StartPath();
    block::Linetype linetype(line);
    ParseDashLine(linetype.Get(), block::InPlane(line.startPoint()), block::InPlane(line.endPoint()), path,
                  shapes);
    linetype.Close();
    const std::wstring color = GetEntityColor(record, line, line.color(), symbol);
    symbol.AdoptStroke(color, GetEntityLineweight(record, line, symbol));
}

void BlockConverter::CollectGeometryFromArc(OxDbBlockTableRecord& record, OxDbArc& arc,
                                            block::BlockSymbol& symbol) const {
    auto& [path, shapes] = symbol.StartPath();
    const host::ArcEnds ends = host::EndsOf(arc);
    block::Linetype linetype(arc);
    ParseDashArc(linetype.Get(), block::InPlane(ends.start), block::InPlane(ends.end),
                 block::InPlane(arc.center()), arc.radius(),
                 block::Sweep(ends.startParameter, ends.endParameter), arc.normal().z < 0.0, path, shapes);
    linetype.Close();
    const std::wstring color = GetEntityColor(record, arc, arc.color(), symbol);
    symbol.AdoptStroke(color, GetEntityLineweight(record, arc, symbol));
}

void BlockConverter::CollectGeometryFromCircle(OxDbBlockTableRecord& record, OxDbCircle& circle,
                                               block::BlockSymbol& symbol) const {
    auto& [path, shapes] = symbol.StartPath();
    const OxGePoint2d center = block::InPlane(circle.center());
    const double radius = circle.radius();
    const OxGePoint2d rightmost = host::Point(center.x + radius, center.y);
    block::StartAt(path, rightmost, scale_);
    block::Linetype linetype(circle);
    if (linetype.Get() != nullptr && block::CountDashes(*linetype.Get()) >= 1 &&
        radius * 2.0 * block::kPi > linetype.Get()->patternLength()) {
        Dashes(*this, *linetype.Get(), path, shapes).GoRound(center, radius);
    } else {
        AppendArcString(&path, radius, radius, 0.0, false, true, host::Point(center.x - radius, center.y));
        AppendArcString(&path, radius, radius, 0.0, false, true, rightmost);
    }
    linetype.Close();
    const std::wstring color = GetEntityColor(record, circle, circle.color(), symbol);
    symbol.AdoptStroke(color, GetEntityLineweight(record, circle, symbol));
}

// Ellipses are always solid.
void BlockConverter::CollectGeometryFromEllipse(OxDbBlockTableRecord& record, OxDbEllipse& ellipse,
                                                block::BlockSymbol& symbol) const {
    std::wstring& path = symbol.StartPath().path;
    OxGeVector3d major = ellipse.majorAxis();
    const double radiusX = major.length();
    const double radiusY = ellipse.minorAxis().length();
    const double rotation = std::atan2(major.y, major.x) * 180.0 / block::kPi;
    const OxGePoint2d start = block::InPlane(host::StartOf(ellipse));
    const OxGePoint2d end = block::InPlane(host::EndOf(ellipse));
    const OxGePoint3d center = ellipse.center();

    block::StartAt(path, start, scale_);
    if (host::IsWhole(ellipse)) {
        const OxGePoint2d opposite = host::Point(2.0 * center.x - start.x, 2.0 * center.y - start.y);
        // Required: R8
        AppendArcString(&path, radiusX, radiusY, rotation, true, true, opposite);
        AppendArcString(&path, radiusX, radiusY, rotation, true, true, start);
    } else {
        const double sweep = WithinOneTurn(ellipse.endAngle() - ellipse.startAngle());
        AppendArcString(&path, radiusX, radiusY, rotation, sweep >= block::kPi, false, end);
    }
    const std::wstring color = GetEntityColor(record, ellipse, ellipse.color(), symbol);
    symbol.AdoptStroke(color, GetEntityLineweight(record, ellipse, symbol));
}
