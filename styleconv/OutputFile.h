// Where a command's result goes: a file that is replaced in one step, or standard output.
#pragma once

#include <cstdio>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

namespace styleconv {

/// Creates a new file beside `like`, named after it with a random ending, open for writing in binary mode.
/// Null, with errno set, on failure; `created` is its path otherwise.
std::FILE* CreateTemporary(const std::filesystem::path& like, std::filesystem::path& created);

/// Collects the result and puts it in place when all of it is there. Until Commit succeeds, a file that stood
/// at the path is as it was. Devices and pipes are written directly.
class OutputFile {
public:
    /// `path` as given on the command line; empty for standard output.
    explicit OutputFile(std::string path);
    ~OutputFile();
    OutputFile(const OutputFile&) = delete;
    OutputFile& operator=(const OutputFile&) = delete;

    /// Each returns false after saying on standard error what went wrong.
    bool Write(std::string_view text);
    bool Commit();

private:
    bool Open();
    bool Fail();

    std::string path_;
    std::string name_;
    std::FILE* file_ = nullptr;
    std::filesystem::path target_;
    std::filesystem::path temporary_; // empty when the target is written directly
};

} // namespace styleconv
