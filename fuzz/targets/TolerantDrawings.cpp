// A drawing document, read with what is wrong left out, to symbols.
#include "documents/DrawingReader.h"
#include "fuzz/Documents.h"
#include "fuzz/Fuzzing.h"

#include <string>

namespace {

using fuzzing::Require;

// What repeats may ask for very many dashes and lines, which is no finding: the other target converts those
// that are measured to be small.
bool MayRepeat(std::string_view text) {
    return text.find("dashes") != std::string_view::npos || text.find("pattern") != std::string_view::npos ||
           text.find('\\') != std::string_view::npos;
}

std::string Converted(drawing::Database& database) {
    const fuzzing::Symbols symbols = fuzzing::ConvertBlocks(database);
    std::string document = fuzzing::TextOf(symbols);
    fuzzing::RequireDocument(document, symbols.size());
    return document;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text = fuzzing::Text(data, size);
    documents::DrawingError strictFault;
    const auto strict = documents::ReadDrawing(text, strictFault);
    documents::DrawingError fault;
    documents::ToleratedErrors tolerated;
    const auto tolerant = documents::ReadDrawing(text, fault, &tolerated);
    Require((tolerant == nullptr) == !fault.Text().empty(), "a fault with every refusal");
    Require(strict == nullptr || (tolerant != nullptr && tolerated.All().empty()),
            "nothing left out of a document that is right");
    Require(strict != nullptr || tolerant == nullptr || !tolerated.All().empty(),
            "a word of what is left out");
    for (const diagnostics::Diagnostic& error : tolerated.All()) {
        Require(!diagnostics::SentenceOf(error).empty() && error.count > 0, "words for every error");
    }
    if (tolerant == nullptr || MayRepeat(text)) {
        return 0;
    }
    const std::string document = Converted(*tolerant);
    Require(strict == nullptr || Converted(*strict) == document, "the same document from both readings");
    return 0;
}
