// The contents of a paragraph text as lines without formatting codes.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace block {

/// Lines end at "\P", "\N" and line feeds. Braces group, and every code for font, colour, height, width,
/// slant, spacing and strokes goes; "\\", "\{" and "\}" are those characters, "\~" a blank that does not
/// break, "\S1/2;" is "1/2" (also with "#" and "^"), "\U+2205" that character, and the "%%" codes are carried
/// out. An unknown code goes with its letter. At least one line, which may be empty.
std::vector<std::wstring> LinesOf(std::wstring_view contents);

} // namespace block
