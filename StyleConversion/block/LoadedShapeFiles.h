// The shape files that the conversion of one block has loaded.
#pragma once

#include "StyleConversion/shx/ShapesInFile.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace block {

/// Shapes and texts stand at every dash, and mostly come from one or two files: each is read once. The host
/// is asked for a file all the same every time; what it is asked for and what it answers, together, say which
/// file is meant.
class LoadedShapeFiles {
public:
    /// Null when it has not been kept, or is no longer. Good until the next Keep().
    const ShxUtility::ShapesInFile* Find(std::wstring_view name, std::wstring_view path) const;
    /// Files beyond kMostShapeFiles push out the one that was kept first.
    const ShxUtility::ShapesInFile& Keep(std::wstring_view name, std::wstring_view path,
                                         ShxUtility::ShapesInFile&& shapes);

private:
    struct File {
        std::wstring name;
        std::wstring path;
        ShxUtility::ShapesInFile shapes;
    };

    std::vector<std::unique_ptr<const File>> files_;
};

/// What a linetype carries at its dashes, as a path, and where that comes from.
struct DashGeometry {
    std::wstring path;
    LoadedShapeFiles files;
};

} // namespace block
