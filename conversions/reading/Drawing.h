// A drawing document or a DXF file to a drawing, and what is said of it.
#pragma once

#include "conversions/reading/Input.h"
#include "diagnostics/Diagnostic.h"
#include "drawing/database/Database.h"

#include <memory>
#include <string>
#include <vector>

namespace conversions {

/// Null where the file is refused, which is said. It is read as DXF where it begins as such a file does, or
/// where its name ends so and it is no JSON. What is read otherwise than it stands is said. A tolerant
/// reading says what it left out, and refuses only what is no drawing.
std::unique_ptr<drawing::Database> ReadDrawing(const Input& input, bool tolerant,
                                               diagnostics::Diagnostics& diagnostics);

/// The drawing of a tolerant reading; what a strict one would refuse are errors.
std::unique_ptr<drawing::Database> CheckDrawingFile(const Input& input,
                                                    diagnostics::Diagnostics& diagnostics);

/// The model space; null where the drawing has none.
const drawing::BlockRecord* ModelSpaceOf(const drawing::Database& drawing);

/// Takes back that the drawing has no unit, where each of the blocks of these names has its own.
void ForgetUnusedUnit(const drawing::Database& drawing, const std::vector<std::wstring>& names,
                      diagnostics::Diagnostics& diagnostics);

/// That it has no block that is converted by itself, or only a model space that has entities.
diagnostics::Diagnostic NoBlocks(const std::string& file, const drawing::Database& drawing);

} // namespace conversions
