// Entities of drawings for measuring: the same for the same numbers.
#pragma once

#include "OxDb/OxGePoint.h"

#include <cstddef>
#include <random>
#include <vector>

/// Lines, arcs and circles in turn; of each kind every third is dashed. Lengths are a few times the
/// pattern's.
struct GeneratedCurve {
    enum Kind { kLine, kArc, kCircle };

    Kind kind;
    bool dashed;
    std::size_t layer;
    OxGePoint3d start; // or the centre
    OxGePoint3d end;
    double radius;
    double startAngle;
    double endAngle;
};

class CurveGenerator {
public:
    /// Curves are spread over so many layers.
    explicit CurveGenerator(std::size_t layers) : layers_(layers) {}
    GeneratedCurve Next();

private:
    double Between(double low, double high);

    std::size_t layers_;
    std::size_t count_ = 0;
    std::mt19937_64 random_{7};
};

/// The dashes of the linetype.
inline const std::vector<double> kDashLengths{0.5, -0.25, 0.0, -0.25};

/// A winding line of so many vertices, steps of about a unit.
std::vector<OxGePoint2d> WindingLine(std::size_t vertices);
