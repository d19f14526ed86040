#include "styleconv/ShapeSearch.h"

#include "StyleConversion/platform/Files.h"
#include "StyleConversion/shx/ShapeFileFault.h"
#include "styleconv/Messages.h"
#include "styleconv/ShapeFileMessages.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>
#include <utility>

namespace styleconv {
namespace {

struct CloseFile {
    void operator()(std::FILE* file) const { std::fclose(file); }
};

std::vector<std::wstring> SearchFolders(const std::wstring& drawingPath,
                                        const std::vector<std::string>& folders) {
    std::vector<std::wstring> directories;
    if (!drawingPath.empty()) {
        const platform::PathParts parts = platform::SplitPath(drawingPath);
        directories.push_back(parts.drive + parts.directory);
    }
    for (const std::string& folder : folders) {
        directories.push_back(platform::PathFromBytes(folder));
    }
    return directories;
}

// "beside the drawing or in a, b"
std::string Places(bool hasPath, const std::vector<std::string>& folders) {
    std::string places = hasPath ? "beside the drawing" : "";
    for (std::size_t i = 0; i < folders.size(); ++i) {
        const char* const before = i > 0 ? ", " : hasPath ? " or in " : "in ";
        places += before + Shown(folders[i]);
    }
    return places.empty() ? "anywhere (give a folder with --shapes)" : places;
}

// What is wrong with the file, or an empty text.
std::string Fault(const std::wstring& path) {
    const std::unique_ptr<std::FILE, CloseFile> file(platform::OpenForReading(path.c_str()));
    if (!file) {
        return std::string("cannot be opened: ") + std::strerror(errno);
    }
    ShxUtility::ShapesInFile shapes;
    ShxUtility::ShapeFileFaultReport report;
    if (LoadShapeFile(file.get(), shapes, ShxUtility::kAllKinds, report) == ShxUtility::kSuccess) {
        return {};
    }
    return "byte " + std::to_string(report.offset) + ": " + Sentence(report);
}

constexpr const char* kConsequence = "; its shapes and letters are left out";

} // namespace

ShapeSearch::ShapeSearch(std::string drawingName, const std::wstring& drawingPath,
                         const std::vector<std::string>& folders)
    : HostServices(SearchFolders(drawingPath, folders)), drawingName_(std::move(drawingName)),
      places_(Places(!drawingPath.empty(), folders)) {}

ShapeSearch::~ShapeSearch() = default;

Oxsys::ErrorStatus ShapeSearch::findFile(wchar_t* path, int pathLength, const wchar_t* fileName,
                                         OxDbDatabase* database, FindFileHint hint) {
    if (path == nullptr || pathLength < 1 || fileName == nullptr || *fileName == L'\0') {
        return Oxsys::eInvalidInput;
    }
    path[0] = L'\0';
    auto known = found_.find(fileName);
    if (known == found_.end()) {
        known = found_.emplace(fileName, Search(fileName, pathLength, database, hint)).first;
    }
    const std::wstring& found = known->second;
    if (found.empty() || found.size() >= static_cast<std::size_t>(pathLength)) {
        return Oxsys::eFileNotFound;
    }
    std::copy_n(found.c_str(), found.size() + 1, path);
    return Oxsys::eOk;
}

std::wstring ShapeSearch::Search(const wchar_t* fileName, int pathLength, OxDbDatabase* database,
                                 FindFileHint hint) {
    std::wstring found(static_cast<std::size_t>(pathLength), L'\0');
    const Oxsys::ErrorStatus status =
        HostServices::findFile(found.data(), pathLength, fileName, database, hint);
    if (status != Oxsys::eOk) {
        const bool isTooLong = status == Oxsys::eBufferTooSmall;
        Say(drawingName_, "note: shape file " + Shown(fileName) +
                              (isTooLong ? std::string(" has too long a path") : " not found " + places_) +
                              kConsequence);
        return {};
    }
    found.resize(std::wcslen(found.c_str()));
    const std::string fault = Fault(found);
    if (!fault.empty()) {
        Say(Shown(found), "note: " + fault + kConsequence);
        return {};
    }
    return found;
}

} // namespace styleconv
