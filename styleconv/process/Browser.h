// Pages that are shown at once: a place for them, and the program that the system opens them with.
#pragma once

#include <filesystem>
#include <string>
#include <system_error>

namespace styleconv {

/// A new folder of its own among the temporary files, which only its owner may enter. Empty, with the error,
/// where none can be made.
std::filesystem::path NewTemporaryFolder(std::error_code& error);

/// Asks the system to show the page. No shell reads the path. False where there is no program for it, or
/// where it fails at once.
bool OpenInBrowser(const std::filesystem::path& page);

} // namespace styleconv
