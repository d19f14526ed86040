// A file of the standard library that closes itself.
#pragma once

#include <cstdio>
#include <memory>

namespace styleconv {

struct CloseFile {
    void operator()(std::FILE* file) const { std::fclose(file); }
};

/// For reading: whether closing failed is nowhere told.
using FileStream = std::unique_ptr<std::FILE, CloseFile>;

} // namespace styleconv
