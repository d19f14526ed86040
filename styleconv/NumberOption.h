// Options whose values are numbers.
#pragma once

#include "styleconv/CommandLine.h"

#include <string>
#include <string_view>

namespace styleconv {

/// Reads `text` as one finite decimal number, whatever the locale. False where it is none.
bool ReadNumberArgument(std::string_view text, double& value);

/// Reads "X,Y".
bool ReadPointArgument(std::string_view text, double& x, double& y);

/// Adds an option that takes one finite number.
void AddNumberOption(Command& command, const std::string& name, double& value,
                     const std::string& description);

/// Adds an option that takes a point, "X,Y".
void AddPointOption(Command& command, const std::string& name, double& x, double& y,
                    const std::string& description);

} // namespace styleconv
