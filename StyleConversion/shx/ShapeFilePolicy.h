// How far a shape file may stray from its form and still be read.
#pragma once

namespace ShxUtility {

/// By default nothing is tolerated. What was tolerated is in the report of a reading.
struct ShapeFilePolicy {
    /// The eleven bytes at the beginning may name any maker; the last four are "-86 ".
    bool anyMaker = false;
    /// The file may lack the "EOF" at its end.
    bool trailerMayBeMissing = false;
};

inline constexpr ShapeFilePolicy kTolerantShapeFilePolicy{true, true};

} // namespace ShxUtility
