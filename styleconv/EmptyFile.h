// What is said of a text file in which nothing was found to convert.
#pragma once

#include "styleconv/InputFile.h"

#include <string>
#include <string_view>

namespace styleconv {

/// What such a file holds, and how each begins.
struct EmptyFileWords {
    std::string_view contents; // "patterns"
    std::string_view absence;  // "no line begins with \"*\""
};

inline constexpr EmptyFileWords kNoLinetypes = {"linetypes", "no line begins with \"*\" and a name"};
inline constexpr EmptyFileWords kNoPatterns = {"patterns", "no line begins with \"*\""};

/// "the file has no patterns: …". Before the absence goes a mark of UTF-8 that hides the first header.
std::string EmptyFileText(const InputFile& input, const EmptyFileWords& words);

/// Says it, at the first line where it is for the mark.
void SayFileIsEmpty(const InputFile& input, const EmptyFileWords& words);

} // namespace styleconv
