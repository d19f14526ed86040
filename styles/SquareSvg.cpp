#include "styles/SquareSvg.h"

#include "preview/PartDrawing.h"
#include "preview/TextMetrics.h"
#include "styles/Numbers.h"

#include <cmath>

namespace styles {
namespace {

using preview::PathPart;
using preview::Point;
using preview::TextPart;

// The side of the square in the SVG's own units: renderers are exact with numbers of this size.
constexpr double kSide = 1000;
// A dot is a line of this length with round ends, in those units: some renderers draw none of length 0.
constexpr double kDotLength = 0.01;

class SquareDrawing {
public:
    SquareDrawing(Point anchor, double unit, const preview::ResolvedSymbol& symbol)
        : anchor_(anchor), unit_(unit), symbol_(symbol), writer_(result_.text) {}

    SquareSvg Draw(const std::vector<Item>& items) {
        const std::string side = PlainNumber(kSide);
        writer_.Open("svg").Set("xmlns", "http://www.w3.org/2000/svg").Set("version", "1.1");
        writer_.Set("width", side).Set("height", side).Set("viewBox", "0 0 " + side + " " + side);
        for (const Item& item : items) {
            if (const auto* const path = std::get_if<PathPart>(item.part)) {
                Draw(*path, item.paint);
            } else {
                Draw(std::get<TextPart>(*item.part));
            }
        }
        writer_.Close();
        return std::move(result_);
    }

private:
    std::string At(Point point) const {
        const Point moved = (point - anchor_) * unit_;
        return Rounded(kSide / 2 + moved.x) + "," + Rounded(kSide / 2 - moved.y);
    }

    // To a ten-thousandth of the SVG's units.
    static std::string Rounded(double value) { return PlainNumber(std::round(value * 1e4) / 1e4); }

    void Draw(const PathPart& path, Paint paint) {
        std::string strokes;
        std::string dots;
        Trace(path.outline, strokes, dots);
        if (!strokes.empty()) {
            writer_.Open("path").Set("d", strokes);
            SetFill(paint != Paint::kStroke);
            if (paint != Paint::kFill) {
                SetPen("butt");
            }
            writer_.Close();
        }
        if (!dots.empty() && paint != Paint::kFill) {
            writer_.Open("path").Set("d", dots);
            SetFill(false);
            SetPen("round");
            writer_.Close();
        }
    }

    void Trace(const preview::Outline& outline, std::string& strokes, std::string& dots) const {
        const auto begin = [&](Point from, bool startsHere) {
            if (startsHere || strokes.empty()) {
                strokes += "M" + At(from);
            }
        };
        ForEachPiece(
            outline,
            [&](Point from, Point to, bool startsHere) {
                if (from == to) {
                    dots += "M" + At(from) + "h" + PlainNumber(kDotLength);
                    return;
                }
                begin(from, startsHere);
                strokes += "L" + At(to);
            },
            [&](Point from, Point control1, Point control2, Point to, bool startsHere) {
                begin(from, startsHere);
                strokes += "C" + At(control1) + " " + At(control2) + " " + At(to);
            });
    }

    void SetFill(bool filled) {
        writer_.Set("fill", filled ? "param(fill)" : "none");
        if (filled) {
            writer_.Set("fill-opacity", "param(fill-opacity)").Set("fill-rule", "evenodd");
        }
    }

    // In the colour of fills, which is the only one that a symbol's own button changes.
    void SetPen(std::string_view cap) {
        writer_.Set("stroke", "param(fill)").Set("stroke-opacity", "param(fill-opacity)");
        writer_.Set("stroke-width", "param(outline-width)");
        writer_.Set("stroke-linecap", cap).Set("stroke-linejoin", cap == "round" ? "round" : "bevel");
    }

    void Draw(const TextPart& text) {
        const Point at = (text.position - anchor_) * unit_;
        std::string place = "translate(" + Rounded(kSide / 2 + at.x) + " " + Rounded(kSide / 2 - at.y) + ")";
        if (text.angle.value != 0.0) {
            place += " rotate(" + PlainNumber(0.0 - text.angle.value) + ")";
        }
        writer_.Open("g").Set("transform", place).Open("text");
        writer_.Set("y", Rounded(0.0 - preview::BaselineShift(text) * unit_)).Set("xml:space", "preserve");
        writer_.Set("font-family", text.fontName.empty() ? std::wstring(L"sans-serif") : text.fontName);
        writer_.Set("font-size", Rounded(preview::FontSize(text) * unit_));
        if (text.bold) {
            writer_.Set("font-weight", "bold");
        }
        if (text.italic) {
            writer_.Set("font-style", "italic");
        }
        if (text.horizontal != preview::HorizontalAnchor::kLeft) {
            writer_.Set("text-anchor",
                        text.horizontal == preview::HorizontalAnchor::kMiddle ? "middle" : "end");
        }
        writer_.Set("fill", "param(fill)").Set("fill-opacity", "param(fill-opacity)");
        WriteContent(text);
        writer_.Close().Close();
    }

    void WriteContent(const TextPart& text) {
        if (!text.contentParameter) {
            writer_.Text(text.content);
            return;
        }
        std::string name = "text";
        if (!result_.attributes.empty()) {
            name += std::to_string(result_.attributes.size() + 1);
        }
        writer_.Text("param(" + name + ")");
        result_.attributes.push_back(
            {name, symbol_.parameters[*text.contentParameter].identifier, text.content});
    }

    Point anchor_;
    double unit_; // of the SVG, for one of the symbol
    const preview::ResolvedSymbol& symbol_;
    SquareSvg result_;
    preview::SvgWriter writer_;
};

} // namespace

SquareSvg DrawSquare(const std::vector<Item>& items, Point anchor, double reach, double scale,
                     const preview::ResolvedSymbol& symbol) {
    return SquareDrawing(anchor, kSide / (2 * reach) * scale, symbol).Draw(items);
}

} // namespace styles
