// Bytes as base64.
#pragma once

#include <string>
#include <string_view>

namespace styles {

/// With padding and without line ends.
std::string Base64(std::string_view bytes);

} // namespace styles
