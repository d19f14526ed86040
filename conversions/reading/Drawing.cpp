#include "conversions/reading/Drawing.h"

#include "documents/DrawingReader.h"

#include <utility>

namespace conversions {

using diagnostics::Diagnostic;
using diagnostics::Diagnostics;

namespace {

Diagnostic RefusalOf(const Input& input, const documents::DrawingError& error) {
    Diagnostic diagnostic;
    diagnostic.code = error.code;
    diagnostic.place.file = input.name;
    diagnostic.place.path = error.path;
    diagnostic.subjects = error.subjects;
    return diagnostic;
}

std::unique_ptr<drawing::Database> Read(const Input& input, documents::DrawingError& error,
                                        documents::ToleratedErrors* tolerated) {
    return input.stream != nullptr ? documents::ReadDrawing(input.stream, error, tolerated)
                                   : documents::ReadDrawing(input.bytes, error, tolerated);
}

} // namespace

std::unique_ptr<drawing::Database> ReadDrawing(const Input& input, bool tolerant, Diagnostics& diagnostics) {
    documents::DrawingError error;
    documents::ToleratedErrors tolerated;
    auto drawing = Read(input, error, tolerant ? &tolerated : nullptr);
    if (drawing == nullptr) {
        diagnostics.push_back(RefusalOf(input, error));
    }
    for (Diagnostic diagnostic : tolerated.All()) {
        diagnostic.place.file = input.name;
        diagnostics.push_back(std::move(diagnostic));
    }
    return drawing;
}

std::unique_ptr<drawing::Database> CheckDrawingDocument(const Input& input, Diagnostics& diagnostics) {
    documents::DrawingError error;
    documents::ToleratedErrors tolerated;
    auto drawing = Read(input, error, &tolerated);
    if (drawing == nullptr) {
        diagnostics.push_back(RefusalOf(input, error));
        return drawing;
    }
    for (Diagnostic diagnostic : tolerated.All()) {
        diagnostic.place.file = input.name;
        diagnostic.severity = diagnostics::Severity::kError;
        diagnostic.outcome = diagnostics::Outcome::kNone;
        diagnostics.push_back(std::move(diagnostic));
    }
    return drawing;
}

} // namespace conversions
