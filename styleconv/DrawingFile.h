// A drawing document named on the command line.
#pragma once

#include "drawing/Database.h"

#include <memory>
#include <string>

namespace styleconv {

/// Reads the document into a drawing. Null after saying on standard error what is wrong with it.
std::unique_ptr<drawing::Database> ReadDrawingFile(const std::string& argument);

} // namespace styleconv
