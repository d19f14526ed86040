// Hatches as expressions of QGIS: from a polygon to the lines, or the dots, that lie in it.
#pragma once

#include "styles/AreaParts.h"

#include <string>
#include <string_view>
#include <vector>

namespace styles {

/// In which units a hatch is repeated. Those of the map have y upwards; millimetres of the page have it
/// downwards.
enum class HatchUnit { kMap, kMillimetre };

/// The lines of all tilings as geometries, each of at most kMostGroups groups; none where they have none.
std::vector<std::string> LinesExpressions(const std::vector<Tiling>& tilings, HatchUnit unit);
/// Their dots.
std::vector<std::string> DotsExpressions(const std::vector<Tiling>& tilings, HatchUnit unit);

/// Whether a feature has not too many strokes of so many on a square unit, as far as it is seen.
std::string EnabledExpression(double density, HatchUnit unit);

/// A text as a literal of an expression, in quotes.
std::string QgisLiteral(std::string_view utf8);

} // namespace styles
