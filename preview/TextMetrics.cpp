#include "preview/TextMetrics.h"

#include <numbers>

namespace preview {

double BaselineShift(const TextPart& text) {
    switch (text.vertical) {
    case VerticalAnchor::kBottom:
        return FontSize(text) * kDescent;
    case VerticalAnchor::kMiddle:
        return -text.height / 2;
    case VerticalAnchor::kTop:
        return -text.height;
    case VerticalAnchor::kBaseline:
        break;
    }
    return 0.0;
}

Box EstimatedBoxAtPosition(const TextPart& text) {
    const double width = FontSize(text) * kAdvance * static_cast<double>(text.content.size());
    double left = 0.0;
    if (text.horizontal == HorizontalAnchor::kMiddle) {
        left = -width / 2;
    } else if (text.horizontal == HorizontalAnchor::kRight) {
        left = -width;
    }
    const double baseline = BaselineShift(text);
    Box box;
    box.Include(Point{left, baseline - FontSize(text) * kDescent});
    box.Include(Point{left + width, baseline + text.height});
    return box;
}

Box EstimatedBounds(const TextPart& text) {
    const double angle = text.angle.value * (std::numbers::pi / 180.0);
    const Box box = EstimatedBoxAtPosition(text);
    Box bounds;
    for (const Point corner :
         {box.low, box.high, Point{box.low.x, box.high.y}, Point{box.high.x, box.low.y}}) {
        bounds.Include(text.position + Turned(corner, std::cos(angle), std::sin(angle)));
    }
    return bounds;
}

} // namespace preview
