// A drawing document named on the command line.
#pragma once

#include "drawing/Database.h"
#include "styleconv/InputFile.h"

#include <memory>
#include <string>

namespace styleconv {

/// Reads the document into a drawing. Null after saying on standard error what is wrong with it.
std::unique_ptr<drawing::Database> ReadDrawingFile(const std::string& argument);

/// The same from a file that is open. Takes the document as it comes, without holding its text.
std::unique_ptr<drawing::Database> ReadDrawing(const InputFile& input);

} // namespace styleconv
