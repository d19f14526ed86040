// Names that differ only in the case of their letters count as one name.
#pragma once

#include "StyleConversion/platform/Characters.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace drawing {

/// Hashes and compares names without regard to case.
struct FoldedHash {
    std::size_t operator()(std::wstring_view name) const {
        std::uint64_t hash = 14695981039346656037ULL; // FNV-1a
        for (const wchar_t c : name) {
            hash = (hash ^ static_cast<std::uint64_t>(platform::FoldCase(c))) * 1099511628211ULL;
        }
        return static_cast<std::size_t>(hash);
    }
};

struct FoldedEqual {
    bool operator()(std::wstring_view first, std::wstring_view second) const {
        if (first.size() != second.size()) {
            return false;
        }
        for (std::size_t index = 0; index < first.size(); ++index) {
            if (platform::FoldCase(first[index]) != platform::FoldCase(second[index])) {
                return false;
            }
        }
        return true;
    }
};

} // namespace drawing
