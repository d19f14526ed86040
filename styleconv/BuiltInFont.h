// The font of the tool's own, for texts whose font is nowhere to be found.
#pragma once

#include <cstdio>

namespace styleconv {

/// A new stream over the bytes of an SHX font with the characters 32 to 126, at its start. Null, with errno
/// set, when the system has no room for temporary files. The caller closes it.
std::FILE* OpenBuiltInFont();

} // namespace styleconv
