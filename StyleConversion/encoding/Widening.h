// ASCII text made by number formatting, appended to wide text.
#pragma once

#include <cstddef>
#include <string>

namespace encoding {

/// Appends `length` ASCII characters without a temporary string.
inline void AppendAscii(std::wstring& text, const char* characters, std::size_t length) {
    const std::size_t start = text.size();
    text.resize(start + length);
    for (std::size_t i = 0; i < length; ++i) {
        text[start + i] = static_cast<wchar_t>(characters[i]);
    }
}

} // namespace encoding
