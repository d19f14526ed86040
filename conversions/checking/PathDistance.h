// How far one path is from another.
#pragma once

#include "preview/ResolvedSymbol.h"

#include <optional>
#include <vector>

namespace conversions {

/// The lines of some paths, curves as chords, which leave an arc by less than a four-hundredth of its radius.
/// Filling closes a figure: where a path is not stroked as well, so are its lines.
class PathLines {
public:
    struct Line {
        preview::Point from;
        preview::Point to;
    };

    enum class As { kStrokes, kFills };

    /// What is not stroked, or not filled, is left out.
    PathLines(const std::vector<const preview::PathPart*>& paths, As as);

    const std::vector<Line>& Lines() const { return lines_; }
    bool IsEmpty() const { return lines_.empty(); }

private:
    void Append(const preview::Outline& outline);
    void Begin(preview::Point start);
    void Close();

    bool closes_;
    std::vector<Line> lines_;
    std::optional<preview::Point> start_; // of the figure that is not closed yet
};

/// The farthest that points along some lines are from the others, of which there must be one: points at even
/// distances, and the ends and the middle of each line where there are few. No less than `known`: what is
/// nearer is not looked at closely. The time grows with the number of lines, not with its square.
double FarthestFrom(const PathLines& others, const PathLines& lines, double known);

} // namespace conversions
