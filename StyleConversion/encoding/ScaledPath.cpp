#include "StyleConversion/encoding/ScaledPath.h"

#include "StyleConversion/encoding/ExactNumbers.h"
#include "StyleConversion/encoding/PathPiece.h"

#include <cmath>

namespace encoding {
namespace {

// Below this difference, in drawing units, two coordinates count as equal.
constexpr double kTolerance = 1e-6;

} // namespace

void AppendPoint(std::wstring& path, std::wstring_view command, Point point, double scale) {
    PathPiece().Words(command).Pair(point.x * scale, point.y * scale).AppendTo(path);
}

void AppendLineToString(std::wstring& path, Point from, Point to, double scale) {
    if (AreNumbersExact()) {
        AppendPoint(path, kLine, to, scale);
        return;
    }
    const double dx = std::fabs(from.x - to.x);
    const double dy = std::fabs(from.y - to.y);
    if ((dx < kTolerance && dy < kTolerance) || (dx > kTolerance && dy > kTolerance)) {
        AppendPoint(path, kLine, to, scale);
    } else if (dx < kTolerance) {
        PathPiece().Words(L" v ").Number((to.y - from.y) * scale).AppendTo(path);
    } else if (dy < kTolerance) {
        PathPiece().Words(L" h ").Number((to.x - from.x) * scale).AppendTo(path);
    }
}

void AppendArcString(std::wstring& path, double radiusX, double radiusY, double rotation, bool largeArc,
                     bool sweep, Point end, double scale) {
    PathPiece()
        .Words(L" A ")
        .Pair(radiusX * scale, radiusY * scale)
        .Words(L" ")
        .Number(rotation)
        .Words(largeArc ? L" 1" : L" 0")
        .Words(sweep ? L" 1 " : L" 0 ")
        .Pair(end.x * scale, end.y * scale)
        .AppendTo(path);
}

} // namespace encoding
