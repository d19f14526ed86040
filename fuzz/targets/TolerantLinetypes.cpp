// A linetype file with its shape file, read tolerantly, to symbols.
//
// Input: the linetype file and, from seven bytes before the last "-86 " on, the shape file that every name
// finds.
#include "StyleConversion/linetype/CLinVisitor.h"
#include "StyleConversion/linetype/LinResolution.h"
#include "StyleConversion/linetype/LinWalk.h"
#include "StyleConversion/linetype/LineConverter.h"
#include "StyleConversion/linetype/LinetypeReader.h"
#include "fuzz/Documents.h"
#include "fuzz/Fuzzing.h"
#include "fuzz/Inputs.h"
#include "fuzz/LinetypeServices.h"
#include "fuzz/ShapeWork.h"

#include <string>
#include <string_view>
#include <vector>

namespace {

using fuzzing::Require;

struct Conversion {
    std::string document;
    std::size_t symbols = 0;
    std::size_t linetypes = 0;
    std::vector<LineConverter::LinError> errors;
};

Conversion Convert(std::string_view text, fuzzing::LinetypeServices& services) {
    const LineConverter::LinPolicy& policy = LineConverter::kTolerantLinPolicy;
    LineConverter::HostShapeFiles shapeFiles(services);
    LineConverter::LinetypeFile file;
    LineConverter::LinErrorLog log;
    Require(ReadLinetypes(text, policy, file, log) == LineConverter::kSuccess, "every file to be read");
    Require(ResolveNames(file, &services, &shapeFiles, policy, log) == LineConverter::kSuccess,
            "every name to be looked for");
    LineConverter::CLinVisitor visitor(2.0, &log, policy);
    Require(Walk(file, visitor, log) == LineConverter::kSuccess, "every linetype to be walked");
    const fuzzing::Symbols symbols = fuzzing::Owned(visitor.TakeResults());
    Conversion conversion{fuzzing::TextOf(symbols), symbols.size(), file.linetypes.size(), log.errors()};
    Require(conversion.symbols <= conversion.linetypes, "a symbol for a linetype at most");
    Require(conversion.symbols == conversion.linetypes || !conversion.errors.empty(),
            "an error for what is left out");
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
    const Conversion conversion = Convert(text, services);
    fuzzing::RequireDocument(conversion.document, conversion.symbols);
    Require(Convert(text, services).document == conversion.document, "the same document twice");

    auto* const strict = LineConverter::Convert(path.c_str(), &services, &services, 2.0);
    if (conversion.errors.empty()) {
        Require(strict != nullptr, "no error in a file that a strict reading takes");
        Require(fuzzing::TextOf(fuzzing::Owned(strict)) == conversion.document,
                "the same document from a file without errors");
    } else {
        fuzzing::Owned(strict);
    }
    return 0;
}
