// A point symbol by itself.

#include "preview/PictureParts.h"

namespace preview {
namespace {

constexpr double kMargin = 20;           // pixels
constexpr double kSmallestTrueSize = 24; // pixels; what is smaller is enlarged to be seen

// Pixels per unit that let a box fill the picture. Units are millimetres, so a box that fits as it is can be
// shown so.
double ScaleFor(const Box& box, const PictureStyle& style) {
    const double across = (style.width - 2 * kMargin) / box.Width();
    const double upright = (style.height - 2 * kMargin) / box.Height();
    const double scale = std::min(across, upright);
    if (!std::isfinite(scale)) { // a single point
        return kPixelsPerMillimetre;
    }
    const bool legible = std::max(box.Width(), box.Height()) * kPixelsPerMillimetre >= kSmallestTrueSize;
    return style.trueSize && legible ? std::min(scale, kPixelsPerMillimetre) : scale;
}

} // namespace

Box FrameOf(const ResolvedSymbol& symbol) {
    Box bounds;
    for (const Member& member : symbol.members) {
        bounds.Include(member.frame);
    }
    return bounds;
}

double PointScale(const ResolvedSymbol& symbol, Canvas& canvas) {
    return FrameOf(symbol).IsEmpty() ? 0.0 : ScaleFor(TurnedBounds(symbol, &Member::frame), canvas.style);
}

void DrawPointPicture(Canvas& canvas, const ResolvedSymbol& symbol, double scale) {
    const Box bounds = canvas.style.frame.value_or(FrameOf(symbol));
    if (bounds.IsEmpty()) {
        return;
    }
    const Point middle = bounds.Middle();
    // A box wider than the largest double has no scale that fits.
    if (!(scale > 0.0) || !std::isfinite(middle.x * scale) || !std::isfinite(middle.y * scale)) {
        canvas.Note(kTooLarge);
        return;
    }
    // Turning the symbol about its middle keeps it in the picture, wherever its insertion point is.
    canvas.svg.Open("g")
        .Set("transform", Translation({canvas.style.width / 2, canvas.style.height / 2}))
        .Set("class", "fit");
    const Placement placement{{0.0 - middle.x * scale, middle.y * scale}, scale};
    for (const Member& member : symbol.members) {
        canvas.svg.Open("g");
        SetRotation(canvas.svg, member.angle, canvas.style);
        for (const Part& part : member.parts) {
            DrawPart(canvas.svg, part, placement, canvas.style);
        }
        canvas.svg.Close();
    }
    canvas.svg.Close();
}

} // namespace preview
