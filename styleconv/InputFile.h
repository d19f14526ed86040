// A file named on the command line, or standard input.
#pragma once

#include "styleconv/FileStream.h"
#include "styleconv/TemporaryFile.h"

#include <cstdio>
#include <memory>
#include <string>
#include <string_view>

namespace styleconv {

/// Makes a file's bytes and, for what the library reads by name, its path available. For standard input ("-")
/// that is the path of a temporary copy, which is removed with this object.
class InputFile {
public:
    /// `argument` as given on the command line.
    explicit InputFile(std::string argument);

    /// Opens the file, to be read from Stream. On failure says so on standard error and returns false.
    bool Open();
    /// The open file, after Open.
    std::FILE* Stream() const { return IsStandardInput() ? stdin : file_.get(); }

    /// Reads the whole file. On failure says so on standard error and returns false.
    bool Read();
    /// Makes Path valid, after Read. On failure says so on standard error and returns false.
    bool ProvidePath();

    /// How messages call it.
    const std::string& Name() const { return name_; }
    /// Its bytes, after Read.
    const std::string& Bytes() const { return bytes_; }
    /// A path for the library to open, after ProvidePath.
    const std::wstring& Path() const { return path_; }
    bool IsStandardInput() const { return argument_ == "-"; }

private:
    bool OpenNamed();

    std::string argument_;
    std::string name_;
    std::string bytes_;
    std::wstring path_;
    FileStream file_;
    TemporaryFile temporary_;
};

/// Whether the bytes begin with the mark that some editors put before UTF-8.
bool StartsWithByteOrderMark(std::string_view bytes);

/// Sets the code page that narrow text of `input` is converted through: `requested`, or when that is empty
/// UTF-8 for a file that is UTF-8 throughout and WINDOWS-1252 for any other. False, with a message, when
/// `requested` is not known.
bool ChooseCodePage(const InputFile& input, const std::string& requested);

} // namespace styleconv
