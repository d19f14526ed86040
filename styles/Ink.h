// One colour and one pen.
#pragma once

#include "preview/ResolvedSymbol.h"

namespace styles {

/// The pen of a symbol that names none, in millimetres: thinner ones come to less than a pixel on screens,
/// where map programs lose the phase of dashes.
inline constexpr double kDefaultPen = 0.3;

struct Ink {
    preview::Color color;
    double pen = kDefaultPen; // millimetres

    friend bool operator==(const Ink&, const Ink&) = default;
};

/// The pen of a path in a symbol that is drawn `scale` times as large. Weights that do not scale are
/// millimetres.
inline double PenOf(const preview::PathPart& path, double scale) {
    const double pen = path.weight.value * (path.scalable ? scale : 1.0);
    return pen > 0.0 ? pen : kDefaultPen;
}

} // namespace styles
