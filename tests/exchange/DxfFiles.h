// DXF files in tests, and what they become.
#pragma once

#include "StyleConversion/block/BlockConverter.h"
#include "diagnostics/Sentences.h"
#include "documents/DrawingReader.h"
#include "documents/DrawingWriter.h"
#include "documents/SymbolsDocument.h"
#include "exchange/DxfReader.h"
#include "tests/support/DxfWriter.h"

#include <memory>
#include <string>
#include <vector>

/// A section around pairs.
inline DxfWriter Section(const std::string& name, const DxfWriter& pairs) {
    return DxfWriter().Text(0, "SECTION").Text(2, name).Append(pairs).Text(0, "ENDSEC");
}

/// A whole file around entities of the block "B".
inline DxfWriter FileOf(const DxfWriter& entities) {
    DxfWriter block;
    block.Text(0, "BLOCK").Text(8, "0").Text(2, "B").Integer(70, 0).Point(10, 0, 0).Append(entities);
    block.Text(0, "ENDBLK");
    return DxfWriter().Append(Section("BLOCKS", block)).Text(0, "EOF");
}

/// The symbols of all blocks as a document.
inline std::string SymbolsOf(drawing::Database& database) {
    BlockConverter converter(&database);
    std::vector<std::wstring> names;
    converter.GetBlockNames(names);
    std::string document;
    documents::SymbolsWriter writer([&](std::string_view piece) {
        document += piece;
        return true;
    });
    for (const std::wstring& name : names) {
        const std::unique_ptr<TylModel::SymbolDefinition> symbol(converter.Convert(name));
        if (symbol != nullptr) {
            writer.Add(*symbol);
        }
    }
    writer.Finish();
    return document;
}

/// The same of a file "f", or the message of its refusal.
inline std::string SymbolsOfDxf(const std::string& bytes, exchange::DxfNotes* notes = nullptr) {
    diagnostics::Diagnostic fault;
    exchange::DxfNotes own;
    const auto database = exchange::ReadDxf(bytes, fault, notes != nullptr ? *notes : own);
    fault.place.file = "f";
    return database != nullptr ? SymbolsOf(*database) : diagnostics::MessageOf(fault);
}

/// The drawing document of a drawing, which holds every value of it.
inline std::string DocumentOf(const drawing::Database& database) {
    std::string document;
    documents::WriteDrawing(database, [&](std::string_view piece) {
        document += piece;
        return true;
    });
    return document;
}

/// The same of a file, or the message of its refusal.
inline std::string DocumentOfDxf(const std::string& bytes) {
    diagnostics::Diagnostic fault;
    exchange::DxfNotes notes;
    const auto database = exchange::ReadDxf(bytes, fault, notes);
    return database != nullptr ? DocumentOf(*database) : diagnostics::MessageOf(fault);
}

/// The same of a drawing document with these members.
inline std::string DocumentOfJson(const std::string& members) {
    documents::DrawingError error;
    const auto database = documents::ReadDrawing(
        std::string_view(R"({"format": "styleconversion/drawing", "version": 1, )" + members + "}"), error);
    return database != nullptr ? DocumentOf(*database) : error.Text();
}

/// The members of a drawing document with one block "B" of these entities.
inline std::string BlockOfJson(const std::string& entities) {
    return R"("layers": [{"name": "0"}], "blocks": [{"name": "B", "entities": [)" + entities + "]}]";
}

/// The symbols of a drawing document with one block "B" of these entities, and with the layer 0, which a file
/// always has.
inline std::string SymbolsOfJson(const std::string& entities, const std::string& more = {}) {
    documents::DrawingError error;
    const auto database = documents::ReadDrawing(
        std::string_view(
            R"({"format": "styleconversion/drawing", "version": 1, "layers": [{"name": "0"}], )" + more +
            R"("blocks": [{"name": "B", "entities": [)" + entities + "]}]}"),
        error);
    return database != nullptr ? SymbolsOf(*database) : error.Text();
}
