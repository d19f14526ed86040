#include "StyleConversion/block/LoadedShapeFiles.h"

#include "StyleConversion/block/Limits.h"

#include <utility>

namespace block {

const ShxUtility::ShapesInFile* LoadedShapeFiles::Find(std::wstring_view name, std::wstring_view path) const {
    for (const std::unique_ptr<const File>& file : files_) {
        if (file->name == name && file->path == path) {
            return &file->shapes;
        }
    }
    return nullptr;
}

const ShxUtility::ShapesInFile& LoadedShapeFiles::Keep(std::wstring_view name, std::wstring_view path,
                                                       ShxUtility::ShapesInFile&& shapes) {
    auto file = std::make_unique<const File>(File{std::wstring(name), std::wstring(path), std::move(shapes)});
    if (files_.size() == kMostShapeFiles) {
        files_.erase(files_.begin());
    }
    return files_.emplace_back(std::move(file))->shapes;
}

} // namespace block
