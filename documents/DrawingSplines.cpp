// The keys of a spline.
#include "documents/DrawingSplines.h"

namespace documents {

void SplineKeys::BindTo(ObjectNode& object) {
    object.Bind("fitPoints", fitPoints_);
    object.Bind("fitTolerance", fitTolerance_);
    object.Bind("startTangent", startTangent_);
    object.Bind("endTangent", endTangent_);
    object.Bind("degree", degree_);
    object.Bind("controlPoints", controlPoints_);
    object.Bind("knots", knots_);
    object.Bind("weights", weights_);
    object.Bind("closed", closed_);
    object.Bind("periodic", periodic_);
}

void SplineKeys::AddTypeTo(ObjectNode& object) const {
    object.AddType("spline", {},
                   {&fitPoints_, &fitTolerance_, &startTangent_, &endTangent_, &degree_, &controlPoints_,
                    &knots_, &weights_, &closed_, &periodic_});
}

bool SplineKeys::Take(const ObjectNode& object, ReadState& state, drawing::SplineData& data) {
    return object.Has(fitPoints_) ? TakeFitData(object, state, data) : TakeNurbsData(object, state, data);
}

bool SplineKeys::TakeFitData(const ObjectNode& object, ReadState& state, drawing::SplineData& data) {
    for (const Node* const node :
         {static_cast<const Node*>(&controlPoints_), static_cast<const Node*>(&knots_),
          static_cast<const Node*>(&weights_), static_cast<const Node*>(&closed_),
          static_cast<const Node*>(&periodic_)}) {
        if (object.Has(*node)) {
            return object.RefuseKeyBeside(state, *node, "fitPoints");
        }
    }
    if (object.Has(startTangent_) != object.Has(endTangent_)) {
        return object.RefuseMissing(state, object.Has(startTangent_) ? endTangent_ : startTangent_);
    }
    drawing::FitData fit;
    fit.points = std::move(fitPoints_.Values());
    fit.degree = degree_.Value();
    fit.tolerance = fitTolerance_.Value();
    fit.tangentsExist = object.Has(startTangent_);
    fit.startTangent = startTangent_.Vector3d();
    fit.endTangent = endTangent_.Vector3d();
    data = std::move(fit);
    return true;
}

bool SplineKeys::TakeNurbsData(const ObjectNode& object, ReadState& state, drawing::SplineData& data) {
    if (!object.Has(controlPoints_)) {
        return state.RefuseValue(R"("fitPoints" or "controlPoints")", "neither");
    }
    for (const Node* const node : {static_cast<const Node*>(&degree_), static_cast<const Node*>(&knots_)}) {
        if (!object.Has(*node)) {
            return object.RefuseMissing(state, *node);
        }
    }
    for (const Node* const node :
         {static_cast<const Node*>(&fitTolerance_), static_cast<const Node*>(&startTangent_),
          static_cast<const Node*>(&endTangent_)}) {
        if (object.Has(*node)) {
            return object.RefuseKeyBeside(state, *node, "controlPoints");
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
