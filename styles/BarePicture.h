// A symbol as a picture without anything around it, in true millimetres, for pages and drawings of others.
#pragma once

#include "styles/Loss.h"

#include "preview/ResolvedSymbol.h"

#include <string>

namespace styles {

struct BarePicture {
    std::string svg; // a document; empty where there is no picture
    Losses losses;   // what it leaves out, or why there is none
};

/// How long a side of a picture may be, and a tile that repeats an area.
inline constexpr double kLargestMillimetres = 1e6;

/// Draws a line symbol along a straight level line of `length` millimetres, or, where that is 0, as many
/// whole repeats as 100 mm hold, but at least one; an area as a tile that repeats without a seam, as a
/// pattern element over a picture of its size; a point symbol in the box around its ink. `scale` multiplies
/// all lengths but pens that do not scale, and not that of the line. User units are pixels of style sheets,
/// of which an inch has 96.
BarePicture DrawBare(const preview::ResolvedSymbol& symbol, double scale, double length);

} // namespace styles
