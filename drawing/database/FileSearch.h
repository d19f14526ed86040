// Files whose names may be spelled in another case than they have on the disk.
#pragma once

#include <string>

namespace drawing {

/// The path of the file `path` as the file system spells its last part, or an empty text when there is none.
std::wstring FindAnyCase(const std::wstring& path);

} // namespace drawing
