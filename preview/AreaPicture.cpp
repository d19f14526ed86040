// An area symbol over a rectangle.

#include "preview/Limits.h"
#include "preview/NumberTexts.h"
#include "preview/PictureParts.h"

#include "StyleConversion/encoding/IntegerConversion.h"

#include <utility>

namespace preview {
namespace {

// The copies of a tile along one of its axes that reach into the picture.
struct Range {
    double first = 0.0;
    double count = 1.0;
    bool complete = true;

    // `low` and `high` bound the tile's drawing, `radius` the picture, all in pixels about its middle.
    static Range Over(std::optional<double> step, double low, double high, double radius) {
        if (!step || !(*step > 0.0) || !std::isfinite(*step)) {
            return {};
        }
        Range range;
        range.first = std::ceil((-radius - high) / *step);
        range.count = std::max(0.0, std::floor((radius - low) / *step) - range.first + 1);
        return range;
    }

    // Keeps the copies about the middle one.
    void Limit(double most) {
        if (!(count <= most)) {
            const double middle = std::isfinite(first) ? first + count / 2 : 0.0;
            first = std::floor((std::isfinite(middle) ? middle : 0.0) - most / 2);
            count = most;
            complete = false;
        }
    }
};

// Shortens a line to what lies within a square about the origin. False when nothing does.
bool Clip(Point& from, Point& to, double half) {
    double enter = 0.0;
    double leave = 1.0;
    const Point way = to - from;
    if (!std::isfinite(way.x) || !std::isfinite(way.y)) {
        return false;
    }
    for (const auto& [start, step] : {std::pair(from.x, way.x), std::pair(from.y, way.y)}) {
        for (const double side : {-1.0, 1.0}) {
            const double distance = half - side * start; // to the side, outwards positive
            const double speed = side * step;
            if (speed == 0.0) {
                if (distance < 0.0) {
                    return false;
                }
            } else if (speed > 0.0) {
                leave = std::min(leave, distance / speed);
            } else {
                enter = std::max(enter, distance / speed);
            }
        }
    }
    if (!(enter <= leave)) {
        return false;
    }
    const Point start = from;
    from = start + way * enter;
    to = leave < 1.0 ? start + way * leave : to;
    return true;
}

class AreaPicture {
public:
    AreaPicture(Canvas& canvas, double scale)
        : canvas_(canvas), scale_(scale), width_(canvas.style.width - 2 * kAreaMargin),
          height_(canvas.style.height - 2 * kAreaMargin), radius_(Length({width_, height_}) / 2) {}

    void Draw(const ResolvedSymbol& symbol);

private:
    void Draw(const Member& member);
    void DrawTiled(const Member& member, const PathPart& part);
    void DrawTiled(const Member& member, const Part& part);
    void AppendTile(PathData& data, const PathPart& part, Point at) const;
    void Frame();

    /// Calls `draw` with the place of each copy of the tile; it returns whether to go on.
    template <class Drawer>
    void ForEachTile(const Member& member, const Box& bounds, std::size_t commands, Drawer draw);

    Canvas& canvas_;
    double scale_;
    double width_;
    double height_;
    double radius_; // of a circle round the sample: it is covered whatever the tiling's angle
    int definitions_ = 0;
};

template <class Drawer>
void AreaPicture::ForEachTile(const Member& member, const Box& bounds, std::size_t commands, Drawer draw) {
    const auto pixels = [this](const std::optional<double>& length) {
        return length ? std::optional(*length * scale_) : std::nullopt;
    };
    const auto stepX = pixels(member.repeatX);
    const auto stepY = pixels(member.repeatY);
    Range columns = Range::Over(stepX, bounds.low.x * scale_, bounds.high.x * scale_, radius_);
    Range rows = Range::Over(stepY, bounds.low.y * scale_, bounds.high.y * scale_, radius_);
    const double most = std::clamp(static_cast<double>(kMostCopiedCommands) /
                                       static_cast<double>(std::max<std::size_t>(1, commands)),
                                   1.0, static_cast<double>(kMostTiles));
    if (!(columns.count * rows.count <= most)) {
        const double side = std::max(1.0, std::floor(std::sqrt(most)));
        columns.Limit(std::max(side, std::floor(most / std::max(1.0, rows.count))));
        rows.Limit(std::max(1.0, std::floor(most / std::max(1.0, columns.count))));
    }
    // Not more than kMostTiles by now.
    const int rowCount = encoding::ToInt32(rows.count);
    const int columnCount = encoding::ToInt32(columns.count);
    for (int row = 0; row < rowCount; ++row) {
        for (int column = 0; column < columnCount; ++column) {
            const Point at{(columns.first + column) * stepX.value_or(0.0),
                           (rows.first + row) * stepY.value_or(0.0)};
            if (!draw(at)) {
                canvas_.Note(kNotAllRepetitions);
                return;
            }
        }
    }
    if (!columns.complete || !rows.complete) {
        canvas_.Note(kNotAllRepetitions);
    }
}

void AreaPicture::AppendTile(PathData& data, const PathPart& part, Point at) const {
    Placement placement{{at.x, 0.0 - at.y}, scale_};
    if (part.fill) {
        AppendOutline(data, part.outline, placement);
        return;
    }
    Point end{std::numeric_limits<double>::infinity(), 0.0}; // of the last line drawn
    ForEachPiece(
        part.outline,
        [&](Point from, Point to, bool startsHere) {
            Point start = placement(from);
            Point stop = placement(to);
            if (!Clip(start, stop, radius_)) {
                return;
            }
            if (startsHere || !(start == end)) {
                data.MoveTo(start);
            }
            data.LineTo(stop);
            end = stop;
        },
        [&](Point from, Point control1, Point control2, Point to, bool) {
            const Point start = placement(from);
            const Point stop = placement(to);
            const double nearest = std::min(Length(start), Length(stop)) - Length(stop - start);
            if (nearest > radius_ * 2) {
                return;
            }
            if (!(start == end)) {
                data.MoveTo(start);
            }
            data.CurveTo(placement(control1), placement(control2), stop);
            end = stop;
        });
}

// All copies are one path: pieces that meet at the edge of two tiles leave no seam there.
void AreaPicture::DrawTiled(const Member& member, const PathPart& part) {
    PathData data;
    ForEachTile(member, part.outline.Bounds(), part.outline.Size(), [&](Point at) {
        if (data.Size() > kMostDrawnCommands) {
            return false;
        }
        AppendTile(data, part, at);
        return true;
    });
    data.Finish();
    PathData tile;
    const bool saysTile = canvas_.style.tiles && part.outline.Size() <= kMostTileCommands;
    if (saysTile) {
        AppendOutline(tile, part.outline, Placement{{}, scale_});
        tile.Finish();
    }
    DrawPath(canvas_.svg, part, data, scale_, canvas_.style, saysTile ? &tile : nullptr);
}

void AreaPicture::DrawTiled(const Member& member, const Part& part) {
    const std::string id = canvas_.style.idPrefix + "-" + std::to_string(definitions_++);
    canvas_.svg.Open("defs").Open("g").Set("id", id);
    DrawPart(canvas_.svg, part, Placement{{}, scale_}, canvas_.style);
    canvas_.svg.Close().Close();
    ForEachTile(member, PartBounds(part), 1, [&](Point at) {
        canvas_.svg.Open("use").Set("href", "#" + id).Set("x", at.x).Set("y", 0.0 - at.y).Close();
        return true;
    });
}

void AreaPicture::Draw(const Member& member) {
    canvas_.svg.Open("g");
    SetRotation(canvas_.svg, member.angle, canvas_.style);
    if (canvas_.style.tiles) {
        canvas_.svg.Set("data-step", ExactNumber(member.repeatX.value_or(0.0) * scale_) + ' ' +
                                         ExactNumber(member.repeatY.value_or(0.0) * scale_));
    }
    for (const Part& part : member.parts) {
        if (!IsVisible(part) || PartBounds(part).IsEmpty()) {
            continue;
        }
        const auto* const path = std::get_if<PathPart>(&part);
        if (path == nullptr) {
            DrawTiled(member, part);
        } else if (!path->fill || FitsPicture(PartBounds(part), scale_)) {
            DrawTiled(member, *path);
        } else {
            canvas_.Note(kTooLarge);
        }
    }
    canvas_.svg.Close();
}

void AreaPicture::Frame() {
    canvas_.svg.Open("rect")
        .Set("x", kAreaMargin)
        .Set("y", kAreaMargin)
        .Set("width", width_)
        .Set("height", height_)
        .Set("stroke", "#808080")
        .Set("stroke-opacity", "0.5")
        .Set("class", "frame")
        .Close();
}

void AreaPicture::Draw(const ResolvedSymbol& symbol) {
    const std::string id = canvas_.style.idPrefix + "-clip";
    canvas_.svg.Open("clipPath").Set("id", id).Open("rect");
    canvas_.svg.Set("x", kAreaMargin).Set("y", kAreaMargin).Set("width", width_).Set("height", height_);
    canvas_.svg.Close().Close();
    canvas_.svg.Open("g").Set("clip-path", "url(#" + id + ")").Open("g");
    canvas_.svg.Set("transform", Translation({canvas_.style.width / 2, canvas_.style.height / 2}));
    for (const Member& member : symbol.members) {
        Draw(member);
    }
    canvas_.svg.Close().Close();
    Frame();
}

} // namespace

void DrawAreaPicture(Canvas& canvas, const ResolvedSymbol& symbol, double scale) {
    AreaPicture(canvas, scale).Draw(symbol);
}

} // namespace preview
