// Whether a text has another in it: what tests of documents and messages ask most.
#pragma once

#include <string>
#include <string_view>

namespace support {

inline bool Has(std::string_view text, std::string_view part) {
    return text.find(part) != std::string_view::npos;
}

} // namespace support
