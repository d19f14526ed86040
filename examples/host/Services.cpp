#include "Services.h"

#include <string>

namespace {

std::FILE* OpenBinary(const std::filesystem::path& path) {
    if (!std::filesystem::is_regular_file(path)) {
        return nullptr;
    }
#if defined(_WIN32)
    return _wfopen(path.c_str(), L"rb");
#else
    return std::fopen(path.c_str(), "rb");
#endif
}

// Linetype conversion asks for file names in upper case; the files of the folder have lower-case names.
std::wstring Lower(std::wstring text) {
    for (wchar_t& c : text) {
        if (c >= L'A' && c <= L'Z') {
            c = static_cast<wchar_t>(c - L'A' + L'a');
        }
    }
    return text;
}

} // namespace

std::FILE* ShapeFolder::GetFile(const wchar_t* name, const wchar_t* extension) {
    const std::filesystem::path path = folder_ / Lower(name);
    if (std::FILE* const file = OpenBinary(path)) {
        return file;
    }
    return OpenBinary(std::filesystem::path(path).concat(extension));
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
