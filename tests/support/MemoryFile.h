// Bytes as a stream to read.
#pragma once

#include "tests/support/TemporaryStream.h"

#include <cstdio>
#include <memory>
#include <stdexcept>
#include <string_view>

namespace test_support {

struct CloseFile {
    void operator()(std::FILE* file) const { std::fclose(file); }
};

using File = std::unique_ptr<std::FILE, CloseFile>;

/// A binary stream that stands before `bytes`, with the behaviour of a file at its end.
inline File FileOf(std::string_view bytes) {
    File file(OpenTemporary());
    if (file == nullptr || std::fwrite(bytes.data(), 1, bytes.size(), file.get()) != bytes.size()) {
        throw std::runtime_error("no temporary file");
    }
    std::rewind(file.get());
    return file;
}

} // namespace test_support
