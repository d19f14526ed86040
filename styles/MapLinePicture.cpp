// One repeat of a line as a picture.
#include "styles/Limits.h"
#include "styles/LineDrawing.h"
#include "styles/MapPicture.h"
#include "styles/MapPictureParts.h"
#include "styles/UprightCell.h"

#include <algorithm>
#include <cmath>

namespace styles {
namespace {

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
    LineDrawing drawing(length * whole.count, height / 2, scale, LineEnds::kGoOn, picture.svg, svg);
    for (const LinePart& part : line.parts) {
        drawing.Draw(part);
    }
    svg.Close().Close();
    if (drawing.IsTooDense()) {
        picture.svg.clear();
        picture.losses.insert(Loss::kTooDense);
    }
    return picture;
}

} // namespace styles
