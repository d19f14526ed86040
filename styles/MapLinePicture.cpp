// One repeat of a line as a picture.
#include "styles/Limits.h"
#include "styles/LineParts.h"
#include "styles/MapPicture.h"
#include "styles/MapPictureParts.h"
#include "styles/UprightCell.h"

#include <utility>

namespace styles {
namespace {

using preview::Point;

// Bytes of a picture that can still be drawn in reasonable time.
constexpr std::size_t kMostText = 8'000'000;

double PeriodOf(const Dashes& dashes) {
    double period = 0.0;
    for (const double length : dashes.lengths) {
        period += length;
    }
    return period;
}

class LineDrawing {
public:
    // Lengths are pixels; `scale` gives millimetres. `text` is what the writer appends to.
    LineDrawing(double length, double middle, double scale, const std::string& text, preview::SvgWriter& svg)
        : length_(length), middle_(middle), scale_(scale), unit_(scale * kPixelsPerMillimetre), text_(text),
          svg_(svg) {}

    bool IsTooDense() const { return isTooDense_; }

    void Draw(const Dashes& dashes) {
        std::string strokes;
        const auto append = [&](double from, double to) {
            strokes += "M" + PixelText(Point{from, middle_}) + "H" + PixelText(to);
        };
        const double period = PeriodOf(dashes) * kPixelsPerMillimetre;
        if (dashes.lengths.empty()) {
            append(-1, length_ + 1);
        }
        const double repeats = period > 0.0 ? std::ceil(length_ / period) + 1 : 0.0;
        if (!Counts(repeats * static_cast<double>(dashes.lengths.size()))) {
            return;
        }
        for (int repeat = 0; repeat < static_cast<int>(repeats); ++repeat) {
            double at = repeat * period - dashes.phase * kPixelsPerMillimetre;
            for (std::size_t i = 0; i + 1 < dashes.lengths.size(); i += 2) {
                const double end = at + dashes.lengths[i] * kPixelsPerMillimetre;
                append(at, end);
                at = end + dashes.lengths[i + 1] * kPixelsPerMillimetre;
            }
        }
        DrawInk(svg_, strokes, "", dashes.ink);
    }

    void Draw(const Dots& dots) {
        std::string data;
        ForEachPlace(dots.places, dots.ink.pen * kPixelsPerMillimetre, [&](double at) {
            data += "M" + PixelText(Point{at, middle_}) + "h0.01";
        });
        DrawInk(svg_, "", data, dots.ink);
    }

    void Draw(const Mark& mark) {
        const double reach = ReachOf(*mark.part, mark.anchor, scale_) * kPixelsPerMillimetre;
        const preview::Part part = WithPen(*mark.part, scale_);
        const preview::Placement placement{{-mark.anchor.x * unit_, mark.anchor.y * unit_}, unit_};
        ForEachPlace(mark.places, reach, [&](double at) {
            std::string place = "translate(" + PixelText(at) + " " + PixelText(middle_) + ")";
            if (mark.angle != 0.0) {
                place += " rotate(" + PlainNumber(0.0 - mark.angle) + ")";
            }
            if (text_.size() > kMostText) {
                isTooDense_ = true;
                return;
            }
            svg_.Open("g").Set("transform", place);
            DrawPart(svg_, part, placement, {});
            svg_.Close();
        });
    }

private:
    bool Counts(double strokes) {
        isTooDense_ = isTooDense_ || !(strokes <= kMostPictureStrokes);
        return !isTooDense_;
    }

    // The places in the picture, and so near to it that what stands there reaches into it.
    template <class Visit>
    void ForEachPlace(const Places& places, double reach, const Visit& visit) {
        const double step = places.interval * kPixelsPerMillimetre;
        const double offset = places.offset * kPixelsPerMillimetre;
        const double first = std::ceil((-reach - offset) / step);
        const double count = std::floor((length_ + reach - offset) / step) - first + 1;
        if (Counts(count)) {
            for (int i = 0; i < static_cast<int>(count); ++i) {
                visit(offset + (first + i) * step);
            }
        }
    }

    double length_;
    double middle_;
    double scale_;
    double unit_; // pixels
    bool isTooDense_ = false;
    const std::string& text_;
    preview::SvgWriter& svg_;
};

struct Extent {
    std::vector<Repetition> repetitions; // pixels
    double reach = 0.0;                  // to one side of the line
};

Extent ExtentOf(const std::vector<LinePart>& parts, double scale, Losses& losses) {
    Extent extent;
    for (const LinePart& part : parts) {
        double interval = 0.0;
        double reach = 0.0;
        if (const auto* const dashes = std::get_if<Dashes>(&part)) {
            interval = PeriodOf(*dashes);
            reach = dashes->ink.pen / 2;
        } else if (const auto* const dots = std::get_if<Dots>(&part)) {
            interval = dots->places.interval;
            reach = dots->ink.pen / 2;
        } else {
            const auto& mark = std::get<Mark>(part);
            interval = mark.places.interval;
            // What is turned reaches as far as its corners.
            reach = ReachOf(*mark.part, mark.anchor, scale) * (mark.angle == 0.0 ? 1.0 : 1.5);
            if (!mark.turnsWithLine) {
                losses.insert(Loss::kUprightMarks);
            }
        }
        if (interval > 0.0) {
            extent.repetitions.push_back({1.0, interval * kPixelsPerMillimetre});
        }
        extent.reach = std::max(extent.reach, reach * kPixelsPerMillimetre);
    }
    return extent;
}

} // namespace

MapPicture LinePicture(const preview::ResolvedSymbol& symbol, double scale) {
    // Pixels of a line that has nothing to repeat.
    constexpr double kPlainLength = 16;
    MapPicture picture;
    const LineParts line = LinePartsOf(symbol, scale);
    picture.losses = line.losses;
    if (line.parts.empty()) {
        picture.losses.insert(Loss::kNoInk);
        return picture;
    }
    const Extent extent = ExtentOf(line.parts, scale, picture.losses);
    const auto side = CommonSide(extent.repetitions, kLargestPicture, kSeamless);
    if (!side || side->error > kSeamless) {
        picture.losses.insert(Loss::kLongRepeat);
        return picture;
    }
    const double height = 2 * std::ceil(extent.reach + 0.5);
    if (!(height <= kLargestPicture)) {
        picture.losses.insert(Loss::kTooLarge);
        return picture;
    }
    const double length = side->length > 0.0 ? side->length : kPlainLength;
    const WholeSide whole = WholePixels(length);
    picture.width = whole.pixels;
    picture.height = static_cast<int>(height);
    preview::SvgWriter svg(picture.svg);
    OpenPicture(svg, picture.width, picture.height, length * whole.count, height);
    svg.Open("g").Set("transform", "matrix(1 0 0 -1 0 " + PixelText(height) + ")");
    LineDrawing drawing(length * whole.count, height / 2, scale, picture.svg, svg);
    for (const LinePart& part : line.parts) {
        std::visit([&](const auto& drawn) { drawing.Draw(drawn); }, part);
    }
    svg.Close().Close();
    if (drawing.IsTooDense()) {
        picture.svg.clear();
        picture.losses.insert(Loss::kTooDense);
    }
    return picture;
}

} // namespace styles
