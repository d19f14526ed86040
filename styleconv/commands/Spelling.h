// What somebody meant who spelled a name otherwise.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace styleconv {

/// The name that takes the fewest letters more, less and changed to become `word`; the first of several.
/// Empty where there are no names.
std::string NearestOf(std::string_view word, const std::vector<std::string_view>& names);

} // namespace styleconv
