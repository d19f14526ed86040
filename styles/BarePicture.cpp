#include "styles/BarePicture.h"

#include "styles/AreaCell.h"
#include "styles/LineDrawing.h"
#include "styles/MapPicture.h"
#include "styles/MapPictureParts.h"
#include "styles/UprightCell.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace styles {
namespace {

using preview::Box;
using preview::Point;
using preview::SvgWriter;

constexpr double kUsualLength = 100; // millimetres
// Of whole repeats one more may lack the last digits.
constexpr double kNearlyWhole = 1e-9;

constexpr double kLargestSide = kLargestMillimetres * kPixelsPerMillimetre;

// A side as millimetres, by as many digits as show it.
std::string MillimetreText(double pixels) {
    return PlainNumber(std::round(pixels / kPixelsPerMillimetre * 1e6) / 1e6) + "mm";
}

void OpenBare(SvgWriter& svg, const preview::ResolvedSymbol& symbol, Point size) {
    svg.Open("svg").Set("xmlns", "http://www.w3.org/2000/svg");
    svg.Set("width", MillimetreText(size.x)).Set("height", MillimetreText(size.y));
    svg.Set("viewBox", "0 0 " + PlainNumber(size.x) + " " + PlainNumber(size.y));
    svg.Set("fill", "none").Set("stroke-linejoin", "round");
    svg.Open("title").Text(symbol.name).Close();
}

BarePicture None(Losses losses, Loss why) {
    losses.insert(why);
    return {"", std::move(losses)};
}

// What is drawn as the symbol has it is no loss, though a style lacks it.
Losses OfPictures(Losses losses) {
    for (const Loss loss : {Loss::kUnderlining, Loss::kTurningText, Loss::kTurningParts, Loss::kUprightMarks,
                            Loss::kFixedText, Loss::kTooManyMarks}) {
        losses.erase(loss);
    }
    return losses;
}

double UsualLength(const std::vector<LinePart>& parts) {
    std::vector<Repetition> repetitions;
    for (const LinePart& part : parts) {
        double interval = 0.0;
        if (const auto* const dashes = std::get_if<Dashes>(&part)) {
            interval = PeriodOf(*dashes);
        } else if (const auto* const dots = std::get_if<Dots>(&part)) {
            interval = dots->places.interval;
        } else {
            interval = std::get<Mark>(part).places.interval;
        }
        if (interval > 0.0) {
            repetitions.push_back({1.0, interval});
        }
    }
    const auto repeat = CommonSide(repetitions, kLargestMillimetres, kSeamless / kPixelsPerMillimetre);
    if (!repeat || !(repeat->length > 0.0)) {
        return kUsualLength;
    }
    return repeat->length * std::max(1.0, std::floor(kUsualLength / repeat->length + kNearlyWhole));
}

// Millimetres that the line and what stands beside it reach to one side.
double LineReachOf(const std::vector<LinePart>& parts, double scale) {
    double reach = 0.0;
    for (const LinePart& part : parts) {
        if (const auto* const mark = std::get_if<Mark>(&part)) {
            const Box box = BoxOf(*mark, scale);
            reach = box.IsEmpty() ? reach : std::max({reach, std::fabs(box.low.y), std::fabs(box.high.y)});
        } else {
            const auto* const dashes = std::get_if<Dashes>(&part);
            reach = std::max(reach, (dashes != nullptr ? dashes->ink : std::get<Dots>(part).ink).pen / 2);
        }
    }
    return reach;
}

BarePicture DrawBareLine(const preview::ResolvedSymbol& symbol, double scale, double length) {
    const LineParts line = LinePartsOf(symbol, scale);
    BarePicture picture{"", OfPictures(line.losses)};
    if (line.parts.empty()) {
        return None(picture.losses, Loss::kNoInk);
    }
    const double millimetres = length > 0.0 ? length : UsualLength(line.parts);
    const Point size{millimetres * kPixelsPerMillimetre,
                     2 * LineReachOf(line.parts, scale) * kPixelsPerMillimetre};
    if (!(size.x <= kLargestSide && size.y <= kLargestSide)) {
        return None(picture.losses, Loss::kTooLarge);
    }
    SvgWriter svg(picture.svg);
    OpenBare(svg, symbol, size);
    LineDrawing drawing(size.x, size.y / 2, scale, LineEnds::kStop, picture.svg, svg);
    for (const LinePart& part : line.parts) {
        drawing.Draw(part);
    }
    svg.Close();
    return drawing.IsTooDense() ? None(picture.losses, Loss::kTooDense) : picture;
}

BarePicture DrawBareArea(const preview::ResolvedSymbol& symbol, double scale) {
    const AreaParts area = AreaPartsInPixels(symbol, scale);
    BarePicture picture{"", OfPictures(area.losses)};
    if (area.layers.empty()) {
        return None(picture.losses, Loss::kNoInk);
    }
    const auto cell = CellOf(area, kLargestSide, false);
    if (!cell) {
        return None(picture.losses, Loss::kNoCell);
    }
    const Point size{cell->across.length, cell->upright.length};
    SvgWriter svg(picture.svg);
    OpenBare(svg, symbol, size);
    svg.Open("pattern").Set("id", "hatch").Set("patternUnits", "userSpaceOnUse");
    svg.Set("width", PlainNumber(size.x)).Set("height", PlainNumber(size.y));
    if (!styles::DrawArea(area, size, svg)) {
        return None(picture.losses, Loss::kTooDense);
    }
    svg.Close();
    svg.Open("rect").Set("width", "100%").Set("height", "100%").Set("fill", "url(#hatch)").Close();
    svg.Close();
    return picture;
}

// The box around what a member draws, with its pens, in millimetres.
Box InkOf(const preview::Member& member, double scale) {
    const double radians = member.angle.value * (std::numbers::pi / 180);
    Box ink;
    for (const preview::Part& part : member.parts) {
        const Box own = PartBounds(part);
        if (own.IsEmpty() || !IsVisible(part)) {
            continue;
        }
        const auto* const path = std::get_if<preview::PathPart>(&part);
        const double pen = path != nullptr && path->line ? PenOf(*path, scale) : 0.0;
        const Point around{pen / 2, pen / 2};
        for (const double x : {own.low.x, own.high.x}) {
            for (const double y : {own.low.y, own.high.y}) {
                const Point corner = Turned(Point{x, y}, std::cos(radians), std::sin(radians)) * scale;
                ink.Include(corner - around);
                ink.Include(corner + around);
            }
        }
    }
    return ink;
}

BarePicture DrawBarePoint(const preview::ResolvedSymbol& symbol, double scale) {
    Box ink;
    for (const preview::Member& member : symbol.members) {
        ink.Include(InkOf(member, scale));
    }
    if (ink.IsEmpty() || !(ink.Width() > 0.0) || !(ink.Height() > 0.0)) {
        return None({}, Loss::kNoInk);
    }
    const Point size{ink.Width() * kPixelsPerMillimetre, ink.Height() * kPixelsPerMillimetre};
    if (!(size.x <= kLargestSide && size.y <= kLargestSide)) {
        return None({}, Loss::kTooLarge);
    }
    BarePicture picture;
    SvgWriter svg(picture.svg);
    OpenBare(svg, symbol, size);
    // The insertion point, about which members turn.
    const std::string origin = "translate(" + PixelText(0.0 - ink.low.x * kPixelsPerMillimetre) + " " +
                               PixelText(ink.high.y * kPixelsPerMillimetre) + ")";
    preview::PictureStyle style;
    style.exactPens = true;
    for (const preview::Member& member : symbol.members) {
        const bool isTurned = member.angle.value != 0.0;
        svg.Open("g").Set(
            "transform", origin + (isTurned ? " rotate(" + PlainNumber(0.0 - member.angle.value) + ")" : ""));
        for (const preview::Part& part : member.parts) {
            DrawPart(svg, WithPen(part, scale), {{}, scale * kPixelsPerMillimetre}, style);
        }
        svg.Close();
    }
    svg.Close();
    return picture;
}

} // namespace

BarePicture DrawBare(const preview::ResolvedSymbol& symbol, double scale, double length) {
    switch (symbol.usage) {
    case preview::Usage::kLine:
        return DrawBareLine(symbol, scale, length);
    case preview::Usage::kArea:
        return DrawBareArea(symbol, scale);
    case preview::Usage::kPoint:
        break;
    }
    return DrawBarePoint(symbol, scale);
}

} // namespace styles
