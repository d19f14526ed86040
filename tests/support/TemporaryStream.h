// A file that nobody else sees.
#pragma once

#include <cstdio>

#if defined(_WIN32)
#include <cwchar>
#include <filesystem>
#include <random>
#include <string>
#endif

namespace test_support {

/// An empty file to write and read, in the folder for temporary files, that is gone once it is closed. Null
/// when there can be none.
inline std::FILE* OpenTemporary() {
#if defined(_WIN32)
    // The standard's own function puts the file into the root of the drive, where most may not write. "D"
    // removes it once it is closed.
    std::random_device random;
    const std::wstring name = L"styleconversion." + std::to_wstring(random()) + std::to_wstring(random());
    return _wfopen((std::filesystem::temp_directory_path() / name).c_str(), L"w+bD");
#else
    return std::tmpfile();
#endif
}

} // namespace test_support
