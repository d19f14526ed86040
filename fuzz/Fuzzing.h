// What every fuzz target is made of.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>

/// Each target defines it: tries one input and ends the program when something is not as it must be.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace fuzzing {

/// Ends the program, saying what was expected, unless `condition` holds.
inline void Require(bool condition, const char* expectation) {
    if (!condition) {
        std::fprintf(stderr, "expected: %s\n", expectation);
        std::abort();
    }
}

inline std::string_view Text(const std::uint8_t* data, std::size_t size) {
    return size == 0 ? std::string_view("") : std::string_view(reinterpret_cast<const char*>(data), size);
}

} // namespace fuzzing
