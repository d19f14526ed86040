// The tags of a style library that say which file a symbol comes from.
#pragma once

#include <string>
#include <vector>

namespace conversions {

/// The file's name without its extension, and before it the folders of its path: of a path that is not
/// absolute all, of an absolute one those from a given folder on, as what is above is a place of the machine
/// and no part of the collection. As UTF-8, each once; none where the file has no name.
std::vector<std::string> StyleTags(const std::string& file, const std::vector<std::string>& givenFolders);

} // namespace conversions
