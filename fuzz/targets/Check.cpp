// A file of any kind, to what is wrong with it.
//
// Input: "l", "p", "s" or "d" for linetypes, patterns, shapes and drawings, then the file.
#include "documents/FindingsDocument.h"
#include "documents/ShownText.h"
#include "fuzz/Fuzzing.h"
#include "fuzz/Inputs.h"
#include "fuzz/ShapeWork.h"
#include "styleconv/CheckedDrawing.h"
#include "styleconv/CheckedLinetypes.h"
#include "styleconv/CheckedShapes.h"
#include "styleconv/Finding.h"
#include "styleconv/InputFile.h"
#include "styleconv/PatternsCommand.h"

#include "StyleConversion/platform/Files.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

namespace {

using fuzzing::Require;

bool TakesLittleWork(char kind, std::string_view bytes) {
    if (kind == 's') {
        return fuzzing::AllFitBudget(bytes, ShxUtility::kTolerantShapeFilePolicy);
    }
    // Hatches of very many lines are what drawings may ask for and no finding.
    return kind != 'd' ||
           (bytes.find("pattern") == std::string_view::npos && bytes.find('\\') == std::string_view::npos);
}

std::vector<styleconv::Finding> Found(char kind, const std::string& path) {
    std::vector<styleconv::Finding> findings;
    styleconv::InputFile input(path);
    Require(kind == 'd' ? input.Open() : input.Read() && input.ProvidePath(), "a file that is there");
    switch (kind) {
    case 'l':
        Require(styleconv::CheckLinetypes(input, {}, findings), "no drawing that could be missing");
        break;
    case 'p':
        styleconv::CheckPatterns(input, findings);
        break;
    case 's':
        styleconv::CheckShapes(input, findings);
        break;
    default:
        styleconv::CheckDrawing(input, {}, findings);
        break;
    }
    return findings;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static fuzzing::InputOnDisk onDisk;
    const std::string_view text = fuzzing::Text(data, size);
    const char kind = text.empty() ? 'l' : text.front();
    const std::string_view bytes = text.substr(text.empty() ? 0 : 1);
    if (std::string_view("lpsd").find(kind) == std::string_view::npos || !TakesLittleWork(kind, bytes)) {
        return 0;
    }
    fuzzing::ChooseCodePage(bytes);
    const std::string path = platform::PathToBytes(onDisk.Holding(bytes));
    const std::vector<styleconv::Finding> findings = Found(kind, path);
    std::uint64_t line = 0;
    for (const styleconv::Finding& finding : findings) {
        Require(!finding.message.empty(), "words for every finding");
        const std::string shown = styleconv::FindingText(finding);
        Require(shown == documents::ShownText(shown),
                "a finding of UTF-8 and of one line that moves no cursor");
        Require(finding.line == 0 || finding.line >= line, "findings in the order of lines");
        line = std::max(line, finding.line);
    }
    const std::string document = documents::FindingsText(findings);
    Require(nlohmann::json::accept(document), "a document that is JSON");
    Require(documents::FindingsText(Found(kind, path)) == document, "the same findings twice");
    return 0;
}
