// The path of one family of lines inside its tile.
#pragma once

#include "StyleConversion/pattern/PatternLine.h"

#include <string>

namespace pattern {

/// Appends "M x,y h length" for each dash of each row, or "M x,y L x,y" where the tile is rotated, with
/// blanks between them but none before the first. Turns the line's origin into the frame that it is drawn in
/// unless the tile is rotated, and again with each call.
/// Required: R37
void AppendLinePath(std::wstring& path, PatternLine& line);

} // namespace pattern
