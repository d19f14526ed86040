// How far a pattern file may stray from its form and still be read.
#pragma once

#include "StyleConversion/encoding/Fidelity.h"

#include <cstdint>

namespace pattern {

enum class Unit : std::uint8_t { kNone, kMillimetre, kInch };

/// By default nothing is tolerated. Whatever is goes to the reading's errors: a tolerant reading without any
/// gives what a strict one gives.
struct PatternPolicy {
    /// A long line does not end the reading.
    bool linesOfAnyLength = false;
    /// Forms that people write and whose meaning is plain: blanks before a header or a remark, lines of
    /// blanks, remarks behind numbers and names, a dash list that an empty number ends, a byte-order mark.
    bool looseForm = false;
    /// Lengths behind a remark "%UNITS=" of another unit are scaled to this one; not under kNone.
    Unit wantedUnit = Unit::kNone;
    /// What the families are read for: those for faithful symbols come without the tiles of strict ones.
    encoding::Fidelity fidelity = encoding::Fidelity::kStrict;
};

inline constexpr PatternPolicy kTolerantPatternPolicy{true, true, Unit::kNone};

} // namespace pattern
