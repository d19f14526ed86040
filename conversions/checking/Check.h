// What is wrong with a file, or will surprise.
#pragma once

#include "conversions/reading/DrawingView.h"
#include "conversions/reading/FileKind.h"
#include "conversions/reading/Front.h"
#include "conversions/reading/Input.h"
#include "conversions/reading/LinetypeSources.h"
#include "diagnostics/Diagnostic.h"

#include <string>
#include <vector>

namespace conversions {

struct CheckOptions {
    LinetypeSourceOptions linetypes;
    std::vector<std::wstring> layersToIgnore;
    DrawingView view;
};

/// Checks a file of that kind, which is known. Errors are what a strict conversion fails at or loses
/// something by; what is of lines is in their order.
diagnostics::Diagnostics Check(FileKind kind, const Input& input, const CheckOptions& options, Front& front);

/// For files of one kind.
diagnostics::Diagnostics CheckLinetypes(const Input& input, const LinetypeSourceOptions& options,
                                        Front& front);
diagnostics::Diagnostics CheckPatterns(const Input& input);
diagnostics::Diagnostics CheckShapes(const Input& input, Front& front);
diagnostics::Diagnostics CheckDrawing(const Input& input, const CheckOptions& options, Front& front);

} // namespace conversions
