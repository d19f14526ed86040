// A file named on the command line, or standard input ("-").
#pragma once

#include "conversions/reading/Input.h"
#include "diagnostics/Diagnostic.h"

#include <cstdio>
#include <memory>
#include <optional>
#include <string>

namespace styleconv {

struct CloseFile {
    void operator()(std::FILE* file) const { std::fclose(file); }
};

/// For reading: whether closing failed is nowhere told.
using FileStream = std::unique_ptr<std::FILE, CloseFile>;

/// Appends what is left to read. False, with errno set, when reading failed.
bool ReadAll(std::FILE* file, std::string& bytes);

class InputFile {
public:
    /// `argument` as given on the command line.
    explicit InputFile(std::string argument);

    /// Opens the file, to be read as it comes. Gives what is wrong where it cannot.
    std::optional<diagnostics::Diagnostic> Open();
    /// The first bytes of a file that is open, which is to be read from there still.
    std::string Start() const;
    /// Opens it and reads it whole.
    std::optional<diagnostics::Diagnostic> Read();

    /// What a job works on: the open stream after Open, the bytes after Read. Valid as long as this object.
    conversions::Input ForJob(const std::string& encoding = {}) const;

    /// How messages call it.
    const std::string& Name() const { return name_; }
    bool IsStandardInput() const { return argument_ == "-"; }

private:
    std::optional<diagnostics::Diagnostic> OpenNamed();
    diagnostics::Diagnostic Unreadable(std::string why) const;

    std::string argument_;
    std::string name_;
    std::string bytes_;
    FileStream file_;
    bool isRead_ = false;
};

} // namespace styleconv
