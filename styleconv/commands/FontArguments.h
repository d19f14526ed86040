// The values of --font: a font for STANDARD, or STYLE=FONT for another text style.
#pragma once

#include <string>
#include <vector>

namespace styleconv {

struct StyleOptions;

/// Reads them into the fonts of the options. False, with a message, where one is none of the two.
bool ReadFontArguments(StyleOptions& options);

/// All fonts, for who looks for their files.
std::vector<std::string> FontsOf(const StyleOptions& options);

/// Says which styles were given a font that no text is in.
void SayUnusedFonts(const StyleOptions& options);

} // namespace styleconv
