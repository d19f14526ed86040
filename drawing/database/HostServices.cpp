// Host services that look for files in a list of directories.
#include "drawing/database/HostServices.h"

#include "drawing/database/FileSearch.h"

#include <algorithm>

namespace drawing {
namespace {

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
