// Shows the linetypes of a file to a visitor.
#pragma once

#include "StyleConversion/linetype/LinErrors.h"
#include "StyleConversion/linetype/LinResult.h"
#include "StyleConversion/linetype/LinStyleVisitor.h"
#include "StyleConversion/linetype/LinetypeFile.h"

namespace LineConverter {

/// Shows the linetypes, whose names have been resolved, to `visitor`. kShapeFileNotLoaded when a shape was
/// left out because its file is not a plain shape library; the walk is never cut short. A visitor may add to
/// `errors`, whose place is that of the element that it is shown.
LinResult Walk(const LinetypeFile& file, LinStyleVisitor& visitor, LinErrorLog& errors);

} // namespace LineConverter
