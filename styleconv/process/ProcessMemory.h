// How much memory this process holds.
#pragma once

#include <cstdint>

namespace styleconv {

/// Bytes of memory in use by the process, code and libraries included; 0 where the system does not say.
/// Allocates nothing, so that it can be asked when memory is short.
std::uint64_t ProcessMemory();

} // namespace styleconv
