// Wide text as UTF-16 units, whatever the width of wchar_t.
#pragma once

#include <cstdint>

namespace block {

/// Calls `use` with each unit of the zero-terminated `text` in order. Where wide characters have 32 bits,
/// those above U+FFFF give two units.
template <class Use>
void ForEachUtf16Unit(const wchar_t* text, Use use) {
    for (; *text != L'\0'; ++text) {
        const auto code = static_cast<std::uint32_t>(*text);
        if (sizeof(wchar_t) > 2 && code > 0xffff) {
            const std::uint32_t above = code - 0x10000;
            use(static_cast<std::uint16_t>(0xd800 + ((above >> 10U) & 0x3ffU)));
            use(static_cast<std::uint16_t>(0xdc00 + (above & 0x3ffU)));
        } else {
            use(static_cast<std::uint16_t>(code));
        }
    }
}

} // namespace block
