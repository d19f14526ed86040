// A symbols document, read back: to the document again, and to pictures, a gallery and styles.
#include "conversions/SymbolsDocuments.h"
#include "conversions/Forms.h"
#include "diagnostics/Sentences.h"
#include "documents/SymbolsReader.h"
#include "fuzz/Documents.h"
#include "fuzz/Fuzzing.h"
#include "fuzz/Jobs.h"

#include <string>

namespace {

using fuzzing::Require;

bool Read(std::string_view text, bool tolerant, documents::SymbolsOfDocument& document) {
    diagnostics::Diagnostics problems;
    const bool isRead = ReadSymbols(text, tolerant, document, problems);
    Require(isRead || !problems.empty(), "a reason for every refusal");
    for (const diagnostics::Diagnostic& problem : problems) {
        Require(!diagnostics::SentenceOf(problem).empty(), "words for every diagnostic");
    }
    return isRead;
}

std::string Written(const documents::SymbolsOfDocument& document) {
    std::string text;
    documents::SymbolsWriter writer(
        [&](std::string_view piece) {
            text += piece;
            return true;
        },
        document.fidelity);
    for (const documents::ReadSymbol& symbol : document.symbols) {
        Require(writer.Add(*symbol.definition, symbol.origin ? &*symbol.origin : nullptr),
                "a symbol that can be written");
    }
    Require(writer.Finish(), "a document that can be written");
    return text;
}

void WriteInAllForms(const conversions::Conversion& conversion) {
    for (const conversions::Form form : {conversions::Form::kSvg, conversions::Form::kHtml,
                                         conversions::Form::kQgis, conversions::Form::kMaplibre}) {
        conversions::Front front;
        conversions::StyleJob styles;
        styles.allowsApproximate = true;
        std::string text;
        const auto sink = [&](std::string_view piece) {
            text += piece;
            return true;
        };
        Require(conversions::WriteSymbols(conversion.symbols, form, sink, front, conversion.fidelity, {},
                                          &styles),
                "a form that can be written");
        if (form == conversions::Form::kMaplibre) {
            fuzzing::RequireJson(text);
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text = fuzzing::Text(data, size);
    documents::SymbolsOfDocument document;
    if (Read(text, false, document)) {
        const std::string written = Written(document);
        fuzzing::RequireDocument(written, document.symbols.size());
        documents::SymbolsOfDocument again;
        Require(Read(written, false, again), "what was written to be read");
        Require(Written(again) == written, "the same document again");
    }
    conversions::Front front;
    const conversions::Conversion conversion =
        conversions::ConvertSymbols(fuzzing::InputOf(text), true, front);
    fuzzing::DocumentOf(conversion);
    WriteInAllForms(conversion);
    return 0;
}
