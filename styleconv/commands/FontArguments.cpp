#include "styleconv/commands/FontArguments.h"

#include "StyleConversion/platform/Files.h"
#include "StyleConversion/platform/Utf8.h"
#include "diagnostics/ShownText.h"
#include "styleconv/commands/Options.h"
#include "styleconv/process/Messages.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

namespace styleconv {
namespace {

using diagnostics::ShownText;

constexpr std::string_view kDefaultStyle = "STANDARD";
constexpr const char* kFolderSeparators = "/\\";

struct FontArgument {
    bool hasStyle = false;
    std::string style;
    std::string font;
};

// No text style has a slash in its name, but the path of a font may have a "=" behind one.
FontArgument Split(const std::string& text) {
    const std::size_t at = text.find('=');
    if (at == std::string::npos || text.find_first_of(kFolderSeparators) < at) {
        return {false, std::string(kDefaultStyle), text};
    }
    return {true, text.substr(0, at), text.substr(at + 1)};
}

bool HasExtension(const std::string& font, const wchar_t* extension) {
    const std::wstring own = platform::SplitPath(platform::PathFromBytes(font)).extension;
    return platform::CompareIgnoringCase(own.c_str(), extension) == 0;
}

// A file, by all signs, that is not of the one kind that is read.
bool IsFileOfAnotherKind(const std::string& font) {
    constexpr std::array kOthers{L".ttf", L".ttc", L".otf", L".shp", L".pfb"};
    const bool hasFolder = font.find_first_of(kFolderSeparators) != std::string::npos;
    return !HasExtension(font, L".shx") &&
           (hasFolder || std::any_of(kOthers.begin(), kOthers.end(), [&](const wchar_t* extension) {
                return HasExtension(font, extension);
            }));
}

// What is wrong with it, if anything is.
std::string ProblemOf(const FontArgument& argument) {
    if (argument.style.empty()) {
        return "there is no text style before the \"=\"";
    }
    if (argument.font.empty()) {
        return argument.hasStyle ? "there is no font behind the \"=\"" : "there is no font";
    }
    if (IsFileOfAnotherKind(argument.font)) {
        return "font files end in .shx; of another font, give the name of the typeface";
    }
    return "";
}

} // namespace

bool ReadFontArguments(StyleOptions& options) {
    for (const std::string& text : options.fontArguments) {
        const FontArgument argument = Split(text);
        std::string problem = ProblemOf(argument);
        const bool isRepeated = problem.empty() && !options.fonts.Add(argument.style, argument.font);
        if (isRepeated) {
            problem = "text style " + ShownText(argument.style) + " has a font already";
        }
        if (!problem.empty()) {
            SayLine("styleconv: --font \"" + ShownText(text) + "\": " + problem);
            return false;
        }
        if (!argument.hasStyle) {
            // Nobody said that a text is in it.
            options.fonts.Use(platform::Utf8ToWide(argument.style).c_str());
        }
    }
    return true;
}

std::vector<std::string> FontsOf(const StyleOptions& options) {
    std::vector<std::string> fonts;
    for (const conversions::StyleFonts::Entry& entry : options.fonts.All()) {
        fonts.push_back(entry.font);
    }
    return fonts;
}

void SayUnusedFonts(const StyleOptions& options) {
    for (const conversions::StyleFonts::Entry& entry : options.fonts.All()) {
        if (!entry.isUsed) {
            SayLine("styleconv: warning: --font: no linetype that was read has a text in style " +
                    ShownText(entry.style));
        }
    }
}

} // namespace styleconv
