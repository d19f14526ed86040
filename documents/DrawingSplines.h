// The keys of a spline, as an entity and as an edge of a hatch.
#pragma once

#include "documents/DrawingObject.h"
#include "documents/DrawingValues.h"
#include "drawing/entities/SplineCurves.h"

namespace documents {

/// The values of an object one type of which is a spline.
class SplineKeys {
public:
    /// Gives the object the keys of a spline.
    void BindTo(ObjectNode& object);
    /// Gives the object the type "spline", after BindTo.
    void AddTypeTo(ObjectNode& object) const;
    /// The data of an object of that type, which is either a spline through fit points or one from control
    /// points. False when the object is refused.
    bool Take(const ObjectNode& object, ReadState& state, drawing::SplineData& data);
    /// Polylines have this key too.
    const BooleanNode& Closed() const { return closed_; }

private:
    bool TakeFitData(const ObjectNode& object, ReadState& state, drawing::SplineData& data);
    bool TakeNurbsData(const ObjectNode& object, ReadState& state, drawing::SplineData& data);

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
