// What a style cannot say of a symbol.
#pragma once

#include <cstdint>
#include <set>

namespace styles {

enum class Loss : std::uint8_t {
    kUnderlining,  // lines under or over a text
    kTurningText,  // a text whose angle follows a parameter
    kTurningParts, // repeated parts whose angle follows a parameter
    kAreaText,     // a text that is repeated over an area
    kAreaFill,     // a filled shape that is repeated over an area
    kUnrepeated,   // a part of a line or an area that does not repeat
    kTooManyMarks, // marks of a line beyond what a program draws in reasonable time
    kUprightMarks, // marks of a line that do not turn with it
    kFixedText,    // a text that comes from an attribute
    kNoCell,       // the symbol: nothing of a size that a picture may have repeats it
    kLongRepeat,   // the symbol: a repeat of the line is larger than a picture may be
    kTooLarge,     // the symbol: its picture is larger than a picture may be
    kTooDense,     // the symbol: more strokes than a picture can show
    kNoInk,        // the symbol: it draws nothing
};

/// Each once.
using Losses = std::set<Loss>;

} // namespace styles
