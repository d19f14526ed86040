#include "preview/Outline.h"

#include "StyleConversion/encoding/IntegerConversion.h"

#include <numbers>

namespace preview {

void Outline::Draw(Point from, Point to) {
    bounds_.Include(from);
    bounds_.Include(to);
    onAxis_ = onAxis_ && from.y == 0.0 && to.y == 0.0;
}

void Outline::MoveTo(Point point) {
    steps_.push_back(Step::kMove);
    points_.push_back(point);
}

void Outline::LineTo(Point point) {
    Draw(points_.back(), point);
    steps_.push_back(Step::kLine);
    points_.push_back(point);
}

void Outline::ArcTo(const ArcShape& shape, Point point) {
    const Point from = points_.back();
    const std::optional<CenteredArc> arc = CenterOf(from, shape, point);
    if (!arc) {
        LineTo(point);
        return;
    }
    Draw(from, point);
    bounds_.Include(arc->Bounds());
    onAxis_ = false;
    constexpr double kLongestPiece = std::numbers::pi / 3;
    const int pieces =
        std::max(1, encoding::ToInt32(std::ceil(std::fabs(arc->sweep) / kLongestPiece - 1e-9)));
    const double step = arc->sweep / pieces;
    // The length of the handles that makes the curve's middle lie on the arc.
    const double handle = 4.0 / 3.0 * std::tan(step / 4);
    for (int piece = 0; piece < pieces; ++piece) {
        const double start = arc->start + piece * step;
        const double end = arc->start + (piece + 1) * step;
        steps_.push_back(Step::kCurve);
        points_.push_back(arc->At(start) + arc->DirectionAt(start) * handle);
        points_.push_back(arc->At(end) - arc->DirectionAt(end) * handle);
        points_.push_back(piece + 1 == pieces ? point : arc->At(end));
    }
}

} // namespace preview
