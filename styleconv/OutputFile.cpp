#include "styleconv/OutputFile.h"

#include "styleconv/Messages.h"
#include "styleconv/Paths.h"

#include <cerrno>
#include <cstring>
#include <random>
#include <system_error>
#include <utility>

namespace styleconv {
namespace {

namespace fs = std::filesystem;

std::FILE* OpenForWriting(const fs::path& path, bool mustBeNew) {
    if (mustBeNew && fs::exists(fs::symlink_status(path))) {
        errno = EEXIST;
        return nullptr;
    }
#if defined(_WIN32)
    return _wfopen(path.c_str(), L"wb");
#else
    return std::fopen(path.c_str(), mustBeNew ? "wbx" : "wb");
#endif
}

} // namespace

std::FILE* CreateTemporary(const fs::path& like, fs::path& created) {
    constexpr int kAttempts = 100;
    constexpr std::string_view kLetters = "abcdefghijklmnopqrstuvwxyz0123456789";
    constexpr int kRandomLetters = 8;
    std::random_device random;
    for (int attempt = 0; attempt < kAttempts; ++attempt) {
        std::string ending = ".";
        for (int i = 0; i < kRandomLetters; ++i) {
            ending += kLetters[random() % kLetters.size()];
        }
        fs::path candidate = like;
        candidate += ending;
        if (std::FILE* const file = OpenForWriting(candidate, true)) {
            created = std::move(candidate);
            return file;
        }
        if (errno != EEXIST) {
            return nullptr;
        }
    }
    return nullptr;
}

OutputFile::OutputFile(std::string path)
    : path_(std::move(path)), name_(path_.empty() ? "standard output" : path_) {}

OutputFile::~OutputFile() {
    if (file_ != nullptr && file_ != stdout) {
        std::fclose(file_);
    }
    if (!temporary_.empty()) {
        std::error_code ignored;
        fs::remove(temporary_, ignored);
    }
}

bool OutputFile::Fail() {
    Say(name_, std::string("cannot be written: ") + std::strerror(errno));
    return false;
}

bool OutputFile::Open() {
    if (path_.empty()) {
        file_ = stdout;
        return true;
    }
    // A link stays one: what it points at is replaced.
    std::error_code error;
    target_ = fs::weakly_canonical(NativePath(path_), error);
    if (error) {
        target_ = NativePath(path_);
    }
    const fs::file_status status = fs::status(target_, error);
    if (fs::is_directory(status)) {
        errno = EISDIR;
        return Fail();
    }
    if (fs::exists(status) && !fs::is_regular_file(status)) {
        file_ = OpenForWriting(target_, false);
        return file_ != nullptr || Fail();
    }
    file_ = CreateTemporary(target_, temporary_);
    if (file_ == nullptr) {
        return Fail();
    }
    if (fs::exists(status)) {
        fs::permissions(temporary_, status.permissions(), error);
    }
    return true;
}

bool OutputFile::Write(std::string_view text) {
    if (file_ == nullptr && !Open()) {
        return false;
    }
    return std::fwrite(text.data(), 1, text.size(), file_) == text.size() || Fail();
}

bool OutputFile::Commit() {
    if (file_ == nullptr && !Open()) {
        return false;
    }
    if (std::fflush(file_) != 0) {
        return Fail();
    }
    if (file_ != stdout && std::fclose(std::exchange(file_, nullptr)) != 0) {
        return Fail();
    }
    if (!temporary_.empty()) {
        std::error_code error;
        fs::rename(temporary_, target_, error);
        if (error) {
            errno = error.value();
            return Fail();
        }
        temporary_.clear();
    }
    return true;
}

} // namespace styleconv
