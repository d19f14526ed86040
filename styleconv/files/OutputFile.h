// Where a command's result goes: a file that is replaced in one step, or standard output.
#pragma once

#include "styleconv/process/TemporaryFile.h"

#include <cstdio>
#include <filesystem>
#include <string>
#include <string_view>

namespace styleconv {

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
    bool PutInPlace();

    std::string path_;
    std::string name_;
    std::FILE* file_ = nullptr;   // the stream of one of the three
    std::FILE* device_ = nullptr; // a target that is written directly
    std::filesystem::path target_;
    TemporaryFile temporary_;
};

/// Makes a folder and those that it stands in. False after saying why not.
bool MakeFolder(const std::string& path);

/// Writes a file in one step. False after saying why not.
bool WriteWholeFile(const std::string& path, std::string_view text);

} // namespace styleconv
