// How large texts will be, without the fonts: estimates that hold for common sans-serif typefaces.
#pragma once

#include "preview/ResolvedSymbol.h"

namespace preview {

/// The size of a capital letter in em. Heights of drawing texts are those of capitals; font sizes are em.
inline constexpr double kCapitalHeight = 0.716;
/// How far letters reach below the base line, in em.
inline constexpr double kDescent = 0.212;
/// The mean advance of a letter, in em.
inline constexpr double kAdvance = 0.58;

/// In the units of the text's height.
inline double FontSize(const TextPart& text) {
    return text.height / kCapitalHeight;
}

/// Where the text's own box, before it is turned by its angle, stands relative to its position: x from its
/// left end to its right one, y from the descent to the top of capitals, y up.
Box EstimatedBoxAtPosition(const TextPart& text);

/// The distance from the text's position up to its base line.
double BaselineShift(const TextPart& text);

/// The box around the turned text in the symbol's units.
Box EstimatedBounds(const TextPart& text);

} // namespace preview
