// Text that is safe inside markup.
#pragma once

#include <string>
#include <string_view>

namespace preview {

/// Escapes `&`, `<`, `>` and both quotes, and shows characters that markup cannot hold as U+FFFD: fit for
/// text and for attribute values in quotes.
std::string Escaped(std::string_view utf8);
std::string Escaped(std::wstring_view text);

/// A text as a string of JSON that may stand inside a script element: `<` cannot appear in it.
std::string JsonString(std::wstring_view text);
std::string JsonString(std::string_view utf8);

} // namespace preview
