// The keys of a spline.
#include "documents/DrawingSplines.h"

namespace documents {

void SplineObjectNode::BindSpline() {
    Bind("fitPoints", fitPoints_);
    Bind("fitTolerance", fitTolerance_);
    Bind("startTangent", startTangent_);
    Bind("endTangent", endTangent_);
    Bind("degree", degree_);
    Bind("controlPoints", controlPoints_);
    Bind("knots", knots_);
    Bind("weights", weights_);
    Bind("closed", closed_);
    Bind("periodic", periodic_);
}

void SplineObjectNode::AddSplineType() {
    AddType("spline", {},
            {&fitPoints_, &fitTolerance_, &startTangent_, &endTangent_, &degree_, &controlPoints_, &knots_,
             &weights_, &closed_, &periodic_});
}

bool SplineObjectNode::TakeSpline(ReadState& state, drawing::SplineData& data) {
    return Has(fitPoints_) ? TakeFitData(state, data) : TakeNurbsData(state, data);
}

bool SplineObjectNode::TakeFitData(ReadState& state, drawing::SplineData& data) {
    for (const Node* const node :
         {static_cast<const Node*>(&controlPoints_), static_cast<const Node*>(&knots_),
          static_cast<const Node*>(&weights_), static_cast<const Node*>(&closed_),
          static_cast<const Node*>(&periodic_)}) {
        if (Has(*node)) {
            return RefuseKeyBeside(state, *node, "fitPoints");
        }
    }
    if (Has(startTangent_) != Has(endTangent_)) {
        return RefuseMissing(state, Has(startTangent_) ? endTangent_ : startTangent_);
    }
    drawing::FitData fit;
    fit.points = std::move(fitPoints_.Values());
    fit.degree = degree_.Value();
    fit.tolerance = fitTolerance_.Value();
    fit.tangentsExist = Has(startTangent_);
    fit.startTangent = startTangent_.Vector3d();
    fit.endTangent = endTangent_.Vector3d();
    data = std::move(fit);
    return true;
}

bool SplineObjectNode::TakeNurbsData(ReadState& state, drawing::SplineData& data) {
    if (!Has(controlPoints_)) {
        return state.Refuse(R"(expected "fitPoints" or "controlPoints", found neither)");
    }
    for (const Node* const node : {static_cast<const Node*>(&degree_), static_cast<const Node*>(&knots_)}) {
        if (!Has(*node)) {
            return RefuseMissing(state, *node);
        }
    }
    for (const Node* const node :
         {static_cast<const Node*>(&fitTolerance_), static_cast<const Node*>(&startTangent_),
          static_cast<const Node*>(&endTangent_)}) {
        if (Has(*node)) {
            return RefuseKeyBeside(state, *node, "controlPoints");
        }
    }
    drawing::NurbsData nurbs;
    nurbs.degree = degree_.Value();
    nurbs.closed = closed_.Value();
    nurbs.periodic = periodic_.Value();
    nurbs.controlPoints = std::move(controlPoints_.Values());
    nurbs.knots = std::move(knots_.Values());
    nurbs.weights = std::move(weights_.Values());
    data = std::move(nurbs);
    return true;
}

} // namespace documents
