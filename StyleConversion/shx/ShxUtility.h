// Shape files and shape fonts: reading them, and drawing their shapes as paths.
//
// LoadShapeFile -> ShapesInFile -> DrawGlyph -> path text
// DrawGlyph: DecodeShape -> ShapeInstructions -> ShapeDrawer -> sink
#pragma once

#include "StyleConversion/shx/CharArray.h"
#include "StyleConversion/shx/GlyphDrawing.h"
#include "StyleConversion/shx/ShapeFileReader.h"
#include "StyleConversion/shx/ShapeInterpreter.h"
#include "StyleConversion/shx/ShapeProgram.h"
#include "StyleConversion/shx/ShapesInFile.h"
#include "StyleConversion/shx/ShxResult.h"
