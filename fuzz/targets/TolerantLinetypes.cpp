// A linetype file with its shape file, read by the policies that forgive, to symbols.
//
// Input: the linetype file and, from seven bytes before the last "-86 " on, the shape file that every name
// finds.
#include "StyleConversion/linetype/CLinVisitor.h"
#include "StyleConversion/linetype/LinParser.h"
#include "StyleConversion/linetype/LineConverter.h"
#include "fuzz/Documents.h"
#include "fuzz/Fuzzing.h"
#include "fuzz/Inputs.h"
#include "fuzz/LinetypeServices.h"
#include "fuzz/ShapeWork.h"

#include <string>
#include <vector>

namespace {

using fuzzing::Require;

struct Conversion {
    std::string document;
    std::size_t symbols = 0;
    std::size_t linetypes = 0;
    std::vector<LineConverter::LinFault> faults;
};

Conversion Convert(const std::wstring& path, fuzzing::LinetypeServices& services) {
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
    if (!fuzzing::AllFitBudget(shapeFile, ShxUtility::kTolerantShapeFilePolicy)) {
        return 0;
    }
    const std::wstring& path = input.Holding(text);
    fuzzing::LinetypeServices services(shapeFile);
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
