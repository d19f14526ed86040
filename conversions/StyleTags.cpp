#include "conversions/StyleTags.h"

#include "StyleConversion/platform/Files.h"
#include "StyleConversion/platform/Utf8.h"

#include <algorithm>
#include <cstddef>
#include <string_view>
#include <utility>

namespace conversions {
namespace {

constexpr std::wstring_view kSeparators = L"/\\";

bool IsAbsolute(const platform::PathParts& parts) {
    return !parts.drive.empty() || parts.directory.find_first_of(kSeparators) == 0;
}

std::vector<std::wstring> FoldersOf(std::wstring_view directory) {
    std::vector<std::wstring> folders;
    while (!directory.empty()) {
        const std::size_t end = std::min(directory.find_first_of(kSeparators), directory.size());
        const std::wstring_view folder = directory.substr(0, end);
        if (!folder.empty() && folder != L"." && folder != L"..") {
            folders.emplace_back(folder);
        }
        directory.remove_prefix(std::min(end + 1, directory.size()));
    }
    return folders;
}

bool BeginsWith(const std::vector<std::wstring>& path, const std::vector<std::wstring>& start) {
    return start.size() <= path.size() && std::equal(start.begin(), start.end(), path.begin());
}

// How many folders of an absolute path are left out.
std::size_t CountAbove(const std::vector<std::wstring>& path, const std::vector<std::string>& givenFolders) {
    std::size_t above = path.size();
    for (const std::string& given : givenFolders) {
        const platform::PathParts parts = platform::SplitPath(platform::PathFromBytes(given + "/"));
        const std::vector<std::wstring> folders = FoldersOf(parts.directory);
        if (IsAbsolute(parts) && BeginsWith(path, folders)) {
            above = std::min(above, folders.empty() ? 0 : folders.size() - 1);
        }
    }
    return above;
}

void AddOnce(const std::wstring& name, std::vector<std::string>& tags) {
    std::string tag = platform::WideToValidUtf8(name);
    if (!tag.empty() && std::find(tags.begin(), tags.end(), tag) == tags.end()) {
        tags.push_back(std::move(tag));
    }
}

} // namespace

std::vector<std::string> StyleTags(const std::string& file, const std::vector<std::string>& givenFolders) {
    const platform::PathParts parts = platform::SplitPath(platform::PathFromBytes(file));
    const std::vector<std::wstring> folders = FoldersOf(parts.directory);
    std::vector<std::string> tags;
    for (std::size_t i = IsAbsolute(parts) ? CountAbove(folders, givenFolders) : 0; i < folders.size(); ++i) {
        AddOnce(folders[i], tags);
    }
    AddOnce(parts.fileName, tags);
    return tags;
}

} // namespace conversions
