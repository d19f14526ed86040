// The font of the tool's own, for texts whose font is nowhere to be found.
#pragma once

#include <cstdio>
#include <string_view>

namespace styleconv {

/// The bytes of an SHX font with the characters 32 to 126.
std::string_view BuiltInFontBytes();

/// A new stream over them, at its start. Null, with errno set, when the system has no room for temporary
/// files. The caller closes it.
std::FILE* OpenBuiltInFont();

} // namespace styleconv
