#include "preview/PartDrawing.h"

#include "preview/NumberTexts.h"
#include "preview/TextMetrics.h"

namespace preview {
namespace {

// "constant;factor*parameter;...": what the page adds up when a parameter has changed.
std::string SumText(const Sum& sum) {
    std::string text = ExactNumber(sum.constant);
    for (const Sum::Term& term : sum.terms) {
        text += ';';
        text += ExactNumber(term.factor);
        text += '*';
        text += std::to_string(term.parameter);
    }
    return text;
}

void SetPaint(SvgWriter& svg, const std::string& property, const Paint& paint, const PictureStyle& style) {
    svg.Set(property, ColorText(paint.color));
    if (paint.color.alpha != 255) {
        svg.Set(property + "-opacity", paint.color.alpha / 255.0);
    }
    if (style.bindings && paint.parameter) {
        svg.Set("data-" + property, std::to_string(*paint.parameter));
    }
}

// Weights are millimetres of the scale shown: as large as the geometry around them, and never too thin to be
// seen, whatever enlarges the picture.
void SetStroke(SvgWriter& svg, const PathPart& part, double scale, double thinnest,
               const PictureStyle& style) {
    SetPaint(svg, "stroke", *part.line, style);
    const double width = part.weight.value * scale;
    svg.Set("stroke-width", style.exactPens ? width : std::max(thinnest, width));
    if (!style.exactPens && !(width > thinnest)) {
        svg.Set("vector-effect", "non-scaling-stroke");
    }
    if (style.bindings && (part.weight.value > 0.0 || !part.weight.sum.terms.empty())) {
        svg.Set("data-weight", SumText(part.weight.sum));
        svg.Set("data-pixels", ExactNumber(scale));
        svg.Set("data-thinnest", ExactNumber(thinnest));
    }
}

// A typeface name as a style sheet takes it: quoted, without what could end the quotes.
std::wstring FontFamily(const std::wstring& name) {
    std::wstring family;
    for (const wchar_t c : name) {
        const bool harmless = c >= L' ' && c != L'\'' && c != L'"' && c != L'\\' && c != 0x7f;
        if (harmless) {
            family += c;
        }
    }
    return family.empty() ? L"sans-serif" : L"'" + family + L"', sans-serif";
}

void SetFont(SvgWriter& svg, const TextPart& text, double scale) {
    svg.Set("font-family", FontFamily(text.fontName)).Set("font-size", FontSize(text) * scale);
    if (text.bold) {
        svg.Set("font-weight", "bold");
    }
    if (text.italic) {
        svg.Set("font-style", "italic");
    }
    if (text.underlined || text.overlined) {
        svg.Set("text-decoration", text.underlined && text.overlined ? "underline overline"
                                   : text.underlined                 ? "underline"
                                                                     : "overline");
    }
    if (text.horizontal != HorizontalAnchor::kLeft) {
        svg.Set("text-anchor", text.horizontal == HorizontalAnchor::kMiddle ? "middle" : "end");
    }
}

void DrawText(SvgWriter& svg, const TextPart& text, const Placement& placement, const PictureStyle& style) {
    std::string translate = "translate(";
    const Point at = placement(text.position);
    AppendPixels(translate, at.x);
    translate += ' ';
    AppendPixels(translate, at.y);
    translate += ')';
    svg.Open("g").Set("transform", translate).Open("text");
    svg.Set("y", -BaselineShift(text) * placement.scale).Set("xml:space", "preserve");
    SetFont(svg, text, placement.scale);
    SetRotation(svg, text.angle, style);
    SetPaint(svg, "fill", text.color, style);
    if (style.bindings && text.contentParameter) {
        svg.Set("data-text", std::to_string(*text.contentParameter));
    }
    svg.Text(text.content).Close().Close();
}

} // namespace

void SetRotation(SvgWriter& svg, const Amount& angle, const PictureStyle& style) {
    const bool bound = style.bindings && !angle.sum.terms.empty();
    if (angle.value != 0.0 || bound) {
        svg.Set("transform", "rotate(" + ExactNumber(0.0 - angle.value) + ")");
    }
    if (bound) {
        svg.Set("data-angle", SumText(angle.sum));
    }
}

void DrawPath(SvgWriter& svg, const PathPart& part, const PathData& data, double scale,
              const PictureStyle& style, const PathData* tile) {
    const bool repeatsStrokes = tile != nullptr && !tile->Strokes().empty();
    if ((!data.Strokes().empty() || repeatsStrokes) && IsVisible(part)) {
        svg.Open("path").Set("d", data.Strokes());
        if (tile != nullptr) {
            svg.Set("data-tile", tile->Strokes());
        }
        if (part.fill) {
            SetPaint(svg, "fill", *part.fill, style);
            svg.Set("fill-rule", "evenodd");
        }
        if (part.line) {
            SetStroke(svg, part, scale, kHairline, style);
        }
        svg.Close();
    }
    const bool repeatsDots = tile != nullptr && !tile->Dots().empty();
    if ((!data.Dots().empty() || repeatsDots) && part.line) {
        svg.Open("path").Set("d", data.Dots()).Set("stroke-linecap", "round");
        if (tile != nullptr) {
            svg.Set("data-tile", tile->Dots());
        }
        SetStroke(svg, part, scale, kSmallestDot, style);
        svg.Close();
    }
}

void DrawPart(SvgWriter& svg, const Part& part, const Placement& placement, const PictureStyle& style) {
    if (const auto* const text = std::get_if<TextPart>(&part)) {
        if (IsVisible(part)) {
            DrawText(svg, *text, placement, style);
        }
        return;
    }
    const auto& path = std::get<PathPart>(part);
    PathData data;
    AppendOutline(data, path.outline, placement);
    data.Finish();
    DrawPath(svg, path, data, placement.scale, style);
}

Box PartBounds(const Part& part) {
    const auto* const path = std::get_if<PathPart>(&part);
    return path != nullptr ? path->outline.Bounds() : EstimatedBounds(std::get<TextPart>(part));
}

bool IsVisible(const Part& part) {
    if (const auto* const path = std::get_if<PathPart>(&part)) {
        return path->line.has_value() || path->fill.has_value();
    }
    const auto& text = std::get<TextPart>(part);
    return text.height > 0.0 && (!text.content.empty() || text.contentParameter.has_value());
}

} // namespace preview
