// Opening files and taking paths apart with the system's own wide functions.
#include "StyleConversion/platform/Files.h"

#include "StyleConversion/platform/Utf8.h"

// Before the system's other headers, which use its types.
#include <windows.h>

#include <cstdlib>
#include <cwchar>
#include <io.h>

namespace platform {
namespace {

// Above this length, with room for a file name of the oldest kind, the system takes a path only in its long
// form.
constexpr std::size_t kLongestPlainPath = MAX_PATH - 13;

// The full path in the form without a limit of its length: \\?\C:\folder\file or \\?\UNC\server\share\file.
std::wstring LongForm(const wchar_t* path) {
    std::wstring full;
    DWORD size = GetFullPathNameW(path, 0, nullptr, nullptr);
    full.resize(size);
    size = GetFullPathNameW(path, size, full.data(), nullptr);
    full.resize(size);
    if (full.compare(0, 4, L"\\\\?\\") == 0 || full.compare(0, 4, L"\\\\.\\") == 0) {
        return full;
    }
    return full.compare(0, 2, L"\\\\") == 0 ? L"\\\\?\\UNC" + full.substr(1) : L"\\\\?\\" + full;
}

// The stream, or null when it is a device or a pipe. Directories are not opened to begin with.
std::FILE* IfOnDisk(std::FILE* file) {
    if (file == nullptr) {
        return nullptr;
    }
    const auto handle = reinterpret_cast<HANDLE>(_get_osfhandle(_fileno(file)));
    if (GetFileType(handle) == FILE_TYPE_DISK) {
        return file;
    }
    std::fclose(file);
    return nullptr;
}

} // namespace

std::wstring OpenablePath(const std::wstring& path) {
    return path.size() > kLongestPlainPath ? LongForm(path.c_str()) : path;
}

std::FILE* OpenForReading(const wchar_t* path) {
    return IfOnDisk(_wfopen(OpenablePath(path).c_str(), L"rb"));
}

std::FILE* OpenForReadingIgnoringCase(const wchar_t* path) {
    // The file system does not tell upper from lower case.
    std::FILE* file = nullptr;
    return _wfopen_s(&file, OpenablePath(path).c_str(), L"rb") == 0 ? IfOnDisk(file) : nullptr;
}

PathParts SplitPath(std::wstring_view path) {
    const std::wstring whole(path);
    // No part is longer than the path; each is read up to its zero.
    const std::size_t room = whole.size() + _MAX_DRIVE;
    PathParts parts;
    for (std::wstring* const part : {&parts.drive, &parts.directory, &parts.fileName, &parts.extension}) {
        part->resize(room);
    }
    if (_wsplitpath_s(whole.c_str(), parts.drive.data(), room, parts.directory.data(), room,
                      parts.fileName.data(), room, parts.extension.data(), room) != 0) {
        return {};
    }
    for (std::wstring* const part : {&parts.drive, &parts.directory, &parts.fileName, &parts.extension}) {
        part->resize(std::wcslen(part->c_str()));
    }
    return parts;
}

int CompareIgnoringCase(const wchar_t* first, const wchar_t* second) {
    return _wcsicmp(first, second);
}

std::wstring PathFromBytes(std::string_view bytes) {
    return Utf8ToWide(bytes);
}

std::string PathToBytes(std::wstring_view path) {
    return WideToUtf8Bytes(path);
}

} // namespace platform
