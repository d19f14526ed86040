// A point symbol as a picture whose middle is the insertion point.
#include "styles/Limits.h"
#include "styles/MapPicture.h"
#include "styles/MapPictureParts.h"

namespace styles {
namespace {

bool HasTextFromAttribute(const preview::ResolvedSymbol& symbol) {
    for (const preview::Member& member : symbol.members) {
        for (const preview::Part& part : member.parts) {
            const auto* const text = std::get_if<preview::TextPart>(&part);
            if (text != nullptr && text->contentParameter) {
                return true;
            }
        }
    }
    return false;
}

} // namespace

MapPicture PointPicture(const preview::ResolvedSymbol& symbol, double scale) {
    MapPicture picture;
    const MarkerParts marker = MarkerPartsOf(symbol, scale);
    picture.losses = marker.losses;
    picture.losses.erase(Loss::kUnderlining); // pictures have the lines
    if (HasTextFromAttribute(symbol)) {
        picture.losses.insert(Loss::kFixedText);
    }
    if (marker.runs.empty()) {
        picture.losses.insert(Loss::kNoInk);
        return picture;
    }
    const double side = 2 * std::ceil(std::max(marker.reach, kDefaultPen) * kPixelsPerMillimetre);
    if (!(side <= kLargestPicture)) {
        picture.losses.insert(Loss::kTooLarge);
        return picture;
    }
    picture.width = static_cast<int>(side);
    picture.height = picture.width;
    preview::SvgWriter svg(picture.svg);
    OpenPicture(svg, picture.width, picture.height, side, side);
    const std::string middle = PixelText(side / 2);
    const std::string center = "translate(" + middle + " " + middle + ")";
    const preview::Placement placement{{}, scale * kPixelsPerMillimetre};
    for (const preview::Member& member : symbol.members) {
        std::string place = center;
        if (member.angle.value != 0.0) {
            place += " rotate(" + PlainNumber(0.0 - member.angle.value) + ")";
        }
        svg.Open("g").Set("transform", place);
        for (const preview::Part& part : member.parts) {
            DrawPart(svg, WithPen(part, scale), placement, {});
        }
        svg.Close();
    }
    svg.Close();
    return picture;
}

} // namespace styles
