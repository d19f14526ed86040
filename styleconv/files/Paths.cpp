#include "styleconv/files/Paths.h"

#include "StyleConversion/platform/Files.h"

namespace styleconv {

std::filesystem::path NativePath(const std::string& argument) {
#if defined(_WIN32)
    return std::filesystem::path(platform::OpenablePath(platform::PathFromBytes(argument)));
#else
    return std::filesystem::path(argument);
#endif
}

std::filesystem::path OpenablePath(const std::filesystem::path& path) {
#if defined(_WIN32)
    return std::filesystem::path(platform::OpenablePath(path.wstring()));
#else
    return path;
#endif
}

std::wstring WidePath(const std::filesystem::path& path) {
#if defined(_WIN32)
    return path.wstring();
#else
    return platform::PathFromBytes(path.native());
#endif
}

} // namespace styleconv
