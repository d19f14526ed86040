// A file on its way to be somebody's result.
#pragma once

#include <cstdio>
#include <filesystem>
#include <mutex>
#include <system_error>

namespace styleconv {

/// Held by whoever creates, removes or renames files, and for good by a limit that ends the process: either a
/// result is put in place or nothing of it is left.
std::mutex& FilesMutex();

/// A new file with a name of its own, which is removed with this object unless it was kept.
class TemporaryFile {
public:
    TemporaryFile() = default;
    ~TemporaryFile();
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    /// Creates the file beside `like`, named after it with a random ending, open for writing in binary mode.
    /// False, with errno set, on failure. Once for each object.
    bool Create(const std::filesystem::path& like);

    /// Open from Create to Close; null else.
    std::FILE* Stream() const { return stream_; }
    const std::filesystem::path& Path() const { return path_; }
    /// False, with errno set, when what was written did not reach the file.
    bool Close();
    /// Renames the file, which is closed, and no longer removes it. The caller holds FilesMutex.
    std::error_code KeepAs(const std::filesystem::path& target);

    /// Removes every temporary file of the process, which is about to end. The caller holds FilesMutex.
    static void RemoveAll();

private:
    std::FILE* stream_ = nullptr;
    std::filesystem::path path_; // empty where there is no file to remove
};

} // namespace styleconv
