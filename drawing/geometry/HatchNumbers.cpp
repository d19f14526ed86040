// Checking the numbers of a hatch.
#include "drawing/geometry/HatchNumbers.h"

#include "drawing/geometry/Limits.h"
#include "drawing/geometry/NurbCurveData.h"

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
    void TakeLoop(const HatchLoop& loop) {
        if (loop.polyline) {
            TakePolyline(loop.polyline->vertices);
            return;
        }
        for (const HatchEdge& edge : loop.edges) {
            std::visit([this](const auto& curve) { TakeEdge(curve); }, edge);
        }
    }

    Status Result() const { return status_; }
    double Magnitude() const { return magnitude_; }

private:
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

    /// Fewer than two vertices bound nothing, and their numbers do not count.
    void TakePolyline(const std::vector<BulgeVertex>& vertices) {
        for (std::size_t index = 0; index < vertices.size() && vertices.size() > 1; ++index) {
            const BulgeVertex& from = vertices[index];
            const Point to = vertices[(index + 1) % vertices.size()].point;
            TakePoint(from.point);
            TakePoint(to);
            if (from.bulge != 0.0) {
                Take({from.bulge});
                // The arc stays this close to its chord.
                TakeReach(from.point, Distance(from.point, to) * (1.0 + std::fabs(from.bulge)));
            }
        }
    }
    void TakeEdge(const OxGeLineSeg2d& edge) {
        TakePoint(edge.startPoint());
        TakePoint(edge.endPoint());
    }
    void TakeEdge(const OxGeCircArc2d& edge) {
        TakeReach(edge.center(), edge.radius());
        Take({edge.startAng(), edge.endAng()});
    }
    void TakeEdge(const OxGeEllipArc2d& edge) {
        const OxGeVector2d axis = edge.majorAxis();
        TakePoint({axis.x, axis.y});
        TakeReach(edge.center(), axis.length() * std::max(1.0, std::fabs(edge.radiusRatio())));
        Take({edge.radiusRatio(), edge.startAng(), edge.endAng()});
    }
    void TakeEdge(const std::shared_ptr<const OxGeNurbCurve2d>& edge) {
        if (edge->data() != nullptr) {
            for (const Point& point : edge->data()->curve.controlPoints) {
                TakePoint(point);
            }
        }
    }

    Status status_ = Status::kOk;
    double magnitude_ = 0.0;
};

} // namespace

Status CheckHatchNumbers(const std::vector<HatchLoop>& loops, const std::vector<HatchFamily>& families,
                         double& magnitude) {
    NumberCheck check;
    for (const HatchLoop& loop : loops) {
        check.TakeLoop(loop);
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
