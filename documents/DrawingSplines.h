// The keys of a spline, as an entity and as an edge of a hatch.
#pragma once

#include "documents/DrawingTypedObject.h"
#include "drawing/SplineCurves.h"

namespace documents {

/// An object one type of which is a spline.
class SplineObjectNode : public TypedObjectNode {
protected:
    explicit SplineObjectNode(std::string_view kind) : TypedObjectNode(kind) {}

    void BindSpline();
    /// Adds the type "spline", after BindSpline.
    void AddSplineType();
    /// The data of an object of that type, which is either a spline through fit points or one from control
    /// points.
    bool TakeSpline(ReadState& state, drawing::SplineData& data);
    /// Polylines have this key too.
    BooleanNode& Closed() { return closed_; }

private:
    bool TakeFitData(ReadState& state, drawing::SplineData& data);
    bool TakeNurbsData(ReadState& state, drawing::SplineData& data);

    PointsNode fitPoints_;
    NumberNode fitTolerance_;
    PointNode startTangent_;
    PointNode endTangent_;
    IntegerNode degree_{3};
    PointsNode controlPoints_;
    NumbersNode knots_;
    NumbersNode weights_;
    BooleanNode closed_;
    BooleanNode periodic_;
};

} // namespace documents
