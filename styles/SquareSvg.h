// Parts of a symbol as a square SVG whose middle is an anchor: markers are placed and turned about it without
// an offset. Colour and pen are parameters, so that a map program's own buttons change them.
#pragma once

#include "styles/MarkerParts.h"

#include <string>
#include <vector>

namespace styles {

/// A text of the SVG that comes from an attribute of the feature.
struct AttributeText {
    std::string name; // of the parameter in the SVG
    std::wstring attribute;
    std::wstring standard; // what is written where the feature has none
};

struct SquareSvg {
    std::string text; // the document
    std::vector<AttributeText> attributes;
};

/// `reach` is half the side of the square in scaled units.
SquareSvg DrawSquare(const std::vector<Item>& items, preview::Point anchor, double reach, double scale,
                     const preview::ResolvedSymbol& symbol);

} // namespace styles
