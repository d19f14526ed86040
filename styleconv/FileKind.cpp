#include "styleconv/FileKind.h"

#include "styleconv/Paths.h"

namespace styleconv {

FileKind FileKindOf(const std::string& path) {
    std::string extension = NativePath(path).extension().string();
    for (char& c : extension) {
        c = static_cast<char>(c >= 'A' && c <= 'Z' ? c - 'A' + 'a' : c);
    }
    if (extension == ".lin") {
        return FileKind::kLinetypes;
    }
    if (extension == ".pat") {
        return FileKind::kPatterns;
    }
    if (extension == ".shx") {
        return FileKind::kShapes;
    }
    return extension == ".json" ? FileKind::kDrawing : FileKind::kUnknown;
}

} // namespace styleconv
