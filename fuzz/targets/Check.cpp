// A file of any kind, to what is wrong with it.
//
// Input: "l", "p", "s" or "d" for linetypes, patterns, shapes and drawings, then the file.
#include "conversions/checking/Check.h"
#include "diagnostics/Sentences.h"
#include "diagnostics/ShownText.h"
#include "documents/DiagnosticsDocument.h"
#include "fuzz/Fuzzing.h"
#include "fuzz/Jobs.h"
#include "fuzz/ShapeWork.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <string>

namespace {

using conversions::FileKind;
using fuzzing::Require;

bool TakesLittleWork(char kind, std::string_view bytes) {
    if (kind == 's') {
        return fuzzing::AllFitBudget(bytes, ShxUtility::kTolerantShapeFilePolicy);
    }
    // Hatches of very many lines are what drawings may ask for and no finding.
    return kind != 'd' ||
           (bytes.find("pattern") == std::string_view::npos && bytes.find('\\') == std::string_view::npos);
}

FileKind KindOf(char kind) {
    switch (kind) {
    case 'l':
        return FileKind::kLinetypes;
    case 'p':
        return FileKind::kPatterns;
    case 's':
        return FileKind::kShapes;
    default:
        return FileKind::kDrawing;
    }
}

diagnostics::Diagnostics Found(FileKind kind, std::string_view bytes) {
    conversions::Front front;
    return conversions::Check(kind, fuzzing::InputOf(bytes), {}, front);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text = fuzzing::Text(data, size);
    const char kind = text.empty() ? 'l' : text.front();
    const std::string_view bytes = text.substr(text.empty() ? 0 : 1);
    if (std::string_view("lpsd").find(kind) == std::string_view::npos || !TakesLittleWork(kind, bytes)) {
        return 0;
    }
    const diagnostics::Diagnostics found = Found(KindOf(kind), bytes);
    std::uint64_t line = 0;
    for (const diagnostics::Diagnostic& diagnostic : found) {
        Require(!diagnostics::SentenceOf(diagnostic).empty(), "words for every diagnostic");
        const std::string shown = diagnostics::MessageWithCode(diagnostic);
        Require(shown == diagnostics::ShownText(shown), "a message of UTF-8 that moves no cursor");
        Require(shown.find('{') == std::string::npos || bytes.find('{') != std::string_view::npos,
                "a sentence that is filled");
        Require(diagnostic.place.line == 0 || diagnostic.place.line >= line,
                "diagnostics in the order of lines");
        line = std::max(line, diagnostic.place.line);
    }
    const std::string document = documents::DiagnosticsText(found);
    Require(nlohmann::json::accept(document), "a document that is JSON");
    Require(documents::DiagnosticsText(Found(KindOf(kind), bytes)) == document, "the same findings twice");
    return 0;
}
