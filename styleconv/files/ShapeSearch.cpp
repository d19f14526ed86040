#include "styleconv/files/ShapeSearch.h"

#include "StyleConversion/block/Limits.h"
#include "StyleConversion/linetype/CLineConverterDep.h"
#include "StyleConversion/platform/Files.h"
#include "diagnostics/ShownText.h"
#include "drawing/database/HostServices.h"
#include "styleconv/files/InputFile.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <utility>

namespace styleconv {
namespace {

using conversions::FoundFile;
using diagnostics::ShownText;

// Nothing is beside standard input.
std::wstring FolderOf(const std::string& file) {
    if (file == "-") {
        return {};
    }
    const platform::PathParts parts = platform::SplitPath(platform::PathFromBytes(file));
    return parts.drive + parts.directory;
}

std::vector<std::wstring> WidePaths(const std::vector<std::string>& folders) {
    std::vector<std::wstring> wide;
    wide.reserve(folders.size());
    for (const std::string& folder : folders) {
        wide.push_back(platform::PathFromBytes(folder));
    }
    return wide;
}

// Takes the stream over; null is a file that was not found.
FoundFile Contents(std::FILE* stream, std::string name) {
    const FileStream file(stream);
    FoundFile found;
    found.isFound = file != nullptr;
    found.name = std::move(name);
    if (file && !ReadAll(file.get(), found.bytes)) {
        found.error = std::strerror(errno);
    }
    return found;
}

} // namespace

LinetypeShapeSearch::LinetypeShapeSearch(SearchOptions options)
    : options_(std::move(options)), folder_(FolderOf(options_.file)) {}

FoundFile LinetypeShapeSearch::Find(const std::wstring& name) const {
    return Contents(Open(name), {});
}

std::FILE* LinetypeShapeSearch::Open(const std::wstring& name) const {
    drawing::HostServices host(WidePaths(options_.folders));
    LineConverter::CLineConverterDep search(&host, folder_.c_str());
    const std::vector<std::wstring> fonts = WidePaths(options_.fonts);
    const auto font = std::find_if(fonts.begin(), fonts.end(), [&](const std::wstring& each) {
        return platform::CompareIgnoringCase(name.c_str(), each.c_str()) == 0;
    });
    if (font == fonts.end()) {
        return search.GetFile(name.c_str(), L".shx");
    }
    // As it was spelled, and by itself first: a path longer than those in files may be is found here.
    std::FILE* const stream = platform::OpenForReadingIgnoringCase(font->c_str());
    return stream != nullptr ? stream : search.GetFile(font->c_str(), L".shx");
}

std::string LinetypeShapeSearch::Places(const std::wstring& name) const {
    const platform::PathParts parts = platform::SplitPath(name);
    const std::wstring ownFolder = parts.drive + parts.directory;
    std::string places = "in " + (ownFolder.empty() ? "." : ShownText(ownFolder));
    if (ownFolder.empty() && !folder_.empty()) {
        places += ", " + ShownText(folder_);
    }
    for (const std::string& folder : options_.folders) {
        places += ", " + ShownText(folder);
    }
    return places;
}

DrawingShapeSearch::DrawingShapeSearch(SearchOptions options) : options_(std::move(options)) {}

FoundFile DrawingShapeSearch::Find(const std::wstring& name) const {
    std::vector<std::wstring> folders = WidePaths(options_.folders);
    if (options_.file != "-") {
        folders.insert(folders.begin(), FolderOf(options_.file));
    }
    drawing::HostServices host(std::move(folders));
    std::array<wchar_t, block::kShapeFilePathLength> path{};
    const Oxsys::ErrorStatus status = host.findFile(path.data(), static_cast<int>(path.size()), name.c_str(),
                                                    nullptr, OxDbHostApplicationServices::kCompiledShapeFile);
    if (status == Oxsys::eBufferTooSmall) {
        return {true, ShownText(name), "its path is too long", {}};
    }
    if (status != Oxsys::eOk) {
        return {};
    }
    const std::string found = ShownText(path.data());
    std::FILE* const stream = platform::OpenForReading(path.data());
    return stream != nullptr ? Contents(stream, found) : FoundFile{true, found, std::strerror(errno), {}};
}

std::string DrawingShapeSearch::Places() const {
    const bool hasFolder = options_.file != "-";
    std::string places = hasFolder ? "beside the drawing" : "";
    for (std::size_t i = 0; i < options_.folders.size(); ++i) {
        const char* const before = i > 0 ? ", " : hasFolder ? " or in " : "in ";
        places += before + ShownText(options_.folders[i]);
    }
    return places.empty() ? "anywhere (name a folder with --shapes)" : places;
}

} // namespace styleconv
