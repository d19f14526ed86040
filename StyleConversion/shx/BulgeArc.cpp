// Centre, radius and angles of a bulge arc.
#include "StyleConversion/shx/BulgeArc.h"

#include <cmath>

namespace ShxUtility {
namespace {

constexpr double kPi = 3.141592653589793;
constexpr double kFullBulge = 127.0;

// The direction of (x, y), in degrees.
double Direction(double x, double y) {
    return std::atan2(y, x) * 180.0 / kPi;
}

} // namespace

ShapeInstruction BulgeArc(std::int8_t dx, std::int8_t dy, std::int8_t bulge) {
    ShapeInstruction instruction;
    const double b = bulge / kFullBulge;
    if (bulge == 0 || (dx == 0 && dy == 0)) {
        instruction.op = ShapeOp::Move;
        instruction.x = dx;
        instruction.y = dy;
        return instruction;
    }
    // The centre lies on the chord's perpendicular bisector, relative to the start point.
    const double k = (1.0 / b - b) * 0.5;
    const double cy = (k * dx + dy) * 0.5;
    const double cx = (dx - k * dy) * 0.5;
    double start = Direction(-cx, -cy);
    double end = Direction(dx - cx, dy - cy);
    // First the short way round, then the way that the bulge's sign asks for.
    if (end - start > 180.0) {
        start += 360.0;
    } else if (end - start < -180.0) {
        end += 360.0;
    }
    if (bulge < 0 && end > start) {
        start += 360.0;
    } else if (bulge > 0 && start > end) {
        end += 360.0;
    }
    instruction.op = ShapeOp::Arc;
    instruction.x = start;
    instruction.y = end;
    instruction.radius = std::sqrt(cx * cx + cy * cy);
    return instruction;
}

} // namespace ShxUtility
