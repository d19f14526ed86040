// Shape files and shape fonts: reading them, and drawing their shapes as paths.
//
// LoadShapeFile -> ShapesInFile -> DecodeShape -> ShapeInstructions -> DrawShape -> path text
#pragma once

#include "StyleConversion/shx/CharArray.h"
#include "StyleConversion/shx/ShapeFileReader.h"
#include "StyleConversion/shx/ShapeInterpreter.h"
#include "StyleConversion/shx/ShapeProgram.h"
#include "StyleConversion/shx/ShapesInFile.h"
#include "StyleConversion/shx/ShxResult.h"
