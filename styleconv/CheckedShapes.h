// What is wrong with a shape file, or will surprise.
#pragma once

#include "StyleConversion/shx/ShapeFileFault.h"
#include "styleconv/Finding.h"
#include "styleconv/InputFile.h"

#include <string>
#include <vector>

namespace styleconv {

/// Appends the findings of a file that was read and whose path is provided.
void CheckShapes(const InputFile& input, std::vector<Finding>& findings);

/// What a reading that forgives has forgiven: warnings.
std::vector<Finding> ForgivenOfShapeFile(const std::string& file,
                                         const ShxUtility::ShapeFileFaultReport& report);

/// What drawing the shape by itself comes to, at any place, size and angle.
ShxUtility::ShxResult ResultOfDrawing(const ShxUtility::ShapesInFile& file, const ShxUtility::Shape& shape,
                                      bool vertical = false);

/// "shape 130 MARK"
std::string ShownShape(const ShxUtility::Shape& shape);

} // namespace styleconv
