// The picture of one symbol: what is inside the svg element.
#pragma once

#include "preview/ResolvedSymbol.h"

#include <optional>
#include <string>
#include <vector>

namespace preview {

/// How a picture is written.
struct PictureStyle {
    double width = 320; // pixels
    double height = 240;
    /// Begins every id in the picture, so that pictures may stand together in one document.
    std::string idPrefix = "s";
    /// Whether elements say, in data attributes, which parameters they follow, for a page that changes them.
    bool bindings = false;
    /// Whether what repeats over an area says so in data attributes, for a page that shows more of it.
    bool tiles = false;
    /// Whether a point symbol that fits is drawn as large as it is, rather than as large as fits.
    bool trueSize = false;
    /// Pixels for each unit of the symbol; 0 for as many as show it well.
    double scale = 0;
    /// Whether pens thinner than a screen can show are drawn as thin as they are.
    bool exactPens = false;
    /// What of a point symbol's plane is in the middle, for pictures that lie one over the other; its own
    /// frame where there is none.
    std::optional<Box> frame;
};

struct Picture {
    std::string markup;
    double scale = 0; // pixels for each unit of the symbol; 0 where nothing is drawn
    /// What a person should know about the picture, each a sentence.
    std::vector<std::string> notes;
};

/// Draws a symbol as its usage says: a point symbol by itself; a line symbol along a straight line, a zigzag
/// and an arc; an area symbol over a rectangle. A picture with only so much ink as a screen can show is made
/// from any symbol; where something had to be left out the notes say so.
Picture DrawPicture(const ResolvedSymbol& symbol, const PictureStyle& style);

/// Pixels for each unit at which the symbol is shown well; 0 where nothing is drawn.
double FittingScale(const ResolvedSymbol& symbol, const PictureStyle& style);

/// The box around all that takes room in a point symbol.
Box FrameOf(const ResolvedSymbol& symbol);

/// What kind of symbol it is and how large: "Line symbol, repeat 0.95".
std::string Describe(const ResolvedSymbol& symbol);

/// A colour of paper on which the symbol's own colours can be seen: white unless those are light.
Color PaperFor(const ResolvedSymbol& symbol);

} // namespace preview
