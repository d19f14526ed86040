// Reading drawing documents in tests.
#pragma once

#include "documents/DrawingReader.h"

#include <memory>
#include <string>

/// The drawing of a document, or null with the fault's text in `fault`.
inline std::unique_ptr<drawing::Database> ReadDocument(const std::string& text, std::string& fault) {
    documents::DrawingError found;
    std::unique_ptr<drawing::Database> database = documents::ReadDrawing(std::string_view(text), found);
    fault = database ? std::string() : found.Text();
    return database;
}

/// "read", or the text of the fault.
inline std::string FaultOf(const std::string& text) {
    std::string fault;
    return ReadDocument(text, fault) ? "read" : fault;
}

/// A whole document around the given keys.
inline std::string Document(const std::string& keys) {
    return R"({"format": "styleconversion/drawing", "version": 1)" + (keys.empty() ? "" : ", " + keys) + "}";
}

/// A document with one block of one entity, "B", given by its JSON.
inline std::string EntityDocument(const std::string& entity) {
    return Document(R"("blocks": [{"name": "B", "entities": [)" + entity + "]}]");
}
