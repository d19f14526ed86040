// Resolves the text styles and shape files that linetypes name.
#pragma once

#include "StyleConversion/linetype/LinErrors.h"
#include "StyleConversion/linetype/LinPolicy.h"
#include "StyleConversion/linetype/LinResult.h"
#include "StyleConversion/linetype/LinetypeFile.h"
#include "StyleConversion/linetype/Services.h"
#include "StyleConversion/linetype/ShapeFileSource.h"

namespace LineConverter {

/// Asks for the text styles, then loads the shape files and SHX fonts, that the linetypes of `file` name,
/// each in the order of its name. Without `styles` no linetype may name a text style, without `shapeFiles` no
/// shape file.
///
/// Under a policy that keeps errors local, only memory that runs out is a failure; a linetype that lacks a
/// style or file is taken out of `file`, and `errors` has why.
LinResult ResolveNames(LinetypeFile& file, IGetFontInfo* styles, ShapeFileSource* shapeFiles,
                       const LinPolicy& policy, LinErrorLog& errors);

} // namespace LineConverter
