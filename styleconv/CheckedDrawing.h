// What of a drawing will not be drawn.
#pragma once

#include "styleconv/Finding.h"
#include "styleconv/InputFile.h"

#include <string>
#include <vector>

namespace styleconv {

struct DrawingCheckOptions {
    std::vector<std::string> shapeFolders;
    std::vector<std::wstring> layersToIgnore;
};

/// Appends the findings of a drawing document that is open: what it would be refused for, then by block.
void CheckDrawing(const InputFile& input, const DrawingCheckOptions& options, std::vector<Finding>& findings);

} // namespace styleconv
