#include "styleconv/files/FileWalk.h"

#include "StyleConversion/platform/Files.h"
#include "conversions/reading/FileKind.h"
#include "styleconv/files/InputFile.h"
#include "styleconv/files/Paths.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <map>
#include <set>
#include <system_error>
#include <utility>

namespace styleconv {
namespace {

namespace fs = std::filesystem;

using conversions::FileKind;

bool MatchesAny(const std::vector<std::string>& patterns, std::string_view path) {
    const std::size_t slash = path.rfind('/');
    const std::string_view name = slash == std::string_view::npos ? path : path.substr(slash + 1);
    return std::any_of(patterns.begin(), patterns.end(), [&](const std::string& pattern) {
        return MatchesPattern(pattern, pattern.find('/') == std::string::npos ? name : path);
    });
}

// Documents of many programs end in .json: a drawing says at its start that it is one.
bool IsOfKnownKind(const std::string& path) {
    const FileKind kind = conversions::KindByName(path);
    if (kind != FileKind::kDrawing) {
        return kind != FileKind::kUnknown;
    }
    const FileStream file(platform::OpenForReading(platform::PathFromBytes(path).c_str()));
    if (file == nullptr) {
        return true; // which is told where it is read
    }
    std::array<char, 1 << 12> start{};
    const std::size_t size = std::fread(start.data(), 1, start.size(), file.get());
    const std::string_view bytes(start.data(), size);
    return conversions::IsDxf(path, bytes) || conversions::KindByContents(bytes) != FileKind::kUnknown;
}

bool EndsWithSeparator(const std::string& folder) {
#if defined(_WIN32)
    return folder.ends_with('/') || folder.ends_with('\\');
#else
    return folder.ends_with('/');
#endif
}

class FolderWalk {
public:
    FolderWalk(const WalkOptions& options, Walk& walk) : options_(options), walk_(walk) {}

    void Add(const std::string& folder) {
        const std::string prefix = EndsWithSeparator(folder) ? folder : folder + "/";
        std::vector<std::string> found;
        std::error_code error;
        const fs::path root = NativePath(folder);
        fs::recursive_directory_iterator at(root, error);
        for (; !error && at != fs::recursive_directory_iterator(); at.increment(error)) {
            std::error_code ignored;
            if (at->is_regular_file(ignored)) {
                std::string path = platform::PathToBytes(WidePath(at->path().lexically_relative(root)));
#if defined(_WIN32)
                std::replace(path.begin(), path.end(), '\\', '/');
#endif
                found.push_back(std::move(path));
            }
        }
        if (error) {
            walk_.diagnostics.push_back({diagnostics::Severity::kError,
                                         diagnostics::Code::kUnreadableFolder,
                                         {folder},
                                         {error.default_error_condition().message()}});
        }
        walk_.folders.push_back(folder);
        std::sort(found.begin(), found.end());
        for (const std::string& path : found) {
            Take(prefix, path);
        }
    }

private:
    void Take(const std::string& prefix, const std::string& path) {
        const bool isWanted = (options_.include.empty() || MatchesAny(options_.include, path)) &&
                              !MatchesAny(options_.exclude, path);
        if (!isWanted) {
            return;
        }
        if (IsOfKnownKind(prefix + path)) {
            walk_.files.push_back(prefix + path);
        } else {
            ++walk_.others;
        }
    }

    const WalkOptions& options_;
    Walk& walk_;
};

// Tells files apart by their folder, whatever the way to it, and their name.
class SeenFiles {
public:
    // False where it was there before.
    bool Add(const std::string& file) {
        const fs::path path = NativePath(file);
        return seen_.insert(FolderOf(path) / path.filename()).second;
    }

private:
    const fs::path& FolderOf(const fs::path& path) {
        const fs::path given = path.has_parent_path() ? path.parent_path() : fs::path(".");
        const auto [at, isNew] = folders_.try_emplace(given);
        if (isNew) {
            std::error_code error;
            at->second = fs::canonical(given, error);
            if (error) {
                at->second = given;
            }
        }
        return at->second;
    }

    std::map<fs::path, fs::path> folders_; // as given, and where they are
    std::set<fs::path> seen_;
};

} // namespace

std::size_t KeepFirst(std::vector<std::string>& files) {
    SeenFiles seen;
    return std::erase_if(files, [&](const std::string& file) { return !seen.Add(file); });
}

Walk FilesBehind(const std::vector<std::string>& paths, const WalkOptions& options) {
    Walk walk;
    for (const std::string& path : paths) {
        std::error_code ignored;
        if (path != "-" && fs::is_directory(NativePath(path), ignored)) {
            FolderWalk(options, walk).Add(path);
        } else {
            walk.files.push_back(path);
        }
    }
    walk.repeated = paths.size() > 1 ? KeepFirst(walk.files) : 0;
    return walk;
}

bool MatchesPattern(std::string_view pattern, std::string_view text) {
    std::size_t at = 0;
    std::size_t star = std::string_view::npos; // the last one of the pattern
    std::size_t behind = 0;                    // where in the text what it stands for ends
    std::size_t position = 0;
    while (position < text.size()) {
        if (at < pattern.size() && pattern[at] == '*') {
            star = at++;
            behind = position;
        } else if (at < pattern.size() && (pattern[at] == '?' || pattern[at] == text[position])) {
            ++at;
            ++position;
        } else if (star != std::string_view::npos) {
            at = star + 1;
            position = ++behind;
        } else {
            return false;
        }
    }
    return pattern.find_first_not_of('*', at) == std::string_view::npos;
}

} // namespace styleconv
