// What symbols are made for: to be what they have always been, or to look like the drawing.
#pragma once

#include <cstdint>

namespace encoding {

enum class Fidelity : std::uint8_t {
    kStrict,   // the required output, to the character
    kFaithful, // symbols of the same form that draw what the definition says
};

} // namespace encoding
