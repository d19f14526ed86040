// Drawings of any form to drawing documents.
#pragma once

#include "conversions/Forms.h"
#include "conversions/reading/Front.h"
#include "conversions/reading/Input.h"
#include "diagnostics/Diagnostic.h"
#include "drawing/database/Database.h"

#include <memory>

namespace conversions {

/// A drawing, or errors that say why there is none.
struct LoadedDrawing {
    std::unique_ptr<drawing::Database> drawing;
    diagnostics::Diagnostics diagnostics;
};

/// A tolerant reading leaves out what is wrong.
LoadedDrawing LoadDrawing(const Input& input, bool tolerant);

/// Writes the document of a drawing that was loaded. False when the sink refuses a text.
bool WriteDocument(const drawing::Database& drawing, const TextSink& sink, Front& front);

} // namespace conversions
