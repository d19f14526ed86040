// Reads drawing documents into drawings in memory.
#pragma once

#include "documents/DrawingError.h"
#include "documents/ToleratedErrors.h"
#include "drawing/database/Database.h"

#include <cstdio>
#include <memory>
#include <string_view>

namespace documents {

/// Reads a drawing document (UTF-8 JSON) from where `file` stands to its end. The file stays the caller's.
/// The document is never held as a whole: what is read goes into the drawing entity by entity. Null when the
/// document is refused, with `error` set. With `tolerated`, what is wrong is left out and noted there, and
/// only what is no drawing at all is refused.
std::unique_ptr<drawing::Database> ReadDrawing(std::FILE* file, DrawingError& error,
                                               ToleratedErrors* tolerated = nullptr);

/// The same from memory.
std::unique_ptr<drawing::Database> ReadDrawing(std::string_view text, DrawingError& error,
                                               ToleratedErrors* tolerated = nullptr);

} // namespace documents
