// A shape file's bytes to shapes, and what is said of them.
#pragma once

#include "StyleConversion/shx/ShapeFileReport.h"
#include "StyleConversion/shx/ShapesInFile.h"
#include "StyleConversion/shx/ShxResult.h"
#include "conversions/reading/Front.h"
#include "diagnostics/Diagnostic.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace conversions {

/// Reads the file; false where it is refused. Either way `report` says what was found.
bool ReadShapeFile(std::string_view bytes, bool tolerant, ShxUtility::ShapesInFile& shapes,
                   ShxUtility::ShapeFileReport& report);

/// Why the file of these bytes was refused.
diagnostics::Diagnostic RefusalOf(const std::string& file, std::string_view bytes,
                                  const ShxUtility::ShapeFileReport& report);
/// The same where the bytes are not at hand: a file of another maker is then not a shape file.
diagnostics::Diagnostic RefusalOf(const std::string& file, const ShxUtility::ShapeFileReport& report);
/// What is wrong with a file that a tolerant reading took.
diagnostics::Diagnostics ToleratedIn(const std::string& file, const ShxUtility::ShapeFileReport& report,
                                     diagnostics::Severity severity, diagnostics::Outcome outcome);

/// Whether drawing the shape by itself succeeds, at any place, size and angle.
ShxUtility::ShxResult ResultOfDrawing(const ShxUtility::ShapesInFile& file, const ShxUtility::Shape& shape,
                                      bool vertical = false);
/// Why it does not. The subject is the shape.
diagnostics::Code CodeOfDrawing(std::int32_t shxResult);

/// "shape 130 MARK"
std::string ShapeItem(const ShxUtility::Shape& shape);

/// The font of our own for texts whose font is not found: the characters 32 to 126.
std::string_view BuiltInFont();
/// Whether the name is that of the font that the built-in one stands in for: "txt.shx", "txt".
bool IsDefaultFont(const std::wstring& name);

} // namespace conversions
