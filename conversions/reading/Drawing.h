// A drawing document to a drawing, and what is said of it.
#pragma once

#include "conversions/reading/Input.h"
#include "diagnostics/Diagnostic.h"
#include "drawing/database/Database.h"

#include <memory>

namespace conversions {

/// Null where the document is refused, which is said. A tolerant reading says what it left out, and refuses
/// only what is no drawing.
std::unique_ptr<drawing::Database> ReadDrawing(const Input& input, bool tolerant,
                                               diagnostics::Diagnostics& diagnostics);

/// The drawing of a tolerant reading; what a strict one would refuse are errors.
std::unique_ptr<drawing::Database> CheckDrawingDocument(const Input& input,
                                                        diagnostics::Diagnostics& diagnostics);

} // namespace conversions
