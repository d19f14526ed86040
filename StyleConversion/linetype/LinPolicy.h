// How far a linetype file may stray from its form and still be read.
#pragma once

#include "StyleConversion/linetype/LinResult.h"
#include "StyleConversion/shx/ShapeFilePolicy.h"

namespace LineConverter {

/// By default nothing is tolerated, and the first error ends a reading. Whatever else is tolerated goes to
/// the error log: a tolerant reading that logs nothing gives what a strict one gives.
struct LinPolicy {
    /// An error loses its linetype and no other.
    bool errorsStayLocal = false;
    /// A line is one line, however long.
    bool linesOfAnyLength = false;
    /// Forms that people write and whose meaning is plain: blanks around marks, a lower-case alignment
    /// letter, a text without a style, a comma before "]", "\\"" for a quote, "U=" for "R=", ";" and
    /// "\U+hhhh" in a text, lines of another kind before a pattern, a byte-order mark.
    bool looseForm = false;
    /// A text style that nobody knows is replaced by STANDARD.
    bool unknownStylesAreStandard = false;
    /// Of the shape files that linetypes name.
    ShxUtility::ShapeFilePolicy shapeFiles;
    /// What is drawn is what the file says, not what is required: angles in radians are taken as such, and
    /// the offset of a text or shape with an absolute angle is right beside a level line.
    bool faithful = false;
};

/// Whether a result ends everything.
constexpr bool EndsReading(const LinPolicy& policy, LinResult result) {
    return result != kSuccess && (!policy.errorsStayLocal || result == kOutOfMemory);
}

inline constexpr LinPolicy kTolerantLinPolicy{true, true, true, true, ShxUtility::kTolerantShapeFilePolicy};

} // namespace LineConverter
