// Where there are no files.
#include "drawing/database/FileSearch.h"

namespace drawing {

std::wstring FindAnyCase(const std::wstring& /*path*/) {
    return {};
}

} // namespace drawing
