// Names that differ only in the case of their letters count as one name.
#pragma once

#include <cstddef>
#include <string_view>

namespace drawing {

/// Capital letters as small ones: Latin, Greek and Cyrillic letters that have exactly one of each. Everything
/// else is left as it is. Depends on no locale.
constexpr wchar_t FoldCase(wchar_t c) {
    const auto code = static_cast<char32_t>(c);
    const auto shifted = [code](char32_t by) { return static_cast<wchar_t>(code + by); };
    if (code < 0x80) {
        return code >= U'A' && code <= U'Z' ? shifted(32) : c;
    }
    if (code <= 0xFF) { // Latin-1; U+00D7 is the multiplication sign
        return code >= 0xC0 && code <= 0xDE && code != 0xD7 ? shifted(32) : c;
    }
    if (code <= 0x17F) { // Latin Extended-A: pairs, capitals at even or at odd places
        const bool capitalsEven =
            (code <= 0x137 && code != 0x130 && code != 0x131) || (code >= 0x14A && code <= 0x177);
        const bool capitalsOdd = (code >= 0x139 && code <= 0x148) || (code >= 0x179 && code <= 0x17E);
        return ((capitalsEven && code % 2 == 0) || (capitalsOdd && code % 2 == 1)) ? shifted(1) : c;
    }
    if (code >= 0x391 && code <= 0x3AB) { // Greek; U+03A2 is not assigned
        return code != 0x3A2 ? shifted(32) : c;
    }
    if (code >= 0x400 && code <= 0x42F) { // Cyrillic
        return shifted(code <= 0x40F ? 80 : 32);
    }
    return c;
}

/// Hashes and compares names without regard to case.
struct FoldedHash {
    std::size_t operator()(std::wstring_view name) const {
        std::size_t hash = 14695981039346656037ULL; // FNV-1a
        for (const wchar_t c : name) {
            hash = (hash ^ static_cast<std::size_t>(FoldCase(c))) * 1099511628211ULL;
        }
        return hash;
    }
};

struct FoldedEqual {
    bool operator()(std::wstring_view first, std::wstring_view second) const {
        if (first.size() != second.size()) {
            return false;
        }
        for (std::size_t index = 0; index < first.size(); ++index) {
            if (FoldCase(first[index]) != FoldCase(second[index])) {
                return false;
            }
        }
        return true;
    }
};

} // namespace drawing
