// Finds SHX files through the host's services.
#include "StyleConversion/linetype/CLineConverterDep.h"

#include "StyleConversion/linetype/LinLimits.h"
#include "StyleConversion/linetype/LinNames.h"
#include "StyleConversion/platform/Files.h"

#include <array>

namespace LineConverter {
namespace {

bool FitsBuffer(std::wstring_view text, std::size_t bufferSize) {
    return CountUtf16Units(text) < bufferSize;
}

bool FitsBuffers(const platform::PathParts& parts) {
    return FitsBuffer(parts.drive, kDriveBufferSize) && FitsBuffer(parts.directory, kPathPartBufferSize) &&
           FitsBuffer(parts.fileName, kPathPartBufferSize) &&
           FitsBuffer(parts.extension, kPathPartBufferSize);
}

// Names come from linetype files in upper case, whatever the file is called.
std::FILE* Open(const std::wstring& path) {
    return FitsBuffer(path, kPathBufferSize) ? platform::OpenForReadingIgnoringCase(path.c_str()) : nullptr;
}

} // namespace

CLineConverterDep::CLineConverterDep(OxDbHostApplicationServices* services, const wchar_t* searchDirectory)
    : services_(services), searchDirectory_(searchDirectory) {}

std::FILE* CLineConverterDep::GetFile(const wchar_t* name, const wchar_t* extension) {
    const platform::PathParts parts = platform::SplitPath(name);
    if (!FitsBuffers(parts)) {
        return nullptr;
    }
    const bool otherExtension = platform::CompareIgnoringCase(parts.extension.c_str(), extension) != 0;
    const bool twoExtensions = !platform::SplitPath(parts.fileName).extension.empty();

    const std::wstring directory = parts.drive + parts.directory;
    if (std::FILE* const stream = Open(name)) {
        return stream;
    }
    if (otherExtension) {
        if (std::FILE* const stream = Open(directory + parts.fileName + extension)) {
            return stream;
        }
    }
    if (twoExtensions) {
        if (std::FILE* const stream = Open(directory + parts.fileName)) {
            return stream;
        }
    }
    if (searchDirectory_ != nullptr && *searchDirectory_ != 0 && directory.empty()) {
        const std::wstring sought = searchDirectory_ + parts.fileName;
        if (std::FILE* const stream = Open(sought + parts.extension)) {
            return stream;
        }
        if (otherExtension) {
            if (std::FILE* const stream = Open(sought + extension)) {
                return stream;
            }
        }
        if (twoExtensions) {
            if (std::FILE* const stream = Open(sought)) {
                return stream;
            }
        }
    }
    return SearchHost(name);
}

std::FILE* CLineConverterDep::SearchHost(const wchar_t* name) const {
    if (services_ == nullptr) {
        return nullptr;
    }
    std::array<wchar_t, kPathBufferSize> path{};
    const Oxsys::ErrorStatus status =
        host::FindShapeFile(*services_, path.data(), static_cast<int>(path.size()), name);
    if (status != Oxsys::eOk || path.front() == 0) {
        return nullptr;
    }
    path.back() = 0;
    return platform::OpenForReadingIgnoringCase(path.data());
}

} // namespace LineConverter
