// A linetype file with its shape file, read by the policies that forgive, to symbols.
//
// Input: the linetype file and, from seven bytes before the last "-86 " on, the shape file that every name
// finds. Styles whose name begins with "T" have a typeface, those with "N" are not there, all others have
// that shape file.
#include "StyleConversion/linetype/CLinVisitor.h"
#include "StyleConversion/linetype/LinParser.h"
#include "StyleConversion/linetype/LineConverter.h"
#include "StyleConversion/shx/ShapeFileFault.h"
#include "fuzz/Documents.h"
#include "fuzz/Fuzzing.h"
#include "fuzz/Inputs.h"
#include "fuzz/ShapeWork.h"

#include <string>
#include <vector>

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
        info.isVertical = styleName[1] == L'V';
        return styleName[0] != L'N';
    }

private:
    std::string_view shapeFile_;
};

bool TakesLittleWork(std::string_view shapeFile) {
    ShxUtility::ShapesInFile file;
    ShxUtility::ShapeFileFaultReport report;
    const fuzzing::Stream stream = fuzzing::OpenBytes(shapeFile);
    ShxUtility::LoadShapeFile(stream.get(), file, ShxUtility::kAllKinds, report,
                              ShxUtility::kTolerantShapeFilePolicy);
    return fuzzing::AllFitBudget(file);
}

struct Conversion {
    std::string document;
    std::size_t symbols = 0;
    std::size_t linetypes = 0;
    std::vector<LineConverter::LinFault> faults;
};

Conversion Convert(const std::wstring& path, Services& services) {
    LineConverter::LinParser parser(&services, &services, LineConverter::kTolerantLinPolicy);
    Require(parser.Parse(path) == LineConverter::kSuccess, "every file that is there to be read");
    LineConverter::CLinVisitor visitor(2.0, &parser.faultLog(), LineConverter::kTolerantLinPolicy);
    Require(parser.Accept(visitor) == LineConverter::kSuccess, "every linetype to be walked");
    const fuzzing::Symbols symbols = fuzzing::Owned(visitor.TakeResults());
    Conversion conversion{fuzzing::TextOf(symbols), symbols.size(), parser.linetypes().size(),
                          parser.faults()};
    Require(conversion.symbols <= conversion.linetypes, "a symbol for a linetype at most");
    Require(conversion.symbols == conversion.linetypes || !conversion.faults.empty(),
            "a fault for what is left out");
    return conversion;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static fuzzing::InputOnDisk input;
    constexpr std::size_t kMaker = 7; // bytes before "-86 "
    const std::string_view bytes = fuzzing::Text(data, size);
    const std::size_t mark = bytes.rfind("-86 ");
    const std::size_t border = mark == std::string_view::npos || mark < kMaker ? size : mark - kMaker;
    const std::string_view text = bytes.substr(0, border);
    const std::string_view shapeFile = bytes.substr(border);
    fuzzing::ChooseCodePage(text);
    if (!TakesLittleWork(shapeFile)) {
        return 0;
    }
    const std::wstring& path = input.Holding(text);
    Services services(shapeFile);
    const Conversion conversion = Convert(path, services);
    fuzzing::RequireDocument(conversion.document, conversion.symbols);
    Require(Convert(path, services).document == conversion.document, "the same document twice");

    auto* const strict = LineConverter::Convert(path.c_str(), &services, &services, 2.0);
    if (conversion.faults.empty()) {
        Require(strict != nullptr, "no fault in a file that a strict reading takes");
        Require(fuzzing::TextOf(fuzzing::Owned(strict)) == conversion.document,
                "the same document from a file without faults");
    } else {
        fuzzing::Owned(strict);
    }
    return 0;
}
