// A line symbol along a straight line, a zigzag and an arc.

#include "preview/Limits.h"
#include "preview/NumberTexts.h"
#include "preview/PictureParts.h"
#include "preview/SampleLine.h"

#include "StyleConversion/encoding/IntegerConversion.h"

#include <array>
#include <numbers>
#include <utility>

namespace preview {
namespace {

// Pixels that one repetition is to take, and that all that stands beside the line may take.
constexpr double kShortestRepeat = 30;
constexpr double kLongestRepeat = 200;
constexpr double kRepeatPerPiece = 26;
constexpr double kLegibleHeight = 12;
constexpr double kGreatestHeight = 32;
constexpr double kGreatestReach = 24; // to one side
constexpr double kUnrepeatedLength = 200;
// A dash along the line that is a larger share of the repeat is a dot where it is too short to be seen.
constexpr double kShortestDot = 1e-9;
// Pixels; what is shorter is a dot.
constexpr double kShortestStroke = 0.05;
// How far something may reach over the end of a line.
constexpr double kOverhang = 16;

std::array<SampleLine, 3> SampleLines(const PictureStyle& style) {
    const double left = 24;
    const double right = style.width - 24;
    const double across = right - left;
    const double height = style.height;
    SampleLine straight({left, height * 0.86});
    straight.StraightTo({right, height * 0.86});
    SampleLine zigzag({left, height * 0.47});
    for (int i = 1; i <= 4; ++i) {
        zigzag.StraightTo({left + across * i / 4, height * (i % 2 == 1 ? 0.70 : 0.47)});
    }
    // A circle through both ends, as high in its middle as there is room.
    const double rise = height * 0.26;
    const double radius = (across * across / 4 + rise * rise) / (2 * rise);
    SampleLine arc({left, height * 0.09});
    arc.ArcTo({style.width / 2, height * 0.09 + rise - radius}, {right, height * 0.09});
    return {straight, zigzag, arc};
}

// Whether a part is drawn along the line itself, bending with it. Everything else keeps its shape.
bool FollowsLine(const Member& member, const Part& part) {
    const auto* const path = std::get_if<PathPart>(&part);
    return path != nullptr && path->outline.IsOnAxis() && !path->fill && !member.fromAngle &&
           member.angle.value == 0.0 && member.angle.sum.terms.empty();
}

struct Extent {
    double repeat = 0.0; // the longest of the members
    double height = 0.0; // of what stands beside the line
    double reach = 0.0;  // of it, from the line
    double width = 0.0;
    double pieces = 0.0; // of one repetition
};

Extent ExtentOf(const ResolvedSymbol& symbol) {
    Extent extent;
    Box bounds;
    for (const Member& member : symbol.members) {
        extent.repeat = std::max(extent.repeat, member.repeat.value_or(0.0));
        bounds.Include(member.bounds);
        for (const Part& part : member.parts) {
            extent.pieces += FollowsLine(member, part)
                                 ? static_cast<double>(std::get<PathPart>(part).outline.Size()) / 2
                                 : 1.5;
        }
    }
    extent.height = bounds.Height();
    extent.width = bounds.Width();
    extent.reach = bounds.IsEmpty() ? 0.0 : std::max(std::fabs(bounds.low.y), std::fabs(bounds.high.y));
    return extent;
}

// Pixels per unit at which a few repetitions can be seen and what stands beside the line can be read.
double ScaleFor(const Extent& extent, Canvas& canvas) {
    double scale = 1.0;
    if (extent.repeat > 0.0) {
        const double wanted = std::clamp(kRepeatPerPiece * extent.pieces, kShortestRepeat, kLongestRepeat);
        scale = wanted / extent.repeat;
    } else if (extent.width > 0.0) {
        scale = kUnrepeatedLength / extent.width;
    }
    if (extent.height > 0.0) {
        const double limit = extent.repeat > 0.0 ? kLongestRepeat / extent.repeat : scale;
        scale = std::max(scale, std::min(kLegibleHeight / extent.height, limit));
    }
    if (extent.reach > 0.0) {
        scale = std::min({scale, kGreatestReach / extent.reach, kGreatestHeight / extent.height});
    }
    const double size = std::max(extent.width, extent.height);
    const bool isDots = extent.height == 0.0 && size > kShortestDot * extent.repeat;
    if (size > 0.0 && size * scale < 1.0 && !isDots) {
        canvas.Note(kRepeatTooLong);
        scale = kShortestRepeat / size;
    }
    return std::isfinite(scale) && scale > 0.0 ? scale : 1.0;
}

// The places of a member's repetitions along a line.
class Repetitions {
public:
    // `low` and `high` bound what a repetition draws, from its place, all in pixels.
    Repetitions(const Member& member, double scale, double lineLength, double low, double high)
        : offset_(member.startOffset * scale), step_(member.repeat.value_or(0.0) * scale) {
        if (!std::isfinite(offset_) || !std::isfinite(low) || !std::isfinite(high)) {
            return;
        }
        if (!(step_ > 0.0) || !std::isfinite(step_)) {
            count_ = 1;
            return;
        }
        first_ = std::max(0.0, std::ceil((0.0 - high - offset_) / step_));
        const double last = std::floor((lineLength - low - offset_) / step_);
        const double count = std::max(0.0, last - first_ + 1);
        complete_ = count <= kMostRepetitions;
        count_ = complete_ ? encoding::ToInt32(count) : kMostRepetitions;
    }

    int Count() const { return count_; }
    bool AreComplete() const { return complete_; }
    double Place(int index) const { return offset_ + (first_ + index) * step_; }
    void Limit(int count) {
        complete_ = complete_ && count_ <= count;
        count_ = std::min(count_, count);
    }

private:
    double offset_;
    double step_;
    double first_ = 0.0;
    int count_ = 0;
    bool complete_ = true;
};

class LinePicture {
public:
    LinePicture(Canvas& canvas, double scale)
        : canvas_(canvas), lines_(SampleLines(canvas.style)),
          scale_(scale), page_{{0.0, canvas.style.height}} {}

    void Draw(const Member& member) {
        for (const Part& part : member.parts) {
            if (!IsVisible(part) || PartBounds(part).IsEmpty()) {
                continue;
            }
            if (FollowsLine(member, part)) {
                DrawAlong(member, std::get<PathPart>(part));
            } else if (FitsPicture(PartBounds(part), scale_)) {
                DrawUpright(member, part);
            } else {
                canvas_.Note(kTooLarge);
            }
        }
    }

private:
    void DrawAlong(const Member& member, const PathPart& part);
    void AppendAlong(PathData& data, const SampleLine& line, const Outline& outline, double place) const;
    void DrawUpright(const Member& member, const Part& part);
    std::string Define(const Member& member, const Part& part, double anchor);
    void Use(const SampleLine::Spot& spot, bool turn, const std::string& id);

    Canvas& canvas_;
    std::array<SampleLine, 3> lines_;
    double scale_;
    Placement page_;
    int definitions_ = 0;
};

void LinePicture::AppendAlong(PathData& data, const SampleLine& line, const Outline& outline,
                              double place) const {
    double end = -1.0; // where the last piece ended that was drawn forwards
    ForEachPiece(
        outline,
        [&](Point from, Point to, bool startsHere) {
            const double start = place + from.x * scale_;
            const double stop = place + to.x * scale_;
            const double low = std::max(std::min(start, stop), 0.0);
            double high = std::min(std::max(start, stop), line.Length());
            if (high - low < kShortestStroke) {
                high = std::min(low, high);
            }
            if (low <= high) {
                line.Append(data, page_, low, high, startsHere || low != end);
                end = start <= stop ? high : -1.0;
            }
        },
        [](Point, Point, Point, Point, bool) {}); // curves never lie on the axis
}

void LinePicture::DrawAlong(const Member& member, const PathPart& part) {
    PathData data;
    const Box& bounds = part.outline.Bounds();
    for (const SampleLine& line : lines_) {
        Repetitions places(member, scale_, line.Length(), bounds.low.x * scale_, bounds.high.x * scale_);
        places.Limit(static_cast<int>(std::max<std::size_t>(1, kMostDrawnCommands / part.outline.Size())));
        for (int i = 0; i < places.Count(); ++i) {
            AppendAlong(data, line, part.outline, places.Place(i));
        }
        if (!places.AreComplete()) {
            canvas_.Note(kNotAllRepetitions);
        }
    }
    data.Finish();
    DrawPath(canvas_.svg, part, data, scale_, canvas_.style);
}

// The path commands that one use of a part draws.
std::size_t CommandsOf(const Part& part) {
    const auto* const path = std::get_if<PathPart>(&part);
    return path == nullptr ? 1 : std::max<std::size_t>(1, path->outline.Size());
}

std::string LinePicture::Define(const Member& member, const Part& part, double anchor) {
    std::string id = canvas_.style.idPrefix + "-" + std::to_string(definitions_++);
    canvas_.svg.Open("defs").Open("g").Set("id", id).Open("g");
    SetRotation(canvas_.svg, member.angle, canvas_.style);
    DrawPart(canvas_.svg, part, Placement{{0.0 - anchor, 0.0}, scale_}, canvas_.style);
    canvas_.svg.Close().Close().Close();
    return id;
}

void LinePicture::Use(const SampleLine::Spot& spot, bool turn, const std::string& id) {
    std::string transform = Translation(page_(spot.point));
    if (turn && spot.heading != 0.0) {
        transform += " rotate(";
        AppendPixels(transform,
                     -spot.heading * (180 / std::numbers::pi)); // hundredths of a degree do as well
        transform += ')';
    }
    canvas_.svg.Open("use").Set("href", "#" + id).Set("transform", transform).Close();
}

void LinePicture::DrawUpright(const Member& member, const Part& part) {
    const Box bounds = PartBounds(part);
    // What keeps its shape stands on the line where its own middle is, so that it sits well on a bend. What
    // is turned by an angle of its own turns about the place of the repetition.
    const bool turnsItself = member.fromAngle || member.angle.value != 0.0 || !member.angle.sum.terms.empty();
    const double anchor = turnsItself ? 0.0 : bounds.Middle().x * scale_;
    const std::string id = Define(member, part, anchor);
    const int most = static_cast<int>(std::max<std::size_t>(1, kMostDrawnCommands / CommandsOf(part)));
    for (const SampleLine& line : lines_) {
        // What would reach over the line's end is left out, as nothing would be there to carry it.
        const double end = bounds.high.x * scale_ - kOverhang;
        Repetitions places(member, scale_, line.Length(), std::max(anchor, end), anchor);
        places.Limit(most);
        for (int i = 0; i < places.Count(); ++i) {
            Use(line.At(places.Place(i) + anchor), !member.fromAngle, id);
        }
        if (!places.AreComplete()) {
            canvas_.Note(kNotAllRepetitions);
        }
    }
}

} // namespace

double LineScale(const ResolvedSymbol& symbol, Canvas& canvas) {
    return ScaleFor(ExtentOf(symbol), canvas);
}

void DrawLinePicture(Canvas& canvas, const ResolvedSymbol& symbol, double scale) {
    LinePicture picture(canvas, scale);
    for (const Member& member : symbol.members) {
        picture.Draw(member);
    }
}

} // namespace preview
