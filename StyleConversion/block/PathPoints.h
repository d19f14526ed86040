// Points of the drawing in paths, in millimetres.
#pragma once

#include "StyleConversion/encoding/ScaledPath.h"
#include "StyleConversion/interfaces/HostNames.h"

#include <string>

namespace block {

/// Each appends a command and the point behind it; `scale` is millimetres per drawing unit. StartAt begins a
/// subpath behind what the path has, if anything.
inline void StartAt(std::wstring& path, const OxGePoint2d& point, double scale) {
    encoding::AppendPoint(path, path.empty() ? encoding::kFirstMove : encoding::kMove, {point.x, point.y},
                          scale);
}
inline void MoveTo(std::wstring& path, const OxGePoint2d& point, double scale) {
    encoding::AppendPoint(path, encoding::kMove, {point.x, point.y}, scale);
}
inline void LineTo(std::wstring& path, const OxGePoint2d& point, double scale) {
    encoding::AppendPoint(path, encoding::kLine, {point.x, point.y}, scale);
}

} // namespace block
