// Opening files on systems whose paths are bytes, by custom UTF-8.
#include "StyleConversion/platform/Files.h"

#include "StyleConversion/platform/Utf8.h"

#include <algorithm>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>

namespace platform {
namespace {

struct CloseDirectory {
    void operator()(DIR* directory) const { closedir(directory); }
};

std::FILE* OpenBytes(const std::string& path) {
    // O_NONBLOCK: opening a pipe that nobody writes to must not wait; it is refused below.
    const int descriptor = open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (descriptor < 0) {
        return nullptr;
    }
    struct stat status {};
    if (fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode)) {
        if (std::FILE* const file = fdopen(descriptor, "rb")) {
            return file;
        }
    }
    close(descriptor);
    return nullptr;
}

// The first name in byte order in `directory` that equals `name` but for case, or an empty text.
std::string FindIgnoringCase(const std::string& directory, std::wstring_view name) {
    const std::unique_ptr<DIR, CloseDirectory> entries(opendir(directory.empty() ? "." : directory.c_str()));
    std::string best;
    if (!entries) {
        return best;
    }
    const std::wstring wanted(name);
    while (const dirent* const entry = readdir(entries.get())) {
        const std::string candidate = entry->d_name;
        if (CompareIgnoringCase(Utf8ToWide(candidate).c_str(), wanted.c_str()) == 0 &&
            (best.empty() || candidate < best)) {
            best = candidate;
        }
    }
    return best;
}

} // namespace

std::wstring OpenablePath(const std::wstring& path) {
    return path;
}

std::FILE* OpenForReading(const wchar_t* path) {
    return OpenBytes(PathToBytes(path));
}

std::FILE* OpenForReadingIgnoringCase(const wchar_t* path) {
    if (std::FILE* const file = OpenForReading(path)) {
        return file;
    }
    const PathParts parts = SplitPath(path);
    std::string directory = PathToBytes(parts.directory);
    std::replace(directory.begin(), directory.end(), '\\', '/');
    const std::string found = FindIgnoringCase(directory, parts.fileName + parts.extension);
    return found.empty() ? nullptr : OpenBytes(directory + found);
}

} // namespace platform
