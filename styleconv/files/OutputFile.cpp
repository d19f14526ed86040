#include "styleconv/files/OutputFile.h"

#include "styleconv/files/Paths.h"
#include "styleconv/process/Messages.h"
#include "styleconv/process/WorkLimits.h"

#include <cerrno>
#include <cstring>
#include <mutex>
#include <system_error>
#include <utility>

namespace styleconv {
namespace {

namespace fs = std::filesystem;

std::FILE* OpenForWriting(const fs::path& path) {
#if defined(_WIN32)
    return _wfopen(path.c_str(), L"wb");
#else
    return std::fopen(path.c_str(), "wb");
#endif
}

// A link stays one: what it points at is replaced.
fs::path BehindLinks(const fs::path& path) {
#if defined(_WIN32)
    // The standard library takes a path in the system's long form for one below the current drive.
    if (path.native().starts_with(LR"(\\?\)")) {
        return path;
    }
#endif
    std::error_code error;
    const fs::path target = fs::weakly_canonical(path, error);
    return error ? path : OpenablePath(target);
}

} // namespace

OutputFile::OutputFile(std::string path)
    : path_(std::move(path)), name_(path_.empty() ? "standard output" : path_) {}

OutputFile::~OutputFile() {
    if (device_ != nullptr) {
        std::fclose(device_);
    }
}

bool OutputFile::Fail() {
    SayError(name_, std::string("cannot be written: ") + std::strerror(errno));
    return false;
}

bool OutputFile::Open() {
    if (path_.empty()) {
        file_ = stdout;
        return true;
    }
    target_ = BehindLinks(NativePath(path_));
    std::error_code error;
    const fs::file_status status = fs::status(target_, error);
    if (fs::is_directory(status)) {
        errno = EISDIR;
        return Fail();
    }
    if (fs::exists(status) && !fs::is_regular_file(status)) {
        device_ = OpenForWriting(target_);
        file_ = device_;
        return file_ != nullptr || Fail();
    }
    if (!temporary_.Create(target_)) {
        return Fail();
    }
    file_ = temporary_.Stream();
    if (fs::exists(status)) {
        fs::permissions(temporary_.Path(), status.permissions(), error);
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
    if (std::fflush(file_) != 0 || !temporary_.Close()) {
        return Fail();
    }
    if (device_ != nullptr && std::fclose(std::exchange(device_, nullptr)) != 0) {
        return Fail();
    }
    return PutInPlace();
}

bool MakeFolder(const std::string& path) {
    std::error_code error;
    fs::create_directories(NativePath(path), error);
    if (error) {
        SayError(path, "cannot be made: " + error.message());
    }
    return !error;
}

bool WriteWholeFile(const std::string& path, std::string_view text) {
    OutputFile file(path);
    return file.Write(text) && file.Commit();
}

bool OutputFile::PutInPlace() {
    const std::lock_guard lock(FilesMutex());
    if (!temporary_.Path().empty()) {
        const std::error_code error = temporary_.KeepAs(target_);
        if (error) {
            errno = error.value();
            return Fail();
        }
    }
    WorkLimits::Lift();
    return true;
}

} // namespace styleconv
