// Texts of files as messages show them.
#pragma once

#include <string>
#include <string_view>

namespace diagnostics {

/// As UTF-8, with control characters shown as "?", so that no file can move the cursor of a terminal.
std::string ShownText(std::wstring_view text);
/// The same of UTF-8; what is none is shown as U+FFFD.
std::string ShownText(std::string_view text);

} // namespace diagnostics
