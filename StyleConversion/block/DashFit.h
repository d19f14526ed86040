// Fits a linetype's pattern to a length so that it sits centred there.
#pragma once

#include "OxDb/OxDbLinetypeTableRecord.h"
#include "StyleConversion/encoding/IntegerConversion.h"

#include <cstdint>

namespace block {

struct DashFit {
    /// Whole repetitions of the pattern; below 1 for none.
    std::int32_t repetitions;
    /// What is drawn before the first repetition, in place of its first dash, and again behind the last one.
    /// Drawing units.
    double lead;
};

inline DashFit FitDashes(const OxDbLinetypeTableRecord& linetype, double length) {
    const double patternLength = linetype.patternLength();
    const std::int32_t repetitions = encoding::ToInt32(length / patternLength);
    const double rest = length - repetitions * patternLength;
    const double first = linetype.dashLengthAt(0);
    const double lead = first > 0.0 && repetitions != 0 ? (first + rest) * 0.5 : rest * 0.5;
    return {repetitions, lead};
}

/// Whether there is a pattern to apply. Null is a linetype that could not be opened.
inline bool HasDashes(const OxDbLinetypeTableRecord* linetype) {
    return linetype != nullptr && linetype->patternLength() != 0.0 && linetype->numDashes() >= 1;
}

} // namespace block
