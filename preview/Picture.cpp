#include "preview/Picture.h"

#include "preview/Limits.h"
#include "preview/NumberTexts.h"
#include "preview/PictureParts.h"

#include <numbers>

namespace preview {
namespace {

constexpr std::string_view kTimes = " \xc3\x97 ";

std::string DescribePoint(const ResolvedSymbol& symbol) {
    const Box box = TurnedBounds(symbol, &Member::bounds);
    const bool placed = symbol.members.front().hasUsage;
    std::string kind = placed ? "Point symbol" : "Drawing";
    if (box.IsEmpty()) {
        return kind;
    }
    return kind + ", " + ShownNumber(box.Width()) + std::string(kTimes) + ShownNumber(box.Height()) +
           (placed ? " mm" : "");
}

std::string DescribeLine(const ResolvedSymbol& symbol) {
    for (const Member& member : symbol.members) {
        if (member.repeat) {
            return "Line symbol, repeat " + ShownNumber(*member.repeat);
        }
    }
    return "Line symbol";
}

std::string DescribeArea(const ResolvedSymbol& symbol) {
    if (symbol.members.size() > 1) {
        return "Area symbol, " + std::to_string(symbol.members.size()) + " tilings";
    }
    const Member& member = symbol.members.front();
    if (!member.repeatX || !member.repeatY) {
        return "Area symbol";
    }
    return "Area symbol, tile " + ShownNumber(*member.repeatX) + std::string(kTimes) +
           ShownNumber(*member.repeatY);
}

constexpr Color kWhitePaper{255, 255, 255, 255};
// For light colours, and for light and dark ones together.
constexpr Color kOtherPapers[] = {
    {255, 0x23, 0x27, 0x2e}, {255, 0x6b, 0x73, 0x7d}, {255, 0x8c, 0x94, 0x9e}, {255, 0xb4, 0xba, 0xc2}};

// The contrast of the colour that is seen worst.
class WorstContrast {
public:
    explicit WorstContrast(const Color& paper) : paper_(Luminance(paper)) {}

    void Look(const std::optional<Paint>& paint) {
        if (paint) {
            worst = std::min(worst, Contrast(Luminance(paint->color), paper_));
        }
    }

    double worst = 21.0;

private:
    double paper_;
};

double ContrastOn(const Color& paper, const ResolvedSymbol& symbol) {
    WorstContrast contrast(paper);
    for (const Member& member : symbol.members) {
        for (const Part& part : member.parts) {
            if (const auto* const path = std::get_if<PathPart>(&part)) {
                contrast.Look(path->line);
                contrast.Look(path->fill);
            } else {
                contrast.Look(std::get<TextPart>(part).color);
            }
        }
    }
    return contrast.worst;
}

// A thin line is seen from here on: amber on white has 1.6, cyan 1.25, yellow 1.07.
constexpr double kEnoughContrast = 1.5;

bool DrawsNothing(const ResolvedSymbol& symbol) {
    for (const Member& member : symbol.members) {
        for (const Part& part : member.parts) {
            if (IsVisible(part) && !PartBounds(part).IsEmpty()) {
                return false;
            }
        }
    }
    return true;
}

double ScaleOf(const ResolvedSymbol& symbol, Canvas& canvas) {
    if (canvas.style.scale > 0) {
        return canvas.style.scale;
    }
    switch (symbol.usage) {
    case Usage::kLine:
        return LineScale(symbol, canvas);
    case Usage::kArea:
        return AreaScale(symbol, canvas);
    case Usage::kPoint:
        break;
    }
    return PointScale(symbol, canvas);
}

} // namespace

void Canvas::Note(std::string_view note) {
    if (std::find(notes.begin(), notes.end(), note) == notes.end()) {
        notes.emplace_back(note);
    }
}

bool FitsPicture(const Box& box, double scale) {
    const double farthest =
        std::max({std::fabs(box.low.x), std::fabs(box.low.y), std::fabs(box.high.x), std::fabs(box.high.y)}) *
        scale;
    return farthest < kFarthestPixel;
}

std::string Translation(Point pixels) {
    std::string text = "translate(";
    AppendPixels(text, pixels.x);
    text += ' ';
    AppendPixels(text, pixels.y);
    text += ')';
    return text;
}

Box TurnedBounds(const ResolvedSymbol& symbol, Box Member::*box) {
    Box turned;
    for (const Member& member : symbol.members) {
        const double angle = member.angle.value * (std::numbers::pi / 180.0);
        const Box& bounds = member.*box;
        if (angle == 0.0 || bounds.IsEmpty()) {
            turned.Include(bounds);
            continue;
        }
        for (const Point corner : {bounds.low, bounds.high, Point{bounds.low.x, bounds.high.y},
                                   Point{bounds.high.x, bounds.low.y}}) {
            turned.Include(Turned(corner, std::cos(angle), std::sin(angle)));
        }
    }
    return turned;
}

Picture DrawPicture(const ResolvedSymbol& symbol, const PictureStyle& style) {
    Picture picture;
    Canvas canvas{SvgWriter(picture.markup), style, picture.notes};
    if (symbol.unreadable > 0) {
        canvas.Note("Values that cannot be read: " + std::to_string(symbol.unreadable) + ".");
    }
    if (DrawsNothing(symbol)) {
        canvas.Note("The symbol draws nothing.");
    }
    const double scale = ScaleOf(symbol, canvas);
    picture.scale = DrawsNothing(symbol) ? 0.0 : scale;
    canvas.svg.Open("g").Set("fill", "none").Set("stroke-linejoin", "round");
    switch (symbol.usage) {
    case Usage::kPoint:
        DrawPointPicture(canvas, symbol, scale);
        break;
    case Usage::kLine:
        DrawLinePicture(canvas, symbol, scale);
        break;
    case Usage::kArea:
        DrawAreaPicture(canvas, symbol, scale);
        break;
    }
    canvas.svg.Close();
    return picture;
}

double FittingScale(const ResolvedSymbol& symbol, const PictureStyle& style) {
    if (DrawsNothing(symbol)) {
        return 0.0;
    }
    std::string nothing;
    std::vector<std::string> notes;
    Canvas canvas{SvgWriter(nothing), style, notes};
    return ScaleOf(symbol, canvas);
}

std::string Describe(const ResolvedSymbol& symbol) {
    if (symbol.members.empty()) {
        return "Empty symbol";
    }
    switch (symbol.usage) {
    case Usage::kLine:
        return DescribeLine(symbol);
    case Usage::kArea:
        return DescribeArea(symbol);
    case Usage::kPoint:
        break;
    }
    return DescribePoint(symbol);
}

Color PaperFor(const ResolvedSymbol& symbol) {
    Color best = kWhitePaper;
    double bestContrast = ContrastOn(best, symbol);
    if (bestContrast >= kEnoughContrast) {
        return best;
    }
    for (const Color& paper : kOtherPapers) {
        const double contrast = ContrastOn(paper, symbol);
        if (contrast > bestContrast) {
            best = paper;
            bestContrast = contrast;
        }
    }
    return best;
}

} // namespace preview
