#include "diagnostics/ShownText.h"

#include "StyleConversion/platform/Utf8.h"

#include <cstdint>

namespace diagnostics {

std::string ShownText(std::wstring_view text) {
    std::wstring shown(text);
    for (wchar_t& c : shown) {
        const auto code = static_cast<std::uint32_t>(c);
        const bool control = code < 0x20 || (code >= 0x7f && code < 0xa0);
        if (control) {
            c = L'?';
        }
    }
    return platform::WideToValidUtf8(shown);
}

std::string ShownText(std::string_view text) {
    return ShownText(platform::Utf8ToWide(text));
}

} // namespace diagnostics
