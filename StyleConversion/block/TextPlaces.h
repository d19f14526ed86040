// How texts stand to their points, where the drawing database tells. No required result needs it, so a host's
// database need not have it.
#pragma once

#include "StyleConversion/interfaces/HostNames.h"

namespace block {

/// The point that a text is aligned to; the insertion point, with `isKnown` false, where that is not told.
template <class Text>
OxGePoint3d AlignmentPointOf(Text& text, bool& isKnown) {
    isKnown = false;
    if constexpr (requires { text.hasAlignmentPoint(); }) {
        isKnown = text.hasAlignmentPoint();
        return text.alignmentPoint();
    } else {
        return text.position();
    }
}

/// Which point of a paragraph text stands at its location: 1 to 9, from the top left by rows; 1 where that is
/// not told.
template <class Text>
int AttachmentOf(Text& text) {
    if constexpr (requires { text.attachment(); }) {
        return static_cast<int>(text.attachment());
    } else {
        return 1;
    }
}

} // namespace block
