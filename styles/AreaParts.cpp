#include "styles/AreaParts.h"

#include "styles/Intervals.h"

#include <map>
#include <utility>

namespace styles {
namespace {

using preview::Member;
using preview::PathPart;
using preview::Point;

// Chords for one curve. Patterns have none; what a host puts into an area still gets its shape.
constexpr int kChords = 8;

Point OnCurve(Point a, Point b, Point c, Point d, double t) {
    const double u = 1 - t;
    return a * (u * u * u) + b * (3 * u * u * t) + c * (3 * u * t * t) + d * (t * t * t);
}

// The straight pieces of an outline, multiplied by the scale.
void AppendPieces(const preview::Outline& outline, double scale, Tiling& tiling) {
    const auto add = [&](Point from, Point to) {
        if (from == to) {
            tiling.dots.push_back(from * scale);
        } else {
            tiling.strokes.push_back({from * scale, to * scale});
        }
    };
    ForEachPiece(
        outline, [&](Point from, Point to, bool) { add(from, to); },
        [&](Point from, Point control1, Point control2, Point to, bool) {
            Point last = from;
            for (int i = 1; i <= kChords; ++i) {
                const Point next =
                    i == kChords ? to
                                 : OnCurve(from, control1, control2, to, static_cast<double>(i) / kChords);
                add(last, next);
                last = next;
            }
        });
}

// Takes strokes along one axis that fill a whole step out of a tiling, as lines without an end.
void TakeEndless(double Point::*along, double Point::*across, double step, std::vector<Stroke>& strokes,
                 std::vector<double>& lines) {
    std::map<double, std::vector<Interval>> byPlace;
    for (const Stroke& stroke : strokes) {
        if (stroke.from.*across == stroke.to.*across) {
            byPlace[stroke.from.*across].push_back({std::min(stroke.from.*along, stroke.to.*along),
                                                    std::max(stroke.from.*along, stroke.to.*along)});
        }
    }
    std::set<double> endless;
    for (auto& [place, intervals] : byPlace) {
        if (Joined(std::move(intervals), step) == std::vector<Interval>{{0.0, step}}) {
            endless.insert(place);
            lines.push_back(place);
        }
    }
    std::erase_if(strokes, [&](const Stroke& stroke) {
        return stroke.from.*across == stroke.to.*across && endless.contains(stroke.from.*across);
    });
}

bool IsEmpty(const Tiling& tiling) {
    return tiling.rows.empty() && tiling.columns.empty() && tiling.strokes.empty() && tiling.dots.empty();
}

class AreaReader {
public:
    AreaReader(double scale, AreaParts& parts) : scale_(scale), parts_(parts) {}

    void Read(const Member& member) {
        if (!member.angle.sum.terms.empty()) {
            parts_.losses.insert(Loss::kTurningParts);
        }
        for (const preview::Part& part : member.parts) {
            if (const auto* const path = std::get_if<PathPart>(&part)) {
                Read(member, *path);
            } else {
                parts_.losses.insert(Loss::kAreaText);
            }
        }
    }

private:
    void Read(const Member& member, const PathPart& path) {
        if (path.fill) {
            parts_.losses.insert(Loss::kAreaFill);
        }
        if (!path.line) {
            return;
        }
        if (!member.repeatX || !member.repeatY) {
            parts_.losses.insert(Loss::kUnrepeated);
            return;
        }
        Tiling tiling;
        tiling.angle = member.angle.value;
        tiling.stepX = *member.repeatX * scale_;
        tiling.stepY = *member.repeatY * scale_;
        AppendPieces(path.outline, scale_, tiling);
        TakeEndless(&Point::x, &Point::y, tiling.stepX, tiling.strokes, tiling.rows);
        TakeEndless(&Point::y, &Point::x, tiling.stepY, tiling.strokes, tiling.columns);
        if (!IsEmpty(tiling)) {
            LayerOf({path.line->color, PenOf(path, scale_)}).tilings.push_back(std::move(tiling));
        }
    }

    AreaLayer& LayerOf(const Ink& ink) {
        if (parts_.layers.empty() || !(parts_.layers.back().ink == ink)) {
            parts_.layers.push_back({ink, {}});
        }
        return parts_.layers.back();
    }

    double scale_;
    AreaParts& parts_;
};

} // namespace

AreaParts AreaPartsOf(const preview::ResolvedSymbol& symbol, double scale) {
    AreaParts parts;
    AreaReader reader(scale, parts);
    for (const Member& member : symbol.members) {
        reader.Read(member);
    }
    return parts;
}

double DensityOf(const std::vector<Tiling>& tilings) {
    double density = 0.0;
    for (const Tiling& tiling : tilings) {
        const auto pieces = static_cast<double>(tiling.rows.size() + tiling.columns.size() +
                                                tiling.strokes.size() + tiling.dots.size());
        density += pieces / (tiling.stepX * tiling.stepY);
    }
    return density;
}

} // namespace styles
