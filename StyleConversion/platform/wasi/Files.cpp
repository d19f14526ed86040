// Opening files where there are none: what is converted is given as bytes.
#include "StyleConversion/platform/Files.h"

namespace platform {

std::wstring OpenablePath(const std::wstring& path) {
    return path;
}

std::FILE* OpenForReading(const wchar_t* /*path*/) {
    return nullptr;
}

std::FILE* OpenForReadingIgnoringCase(const wchar_t* /*path*/) {
    return nullptr;
}

} // namespace platform
