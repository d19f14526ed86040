// Checking the numbers of a hatch.
#include "drawing/geometry/HatchNumbers.h"

#include "drawing/geometry/Limits.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>

namespace geometry {

namespace {

/// Takes in every number of a hatch: the first fault, and how large the boundary's coordinates are.
class NumberCheck {
public:
    void Take(std::initializer_list<double> values) {
        for (const double value : values) {
            if (status_ != Status::kOk) {
                return;
            }
            if (!std::isfinite(value)) {
                status_ = Status::kNotFinite;
            } else if (std::fabs(value) > kMaximumCoordinate) {
                status_ = Status::kOutOfRange;
            }
        }
    }
    void TakePoint(Point point) {
        Take({point.x, point.y});
        magnitude_ = std::max(magnitude_, std::max(std::fabs(point.x), std::fabs(point.y)));
    }
    void TakeReach(Point center, double radius) {
        TakePoint(center);
        Take({radius});
        magnitude_ =
            std::max(magnitude_, std::max(std::fabs(center.x), std::fabs(center.y)) + std::fabs(radius));
    }

    void TakeEdge(const LineEdge& edge) {
        TakePoint(edge.start);
        TakePoint(edge.end);
    }
    void TakeEdge(const BulgeEdge& edge) {
        TakePoint(edge.start);
        TakePoint(edge.end);
        Take({edge.bulge});
        // The arc stays this close to its chord.
        TakeReach(edge.start, Distance(edge.start, edge.end) * (1.0 + std::fabs(edge.bulge)));
    }
    void TakeEdge(const ArcEdge& edge) {
        TakeReach(edge.center, edge.radius);
        Take({edge.startAngle, edge.endAngle});
    }
    void TakeEdge(const EllipseEdge& edge) {
        TakePoint(edge.majorAxis);
        TakeReach(edge.center, Length(edge.majorAxis) * std::max(1.0, std::fabs(edge.radiusRatio)));
        Take({edge.radiusRatio, edge.startAngle, edge.endAngle});
    }
    void TakeEdge(const SplineEdge& edge) {
        for (const Point& point : edge.curve.controlPoints) {
            TakePoint(point);
        }
    }

    Status Result() const { return status_; }
    double Magnitude() const { return magnitude_; }

private:
    Status status_ = Status::kOk;
    double magnitude_ = 0.0;
};

} // namespace

Status CheckHatchNumbers(const std::vector<HatchLoop>& loops, const std::vector<HatchFamily>& families,
                         double& magnitude) {
    NumberCheck check;
    for (const HatchLoop& loop : loops) {
        for (const HatchEdge& edge : loop.edges) {
            std::visit([&](const auto& shape) { check.TakeEdge(shape); }, edge);
        }
    }
    for (const HatchFamily& family : families) {
        check.Take({family.angle, family.base.x, family.base.y, family.offset.x, family.offset.y});
        for (const double dash : family.dashes) {
            check.Take({dash});
        }
    }
    magnitude = check.Magnitude();
    return check.Result();
}

} // namespace geometry
