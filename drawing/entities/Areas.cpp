// Hatches and multi-polygons.
#include "drawing/entities/Areas.h"

namespace drawing {
namespace {

void HandOut(const PolylineLoop& loop, OxGePoint2dArray& vertices, OxGeDoubleArray& bulges) {
    vertices.removeAll();
    bulges.removeAll();
    vertices.setPhysicalLength(static_cast<int>(loop.vertices.size()));
    for (const geometry::BulgeVertex& vertex : loop.vertices) {
        vertices.append(vertex.point);
        if (loop.hasBulges) {
            bulges.append(vertex.bulge);
        }
    }
}

// Appends the edge and its type.
struct EdgeHandOut {
    OxArray<const OxGeCurve2d*>& edges;
    OxArray<int>& types;

    void operator()(const OxGeLineSeg2d& line) const { Append(line, OxDbHatch::kLine); }
    void operator()(const OxGeCircArc2d& arc) const { Append(arc, OxDbHatch::kCirArc); }
    void operator()(const OxGeEllipArc2d& arc) const { Append(arc, OxDbHatch::kEllArc); }
    void operator()(const std::shared_ptr<const OxGeNurbCurve2d>& spline) const {
        Append(*spline, OxDbHatch::kSpline);
    }

private:
    void Append(const OxGeCurve2d& edge, OxDbHatch::EdgeType type) const {
        edges.append(&edge);
        types.append(type);
    }
};

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

bool HasIndex(int index, std::size_t count) {
    return index >= 0 && static_cast<std::size_t>(index) < count;
}

} // namespace

Hatch::Hatch(Core& core, const EntityProperties& properties, HatchData data)
    : ResidentEntity(core, properties), data_(std::move(data)) {}

Hatch::~Hatch() = default;

Oxsys::ErrorStatus Hatch::getLoopAt(int index, int& loopType, OxArray<const OxGeCurve2d*>& edges,
                                    OxArray<int>& edgeTypes) const {
    Oxsys::ErrorStatus status = Oxsys::eOk;
    if (Fails(Operation::kGetEdgeLoopAt, status)) {
        return status;
    }
    if (!HasIndex(index, data_.loops.size())) {
        return Oxsys::eInvalidIndex;
    }
    const HatchLoop& loop = data_.loops[static_cast<std::size_t>(index)];
    if (loop.polyline) {
        return Oxsys::eNotApplicable;
    }
    loopType = kDefault;
    edges.removeAll();
    edgeTypes.removeAll();
    for (const HatchEdge& edge : loop.edges) {
        std::visit(EdgeHandOut{edges, edgeTypes}, edge);
    }
    return Oxsys::eOk;
}

Oxsys::ErrorStatus Hatch::getLoopAt(int index, int& loopType, OxGePoint2dArray& vertices,
                                    OxGeDoubleArray& bulges) const {
    Oxsys::ErrorStatus status = Oxsys::eOk;
    if (Fails(Operation::kGetPolylineLoopAt, status)) {
        return status;
    }
    if (!HasIndex(index, data_.loops.size())) {
        return Oxsys::eInvalidIndex;
    }
    const HatchLoop& loop = data_.loops[static_cast<std::size_t>(index)];
    if (!loop.polyline) {
        return Oxsys::eNotApplicable;
    }
    loopType = kPolyline;
    HandOut(*loop.polyline, vertices, bulges);
    return Oxsys::eOk;
}

Oxsys::ErrorStatus Hatch::evaluateHatch(bool /*underestimateLines*/) {
    Oxsys::ErrorStatus status = Oxsys::eOk;
    if (Fails(Operation::kEvaluateHatch, status)) {
        return status;
    }
    if (!data_.lines && !data_.pattern) {
        return Oxsys::eNotApplicable;
    }
    if (!data_.lines) {
        status = ToErrorStatus(
            geometry::EvaluateHatch(data_.loops, *data_.pattern, SharedCore().maximumHatchLines, evaluated_));
        SharedCore().hatchesTooDense += status == Oxsys::eTooManyHatchLines ? 1 : 0;
    }
    isEvaluated_ = status == Oxsys::eOk;
    return status;
}

int Hatch::numHatchLines() const {
    if (!isEvaluated_) {
        return 0;
    }
    return static_cast<int>(data_.lines ? data_.lines->size() : evaluated_.size());
}

Oxsys::ErrorStatus Hatch::getHatchLineDataAt(int index, OxGePoint2d& start, OxGePoint2d& end) const {
    Oxsys::ErrorStatus status = Oxsys::eOk;
    if (Fails(Operation::kGetHatchLineDataAt, status)) {
        return status;
    }
    if (!HasIndex(index, static_cast<std::size_t>(numHatchLines()))) {
        return Oxsys::eInvalidIndex;
    }
    const std::vector<HatchLine>& lines = data_.lines ? *data_.lines : evaluated_;
    const HatchLine& line = lines[static_cast<std::size_t>(index)];
    start = line.start;
    end = line.end;
    return Oxsys::eOk;
}

MPolygon::MPolygon(Core& core, const EntityProperties& properties, std::vector<PolylineLoop> loops,
                   const OxCmColor& fillColor)
    : ResidentEntity(core, properties), loops_(std::move(loops)), fillColor_(fillColor) {}

MPolygon::~MPolygon() = default;

Oxsys::ErrorStatus MPolygon::getMPolygonLoopAt(int index, OxGePoint2dArray& vertices,
                                               OxGeDoubleArray& bulges) const {
    Oxsys::ErrorStatus status = Oxsys::eOk;
    if (Fails(Operation::kGetMPolygonLoopAt, status)) {
        return status;
    }
    if (!HasIndex(index, loops_.size())) {
        return Oxsys::eInvalidIndex;
    }
    HandOut(loops_[static_cast<std::size_t>(index)], vertices, bulges);
    return Oxsys::eOk;
}

} // namespace drawing
