// What a text element takes from its text style.
#pragma once

#include "OxDb/OxDbObjectId.h"

namespace TylModel {
class Text;
}

namespace block {

/// Sets the font name, and bold and italic where the style is so. Nothing is set when the style is null or
/// cannot be read; the font name is empty for a style that uses a shape file.
void ApplyTextStyle(TylModel::Text& text, OxDbObjectId styleId);

/// Whole degrees of an angle in radians: half a degree is added and the rest cut off toward zero, so that
/// negative angles are not rounded as positive ones are. The output is wanted so.
int WholeDegrees(double radians);

} // namespace block
