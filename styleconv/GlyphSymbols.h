// Drawn shapes as symbols, for the forms of the result that show symbols.
#pragma once

#include "TylModel/TylModel.h"
#include "documents/GlyphsDocument.h"

#include <memory>

namespace styleconv {

/// A symbol of black lines, named by the shape's number and name. A shape that could not be drawn becomes one
/// that draws nothing and says so in its description.
std::unique_ptr<TylModel::SymbolDefinition> SymbolOf(const documents::Glyph& glyph);

} // namespace styleconv
