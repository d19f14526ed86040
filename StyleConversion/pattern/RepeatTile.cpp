// The lattice of a family has the basis (dash cycle, 0), (offset, spacing), turned by the family's angle.
#include "StyleConversion/pattern/RepeatTile.h"

#include "StyleConversion/pattern/PatternLimits.h"

#include <cmath>
#include <limits>

namespace pattern {
namespace {

// The first n, from 1 on, for which n * step is nearly a whole number; 0 when the search ends without one.
int FirstNearInteger(double step) {
    for (int n = 1; n <= kLatticeSearch; ++n) {
        const double v = n * step;
        if (std::fabs(v - std::floor(v + 0.5)) < kLatticeTolerance) {
            return n;
        }
    }
    return 0;
}

} // namespace

bool FindRotatedTile(PatternLine& line) {
    const double a = line.angle * kRadiansPerDegree;
    const double c = std::cos(a);
    const double s = std::sin(a);
    const double d = line.offset;
    const double h = line.spacing;
    const double T = line.dashTotal;
    if (d == 0 || c == 0 || s == 0) {
        return false;
    }

    // n lines up and v dash cycles along lead straight to the side.
    const double p = h * c + d * s;
    const double q = -p / (T * s);
    const int n = FirstNearInteger(q);
    if (n == 0) {
        return false;
    }
    const double v = n * q;
    const double rx = (d * c - h * s) * n + T * c * v;

    // m lines up and w dash cycles along lead straight up.
    const double r = -(d * c - h * s) / (T * c);
    const int m = FirstNearInteger(r);
    if (m == 0) {
        return false;
    }
    const double w = m * r;
    const double ry = m * p + T * s * w;

    // Written so that a NaN fails.
    if (!(std::fabs(std::fabs(T * h / (ry * rx)) - 1) < kAreaTolerance)) {
        return false;
    }
    line.repeatX = rx;
    line.repeatY = ry;
    line.rotatedTile = true;
    return true;
}

bool FindStackedTile(PatternLine& line) {
    const double d = line.offset;
    const double T = line.dashTotal;
    if (d == 0) {
        return false;
    }
    double phase = 0.0;
    double best = std::numeric_limits<double>::max();
    int count = 1;
    for (int n = 1; n <= kStackSearch; ++n) {
        phase += d;
        const double error = std::fabs(phase - T);
        if (error < best) {
            best = error;
            count = n;
        }
        if (error < kPhaseTolerance) {
            break;
        }
        if (phase >= T) {
            phase -= T;
        }
    }
    if (!(best < d * kLargestPhaseError)) {
        return false;
    }
    line.rowCount = count;
    line.repeatX = T;
    line.repeatY = count * line.spacing;
    return true;
}

} // namespace pattern
