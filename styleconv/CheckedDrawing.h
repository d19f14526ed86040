// What of a drawing will not be drawn.
#pragma once

#include "styleconv/Finding.h"
#include "styleconv/InputFile.h"

#include <string>
#include <vector>

namespace styleconv {

/// Appends the findings of a drawing document that was read. What the document is refused for is said on
/// standard error.
void CheckDrawing(const InputFile& input, const std::vector<std::string>& shapeFolders,
                  std::vector<Finding>& findings);

} // namespace styleconv
