#include "styleconv/commands/Spelling.h"

#include <algorithm>
#include <cstddef>
#include <numeric>

namespace styleconv {
namespace {

// No name is longer, and what is behind tells nothing.
constexpr std::size_t kMostLetters = 64;

// How many letters have to be added, removed or changed.
std::size_t DistanceOf(std::string_view a, std::string_view b) {
    std::vector<std::size_t> row(b.size() + 1); // of the letters of `a` so far to the first ones of `b`
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (std::size_t i = 0; i < a.size(); ++i) {
        std::size_t diagonal = row[0];
        row[0] = i + 1;
        for (std::size_t j = 0; j < b.size(); ++j) {
            const std::size_t changed = diagonal + (a[i] == b[j] ? 0 : 1);
            diagonal = row[j + 1];
            row[j + 1] = std::min({changed, row[j] + 1, row[j + 1] + 1});
        }
    }
    return row.back();
}

} // namespace

std::string NearestOf(std::string_view word, const std::vector<std::string_view>& names) {
    word = word.substr(0, kMostLetters);
    const auto nearest =
        std::min_element(names.begin(), names.end(), [&](std::string_view a, std::string_view b) {
            return DistanceOf(word, a) < DistanceOf(word, b);
        });
    return nearest == names.end() ? "" : std::string(*nearest);
}

} // namespace styleconv
