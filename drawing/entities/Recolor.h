// Another colour in the place of one of the palette.
#pragma once

#include "drawing/database/Database.h"

namespace drawing {

/// Gives everything of the drawing that has the index of the palette `index` the colour `color`: layers,
/// entities, fillings, attributes. Before the drawing is converted.
OXDB_API void ReplaceColor(Database& database, std::uint8_t index, const OxCmColor& color);

} // namespace drawing
