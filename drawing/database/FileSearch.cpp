#include "drawing/database/FileSearch.h"

#include "StyleConversion/platform/Files.h"

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <type_traits>

namespace drawing {
namespace {

namespace fs = std::filesystem;

// Paths are wide text on some systems and bytes on others.
template <class NativePath>
NativePath ToNative(const std::wstring& path) {
    if constexpr (std::is_same_v<NativePath, std::wstring>) {
        return platform::OpenablePath(path);
    } else {
        return platform::PathToBytes(path);
    }
}

fs::path ToPath(const std::wstring& path) {
    return ToNative<fs::path::string_type>(path);
}

[[maybe_unused]] std::wstring ToWide(const std::wstring& native) {
    return native;
}

[[maybe_unused]] std::wstring ToWide(const std::string& native) {
    return platform::PathFromBytes(native);
}

bool IsRegularFile(const std::wstring& path) {
    std::error_code error;
    return fs::is_regular_file(ToPath(path), error);
}

} // namespace

std::wstring FindAnyCase(const std::wstring& path) {
    if (IsRegularFile(path)) {
        return path;
    }
    const platform::PathParts parts = platform::SplitPath(path);
    std::wstring folder = parts.drive + parts.directory;
    std::replace(folder.begin(), folder.end(), L'\\', L'/'); // names in drawings come from other systems
    const std::wstring wanted = parts.fileName + parts.extension;
    std::error_code error;
    fs::path best;
    fs::directory_iterator entries(folder.empty() ? fs::path(".") : ToPath(folder), error);
    for (; !error && entries != fs::directory_iterator(); entries.increment(error)) {
        const fs::path name = entries->path().filename();
        std::error_code unreadable;
        if (platform::CompareIgnoringCase(ToWide(name.native()).c_str(), wanted.c_str()) == 0 &&
            entries->is_regular_file(unreadable) && (best.empty() || name.native() < best.native())) {
            best = name;
        }
    }
    return best.empty() ? std::wstring() : folder + ToWide(best.native());
}

} // namespace drawing
