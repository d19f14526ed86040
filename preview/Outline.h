// A path in memory: moves, lines and curves.
#pragma once

#include "preview/PathReader.h"

#include <cstdint>
#include <vector>

namespace preview {

/// Collects what a path draws. Arcs become cubic curves, which can be moved, turned and mirrored like points
/// and have no flags that a mirrored axis would turn round; each stands for at most a sixth of a turn and
/// leaves the arc by less than 3e-5 of its radius.
class Outline : public PathSink {
public:
    enum class Step : std::uint8_t {
        kMove,  // 1 point
        kLine,  // 1 point
        kCurve, // 3 points: two control points and the end
    };

    void MoveTo(Point point) override;
    void LineTo(Point point) override;
    void ArcTo(const ArcShape& shape, Point point) override;

    bool IsEmpty() const { return steps_.empty(); }
    std::size_t Size() const { return steps_.size(); }
    const std::vector<Step>& Steps() const { return steps_; }
    /// The points of all steps, one after the other.
    const std::vector<Point>& Points() const { return points_; }
    /// The exact box around what is drawn: a move with nothing behind it draws nothing.
    const Box& Bounds() const { return bounds_; }
    /// Whether everything drawn is straight and lies on the x axis.
    bool IsOnAxis() const { return onAxis_; }

private:
    void Draw(Point from, Point to);

    std::vector<Step> steps_;
    std::vector<Point> points_;
    Box bounds_;
    bool onAxis_ = true;
};

/// Calls `line(from, to, startsHere)` for each line and `curve(from, control, control, to, startsHere)` for
/// each curve; `startsHere` is true for the first one behind a move.
template <class OnLine, class OnCurve>
void ForEachPiece(const Outline& outline, OnLine line, OnCurve curve) {
    Point current;
    bool startsHere = true;
    const Point* point = outline.Points().data();
    for (const Outline::Step step : outline.Steps()) {
        switch (step) {
        case Outline::Step::kMove:
            current = *point++;
            startsHere = true;
            continue;
        case Outline::Step::kLine:
            line(current, point[0], startsHere);
            current = *point++;
            break;
        case Outline::Step::kCurve:
            curve(current, point[0], point[1], point[2], startsHere);
            current = point[2];
            point += 3;
            break;
        }
        startsHere = false;
    }
}

} // namespace preview
