// Paths of the command line as the standard library and as the conversion library want them.
#pragma once

#include <filesystem>
#include <string>

namespace styleconv {

/// `argument` as the command line gave it: bytes, UTF-8 where the system's own paths are wide.
std::filesystem::path NativePath(const std::string& argument);

/// The path in the form in which it can be opened whatever its length.
std::filesystem::path OpenablePath(const std::filesystem::path& path);

/// The path as the conversion library takes it. No locale has a say in this.
std::wstring WidePath(const std::filesystem::path& path);

} // namespace styleconv
