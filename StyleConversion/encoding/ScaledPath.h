// Path pieces of blocks: trimmed fixed-point numbers, multiplied by a scale (millimetres per drawing unit).
// No piece ends in a blank; each but the first move begins with one.
#pragma once

#include <string>
#include <string_view>

namespace encoding {

/// A position in the plane, in drawing units.
struct Point {
    double x = 0.0;
    double y = 0.0;
};

/// The commands that a point follows. The first move stands at a path's start.
inline constexpr std::wstring_view kFirstMove = L"M ";
inline constexpr std::wstring_view kMove = L" M ";
inline constexpr std::wstring_view kLine = L" L ";

/// The command and "x,y", each multiplied by `scale`.
void AppendPoint(std::wstring& path, std::wstring_view command, Point point, double scale);

/// " L x,y" to `to`, or, where the segment is vertical or horizontal within 1e-6 drawing units, the relative
/// " v dy" or " h dx". Where one difference equals 1e-6 exactly and the other exceeds it, nothing is written.
/// Where exact numbers are in use, always the point.
/// Required: R3
void AppendLineToString(std::wstring& path, Point from, Point to, double scale);

/// " A rx,ry rotation large sweep x,y": an elliptic arc from the path's current point to `end`. The radii are
/// scaled like a point, the rotation (degrees from the x axis to the radius x) is not scaled.
void AppendArcString(std::wstring& path, double radiusX, double radiusY, double rotation, bool largeArc,
                     bool sweep, Point end, double scale);

} // namespace encoding
