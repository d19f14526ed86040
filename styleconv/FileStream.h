// A file of the standard library that closes itself, and all that it holds.
#pragma once

#include <cstdio>
#include <memory>
#include <string>

namespace styleconv {

struct CloseFile {
    void operator()(std::FILE* file) const { std::fclose(file); }
};

/// For reading: whether closing failed is nowhere told.
using FileStream = std::unique_ptr<std::FILE, CloseFile>;

/// Appends what is left to read. False, with errno set, when reading failed.
bool ReadAll(std::FILE* file, std::string& bytes);

} // namespace styleconv
