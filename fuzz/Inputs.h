// Ways to hand the bytes of an input to code that reads files.
#pragma once

#include <cstdio>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

namespace fuzzing {

struct CloseFile {
    void operator()(std::FILE* file) const { std::fclose(file); }
};

using Stream = std::unique_ptr<std::FILE, CloseFile>;

/// A stream that stands before the bytes, which must outlive it.
Stream OpenBytes(std::string_view bytes);

/// A file on disk that holds one input after the other and is removed at the program's end. It has a folder
/// of its own: what is searched for beside it is never there, and searching takes no time.
class InputOnDisk {
public:
    InputOnDisk();
    ~InputOnDisk();
    InputOnDisk(const InputOnDisk&) = delete;
    InputOnDisk& operator=(const InputOnDisk&) = delete;

    /// Its path, once it holds `bytes`.
    const std::wstring& Holding(std::string_view bytes);

private:
    std::filesystem::path folder_;
    std::filesystem::path path_;
    std::wstring widePath_;
};

/// Chooses the code page as the tool does: UTF-8 for text that is UTF-8 throughout, else WINDOWS-1252; and
/// SHIFT_JIS, whose characters may end in a quote's byte, for text that begins with ";SJIS".
void ChooseCodePage(std::string_view text);

} // namespace fuzzing
