// Paths and texts of a symbol as elements of SVG.
#pragma once

#include "preview/PathData.h"
#include "preview/Picture.h"
#include "preview/SvgWriter.h"

namespace preview {

/// Pixels of one millimetre, as style sheets define them.
inline constexpr double kPixelsPerMillimetre = 96 / 25.4;

/// The thinnest line and the smallest dot that show, in pixels. Weight 0 means as thin as can be seen; a
/// millimetre of weight is as long as a unit of the geometry.
inline constexpr double kHairline = 1.0;
inline constexpr double kSmallestDot = 2.0;

/// Writes a path part whose outline was brought into pixels as `data`. `scale` is pixels per unit; `tile` is
/// what the data repeat, if the page is to know.
void DrawPath(SvgWriter& svg, const PathPart& part, const PathData& data, double scale,
              const PictureStyle& style, const PathData* tile = nullptr);

/// Writes a part as it is placed, which must not turn it.
void DrawPart(SvgWriter& svg, const Part& part, const Placement& placement, const PictureStyle& style);

/// Sets the attributes that turn an element about its origin by an angle in degrees, counter-clockwise.
void SetRotation(SvgWriter& svg, const Amount& angle, const PictureStyle& style);

/// The box around a part in its own units.
Box PartBounds(const Part& part);

/// Whether a part draws anything.
bool IsVisible(const Part& part);

} // namespace preview
