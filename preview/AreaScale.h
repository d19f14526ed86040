// How large an area symbol is shown.
#pragma once

#include "preview/PictureParts.h"

namespace preview {

/// Pixels between the sample area and each side of the picture.
inline constexpr double kAreaMargin = 20;

/// Pixels per unit at which lines stand well apart and yet enough of the pattern is seen. Notes where a
/// repetition does not fit.
double AreaScale(const ResolvedSymbol& symbol, Canvas& canvas);

} // namespace preview
