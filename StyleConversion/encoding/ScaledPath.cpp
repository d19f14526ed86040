#include "StyleConversion/encoding/ScaledPath.h"

#include "StyleConversion/encoding/TrimmedNumber.h"

#include <cmath>

namespace encoding {
namespace {

// Below this difference, in drawing units, two coordinates count as equal.
constexpr double kTolerance = 1e-6;

} // namespace

void AppendPoint(std::wstring& path, Point point, double scale) {
    AppendTrimmed(path, point.x * scale);
    path += L',';
    AppendTrimmed(path, point.y * scale);
}

void AppendLineToString(std::wstring& path, Point from, Point to, double scale) {
    const double dx = std::fabs(from.x - to.x);
    const double dy = std::fabs(from.y - to.y);
    if ((dx < kTolerance && dy < kTolerance) || (dx > kTolerance && dy > kTolerance)) {
        path += L" L ";
        AppendPoint(path, to, scale);
    } else if (dx < kTolerance) {
        path += L" v ";
        AppendTrimmed(path, (to.y - from.y) * scale);
    } else if (dy < kTolerance) {
        path += L" h ";
        AppendTrimmed(path, (to.x - from.x) * scale);
    }
}

void AppendArcString(std::wstring& path, double radiusX, double radiusY, double rotation, bool largeArc,
                     bool sweep, Point end, double scale) {
    path += L" A ";
    AppendPoint(path, {radiusX, radiusY}, scale);
    path += L' ';
    AppendTrimmed(path, rotation);
    path += largeArc ? L" 1" : L" 0";
    path += sweep ? L" 1 " : L" 0 ";
    AppendPoint(path, end, scale);
}

} // namespace encoding
