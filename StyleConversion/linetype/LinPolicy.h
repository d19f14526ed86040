// How far a linetype file may stray from its form and still be read.
#pragma once

#include "StyleConversion/shx/ShapeFilePolicy.h"

namespace LineConverter {

/// By default nothing is forgiven, and the first fault ends a reading. Whatever else is forgiven is told to
/// the fault log: a reading that forgives and finds nothing to tell gives what a strict one gives.
struct LinPolicy {
    /// A fault loses its linetype and no other.
    bool faultsStayLocal = false;
    /// A line is one line, however long.
    bool linesOfAnyLength = false;
    /// Forms that people write and whose meaning is plain: blanks around marks, a lower-case alignment
    /// letter, a text without a style, a comma before "]", "U=" for "R=", ";" and "\U+hhhh" in a text, lines
    /// of another kind before a pattern, a byte-order mark.
    bool looseForm = false;
    /// A text style that nobody knows is replaced by STANDARD.
    bool unknownStylesAreStandard = false;
    /// Of the shape files that linetypes name.
    ShxUtility::ShapeFilePolicy shapeFiles;
};

inline constexpr LinPolicy kTolerantLinPolicy{true, true, true, true, ShxUtility::kTolerantShapeFilePolicy};

} // namespace LineConverter
