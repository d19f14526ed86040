// What is wrong with a linetype file, or will surprise.
#pragma once

#include "styleconv/Finding.h"
#include "styleconv/InputFile.h"
#include "styleconv/LinetypeServices.h"

#include <vector>

namespace styleconv {

/// Appends the findings of a file that was read and whose path is provided. False, after saying why, when the
/// drawing of the options cannot be read.
bool CheckLinetypes(const InputFile& input, const LinetypeSourceOptions& options,
                    std::vector<Finding>& findings);

} // namespace styleconv
