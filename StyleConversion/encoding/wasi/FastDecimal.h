// Reads doubles where the standard library's from_chars reads whole numbers alone.
#pragma once

#include <charconv>
#include <fast_float/fast_float.h>

namespace encoding {

/// As ReadDecimal.
inline std::from_chars_result FastDecimal(const char* first, const char* last, double& value) {
    const fast_float::from_chars_result result = fast_float::from_chars(first, last, value);
    return {result.ptr, result.ec};
}

} // namespace encoding
