// The three kinds of pictures.
#pragma once

#include "preview/PartDrawing.h"

namespace preview {

/// What makers of pictures share: where the markup goes, and what there is to say about it.
struct Canvas {
    SvgWriter svg;
    const PictureStyle& style;
    std::vector<std::string>& notes;

    /// Adds a note once.
    void Note(std::string_view note);
};

/// Notes that more than one kind of picture needs.
inline constexpr std::string_view kNotAllRepetitions = "Not all repetitions are drawn.";
inline constexpr std::string_view kRepeatTooLong = "The repeat is longer than the picture.";
inline constexpr std::string_view kTooLarge = "A part is too large to be drawn.";

/// Pixels for each unit at which a symbol is shown well. Notes where a repetition does not fit. A point
/// symbol that draws nothing has 0.
double PointScale(const ResolvedSymbol& symbol, Canvas& canvas);
double LineScale(const ResolvedSymbol& symbol, Canvas& canvas);
double AreaScale(const ResolvedSymbol& symbol, Canvas& canvas);

void DrawPointPicture(Canvas& canvas, const ResolvedSymbol& symbol, double scale);
void DrawLinePicture(Canvas& canvas, const ResolvedSymbol& symbol, double scale);
void DrawAreaPicture(Canvas& canvas, const ResolvedSymbol& symbol, double scale);

/// Pixels between the sample area and each side of the picture.
inline constexpr double kAreaMargin = 20;

/// Whether a box in units, at this scale, stays where renderers are exact.
bool FitsPicture(const Box& box, double scale);

/// "translate(x y)"
std::string Translation(Point pixels);

/// The box around the given boxes of a symbol's members, each turned by its angle.
Box TurnedBounds(const ResolvedSymbol& symbol, Box Member::*box);

} // namespace preview
