// Names, texts and numbers of files as messages show them.
#pragma once

#include "diagnostics/ShownText.h"

#include <string>
#include <string_view>

namespace conversions {

using diagnostics::ShownText;

/// A name or a line in the file's encoding: of a very long one, its first characters and "…".
std::string ShownName(std::string_view name);
std::string ShownLine(std::string_view text);

/// A number for people, rounded to so many parts of one.
std::string RoundedText(double value, double parts);

} // namespace conversions
