#include "styleconv/MeasuredLinetypes.h"

#include "StyleConversion/encoding/PathCommands.h"
#include "StyleConversion/linetype/ControlCodes.h"
#include "StyleConversion/linetype/ShxDrawing.h"
#include "StyleConversion/platform/CodePage.h"
#include "StyleConversion/platform/Utf8.h"
#include "preview/Outline.h"
#include "styleconv/Messages.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace styleconv {
namespace {

// A text or shape may be as wide as its gap, give or take what arithmetic leaves.
constexpr double kSlack = 1e-9;

std::string NumberText(double value) {
    constexpr double kParts = 1e4;
    return platform::WideToValidUtf8(encoding::FormatNumber(std::round(value * kParts) / kParts));
}

// Whether the angle to the line is known: not that of what keeps its angle to the drawing.
bool TurnsWithTheLine(const LineConverter::ElementTransform& transform) {
    return transform.relativeRotation != 0.0 || std::isnan(transform.absoluteRotation);
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

void MeasuredLinetypes::AddMark(std::string name, const std::wstring& path) {
    preview::Outline outline;
    if (!preview::ReadPath(path, outline).complete) {
        return;
    }
    const preview::Box box = outline.Bounds();
    // What stands above or below the line does not stand in the gap.
    if (!box.IsEmpty() && box.low.y <= 0.0 && box.high.y >= 0.0) {
        marks_.push_back({element_, std::move(name), position_, {box.low.x, box.high.x}});
    }
}

void MeasuredLinetypes::Shape(const std::string& shapeName, const LineConverter::ElementTransform& transform,
                              const ShxUtility::ShapesInFile& file) {
    used_.emplace(&file, shapeName);
    const auto found = file.nameIndex.find(shapeName);
    if (found != file.nameIndex.end() && TurnsWithTheLine(transform)) {
        LineConverter::ShxPen pen;
        pen.x = position_ + transform.offsetX;
        pen.y = transform.offsetY;
        pen.scale = transform.scale;
        pen.rotation = transform.relativeRotation;
        std::wstring path;
        if (DrawShxShape(path, pen, file.shapes[found->second], file) == ShxUtility::kSuccess) {
            AddMark("shape " + Shown(platform::AnsiToWide(shapeName)), path);
        }
    }
    ++element_;
    visitor_.Shape(shapeName, transform, file);
}

void MeasuredLinetypes::Text(const std::string& text, const LineConverter::ElementTransform& transform,
                             const LineConverter::FontInfo& font,
                             const LineConverter::ShapeFileMap& shapeFiles) {
    const auto file = shapeFiles.find(font.fileName);
    if (font.typeface.empty() && file != shapeFiles.end() && !file->second.fontInfo.empty()) {
        const auto height = static_cast<std::int8_t>(file->second.fontInfo[0]);
        LineConverter::ShxPen pen;
        pen.x = position_ + transform.offsetX;
        pen.y = transform.offsetY;
        pen.scale = transform.scale / height * (font.textSize != 0.0 ? font.textSize : 1.0);
        pen.rotation = transform.relativeRotation;
        std::wstring path;
        std::wstring missing;
        const std::wstring characters =
            LineConverter::DecodeControlCodes(platform::AnsiToWide(text), true).characters;
        for (const wchar_t character : LineConverter::ToUtf16Units(characters)) {
            const ShxUtility::Shape* const glyph = LineConverter::FindGlyph(file->second, character);
            if (glyph == nullptr) {
                missing += missing.find(character) == std::wstring::npos ? std::wstring(1, character) : L"";
            } else if (DrawShxShape(path, pen, *glyph, file->second) != ShxUtility::kSuccess) {
                break; // told by the conversion
            }
        }
        if (!missing.empty()) {
            remarks_.push_back(
                {linetype_ - 1, element_, true,
                 "font " + Shown(font.fileName) + " lacks characters of the text: " + Shown(missing)});
        }
        if (height != 0 && !font.isVertical && TurnsWithTheLine(transform)) {
            AddMark("text \"" + Shown(platform::AnsiToWide(text)) + "\"", path);
        }
    }
    ++element_;
    visitor_.Text(text, transform, font, shapeFiles);
}

void MeasuredLinetypes::EndLinetype() {
    for (const Mark& mark : marks_) {
        const double middle = mark.extent.from / 2 + mark.extent.to / 2;
        const Interval gap = GapAround(middle);
        const double width = mark.extent.to - mark.extent.from;
        const double room = gap.to - gap.from;
        if (room > 0.0 && width > room * (1 + kSlack)) {
            remarks_.push_back(
                {linetype_ - 1, mark.element, false,
                 mark.name + " is " + NumberText(width) + " wide, the gap it stands in " + NumberText(room)});
        }
    }
    visitor_.EndLinetype();
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

} // namespace styleconv
