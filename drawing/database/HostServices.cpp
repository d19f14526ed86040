// Host services that look for files in a list of directories.
#include "drawing/database/HostServices.h"

#include "StyleConversion/platform/Files.h"

#include <algorithm>
#include <filesystem>
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

// The path of the file `path` as the file system spells its last part, or an empty text when there is none.
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

std::wstring Find(const std::vector<std::wstring>& directories, const std::wstring& name) {
    for (const std::wstring& directory : directories) {
        const bool endsInSeparator =
            !directory.empty() && (directory.back() == L'/' || directory.back() == L'\\');
        const std::wstring start = directory.empty() || endsInSeparator ? directory : directory + L"/";
        for (const wchar_t* const extension : {L"", L".shx"}) {
            std::wstring found = FindAnyCase(start + name + extension);
            if (!found.empty()) {
                return found;
            }
        }
    }
    return {};
}

} // namespace

HostServices::HostServices() = default;

HostServices::HostServices(std::vector<std::wstring> directories) : directories_(std::move(directories)) {}

HostServices::~HostServices() = default;

Oxsys::ErrorStatus HostServices::findFile(wchar_t* path, int pathLength, const wchar_t* fileName,
                                          OxDbDatabase* /*database*/, FindFileHint /*hint*/) {
    if (path == nullptr || pathLength < 1) {
        return Oxsys::eInvalidInput;
    }
    path[0] = L'\0';
    Oxsys::ErrorStatus status = Oxsys::eOk;
    if (failures_->CallFails(Operation::kFindFile, status)) {
        return status;
    }
    if (fileName == nullptr || *fileName == L'\0') {
        return Oxsys::eInvalidInput;
    }
    const std::wstring found = Find(directories_, fileName);
    if (found.empty()) {
        return Oxsys::eFileNotFound;
    }
    if (found.size() >= static_cast<std::size_t>(pathLength)) {
        return Oxsys::eBufferTooSmall;
    }
    std::copy_n(found.c_str(), found.size() + 1, path);
    return Oxsys::eOk;
}

} // namespace drawing

namespace {

OxDbHostApplicationServices* processServices = nullptr;

} // namespace

OxDbHostApplicationServices::OxDbHostApplicationServices() = default;
OxDbHostApplicationServices::~OxDbHostApplicationServices() = default;

OxDbHostApplicationServices* oxdbHostApplicationServices() {
    return processServices;
}

void oxdbSetHostApplicationServices(OxDbHostApplicationServices* services) {
    processServices = services;
}
