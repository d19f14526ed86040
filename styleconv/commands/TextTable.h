// Texts in columns, as a terminal shows them.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace styleconv {

/// The columns that a terminal needs for UTF-8 text: two for a wide character as of Chinese, none for one
/// that stands on the character before it.
std::size_t DisplayWidth(std::string_view text);

/// Rows of as many texts each, one a line; two blanks at least stand between columns and none at the end.
std::string TableText(const std::vector<std::vector<std::string>>& rows);

} // namespace styleconv
