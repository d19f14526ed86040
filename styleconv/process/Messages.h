// What the tool says on standard error, each in a line of its own.
#pragma once

#include "diagnostics/Diagnostic.h"

#include <string>
#include <string_view>

namespace styleconv {

/// The line as it stands.
void SayLine(std::string line);

/// "file: error: what (item)"; the item may be empty.
void SayError(std::string_view file, std::string_view what, std::string_view item = {});

/// Each in the form that editors know from compilers.
void SayAll(const diagnostics::Diagnostics& diagnostics);

} // namespace styleconv
