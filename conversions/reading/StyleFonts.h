// The fonts that are given to text styles by name, where no drawing has the styles, and which of them were
// asked for.
#pragma once

#include <atomic>
#include <deque>
#include <string>
#include <utility>

namespace conversions {

class StyleFonts {
public:
    struct Entry {
        Entry(std::string styleName, std::string fontName)
            : style(std::move(styleName)), font(std::move(fontName)) {}

        std::string style;
        std::string font;                        // a .shx file or a typeface
        mutable std::atomic<bool> isUsed{false}; // by any of the conversions that share it
    };

    /// False where the style has a font already. Names of styles are the same in any case of letters.
    bool Add(const std::string& style, const std::string& font);
    /// Takes note that a text is in this style.
    void Use(const wchar_t* style) const;

    /// In the order in which they were added.
    const std::deque<Entry>& All() const { return entries_; }

private:
    const Entry* Find(const wchar_t* style) const;

    std::deque<Entry> entries_; // which stay where they are
};

} // namespace conversions
