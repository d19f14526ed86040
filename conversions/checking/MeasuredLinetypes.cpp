#include "conversions/checking/MeasuredLinetypes.h"

#include "StyleConversion/encoding/ControlCodes.h"
#include "StyleConversion/linetype/ShxDrawing.h"
#include "StyleConversion/platform/CodePage.h"
#include "conversions/reading/Shown.h"
#include "preview/Outline.h"
#include "preview/TextMetrics.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace conversions {
namespace {

// A text or shape may be as wide as its gap, give or take what arithmetic leaves.
constexpr double kSlack = 1e-9;

// Four decimals of a width are shown.
constexpr double kShownParts = 1e4;

// A text whose width is an estimate is told of where it is wider by more than such estimates are off.
constexpr double kEstimateSlack = 0.25;

// Whether an element keeps its angle to the drawing.
bool HasFixedAngle(const LineConverter::ElementTransform& transform) {
    return transform.relativeRotation == 0.0 && !std::isnan(transform.absoluteRotation);
}

// Where a shape or text begins, from the place of its element.
LineConverter::ShxPen PenOf(const LineConverter::ElementTransform& transform) {
    LineConverter::ShxPen pen;
    pen.y = transform.offsetY;
    pen.scale = transform.scale;
    pen.rotation = transform.relativeRotation;
    return pen;
}

} // namespace

void MeasuredLinetypes::BeginLinetype(const LineConverter::LinetypeRecord& record,
                                      const std::string& description, int elementCount) {
    ++linetype_;
    element_ = 0;
    position_ = 0.0;
    drawn_.clear();
    marks_.clear();
    visitor_.BeginLinetype(record, description, elementCount);
}

void MeasuredLinetypes::Dot() {
    drawn_.push_back({position_, position_});
    ++element_;
    visitor_.Dot();
}

void MeasuredLinetypes::Dash(double length) {
    drawn_.push_back({position_, position_ + length});
    position_ += length;
    ++element_;
    visitor_.Dash(length);
}

void MeasuredLinetypes::Gap(double length) {
    position_ += length;
    ++element_;
    visitor_.Gap(length);
}

void MeasuredLinetypes::AddOutline(Mark mark, const LineConverter::ElementTransform& transform,
                                   const std::wstring& path) {
    preview::Outline outline;
    if (preview::ReadPath(path, outline).complete) {
        AddMark(std::move(mark), transform, outline.Bounds());
    }
}

void MeasuredLinetypes::AddMark(Mark mark, const LineConverter::ElementTransform& transform,
                                const preview::Box& box) {
    // What stands above or below the line does not stand in the gap.
    if (box.IsEmpty() || box.low.y > 0.0 || box.high.y < 0.0) {
        return;
    }
    const double x = position_ + transform.offsetX;
    mark.element = element_;
    mark.extent = {x + box.low.x, x + box.high.x};
    mark.isFixed = HasFixedAngle(transform);
    marks_.push_back(std::move(mark));
}

void MeasuredLinetypes::Shape(const std::string& shapeName, const LineConverter::ElementTransform& transform,
                              const ShxUtility::ShapesInFile& file) {
    used_.emplace(&file, shapeName);
    const auto found = file.nameIndex.find(shapeName);
    if (found != file.nameIndex.end()) {
        LineConverter::ShxPen pen = PenOf(transform);
        std::wstring path;
        if (DrawShxShape(path, pen, file.shapes[found->second], file) == ShxUtility::kSuccess) {
            Mark mark;
            mark.name = "shape " + ShownText(platform::AnsiToWide(shapeName));
            AddOutline(std::move(mark), transform, path);
        }
    }
    ++element_;
    visitor_.Shape(shapeName, transform, file);
}

void MeasuredLinetypes::Text(const std::string& text, const LineConverter::ElementTransform& transform,
                             const LineConverter::FontInfo& font,
                             const LineConverter::ShapeFileMap& shapeFiles) {
    const auto file = shapeFiles.find(font.fileName);
    if (!font.typeface.empty()) {
        AddTypefaceText(text, transform, font);
    } else if (file != shapeFiles.end() && !file->second.fontInfo.empty()) {
        const auto height = static_cast<std::int8_t>(file->second.fontInfo[0]);
        LineConverter::ShxPen pen = PenOf(transform);
        pen.scale *= (font.textSize != 0.0 ? font.textSize : 1.0) / height;
        std::wstring path;
        const std::wstring characters =
            encoding::DecodeControlCodes(platform::AnsiToWide(text), true).characters;
        for (const wchar_t character : LineConverter::ToUtf16Units(characters)) {
            const ShxUtility::Shape* const glyph = LineConverter::FindGlyph(file->second, character);
            if (glyph != nullptr && DrawShxShape(path, pen, *glyph, file->second) != ShxUtility::kSuccess) {
                break; // told by the conversion
            }
        }
        if (height != 0 && !font.isVertical) {
            Mark mark;
            mark.name = "text \"" + ShownText(platform::AnsiToWide(text)) + "\"";
            AddOutline(std::move(mark), transform, path);
        }
    }
    ++element_;
    visitor_.Text(text, transform, font, shapeFiles);
}

void MeasuredLinetypes::AddTypefaceText(const std::string& text,
                                        const LineConverter::ElementTransform& transform,
                                        const LineConverter::FontInfo& font) {
    preview::TextPart part;
    part.content = encoding::DecodeControlCodes(platform::AnsiToWide(text), true).characters;
    part.height = transform.scale * (font.textSize != 0.0 ? font.textSize : 1.0);
    part.angle.value = transform.relativeRotation;
    part.position.y = transform.offsetY;
    part.horizontal = preview::HorizontalAnchor::kLeft;
    part.vertical = preview::VerticalAnchor::kBaseline;
    Mark mark;
    mark.name = "text \"" + ShownText(platform::AnsiToWide(text)) + "\"";
    mark.isEstimate = true;
    AddMark(std::move(mark), transform, preview::EstimatedBounds(part));
}

void MeasuredLinetypes::EndLinetype() {
    for (const Mark& mark : marks_) {
        JudgeMark(mark);
    }
    visitor_.EndLinetype();
}

void MeasuredLinetypes::JudgeMark(const Mark& mark) {
    const Interval gap = GapAround(mark.extent.from / 2 + mark.extent.to / 2);
    const double width = mark.extent.to - mark.extent.from;
    const double room = gap.to - gap.from;
    if (room > 0.0 && width > room * (1 + (mark.isEstimate ? kEstimateSlack : kSlack))) {
        remarks_.push_back(
            {linetype_ - 1,
             mark.element,
             mark.isFixed ? diagnostics::Code::kFixedWiderThanGap : diagnostics::Code::kWiderThanGap,
             {mark.name, (mark.isEstimate ? "about " : "") + RoundedText(width, kShownParts),
              RoundedText(room, kShownParts)}});
    }
}

MeasuredLinetypes::Interval MeasuredLinetypes::GapAround(double position) const {
    if (!(position_ > 0.0) || drawn_.empty() || !std::isfinite(position)) {
        return {};
    }
    const double turns = std::floor(position / position_);
    const double at = position - turns * position_;
    // The last end before, and the first start behind, of what is drawn; drawn_ is in order.
    const auto behind =
        std::lower_bound(drawn_.begin(), drawn_.end(), at,
                         [](const Interval& dash, double place) { return dash.from < place; });
    const double to = behind != drawn_.end() ? behind->from : drawn_.front().from + position_;
    const double from = behind != drawn_.begin() ? std::prev(behind)->to : drawn_.back().to - position_;
    return from <= at ? Interval{from, to} : Interval{};
}

} // namespace conversions
