// Drawn shapes as symbols, for the forms of the result that show symbols.
#pragma once

#include "StyleConversion/shx/ShapesInFile.h"
#include "TylModel/TylModel.h"
#include "documents/GlyphsDocument.h"

#include <memory>
#include <vector>

namespace conversions {

/// A symbol of black lines, named by the shape's number and name, and before them the character that it is in
/// a font of that kind. A shape that could not be drawn becomes one that draws nothing and says so in its
/// description.
std::unique_ptr<TylModel::SimpleSymbolDefinition> SymbolOf(const documents::Glyph& glyph,
                                                           ShxUtility::ShapeFileKind kind);

/// Lets the glyphs of a font be shown as they stand in a line of text: at one scale and on one base line.
/// Each gets an upright line that is not seen and reaches from the lowest to the highest point of all of
/// them.
void AlignGlyphs(const std::vector<std::unique_ptr<TylModel::SimpleSymbolDefinition>>& symbols);

} // namespace conversions
