#include "GeneratedBlocks.h"

#include <cmath>

double CurveGenerator::Between(double low, double high) {
    // Not std::uniform_real_distribution, whose values are the library's own business.
    return low + (high - low) * static_cast<double>(random_() >> 11) * 0x1p-53;
}

GeneratedCurve CurveGenerator::Next() {
    GeneratedCurve curve{};
    curve.kind = static_cast<GeneratedCurve::Kind>(count_ % 3);
    curve.dashed = count_ / 3 % 3 == 0;
    curve.layer = count_ * 7919 % layers_;
    curve.start = {Between(-500, 500), Between(-500, 500), 0};
    curve.end = {curve.start.x + Between(-8, 8), curve.start.y + Between(-8, 8), 0};
    curve.radius = Between(0.5, 2.5);
    curve.startAngle = Between(0, 3);
    curve.endAngle = curve.startAngle + Between(1, 5);
    ++count_;
    return curve;
}

std::vector<OxGePoint2d> WindingLine(std::size_t vertices) {
    std::vector<OxGePoint2d> points;
    points.reserve(vertices);
    std::mt19937_64 random(7);
    OxGePoint2d at{0, 0};
    double direction = 0;
    for (std::size_t i = 0; i < vertices; ++i) {
        points.push_back(at);
        direction += static_cast<double>(random() >> 11) * 0x1p-53 - 0.5;
        at.x += std::cos(direction);
        at.y += std::sin(direction);
    }
    return points;
}
