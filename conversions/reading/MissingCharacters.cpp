#include "conversions/reading/MissingCharacters.h"

#include "StyleConversion/encoding/ControlCodes.h"
#include "StyleConversion/linetype/LinNames.h"
#include "StyleConversion/linetype/ShxDrawing.h"
#include "StyleConversion/platform/CodePage.h"
#include "StyleConversion/platform/Utf8.h"
#include "conversions/reading/LinetypeDiagnostics.h"
#include "conversions/reading/Shown.h"

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

namespace conversions {
namespace {

bool CanBeDrawn(const ShxUtility::Shape& glyph, const ShxUtility::ShapesInFile& font) {
    std::wstring path;
    LineConverter::ShxPen pen;
    return DrawShxShape(path, pen, glyph, font) == ShxUtility::kSuccess;
}

// Each once, in the order of the text, up to a character that cannot be drawn: the conversion tells of that
// one and leaves the linetype out. A text that has all is not drawn to find out.
std::wstring MissingOf(const std::string& text, const ShxUtility::ShapesInFile& font) {
    const std::wstring characters = LineConverter::ToUtf16Units(
        encoding::DecodeControlCodes(platform::AnsiToWide(text), true).characters);
    const auto end = std::find_if(characters.rbegin(), characters.rend(), [&font](wchar_t character) {
                         return LineConverter::FindGlyph(font, character) == nullptr;
                     }).base();
    std::wstring missing;
    for (auto character = characters.begin(); character != end; ++character) {
        const ShxUtility::Shape* const glyph = LineConverter::FindGlyph(font, *character);
        if (glyph != nullptr && !CanBeDrawn(*glyph, font)) {
            break;
        }
        if (glyph == nullptr && missing.find(*character) == std::wstring::npos) {
            missing += *character;
        }
    }
    return missing;
}

// The font of the text and the characters that it lacks; none where it has all of them.
std::vector<std::string> FontAndCharacters(const LineConverter::ComplexElement& text,
                                           const LineConverter::LinetypeFile& linetypes,
                                           const LinetypeSources& sources) {
    const auto style = linetypes.fontInfos.find(text.styleName);
    if (style == linetypes.fontInfos.end() || !style->second.typeface.empty()) {
        return {};
    }
    const std::wstring& name = style->second.fileName;
    const auto font = linetypes.shapeFiles.find(name);
    if (font == linetypes.shapeFiles.end() || font->second.fontInfo.empty()) {
        return {};
    }
    const std::wstring missing = MissingOf(text.text, font->second);
    return missing.empty() ? std::vector<std::string>()
                           : std::vector<std::string>{ShownText(sources.AsSpelled(name)), ShownText(missing)};
}

} // namespace

diagnostics::Diagnostics MissingCharacters(const std::string& file,
                                           const LineConverter::LinetypeFile& linetypes,
                                           const LinetypeSources& sources, diagnostics::Severity severity,
                                           diagnostics::Outcome outcome) {
    diagnostics::Diagnostics found;
    for (std::size_t linetype = 0; linetype < linetypes.linetypes.size(); ++linetype) {
        const LineConverter::LinetypeRecord& record = linetypes.linetypes[linetype];
        for (std::size_t i = 0; i < record.elements.size(); ++i) {
            const LineConverter::LinElement& element = record.elements[i];
            if (element.kind != LineConverter::kText) {
                continue;
            }
            std::vector<std::string> subjects = FontAndCharacters(*element.complex, linetypes, sources);
            if (!subjects.empty()) {
                diagnostics::Place place;
                place.file = file;
                place.line = element.line;
                place.item = LinetypeItem(record.name);
                found.push_back({severity, diagnostics::Code::kMissingCharacters, std::move(place),
                                 std::move(subjects), outcome});
            }
        }
    }
    return found;
}

} // namespace conversions
