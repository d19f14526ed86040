// What the failing platform layer does.
#pragma once

#include <string>

namespace linetypetest {

/// What every file holds.
extern std::string fileContent;
/// Whether closing a file reports a failure.
extern bool closingFails;

/// Text with a "?" in it has no wide form.

} // namespace linetypetest
