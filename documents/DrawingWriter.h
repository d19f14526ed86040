// Writes drawings in memory as drawing documents.
#pragma once

#include "drawing/database/Database.h"

#include <functional>
#include <string_view>

namespace documents {

/// Takes the next piece of a document's UTF-8 text. False stops the writing.
using TextSink = std::function<bool(std::string_view)>;

/// Writes the document that is read back as this drawing: each table record and each entity in a line of its
/// own. Keys whose values are their defaults are left out. Edges that are splines through points are written
/// by their control points. False when the sink refused a piece.
bool WriteDrawing(const drawing::Database& drawing, const TextSink& sink);

} // namespace documents
