// Other defaults for the colours and weights that a symbol leaves to its user.
#pragma once

#include "conversions/Conversion.h"

#include <cstddef>
#include <cstdint>
#include <optional>

namespace conversions {

struct Restyling {
    std::optional<std::uint32_t> color; // 0xrrggbb
    std::optional<double> weight;       // millimetres
};

/// How many symbols there are, and in how many of them a parameter got another default.
struct RestyledCounts {
    std::size_t symbols = 0;
    std::size_t colored = 0;
    std::size_t weighted = 0;

    void Add(const RestyledCounts& others);
};

/// Gives all parameters for colours, and for weights, of the symbols and of those that are shown for
/// comparison the new default. Symbols without such a parameter stay as they are.
RestyledCounts Restyle(Conversion& conversion, const Restyling& restyling);

} // namespace conversions
