// Boundaries and patterns of areas.
#include "documents/DrawingLoops.h"

namespace documents {
namespace {

enum EdgeTypeIndex : std::size_t { kLineEdge, kArcEdge, kEllipseEdge };

} // namespace

bool VerticesNode::BeginArray(ReadState& state) {
    hasBulges_ = false;
    return TuplesNode::BeginArray(state);
}

drawing::BulgeVertex VerticesNode::Make(const TupleNode& tuple) {
    hasBulges_ = hasBulges_ || tuple.Count() == 3;
    return {tuple.Point2d(), tuple[2]};
}

EdgeNode::EdgeNode(Edges& edges) : ObjectNode("an edge"), edges_(edges) {
    Bind("start", start_);
    Bind("end", end_);
    Bind("center", center_);
    Bind("radius", radius_);
    Bind("majorAxis", majorAxis_);
    Bind("radiusRatio", radiusRatio_);
    Bind("startAngle", startAngle_);
    Bind("endAngle", endAngle_);
    Bind("clockwise", clockwise_);
    spline_.BindTo(*this);
    AddType("line", {&start_, &end_}, {});
    AddType("arc", {&center_, &radius_, &startAngle_, &endAngle_}, {&clockwise_});
    AddType("ellipse", {&center_, &majorAxis_, &radiusRatio_, &startAngle_, &endAngle_}, {&clockwise_});
    spline_.AddTypeTo(*this);
}

bool EdgeNode::Finish(ReadState& state) {
    switch (Type()) {
    case kLineEdge:
        edges_.emplace_back(OxGeLineSeg2d(start_.Point2d(), end_.Point2d()));
        return true;
    case kArcEdge:
        edges_.emplace_back(OxGeCircArc2d(center_.Point2d(), radius_.Value(), startAngle_.Value(),
                                          endAngle_.Value(), clockwise_.Value()));
        return true;
    case kEllipseEdge:
        edges_.emplace_back(OxGeEllipArc2d(center_.Point2d(), majorAxis_.Vector2d(), radiusRatio_.Value(),
                                           startAngle_.Value(), endAngle_.Value(), clockwise_.Value()));
        return true;
    default:
        break;
    }
    drawing::SplineData data;
    if (!spline_.Take(*this, state, data)) {
        return false;
    }
    edges_.emplace_back(drawing::BuildCurve(data));
    return true;
}

LoopNode::LoopNode(std::vector<drawing::HatchLoop>& loops) : loops_(loops) {
    Bind("vertices", vertices_);
    Bind("edges", edgesNode_);
}

void LoopNode::Reset() {
    edges_.clear(); // of a loop that was left out before its end
    ObjectNode::Reset();
}

bool LoopNode::Finish(ReadState& state) {
    drawing::HatchLoop loop;
    loop.edges = std::move(edges_);
    edges_.clear();
    if (Has(vertices_) == Has(edgesNode_)) {
        return Has(vertices_) ? state.RefuseValue(R"(either "vertices" or "edges")", "both")
                              : state.RefuseValue(R"("vertices" or "edges")", "neither");
    }
    if (Has(vertices_)) {
        loop.polyline = drawing::PolylineLoop{std::move(vertices_.Values()), vertices_.HasBulges()};
    }
    loops_.push_back(std::move(loop));
    return true;
}

FamilyNode::FamilyNode(std::vector<drawing::HatchFamily>& families) : families_(families) {
    Bind("angle", angle_, kRequired);
    Bind("base", base_, kRequired);
    Bind("offset", offset_, kRequired);
    Bind("dashes", dashes_, kRequired);
}

bool FamilyNode::Finish(ReadState& /*state*/) {
    families_.push_back({angle_.Value(), base_.Point2d(), offset_.Point2d(), std::move(dashes_.Values())});
    return true;
}

drawing::HatchLine HatchLinesNode::Make(const TupleNode& tuple) {
    return {{tuple[0], tuple[1]}, {tuple[2], tuple[3]}};
}

} // namespace documents
