#include "styles/MarkerParts.h"

#include "preview/PartDrawing.h"
#include "preview/TextMetrics.h"

#include <algorithm>
#include <cmath>

namespace styles {
namespace {

using preview::PathPart;
using preview::Point;
using preview::TextPart;

// A text whose content comes from an attribute may become as long as this, in letters.
constexpr double kAttributeLetters = 16;
// Widths of texts are estimates: letters of wide typefaces need more.
constexpr double kWidestLetter = 1.6;

double FarthestOf(const preview::Box& box, Point anchor) {
    return std::max({std::fabs(box.low.x - anchor.x), std::fabs(box.high.x - anchor.x),
                     std::fabs(box.low.y - anchor.y), std::fabs(box.high.y - anchor.y)});
}

double TextReach(const TextPart& text, Point anchor) {
    const double letters = static_cast<double>(text.content.size()) * kWidestLetter;
    const double width = preview::FontSize(text) * preview::kAdvance *
                         (text.contentParameter ? std::max(letters, kAttributeLetters) : letters);
    const double height = preview::FontSize(text) * 1.5;
    return std::max(std::fabs(text.position.x - anchor.x), std::fabs(text.position.y - anchor.y)) + width +
           height;
}

} // namespace

double ReachOf(const preview::Part& part, Point anchor, double scale) {
    if (const auto* const text = std::get_if<TextPart>(&part)) {
        return TextReach(*text, anchor) * scale;
    }
    const auto& path = std::get<PathPart>(part);
    const preview::Box& box = path.outline.Bounds();
    if (box.IsEmpty()) {
        return 0.0;
    }
    // A whole pen beside the outline, for corners; and room for it in a symbol that is made smaller.
    constexpr double kRoom = 1.1;
    const double farthest = FarthestOf(box, anchor) * scale;
    return std::max(farthest + PenOf(path, scale), farthest * kRoom);
}

void RunList::Add(const preview::Part& part, double angle) {
    if (!preview::IsVisible(part) || preview::PartBounds(part).IsEmpty()) {
        return;
    }
    if (const auto* const text = std::get_if<TextPart>(&part)) {
        if (text->underlined || text->overlined) {
            losses_.insert(Loss::kUnderlining);
        }
        if (!text->angle.sum.terms.empty()) {
            losses_.insert(Loss::kTurningText);
        }
        Add(text->color.color, 0.0, {&part, Paint::kText}, angle);
        return;
    }
    const auto& path = std::get<PathPart>(part);
    const double pen = PenOf(path, scale_);
    if (path.fill && path.line && path.fill->color == path.line->color) {
        Add(path.line->color, pen, {&part, Paint::kBoth}, angle);
        return;
    }
    if (path.fill) {
        Add(path.fill->color, 0.0, {&part, Paint::kFill}, angle);
    }
    if (path.line) {
        Add(path.line->color, pen, {&part, Paint::kStroke}, angle);
    }
}

// A pen of 0 is none.
void RunList::Add(const preview::Color& color, double pen, const Item& item, double angle) {
    const bool isDrawnByPen = pen > 0.0;
    const bool fits = !runs_.empty() && runs_.back().ink.color == color && runs_.back().angle == angle &&
                      (!isDrawnByPen || !runs_.back().hasPen || runs_.back().ink.pen == pen);
    if (!fits) {
        runs_.push_back({{color, kDefaultPen}, false, {}, angle});
    }
    if (isDrawnByPen) {
        runs_.back().ink.pen = pen;
        runs_.back().hasPen = true;
    }
    runs_.back().items.push_back(item);
}

MarkerParts MarkerPartsOf(const preview::ResolvedSymbol& symbol, double scale) {
    MarkerParts result;
    RunList runs(scale, result.losses);
    for (const preview::Member& member : symbol.members) {
        for (const preview::Part& part : member.parts) {
            runs.Add(part, member.angle.value);
            if (preview::IsVisible(part)) {
                result.reach = std::max(result.reach, ReachOf(part, {}, scale));
            }
        }
    }
    result.runs = runs.Runs();
    return result;
}

} // namespace styles
