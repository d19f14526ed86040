// Which rules a pattern file broke, and where, as a tolerant reading finds. The library itself never reads
// it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace pattern {

struct PatternError {
    enum class Kind : std::uint8_t {
        kByteOrderMark,
        kLongLine,
        kBlankLine,      // a strict reading finds a family of zeros there
        kIndentedRemark, // and there
        kIndentedHeader, // and there
        kRemarkBehind,   // a ";" behind numbers or a name
        kEmptyNumber,
        kNotANumber,
        kTextBehindNumber,
        kTooFewNumbers,
        kFamilyWithoutHeader,
        kScaled, // lengths, from here on
    };

    Kind kind = Kind::kByteOrderMark;
    std::size_t line = 0; // from 1
    std::string pattern;  // the name of the pattern that the line belongs to; empty for none
    std::string subject;  // what the kind speaks of, cut where it is long
    bool changes = false; // whether a strict reading finds something else
};

} // namespace pattern
