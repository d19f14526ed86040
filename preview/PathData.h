// The text of an SVG path, and of its dots.
#pragma once

#include "preview/Outline.h"

#include <string>

namespace preview {

/// Collects path data in pixels, y down. Points are rounded to hundredths before the differences between them
/// are written, so that errors do not add up along a path.
///
/// A part between two moves that comes to a single point is a dot. Renderers show it only with a round cap,
/// which would lengthen every dash, so dots are collected apart.
class PathData {
public:
    void MoveTo(Point point);
    void LineTo(Point point);
    void CurveTo(Point control1, Point control2, Point point);
    /// To be called once, behind the last command.
    void Finish() { EndPart(); }

    const std::string& Strokes() const { return strokes_; }
    const std::string& Dots() const { return dots_; }
    /// Lines and curves so far.
    std::size_t Size() const { return size_; }

private:
    struct Hundredths {
        long long x = 0;
        long long y = 0;
        friend bool operator==(const Hundredths&, const Hundredths&) = default;
    };

    static Hundredths Rounded(Point point);
    void StartStroke();
    void EndPart();
    void AppendDifference(Hundredths from, Hundredths to);

    std::string strokes_;
    std::string dots_;
    Hundredths current_;
    bool moved_ = false;  // a move has no stroke behind it yet
    bool dotted_ = false; // and a command that stayed at its point
    std::size_t size_ = 0;
};

/// A drawing's own axes seen in pixels: its origin, the pixels of one unit, and the angle it is turned by.
struct Placement {
    Point origin;
    double scale = 1.0;
    double cosine = 1.0;
    double sine = 0.0;

    Point operator()(Point point) const {
        const Point turned = Turned(point, cosine, sine);
        return {origin.x + turned.x * scale, origin.y - turned.y * scale};
    }
};

/// Appends an outline, y turned down.
void AppendOutline(PathData& data, const Outline& outline, const Placement& placement);

} // namespace preview
