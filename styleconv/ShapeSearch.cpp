#include "styleconv/ShapeSearch.h"

#include "StyleConversion/platform/Files.h"
#include "StyleConversion/shx/ShapeFileFault.h"
#include "StyleConversion/shx/ShapeHeaderReader.h"
#include "styleconv/BuiltInFont.h"
#include "styleconv/CheckedShapes.h"
#include "styleconv/FileStream.h"
#include "styleconv/Messages.h"
#include "styleconv/Paths.h"
#include "styleconv/ShapeFileMessages.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>
#include <utility>

namespace styleconv {
namespace {

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

// The same shapes in a file that needs no forgiveness.
std::string Mended(const std::string& bytes, const ShxUtility::ShapeFileFaultReport& report) {
    std::string mended(ShxUtility::kSignature);
    mended += std::string_view(bytes).substr(0, report.trailer).substr(ShxUtility::kSignature.size());
    return mended + "EOF";
}

bool IsDefaultFont(const wchar_t* fileName) {
    return platform::CompareIgnoringCase(fileName, L"txt.shx") == 0 ||
           platform::CompareIgnoringCase(fileName, L"txt") == 0;
}

constexpr const char* kConsequence = "; its shapes and letters are left out";

} // namespace

ShapeSearch::ShapeSearch(std::string drawingName, const std::wstring& drawingPath,
                         const std::vector<std::string>& folders, ShapeSearchManner manner)
    : HostServices(SearchFolders(drawingPath, folders)), drawingName_(std::move(drawingName)),
      places_(Places(!drawingPath.empty(), folders)), manner_(manner) {}

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
    const std::wstring& found = known->second.path;
    if (found.empty() || found.size() >= static_cast<std::size_t>(pathLength)) {
        return Oxsys::eFileNotFound;
    }
    std::copy_n(found.c_str(), found.size() + 1, path);
    return Oxsys::eOk;
}

std::string ShapeSearch::WhyNot(const std::wstring& fileName) const {
    const auto known = found_.find(fileName);
    return known == found_.end() ? std::string() : known->second.whyNot;
}

ShapeSearch::Result ShapeSearch::Search(const wchar_t* fileName, int pathLength, OxDbDatabase* database,
                                        FindFileHint hint) {
    std::wstring found(static_cast<std::size_t>(pathLength), L'\0');
    const Oxsys::ErrorStatus status =
        HostServices::findFile(found.data(), pathLength, fileName, database, hint);
    if (status == Oxsys::eOk) {
        found.resize(std::wcslen(found.c_str()));
        return Loadable(found, fileName);
    }
    if (manner_ == ShapeSearchManner::kForgiving && IsDefaultFont(fileName)) {
        return StandIn(fileName);
    }
    const bool isTooLong = status == Oxsys::eBufferTooSmall;
    const std::string whyNot = "shape file " + Shown(fileName) +
                               (isTooLong ? std::string(" has too long a path") : " not found " + places_);
    if (manner_ == ShapeSearchManner::kSayNotes) {
        Say(drawingName_, "note: " + whyNot + kConsequence);
    }
    return {{}, whyNot};
}

ShapeSearch::Result ShapeSearch::StandIn(const wchar_t* fileName) {
    std::wstring path = Provide(BuiltInFontBytes());
    if (path.empty()) {
        return {{}, std::string("the built-in font cannot be written: ") + std::strerror(errno)};
    }
    Say(drawingName_, "note: font file " + Shown(fileName) + " not found " + places_ +
                          "; the built-in font stands in for it");
    return {path, {}};
}

ShapeSearch::Result ShapeSearch::Loadable(const std::wstring& path, const wchar_t* fileName) {
    const bool forgives = manner_ == ShapeSearchManner::kForgiving;
    std::string fault;
    const FileStream file(platform::OpenForReading(path.c_str()));
    if (!file) {
        fault = std::string("cannot be opened: ") + std::strerror(errno);
    } else {
        ShxUtility::ShapesInFile shapes;
        ShxUtility::ShapeFileFaultReport report;
        const ShxUtility::ShapeFilePolicy policy =
            forgives ? ShxUtility::kTolerantShapeFilePolicy : ShxUtility::ShapeFilePolicy();
        if (LoadShapeFile(file.get(), shapes, ShxUtility::kAllKinds, report, policy) !=
            ShxUtility::kSuccess) {
            fault = "byte " + std::to_string(report.offset) + ": " + Sentence(report);
        } else if (report.otherMaker || report.trailerMissing) {
            SayFindings(ForgivenOfShapeFile(platform::PathToBytes(path), report));
            std::string bytes;
            std::rewind(file.get());
            if (ReadAll(file.get(), bytes)) {
                std::wstring mended = Provide(Mended(bytes, report));
                if (!mended.empty()) {
                    return {std::move(mended), {}};
                }
            }
            fault = std::string("cannot be copied into a temporary file: ") + std::strerror(errno);
        }
    }
    if (fault.empty()) {
        return {path, {}};
    }
    if (manner_ == ShapeSearchManner::kSayNotes) {
        Say(Shown(path), "note: " + fault + kConsequence);
    }
    return {{}, "shape file " + Shown(fileName) + ": " + fault};
}

std::wstring ShapeSearch::Provide(std::string_view bytes) {
    std::error_code error;
    const std::filesystem::path folder = std::filesystem::temp_directory_path(error);
    provided_.push_back(std::make_unique<TemporaryFile>());
    TemporaryFile& file = *provided_.back();
    const bool written = file.Create(folder / "styleconv") &&
                         std::fwrite(bytes.data(), 1, bytes.size(), file.Stream()) == bytes.size() &&
                         file.Close();
    return written ? WidePath(file.Path()) : std::wstring();
}

} // namespace styleconv
