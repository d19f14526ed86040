#include "fuzz/Jobs.h"

#include "diagnostics/Sentences.h"
#include "documents/SymbolsDocument.h"
#include "fuzz/Documents.h"
#include "fuzz/Fuzzing.h"

#include <algorithm>

namespace fuzzing {

conversions::FoundFile OneShapeFile::FindShapeFile(const std::wstring& /*name*/) {
    return bytes_.empty() ? conversions::FoundFile()
                          : conversions::FoundFile{true, "shapes", "", std::string(bytes_)};
}

conversions::Input InputOf(std::string_view bytes) {
    conversions::Input input;
    input.name = "input";
    input.bytes = bytes;
    input.encoding = bytes.starts_with(";SJIS") ? "SHIFT_JIS" : "";
    return input;
}

std::string DocumentOf(const conversions::Conversion& conversion) {
    for (const diagnostics::Diagnostic& diagnostic : conversion.diagnostics) {
        Require(!diagnostics::SentenceOf(diagnostic).empty() && diagnostic.count > 0,
                "words for every diagnostic");
    }
    if (!conversion.isConverted) {
        Require(conversion.symbols.empty(), "no symbols of a file that is refused");
        Require(std::any_of(conversion.diagnostics.begin(), conversion.diagnostics.end(),
                            [](const diagnostics::Diagnostic& diagnostic) {
                                return diagnostic.severity == diagnostics::Severity::kError;
                            }),
                "an error for a file that is refused");
        return "";
    }
    std::string text;
    documents::SymbolsWriter writer([&](std::string_view piece) {
        text += piece;
        return true;
    });
    for (TylModel::SymbolDefinition* symbol : conversion.symbols) {
        Require(symbol != nullptr && writer.Add(*symbol), "a symbol that can be written");
    }
    Require(writer.Finish(), "a document that can be written");
    RequireDocument(text, conversion.symbols.size());
    return text;
}

} // namespace fuzzing
