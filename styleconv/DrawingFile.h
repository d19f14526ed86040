// A drawing document named on the command line.
#pragma once

#include "documents/DrawingReader.h"
#include "drawing/Database.h"
#include "styleconv/Finding.h"
#include "styleconv/InputFile.h"

#include <memory>
#include <string>

namespace styleconv {

/// Reads the document into a drawing. Null after saying on standard error what is wrong with it. A tolerant
/// reading says what it left out, and is null only for what is no drawing.
std::unique_ptr<drawing::Database> ReadDrawingFile(const std::string& argument, bool tolerant);

/// The same from a file that is open. Takes the document as it comes, without holding its text.
std::unique_ptr<drawing::Database> ReadDrawing(const InputFile& input, bool tolerant);

/// Appends what is wrong with a document; as warnings, with what was made of it.
void AddDrawingSlips(const std::string& file, const documents::DrawingSlips& slips, Severity severity,
                     std::vector<Finding>& findings);

inline constexpr const char* kNoBlocks =
    "the drawing has no block to convert: layouts and anonymous blocks are converted only by --name";

} // namespace styleconv
