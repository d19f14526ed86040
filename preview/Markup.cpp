#include "preview/Markup.h"

#include "StyleConversion/platform/Utf8.h"

#include <nlohmann/json.hpp>

namespace preview {
namespace {

constexpr std::string_view kReplacement = "\xef\xbf\xbd";

// Control characters other than tab and the line ends stand in no document.
bool IsForbidden(char c) {
    const auto byte = static_cast<unsigned char>(c);
    return (byte < 0x20 && c != '\t' && c != '\n' && c != '\r') || byte == 0x7f;
}

// U+FFFE and U+FFFF are the only other code points that markup refuses.
bool IsNoCharacter(std::string_view rest) {
    return rest.starts_with("\xef\xbf\xbe") || rest.starts_with("\xef\xbf\xbf");
}

} // namespace

std::string Escaped(std::string_view utf8) {
    std::string escaped;
    escaped.reserve(utf8.size());
    for (std::size_t i = 0; i < utf8.size(); ++i) {
        const char c = utf8[i];
        switch (c) {
        case '&':
            escaped += "&amp;";
            break;
        case '<':
            escaped += "&lt;";
            break;
        case '>':
            escaped += "&gt;";
            break;
        case '"':
            escaped += "&quot;";
            break;
        case '\'':
            escaped += "&#39;";
            break;
        default:
            if (IsForbidden(c)) {
                escaped += kReplacement;
            } else if (c == '\xef' && IsNoCharacter(utf8.substr(i))) {
                escaped += kReplacement;
                i += 2;
            } else {
                escaped += c;
            }
        }
    }
    return escaped;
}

std::string Escaped(std::wstring_view text) {
    return Escaped(platform::WideToValidUtf8(text));
}

std::string JsonInScript(const nlohmann::ordered_json& value) {
    return InScript(value.dump(-1, ' ', false, nlohmann::ordered_json::error_handler_t::replace));
}

std::string InScript(std::string_view text) {
    // Both stand in texts alone, where JSON takes an escape for any character.
    std::string json;
    for (const char c : text) {
        if (c == '<') {
            json += "\\u003c";
        } else if (c == '\x7f') {
            json += "\\u007f";
        } else {
            json += c;
        }
    }
    return json;
}

} // namespace preview
