#include "styleconv/LackedCharacters.h"

#include "StyleConversion/linetype/ControlCodes.h"
#include "StyleConversion/linetype/LinNames.h"
#include "StyleConversion/linetype/ShxDrawing.h"
#include "StyleConversion/platform/CodePage.h"
#include "StyleConversion/platform/Utf8.h"
#include "styleconv/LinetypeFindings.h"
#include "styleconv/Messages.h"

#include <algorithm>
#include <cstddef>

namespace styleconv {
namespace {

bool CanBeDrawn(const ShxUtility::Shape& glyph, const ShxUtility::ShapesInFile& font) {
    std::wstring path;
    LineConverter::ShxPen pen;
    return DrawShxShape(path, pen, glyph, font) == ShxUtility::kSuccess;
}

// Each once, in the order of the text, up to a character that cannot be drawn: the conversion tells of that
// one and leaves the linetype out. A text that lacks nothing is not drawn to find out.
std::wstring LackedOf(const std::string& text, const ShxUtility::ShapesInFile& font) {
    const std::wstring characters = LineConverter::ToUtf16Units(
        LineConverter::DecodeControlCodes(platform::AnsiToWide(text), true).characters);
    const auto end = std::find_if(characters.rbegin(), characters.rend(), [&font](wchar_t character) {
                         return LineConverter::FindGlyph(font, character) == nullptr;
                     }).base();
    std::wstring lacked;
    for (auto character = characters.begin(); character != end; ++character) {
        const ShxUtility::Shape* const glyph = LineConverter::FindGlyph(font, *character);
        if (glyph != nullptr && !CanBeDrawn(*glyph, font)) {
            break;
        }
        if (glyph == nullptr && lacked.find(*character) == std::wstring::npos) {
            lacked += *character;
        }
    }
    return lacked;
}

// What is to be said of the text; empty where its font has all characters of it.
std::string Remark(const LineConverter::ComplexElement& text, const LineConverter::LinParser& parser) {
    const auto style = parser.fontInfos().find(text.styleName);
    if (style == parser.fontInfos().end() || !style->second.typeface.empty()) {
        return "";
    }
    const std::wstring& name = style->second.fileName;
    const auto font = parser.shapeFiles().find(name);
    if (font == parser.shapeFiles().end() || font->second.fontInfo.empty()) {
        return "";
    }
    const std::wstring lacked = LackedOf(text.text, font->second);
    return lacked.empty() ? "" : "font " + Shown(name) + " lacks characters of the text: " + Shown(lacked);
}

} // namespace

void AddLackedCharacters(const std::string& file, const LineConverter::LinParser& parser, Severity severity,
                         const std::string& consequence, std::vector<Finding>& findings) {
    for (std::size_t linetype = 0; linetype < parser.linetypes().size(); ++linetype) {
        const LineConverter::LinetypeRecord& record = parser.linetypes()[linetype];
        for (std::size_t i = 0; i < record.elements.size(); ++i) {
            const LineConverter::LinElement& element = record.elements[i];
            const std::string remark =
                element.kind == LineConverter::kText ? Remark(*element.complex, parser) : "";
            if (!remark.empty()) {
                findings.push_back({file, parser.ElementLine(linetype, i), severity, remark + consequence,
                                    LinetypeItem(record.name)});
            }
        }
    }
}

} // namespace styleconv
