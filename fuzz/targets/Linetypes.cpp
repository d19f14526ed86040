// A linetype file with its shape file to symbols.
//
// Input: the linetype file and, from the last "Vorlanx-86 " on, the shape file that every name finds. Styles
// whose name begins with "T" have a typeface, all others that shape file.
#include "StyleConversion/linetype/LinParser.h"
#include "StyleConversion/linetype/LineConverter.h"
#include "StyleConversion/shx/ShxUtility.h"
#include "fuzz/Documents.h"
#include "fuzz/Fuzzing.h"
#include "fuzz/Inputs.h"
#include "fuzz/ShapeWork.h"

#include <algorithm>
#include <string>

namespace {

using fuzzing::Require;

class Services : public LineConverter::IGetFile, public LineConverter::IGetFontInfo {
public:
    explicit Services(std::string_view shapeFile) : shapeFile_(shapeFile) {}

    std::FILE* GetFile(const wchar_t* /*name*/, const wchar_t* /*extension*/) override {
        return shapeFile_.empty() ? nullptr : fuzzing::OpenBytes(shapeFile_).release();
    }

    bool GetFontInfoFromStyle(const wchar_t* styleName, LineConverter::FontInfo& info) override {
        info.fileName = L"font.shx";
        info.xScale = 1.0;
        if (styleName[0] == L'T') {
            info.typeface = L"Face";
        }
        info.bold = styleName[1] == L'B';
        info.isVertical = styleName[1] == L'V';
        info.textSize = styleName[1] == L'F' ? 0.25 : 0.0;
        return styleName[0] != L'N';
    }

private:
    std::string_view shapeFile_;
};

// A text draws a shape for each of its characters.
bool TakesLittleWork(std::string_view shapeFile) {
    ShxUtility::ShapesInFile file;
    const fuzzing::Stream stream = fuzzing::OpenBytes(shapeFile);
    ShxUtility::LoadShapeFile(stream.get(), file, ShxUtility::kAllKinds);
    return fuzzing::AllFitBudget(file);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static fuzzing::InputOnDisk input;
    const std::string_view bytes = fuzzing::Text(data, size);
    const std::size_t border = std::min(bytes.rfind("Vorlanx-86 "), size);
    const std::string_view text = bytes.substr(0, border);
    const std::string_view shapeFile = bytes.substr(border);
    fuzzing::ChooseCodePage(text);
    if (!TakesLittleWork(shapeFile)) {
        return 0;
    }
    const std::wstring& path = input.Holding(text);
    Services services(shapeFile);
    LineConverter::LinParser parser(&services, &services);
    const LineConverter::LinResult result = parser.Parse(path);
    Require(result >= 0 && result <= LineConverter::kShapeFileNotLoaded &&
                result != LineConverter::kOutOfMemory && result != LineConverter::kCannotOpen,
            "a result of reading what is there");
    Require((result == LineConverter::kSuccess) == parser.faults().empty(), "a fault with every failure");

    auto* const converted = LineConverter::Convert(path.c_str(), &services, &services, 2.0);
    auto* const again = LineConverter::Convert(path.c_str(), &services, &services, 2.0);
    Require((converted != nullptr) == (again != nullptr), "the same result twice");
    Require(converted == nullptr || result == LineConverter::kSuccess,
            "no symbols from a file that is refused");
    Require(converted == nullptr || converted->size() == parser.linetypes().size(),
            "a symbol for every linetype");
    const fuzzing::Symbols symbols = fuzzing::Owned(converted);
    const std::string document = fuzzing::TextOf(symbols);
    fuzzing::RequireDocument(document, symbols.size());
    Require(fuzzing::TextOf(fuzzing::Owned(again)) == document, "the same document twice");
    return 0;
}
