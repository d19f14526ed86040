// Text that is safe inside markup.
#pragma once

#include <nlohmann/json_fwd.hpp>
#include <string>
#include <string_view>

namespace preview {

/// Escapes `&`, `<`, `>` and both quotes, and shows characters that markup cannot hold as U+FFFD: fit for
/// text and for attribute values in quotes.
std::string Escaped(std::string_view utf8);
std::string Escaped(std::wstring_view text);

/// A value as JSON on one line that may stand inside a script element: `<` cannot appear in it. What is no
/// UTF-8 is shown as U+FFFD.
std::string JsonInScript(const nlohmann::ordered_json& value);

/// The same of the text of a JSON value.
std::string InScript(std::string_view text);

} // namespace preview
