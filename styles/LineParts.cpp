#include "styles/LineParts.h"

#include "preview/PartDrawing.h"
#include "styles/Intervals.h"
#include "styles/Limits.h"

#include <utility>

namespace styles {
namespace {

using preview::Member;
using preview::Part;
using preview::PathPart;
using preview::Point;

bool TurnsByItself(const Member& member) {
    return member.fromAngle || member.angle.value != 0.0 || !member.angle.sum.terms.empty();
}

// Drawn along the line itself, bending with it.
bool LiesOnLine(const Member& member, const PathPart& path) {
    return path.outline.IsOnAxis() && path.line && !path.fill && !TurnsByItself(member);
}

class LineReader {
public:
    LineReader(double scale, LineParts& result) : scale_(scale), result_(result) {}

    void Read(const Member& member) {
        if (!member.angle.sum.terms.empty()) {
            result_.losses.insert(Loss::kTurningParts);
        }
        for (const Part& part : member.parts) {
            if (!IsVisible(part) || preview::PartBounds(part).IsEmpty()) {
                continue;
            }
            if (!member.repeat) {
                result_.losses.insert(Loss::kUnrepeated);
                continue;
            }
            const auto* const path = std::get_if<PathPart>(&part);
            if (path != nullptr && LiesOnLine(member, *path)) {
                ReadOnLine(member, *path);
            } else {
                ReadMark(member, part);
            }
        }
    }

private:
    Places PlacesAt(const Member& member, double place) const {
        const double interval = *member.repeat * scale_;
        return {interval, PhaseOf((member.startOffset + place) * scale_, interval)};
    }

    void ReadOnLine(const Member& member, const PathPart& path) {
        const Ink ink{path.line->color, PenOf(path, scale_)};
        const double period = *member.repeat * scale_;
        std::vector<Interval> intervals;
        std::set<double> dots;
        ForEachPiece(
            path.outline,
            [&](Point from, Point to, bool) {
                if (from == to) {
                    dots.insert(PlacesAt(member, from.x).offset);
                    return;
                }
                intervals.push_back({(member.startOffset + std::min(from.x, to.x)) * scale_,
                                     (member.startOffset + std::max(from.x, to.x)) * scale_});
            },
            [](Point, Point, Point, Point, bool) {}); // curves never lie on the axis
        if (!intervals.empty()) {
            result_.parts.emplace_back(DashesOf(ink, Joined(std::move(intervals), period), period));
        }
        for (const double offset : dots) {
            Add(Dots{ink, {period, offset}});
        }
    }

    static Dashes DashesOf(const Ink& ink, const std::vector<Interval>& joined, double period) {
        Dashes dashes{ink, {}, 0.0};
        if (joined.size() == 1 && joined.front().end - joined.front().start >= period) {
            return dashes;
        }
        for (std::size_t i = 0; i < joined.size(); ++i) {
            const double next = i + 1 < joined.size() ? joined[i + 1].start : joined.front().start + period;
            dashes.lengths.push_back(joined[i].end - joined[i].start);
            dashes.lengths.push_back(next - joined[i].end);
        }
        dashes.phase = PhaseOf(0.0 - joined.front().start, period);
        return dashes;
    }

    void ReadMark(const Member& member, const Part& part) {
        // What is turned by an angle of its own turns about the place of the repetition. Everything else
        // stands on the line where its own middle is, so that it sits well on a bend.
        Mark mark;
        mark.part = &part;
        mark.anchor = {TurnsByItself(member) ? 0.0 : preview::PartBounds(part).Middle().x, 0.0};
        mark.places = PlacesAt(member, mark.anchor.x);
        mark.turnsWithLine = !member.fromAngle;
        mark.angle = member.angle.value;
        Add(mark);
    }

    void Add(LinePart part) {
        if (marks_ == kMostMarks) {
            result_.losses.insert(Loss::kTooManyMarks);
            return;
        }
        ++marks_;
        result_.parts.push_back(std::move(part));
    }

    double scale_;
    LineParts& result_;
    std::size_t marks_ = 0;
};

} // namespace

LineParts LinePartsOf(const preview::ResolvedSymbol& symbol, double scale) {
    LineParts result;
    LineReader reader(scale, result);
    for (const Member& member : symbol.members) {
        reader.Read(member);
    }
    return result;
}

} // namespace styles
