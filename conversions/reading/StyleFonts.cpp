#include "conversions/reading/StyleFonts.h"

#include "StyleConversion/platform/Files.h"
#include "StyleConversion/platform/Utf8.h"

#include <algorithm>

namespace conversions {

bool StyleFonts::Add(const std::string& style, const std::string& font) {
    if (Find(platform::Utf8ToWide(style).c_str()) != nullptr) {
        return false;
    }
    entries_.emplace_back(style, font);
    return true;
}

void StyleFonts::Use(const wchar_t* style) const {
    if (const Entry* const entry = Find(style); entry != nullptr) {
        entry->isUsed = true;
    }
}

const StyleFonts::Entry* StyleFonts::Find(const wchar_t* style) const {
    const auto found = std::find_if(entries_.begin(), entries_.end(), [style](const Entry& entry) {
        return platform::CompareIgnoringCase(platform::Utf8ToWide(entry.style).c_str(), style) == 0;
    });
    return found == entries_.end() ? nullptr : &*found;
}

} // namespace conversions
