// Hatches and multi-polygons.
#include "StyleConversion/block/Angles.h"
#include "StyleConversion/block/BlockConverter.h"
#include "StyleConversion/block/BlockSymbol.h"
#include "StyleConversion/block/Faithful.h"
#include "StyleConversion/block/PathPoints.h"
#include "StyleConversion/block/SplineSampling.h"
#include "StyleConversion/encoding/ValueForms.h"

#include <cmath>
#include <cstddef>
#include <vector>

// Writes boundary loops to a path.
class BlockConverter::Loops {
public:
    Loops(const BlockConverter& converter, std::wstring& path) : converter_(converter), path_(path) {}

    /// A loop of edges of a hatch; false when the loop is of the other form or cannot be read. What is
    /// neither segment nor arc adds nothing.
    bool AppendEdges(OxDbHatch& hatch, int loop) {
        started_ = false;
        return host::ForEachEdge(hatch, loop, [&](host::Edge& edge) { AppendEdge(edge); });
    }

    /// The loop of vertices and bulges of a hatch or multi-polygon; false as above. Fewer than three vertices
    /// add nothing.
    template <class Entity>
    bool AppendVertices(Entity& entity, int loop) {
        host::Points2d vertices;
        host::Doubles bulges;
        if (!host::ReadLoop(entity, loop, vertices, bulges)) {
            return false;
        }
        if (host::LengthOf(vertices) > 2) {
            AppendPolygon(vertices, bulges);
        }
        return true;
    }

private:
    // There is no segment back to the first vertex: filling closes the figure.
    // Required: R38
    void AppendPolygon(host::Points2d& vertices, host::Doubles& bulges) {
        const int count = host::LengthOf(vertices);
        const int segments = block::IsFaithful() ? count : count - 1;
        OxGePoint2d previous = host::ElementAt(vertices, 0);
        block::StartAt(path_, previous, converter_.scale_);
        for (int i = 0; i < segments; ++i) {
            const OxGePoint2d vertex = host::ElementAt(vertices, i + 1 < count ? i + 1 : 0);
            const bool isGiven = i < host::LengthOf(bulges);
            AppendSegment(previous, vertex, isGiven ? static_cast<double>(host::ElementAt(bulges, i)) : 0.0);
            previous = vertex;
        }
    }

    // A bulge is the tangent of a quarter of its segment's included angle, negative for clockwise.
    void AppendSegment(const OxGePoint2d& from, const OxGePoint2d& to, double bulge) {
        if (bulge == 0.0) {
            block::LineTo(path_, to, converter_.scale_);
            return;
        }
        const double radius = std::fabs((bulge * bulge + 1.0) * block::Distance(from, to) / (4.0 * bulge));
        converter_.AppendArcString(&path_, radius, radius, 0.0, std::fabs(bulge) > 1.0, bulge < 0.0, to);
    }

    void AppendEdge(host::Edge& edge) {
        if (auto* const line = host::AsLineSegment(edge)) {
            MoveTo(line->startPoint());
            converter_.AppendLineToString(&path_, line->startPoint(), line->endPoint());
            current_ = line->endPoint();
        } else if (auto* const circle = host::AsCircularArc(edge)) {
            AppendArc(*circle, circle->radius(), circle->radius());
        } else if (auto* const ellipse = host::AsEllipticalArc(edge)) {
            if (block::IsFaithful()) {
                AppendTurnedArc(*ellipse);
            } else {
                AppendArc(*ellipse, ellipse->majorRadius(), ellipse->minorRadius());
            }
        } else if (OxGeNurbCurve2d* const spline = block::IsFaithful() ? block::AsSpline(edge) : nullptr) {
            AppendCurve(block::FollowClosely(*spline));
        }
    }

    void AppendCurve(const std::vector<block::CurveVertex>& vertices) {
        for (std::size_t i = 0; i < vertices.size(); ++i) {
            if (i == 0) {
                MoveTo(vertices[i].point);
            } else {
                AppendSegment(vertices[i - 1].point, vertices[i].point, vertices[i - 1].bulge);
            }
            current_ = vertices[i].point;
        }
    }

    // Where the major axis of an arc points is told from where the arc starts.
    template <class Arc>
    void AppendTurnedArc(Arc& arc) {
        const OxGePoint2d center = arc.center();
        const OxGePoint2d start = arc.startPoint();
        const double radiusX = arc.majorRadius();
        const double radiusY = arc.minorRadius();
        const double angle = arc.isClockWise() ? -arc.startAng() : arc.startAng();
        const double turned = std::atan2(start.y - center.y, start.x - center.x) -
                              std::atan2(radiusY * std::sin(angle), radiusX * std::cos(angle));
        const double rotation = turned * 180.0 / block::kPi;
        MoveTo(start);
        if (arc.isClosed()) {
            const OxGePoint2d opposite = host::Point(2.0 * center.x - start.x, 2.0 * center.y - start.y);
            converter_.AppendArcString(&path_, radiusX, radiusY, rotation, true, arc.isClockWise(), opposite);
            converter_.AppendArcString(&path_, radiusX, radiusY, rotation, true, arc.isClockWise(), start);
            current_ = start;
            return;
        }
        const double sweep = block::Sweep(arc.startAng(), arc.endAng());
        converter_.AppendArcString(&path_, radiusX, radiusY, rotation, sweep >= block::kPi, arc.isClockWise(),
                                   arc.endPoint());
        current_ = arc.endPoint();
    }

    template <class Arc>
    void AppendArc(Arc& arc, double radiusX, double radiusY) {
        if (arc.isClosed()) {
            AppendWhole(arc.center(), radiusX, radiusY);
            return;
        }
        MoveTo(arc.startPoint());
        const double sweep = block::Sweep(arc.startAng(), arc.endAng());
        // Required: R16
        converter_.AppendArcString(&path_, radiusX, radiusY, 0.0, sweep >= block::kPi, arc.isClockWise(),
                                   arc.endPoint());
        current_ = arc.endPoint();
    }

    void AppendWhole(const OxGePoint2d& center, double radiusX, double radiusY) {
        const OxGePoint2d leftmost = host::Point(center.x - radiusX, center.y);
        MoveTo(leftmost);
        const OxGePoint2d opposite = host::Point(2.0 * center.x - leftmost.x, 2.0 * center.y - leftmost.y);
        // Required: R8, R16
        converter_.AppendArcString(&path_, radiusX, radiusY, 0.0, true, true, opposite);
        converter_.AppendArcString(&path_, radiusX, radiusY, 0.0, true, true, leftmost);
        current_ = leftmost;
    }

    void MoveTo(const OxGePoint2d& start) {
        if (started_ && host::IsSamePoint(start, current_)) {
            return;
        }
        // Required: R17
        encoding::AppendPoint(path_, started_ ? encoding::kMove : encoding::kFirstMove, {start.x, start.y},
                              converter_.scale_);
        started_ = true;
    }

    const BlockConverter& converter_;
    std::wstring& path_;
    // Of a loop of edges: whether one is written, and where it ended.
    bool started_ = false;
    OxGePoint2d current_;
};

void BlockConverter::CollectGeometryFromHatch(OxDbBlockTableRecord& record, OxDbHatch& hatch,
                                              block::BlockSymbol& symbol) const {
    if (hatch.isSolidFill()) {
        CollectGeometryFromSolidHatch(record, hatch, symbol);
    } else {
        CollectGeometryFromNonSolidHatch(record, hatch, symbol);
    }
}

// One filled path of all boundary loops.
void BlockConverter::CollectGeometryFromSolidHatch(OxDbBlockTableRecord& record, OxDbHatch& hatch,
                                                   block::BlockSymbol& symbol) const {
    std::wstring& path = symbol.StartPath().path;
    Loops loops(*this, path);
    for (int i = 0; i < static_cast<int>(hatch.numLoops()); ++i) {
        if (!loops.AppendEdges(hatch, i)) {
            loops.AppendVertices(hatch, i);
        }
    }
    const std::wstring color = GetEntityColor(record, hatch, hatch.color(), symbol);
    if (path.empty()) {
        return;
    }
    auto graphic = symbol.MakePath();
    graphic->SetFillColor(color);
    symbol.Adopt(std::move(graphic));
}

// One stroked path of the pattern's lines.
void BlockConverter::CollectGeometryFromNonSolidHatch(OxDbBlockTableRecord& record, OxDbHatch& hatch,
                                                      block::BlockSymbol& symbol) const {
    if (hatch.evaluateHatch(true) != Oxsys::eOk) {
        return;
    }
    const int count = static_cast<int>(hatch.numHatchLines());
    if (count < 1) {
        return;
    }
    std::wstring& path = symbol.StartPath().path;
    for (int i = 0; i < count; ++i) {
        OxGePoint2d start;
        OxGePoint2d end;
        if (hatch.getHatchLineDataAt(i, start, end) == Oxsys::eOk) {
            block::StartAt(path, start, scale_);
            block::LineTo(path, end, scale_);
        }
    }
    const std::wstring color = GetEntityColor(record, hatch, hatch.color(), symbol);
    if (path.empty()) {
        return;
    }
    auto graphic = symbol.MakePath();
    graphic->SetLineColor(color);
    symbol.Adopt(std::move(graphic));
}

// Filled and stroked.
void BlockConverter::CollectGeometryFromMPolygon(OxDbBlockTableRecord& record, OxDbMPolygon& polygon,
                                                 block::BlockSymbol& symbol) const {
    std::wstring& path = symbol.StartPath().path;
    Loops loops(*this, path);
    for (int i = 0; i < host::CountLoops(polygon); ++i) {
        loops.AppendVertices(polygon, i);
    }
    const std::wstring fillColor = GetEntityColor(record, polygon, host::FillColor(polygon), symbol);
    const std::wstring lineColor = GetEntityColor(record, polygon, polygon.color(), symbol);
    const std::wstring lineWeight = GetEntityLineweight(record, polygon, symbol);
    if (path.empty()) {
        return;
    }
    auto graphic = symbol.MakePath();
    graphic->SetFillColor(fillColor);
    graphic->SetLineColor(lineColor);
    graphic->SetLineWeight(lineWeight);
    graphic->SetLineWeightScalable(encoding::BooleanString(false));
    symbol.Adopt(std::move(graphic));
}
