#include "styles/LineDrawing.h"

#include "styles/Limits.h"
#include "styles/MapPictureParts.h"
#include "styles/MarkerParts.h"

#include <cmath>
#include <numbers>

namespace styles {
namespace {

using preview::Box;
using preview::Point;

// Bytes of a picture that can still be drawn in reasonable time.
constexpr std::size_t kMostText = 8'000'000;

// Pixels; what is shorter is no dash, and what reaches less over an end does not reach over it.
constexpr double kUnseen = 1e-6;

} // namespace

double PeriodOf(const Dashes& dashes) {
    double period = 0.0;
    for (const double length : dashes.lengths) {
        period += length;
    }
    return period;
}

Box BoxOf(const Mark& mark, double scale) {
    const Box own = PartBounds(*mark.part);
    const auto* const path = std::get_if<preview::PathPart>(mark.part);
    const double pen = path != nullptr && path->line ? PenOf(*path, scale) : 0.0;
    const double radians = mark.angle * (std::numbers::pi / 180);
    Box box;
    if (own.IsEmpty()) {
        return box;
    }
    for (const double x : {own.low.x, own.high.x}) {
        for (const double y : {own.low.y, own.high.y}) {
            box.Include(Turned(Point{x, y} - mark.anchor, std::cos(radians), std::sin(radians)) * scale);
        }
    }
    const Point around{pen / 2, pen / 2};
    return {box.low - around, box.high + around};
}

void LineDrawing::Draw(const LinePart& part) {
    std::visit([this](const auto& drawn) { DrawPart(drawn); }, part);
}

void LineDrawing::AppendDash(double from, double to, std::string& data) const {
    if (ends_ == LineEnds::kStop) {
        from = std::max(from, 0.0);
        to = std::min(to, length_);
        if (to - from < kUnseen) {
            return;
        }
    }
    data += "M" + PixelText(Point{from, middle_}) + "H" + PixelText(to);
}

void LineDrawing::DrawPart(const Dashes& dashes) {
    std::string strokes;
    if (dashes.lengths.empty()) {
        AppendDash(-1, length_ + 1, strokes);
    }
    const double period = PeriodOf(dashes) * kPixelsPerMillimetre;
    const double repeats = period > 0.0 ? std::ceil(length_ / period) + 1 : 0.0;
    if (!Counts(repeats * static_cast<double>(dashes.lengths.size()))) {
        return;
    }
    for (int repeat = 0; repeat < static_cast<int>(repeats); ++repeat) {
        double at = repeat * period - dashes.phase * kPixelsPerMillimetre;
        for (std::size_t i = 0; i + 1 < dashes.lengths.size(); i += 2) {
            const double end = at + dashes.lengths[i] * kPixelsPerMillimetre;
            AppendDash(at, end, strokes);
            at = end + dashes.lengths[i + 1] * kPixelsPerMillimetre;
        }
    }
    DrawInk(svg_, strokes, "", dashes.ink);
}

void LineDrawing::DrawPart(const Dots& dots) {
    const double reach = ends_ == LineEnds::kGoOn ? dots.ink.pen * kPixelsPerMillimetre : kUnseen;
    std::string data;
    ForEachPlace(dots.places, reach, reach, [&](double at) {
        data += "M" + PixelText(Point{at, middle_}) + "h0.01";
    });
    DrawInk(svg_, "", data, dots.ink);
}

void LineDrawing::DrawPart(const Mark& mark) {
    const double unit = scale_ * kPixelsPerMillimetre;
    const preview::Part part = WithPen(*mark.part, scale_);
    const preview::Placement placement{{-mark.anchor.x * unit, mark.anchor.y * unit}, unit};
    preview::PictureStyle style;
    style.exactPens = ends_ == LineEnds::kStop;
    const auto draw = [&](double at) {
        std::string place = "translate(" + PixelText(at) + " " + PixelText(middle_) + ")";
        if (mark.angle != 0.0) {
            place += " rotate(" + PlainNumber(0.0 - mark.angle) + ")";
        }
        if (text_.size() > kMostText) {
            isTooDense_ = true;
            return;
        }
        svg_.Open("g").Set("transform", place);
        preview::DrawPart(svg_, part, placement, style);
        svg_.Close();
    };
    if (ends_ == LineEnds::kGoOn) {
        const double reach = ReachOf(*mark.part, mark.anchor, scale_) * kPixelsPerMillimetre;
        ForEachPlace(mark.places, reach, reach, draw);
    } else if (const Box box = BoxOf(mark, scale_); !box.IsEmpty()) {
        ForEachPlace(mark.places, box.low.x * kPixelsPerMillimetre + kUnseen,
                     kUnseen - box.high.x * kPixelsPerMillimetre, draw);
    }
}

bool LineDrawing::Counts(double strokes) {
    isTooDense_ = isTooDense_ || !(strokes <= kMostPictureStrokes);
    return !isTooDense_;
}

// The places from so much behind the start of the line to so much before its end.
template <class Visit>
void LineDrawing::ForEachPlace(const Places& places, double behind, double before, const Visit& visit) {
    const double step = places.interval * kPixelsPerMillimetre;
    const double offset = places.offset * kPixelsPerMillimetre;
    const double first = std::ceil((-behind - offset) / step);
    const double count = std::floor((length_ + before - offset) / step) - first + 1;
    if (Counts(count)) {
        for (int i = 0; i < static_cast<int>(count); ++i) {
            visit(offset + (first + i) * step);
        }
    }
}

} // namespace styles
