#include "Services.h"

#include <algorithm>
#include <cwchar>
#include <string_view>

namespace {

constexpr std::string_view kSignature = "Vorlanx-86 ";

std::FILE* OpenBinary(const std::filesystem::path& path) {
#if defined(_WIN32)
    return _wfopen(path.c_str(), L"rb");
#else
    return std::fopen(path.c_str(), "rb");
#endif
}

bool BeginsAsShapeFilesDo(const std::filesystem::path& path) {
    std::FILE* const file = OpenBinary(path);
    if (file == nullptr) {
        return false;
    }
    char begin[kSignature.size()] = {};
    const std::size_t size = std::fread(begin, 1, sizeof begin, file);
    std::fclose(file);
    return std::string_view(begin, size) == kSignature;
}

std::wstring Lower(std::wstring text) {
    for (wchar_t& c : text) {
        if (c >= L'A' && c <= L'Z') {
            c = static_cast<wchar_t>(c - L'A' + L'a');
        }
    }
    return text;
}

} // namespace

std::filesystem::path ShapeFolder::Find(const std::wstring& name, const std::wstring& extension) const {
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder_)) {
        const std::wstring found = Lower(entry.path().filename().wstring());
        if (entry.is_regular_file() && (found == Lower(name) || found == Lower(name + extension))) {
            return entry.path();
        }
    }
    return {};
}

std::FILE* ShapeOpener::GetFile(const wchar_t* name, const wchar_t* extension) {
    const std::filesystem::path path = folder_.Find(name, extension);
    return path.empty() ? nullptr : OpenBinary(path);
}

bool OneTypeface::GetFontInfoFromStyle(const wchar_t* /*styleName*/, LineConverter::FontInfo& info) {
    info.fileName.clear();
    info.bigFontFileName.clear();
    info.typeface = L"Arial";
    info.bold = false;
    info.italic = false;
    info.isShapeFile = false;
    info.isVertical = false;
    info.textSize = 0.0;
    info.xScale = 1.0;
    info.obliquingAngle = 0.0;
    info.flagBits = 0;
    return true;
}

std::wstring FileSearch::LookFor(const std::wstring& name) {
    const std::filesystem::path path = folder_.Find(name, L".shx");
    if (path.empty()) {
        return {};
    }
    ++filesLookedAt_;
    return BeginsAsShapeFilesDo(path) ? path.wstring() : std::wstring();
}

Oxsys::ErrorStatus FileSearch::findFile(wchar_t* path, int pathLength, const wchar_t* fileName,
                                        OxDbDatabase* /*database*/, FindFileHint hint) {
    if (hint != kCompiledShapeFile) {
        return Oxsys::eFileNotFound;
    }
    const auto [known, isNew] = paths_.try_emplace(Lower(fileName));
    if (isNew) {
        known->second = LookFor(fileName);
    }
    const std::wstring& found = known->second;
    if (found.empty() || found.size() >= static_cast<std::size_t>(pathLength)) {
        return Oxsys::eFileNotFound;
    }
    std::wmemcpy(path, found.c_str(), found.size() + 1);
    return Oxsys::eOk;
}
