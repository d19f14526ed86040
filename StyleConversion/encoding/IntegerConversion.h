// Doubles to 32-bit integers: the one place where this is done.
#pragma once

#include <cstdint>
#include <limits>

namespace encoding {

/// Truncation toward zero. A NaN and a value that does not fit give -2147483648, which is what the x86-64
/// conversion instruction gives; other machines, and the language, leave it open.
inline std::int32_t ToInt32(double value) {
    if (value > -2147483649.0 && value < 2147483648.0) {
        return static_cast<std::int32_t>(value);
    }
    return std::numeric_limits<std::int32_t>::min();
}

} // namespace encoding
