// Texts with the line ends of Windows.
#pragma once

#include <string>
#include <string_view>

namespace support {

/// The text with CR LF for each LF.
inline std::string WithCarriageReturns(std::string_view text) {
    std::string changed;
    for (const char c : text) {
        changed += c == '\n' ? "\r\n" : std::string(1, c);
    }
    return changed;
}

} // namespace support
