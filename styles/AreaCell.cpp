#include "styles/AreaCell.h"

#include "styles/Limits.h"
#include "styles/MapPicture.h"
#include "styles/MapPictureParts.h"

#include <numbers>

namespace styles {
namespace {

using preview::Box;
using preview::Point;

// Pixels of a side in which nothing changes.
constexpr double kPlainSide = 16;

// The drawing of tilings that show in a box, in pixels, y up.
class CellDrawing {
public:
    CellDrawing(Point size, double pen) : size_(size), reach_(pen) {}

    // False where there are too many strokes.
    bool Add(const Tiling& tiling) {
        const double radians = tiling.angle * (std::numbers::pi / 180);
        cosine_ = std::cos(radians);
        sine_ = std::sin(radians);
        const Box seen = SeenBy();
        for (const double y : tiling.rows) {
            AddEndless(y, tiling.stepY, seen.low.y, seen.high.y, [&](double at) {
                return Stroke{{seen.low.x, at}, {seen.high.x, at}};
            });
        }
        for (const double x : tiling.columns) {
            AddEndless(x, tiling.stepX, seen.low.x, seen.high.x, [&](double at) {
                return Stroke{{at, seen.low.y}, {at, seen.high.y}};
            });
        }
        for (const Stroke& stroke : tiling.strokes) {
            AddRepeated(stroke, tiling, seen);
        }
        for (const Point dot : tiling.dots) {
            AddRepeated({dot, dot}, tiling, seen);
        }
        return tries_ <= kMostPictureStrokes;
    }

    const std::string& Strokes() const { return strokes_; }
    const std::string& Dots() const { return dots_; }

private:
    struct Steps {
        double first;
        int count;
    };

    // The picture, and the pen around it, as the tiling's axes see it.
    Box SeenBy() const {
        Box seen;
        for (const double x : {-reach_, size_.x + reach_}) {
            for (const double y : {-reach_, size_.y + reach_}) {
                seen.Include(preview::Turned({x, y}, cosine_, -sine_));
            }
        }
        return seen;
    }

    // The steps that bring what reaches from `from` to `to` between `low` and `high`.
    static Steps StepsOf(double from, double to, double step, double low, double high) {
        const double first = std::ceil((low - std::max(from, to)) / step);
        const double last = std::floor((high - std::min(from, to)) / step);
        const double count = last - first + 1;
        // More than can be drawn are as good as one more than that.
        return {first, count > 0.0 ? static_cast<int>(std::min(count, kMostPictureStrokes + 1)) : 0};
    }

    // Whether there are not too many with these.
    bool Counts(double strokes) {
        tries_ += strokes;
        return tries_ <= kMostPictureStrokes;
    }

    template <class StrokeAt>
    void AddEndless(double place, double step, double low, double high, const StrokeAt& strokeAt) {
        const Steps steps = StepsOf(place, place, step, low, high);
        if (Counts(steps.count)) {
            for (int i = 0; i < steps.count; ++i) {
                Append(strokeAt(place + (steps.first + i) * step));
            }
        }
    }

    void AddRepeated(const Stroke& stroke, const Tiling& tiling, const Box& seen) {
        const Steps across = StepsOf(stroke.from.x, stroke.to.x, tiling.stepX, seen.low.x, seen.high.x);
        const Steps upright = StepsOf(stroke.from.y, stroke.to.y, tiling.stepY, seen.low.y, seen.high.y);
        if (!Counts(double{1} * across.count * upright.count)) {
            return;
        }
        for (int j = 0; j < upright.count; ++j) {
            for (int i = 0; i < across.count; ++i) {
                const Point moved{(across.first + i) * tiling.stepX, (upright.first + j) * tiling.stepY};
                Append({stroke.from + moved, stroke.to + moved});
            }
        }
    }

    void Append(const Stroke& stroke) {
        const Point from = Turned(stroke.from, cosine_, sine_);
        const Point to = Turned(stroke.to, cosine_, sine_);
        if (std::max(from.x, to.x) < -reach_ || std::min(from.x, to.x) > size_.x + reach_ ||
            std::max(from.y, to.y) < -reach_ || std::min(from.y, to.y) > size_.y + reach_) {
            return;
        }
        std::string& data = stroke.from == stroke.to ? dots_ : strokes_;
        data += "M" + Pixels(from);
        data += stroke.from == stroke.to ? "h0.01" : "L" + Pixels(to);
    }

    std::string Pixels(Point point) const { return PixelText({point.x, size_.y - point.y}); }

    Point size_;
    double reach_;
    double cosine_ = 1.0;
    double sine_ = 0.0;
    double tries_ = 0.0;
    std::string strokes_;
    std::string dots_;
};

Tiling InPixels(const Tiling& tiling) {
    Tiling result = tiling;
    result.stepX *= kPixelsPerMillimetre;
    result.stepY *= kPixelsPerMillimetre;
    for (double& row : result.rows) {
        row *= kPixelsPerMillimetre;
    }
    for (double& column : result.columns) {
        column *= kPixelsPerMillimetre;
    }
    for (Stroke& stroke : result.strokes) {
        stroke = {stroke.from * kPixelsPerMillimetre, stroke.to * kPixelsPerMillimetre};
    }
    for (Point& dot : result.dots) {
        dot = dot * kPixelsPerMillimetre;
    }
    return result;
}

std::vector<Tiling> AllTilings(const AreaParts& area) {
    std::vector<Tiling> tilings;
    for (const AreaLayer& layer : area.layers) {
        tilings.insert(tilings.end(), layer.tilings.begin(), layer.tilings.end());
    }
    return tilings;
}

} // namespace

AreaParts AreaPartsInPixels(const preview::ResolvedSymbol& symbol, double scale) {
    AreaParts area = AreaPartsOf(symbol, scale);
    for (AreaLayer& layer : area.layers) {
        for (Tiling& tiling : layer.tilings) {
            tiling = InPixels(tiling);
        }
    }
    return area;
}

std::optional<UprightCell> CellOf(const AreaParts& area, double longest, bool approximates) {
    auto cell = SmallestUprightCell(AllTilings(area), longest, kSeamless);
    if (!cell || (!approximates && std::max(cell->across.error, cell->upright.error) > kSeamless)) {
        return std::nullopt;
    }
    for (CellSide* const side : {&cell->across, &cell->upright}) {
        side->length = side->length > 0.0 ? side->length : kPlainSide;
    }
    return cell;
}

bool DrawArea(const AreaParts& area, Point size, preview::SvgWriter& svg) {
    for (const AreaLayer& layer : area.layers) {
        CellDrawing drawing(size, layer.ink.pen * kPixelsPerMillimetre);
        for (const Tiling& tiling : layer.tilings) {
            if (!drawing.Add(tiling)) {
                return false;
            }
        }
        DrawInk(svg, drawing.Strokes(), drawing.Dots(), layer.ink);
    }
    return true;
}

} // namespace styles
