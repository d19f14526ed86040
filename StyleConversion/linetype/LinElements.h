// Reads the elements of patterns: dashes, texts and shapes.
#pragma once

#include "StyleConversion/linetype/LinReading.h"
#include "StyleConversion/linetype/LinetypeRecord.h"

namespace LineConverter {

/// Reads one element at `cursor` and moves behind it, or to where it fails. `element` then has its kind.
LinResult ReadElement(LinReading& reading, encoding::TextCursor& cursor, LinElement& element);

} // namespace LineConverter
