// Reads the linetypes of a file: headers and patterns.
#pragma once

#include "StyleConversion/linetype/LinErrors.h"
#include "StyleConversion/linetype/LinPolicy.h"
#include "StyleConversion/linetype/LinResult.h"
#include "StyleConversion/linetype/LinetypeFile.h"

#include <string_view>

namespace LineConverter {

/// Appends the linetypes of a file to `file`. After a failure, those before it are there.
///
/// Under a policy that keeps errors local, only memory that runs out is a failure; a linetype that cannot be
/// read is in `errors` and not in `file`.
LinResult ReadLinetypes(std::string_view bytes, const LinPolicy& policy, LinetypeFile& file,
                        LinErrorLog& errors);

} // namespace LineConverter
