#include "styleconv/process/TemporaryFile.h"

#include <algorithm>
#include <cerrno>
#include <random>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#if defined(_WIN32)
#include <fcntl.h>
#include <io.h>
#include <share.h>
#include <sys/stat.h>
#endif

namespace styleconv {
namespace {

namespace fs = std::filesystem;

std::FILE* OpenNew(const fs::path& path) {
    if (fs::exists(fs::symlink_status(path))) {
        errno = EEXIST;
        return nullptr;
    }
#if defined(_WIN32)
    int descriptor = -1;
    if (_wsopen_s(&descriptor, path.c_str(), _O_WRONLY | _O_BINARY | _O_CREAT | _O_EXCL, _SH_DENYNO,
                  _S_IREAD | _S_IWRITE) != 0) {
        return nullptr;
    }
    return _fdopen(descriptor, "wb");
#else
    return std::fopen(path.c_str(), "wbx");
#endif
}

// All that there are, guarded by FilesMutex.
std::vector<TemporaryFile*>& Registered() {
    static std::vector<TemporaryFile*> files;
    return files;
}

} // namespace

std::mutex& FilesMutex() {
    static std::mutex mutex;
    return mutex;
}

TemporaryFile::~TemporaryFile() {
    if (stream_ != nullptr) {
        std::fclose(stream_);
    }
    const std::lock_guard lock(FilesMutex());
    std::erase(Registered(), this);
    if (!path_.empty()) {
        std::error_code ignored;
        fs::remove(path_, ignored);
    }
}

bool TemporaryFile::Create(const fs::path& like) {
    constexpr int kAttempts = 100;
    constexpr std::string_view kLetters = "abcdefghijklmnopqrstuvwxyz0123456789";
    constexpr int kRandomLetters = 8;
    std::random_device random;
    const std::lock_guard lock(FilesMutex());
    Registered().push_back(this);
    for (int attempt = 0; attempt < kAttempts; ++attempt) {
        std::string ending = ".";
        for (int i = 0; i < kRandomLetters; ++i) {
            ending += kLetters[random() % kLetters.size()];
        }
        fs::path candidate = like;
        candidate += ending;
        stream_ = OpenNew(candidate);
        if (stream_ != nullptr) {
            path_ = std::move(candidate);
            return true;
        }
        if (errno != EEXIST) {
            return false;
        }
    }
    return false;
}

bool TemporaryFile::Close() {
    // Locked, so that a limit never closes the stream a second time.
    const std::lock_guard lock(FilesMutex());
    return stream_ == nullptr || std::fclose(std::exchange(stream_, nullptr)) == 0;
}

std::error_code TemporaryFile::KeepAs(const fs::path& target) {
    std::error_code error;
    fs::rename(path_, target, error);
    if (!error) {
        path_.clear();
    }
    return error;
}

void TemporaryFile::RemoveAll() {
    for (TemporaryFile* const file : Registered()) {
#if defined(_WIN32)
        // An open file cannot be removed there.
        if (file->stream_ != nullptr) {
            _close(_fileno(file->stream_));
        }
#endif
        std::error_code ignored;
        fs::remove(file->path_, ignored);
    }
}

} // namespace styleconv
