// Reads path geometry of the symbol model and tells a sink what it draws.
#pragma once

#include "preview/EllipticalArc.h"

#include <cstddef>
#include <string_view>

namespace preview {

/// What a path draws, in order. Points are absolute, in the path's units, y up.
class PathSink {
public:
    virtual ~PathSink() = default;
    virtual void MoveTo(Point point) = 0;
    virtual void LineTo(Point point) = 0;
    virtual void ArcTo(const ArcShape& shape, Point point) = 0;
};

/// How far a reading came.
struct PathReading {
    bool complete = false;
    std::size_t used =
        0; // characters; where a reading that is not complete stopped, the offending command starts
    std::size_t commands = 0; // that reached the sink
};

/// Reads "M x,y", "L x,y" and "A rx,ry rotation large sweep x,y", absolute, and "h dx", "v dy" and
/// "l dx,dy", relative to the point before; sweep 1 is clockwise. Blanks may stand before and behind each
/// command and need not. The first command must be a move. Reading stops at the first thing that is no
/// command, has a number missing or leaves the range of doubles; the sink has been told what stood before it.
/// Time grows with the length of the text.
PathReading ReadPath(std::wstring_view text, PathSink& sink);

} // namespace preview
