// A DXF file to a drawing, its document and its symbols.
#include "diagnostics/Sentences.h"
#include "documents/DrawingReader.h"
#include "documents/DrawingWriter.h"
#include "drawing/entities/BlockCopy.h"
#include "exchange/DxfReader.h"
#include "fuzz/Documents.h"
#include "fuzz/Fuzzing.h"

#include <string>

namespace {

using fuzzing::Require;

// Linetypes may ask for very many dashes, which is no finding.
bool MayRepeat(std::string_view bytes) {
    return bytes.find("LTYPE") != std::string_view::npos;
}

std::string DocumentOf(const drawing::Database& database) {
    std::string text;
    documents::WriteDrawing(database, [&](std::string_view piece) {
        text += piece;
        return true;
    });
    return text;
}

std::string SymbolsOf(drawing::Database& database) {
    database.LimitHatchLines(100000);
    return fuzzing::TextOf(fuzzing::ConvertBlocks(database));
}

/// Gives the bytes of a file one by one.
class SingleBytes : public exchange::ByteSource {
public:
    explicit SingleBytes(std::string_view bytes) : bytes_(bytes) {}
    std::size_t Read(char* bytes, std::size_t) override {
        if (at_ == bytes_.size()) {
            return 0;
        }
        *bytes = bytes_[at_++];
        return 1;
    }
    void Rewind() override { at_ = 0; }

private:
    std::string_view bytes_;
    std::size_t at_ = 0;
};

// Reading piece by piece gives the same, or refuses the same.
void RequireSameOfPieces(std::string_view bytes, const drawing::Database* whole) {
    diagnostics::Diagnostic fault;
    exchange::DxfNotes notes;
    SingleBytes source(bytes);
    constexpr std::size_t kPieceSize = 16;
    const auto pieces = exchange::ReadDxf(source, fault, notes, kPieceSize);
    Require((pieces == nullptr) == (whole == nullptr), "pieces to be refused as the whole");
    Require(pieces == nullptr || DocumentOf(*pieces) == DocumentOf(*whole), "the same drawing of pieces");
}

void CopyAll(drawing::Database& database) {
    for (const drawing::BlockRecord* const block : database.Blocks()) {
        drawing::BlockCopyLosses losses;
        const auto copy = CopyBlock(database, *block, {true, true, true, true}, losses);
        Require(copy->EntityCount() <= drawing::kMostCopiedEntities, "no more entities than the limit");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes = fuzzing::Text(data, size);
    diagnostics::Diagnostic fault;
    exchange::DxfNotes notes;
    const auto database = exchange::ReadDxf(bytes, fault, notes);
    RequireSameOfPieces(bytes, database.get());
    if (database == nullptr) {
        Require(fault.place.line > 0 || fault.place.byte, "a refusal to have a place");
        return 0;
    }
    for (const diagnostics::Diagnostic& note : notes.All()) {
        Require(!diagnostics::MessageOf(note).empty(), "a sentence for every note");
    }
    const std::string document = DocumentOf(*database);
    documents::DrawingError error;
    const auto again = documents::ReadDrawing(std::string_view(document), error);
    Require(again != nullptr, "the document of a drawing to be read");
    Require(DocumentOf(*again) == document, "the same document again");
    if (!MayRepeat(bytes) && size < 100000) {
        Require(SymbolsOf(*again) == SymbolsOf(*database), "the same symbols of both");
        CopyAll(*database);
    }
    return 0;
}
