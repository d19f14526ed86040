// Opening files by wide name, and taking paths apart.
#pragma once

#include <cstdio>
#include <string>
#include <string_view>

namespace platform {

/// Opens a regular file for reading in binary mode. Null when it is not there, may not be read, or is a
/// directory, a pipe or a device. The caller closes it.
std::FILE* OpenForReading(const wchar_t* path);

/// As OpenForReading; where no file has just this name and the file system tells upper from lower case, the
/// first name in byte order, in the same directory, that differs from it only in the case of its letters.
/// For names that were upper-cased on their way here.
std::FILE* OpenForReadingIgnoringCase(const wchar_t* path);

/// The path in the form in which the system's own functions open it whatever its length.
std::wstring OpenablePath(const std::wstring& path);

/// The four parts of a path; put together again they are the path.
struct PathParts {
    std::wstring drive;     // "C:" on systems with drive letters, empty on others
    std::wstring directory; // up to and with its last "/" or "\"
    std::wstring fileName;  // up to the last "."
    std::wstring extension; // from the last "."
};

PathParts SplitPath(std::wstring_view path);

/// Negative, 0 or positive as the first text sorts before, with or after the second when the letters A to Z
/// count as a to z.
int CompareIgnoringCase(const wchar_t* first, const wchar_t* second);

/// A path as the system's programs are given it, as wide text, and back. On systems whose paths are bytes any
/// bytes survive.
std::wstring PathFromBytes(std::string_view bytes);
std::string PathToBytes(std::wstring_view path);

} // namespace platform
