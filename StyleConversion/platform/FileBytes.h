// The bytes of an open file.
#pragma once

#include <array>
#include <cstdio>
#include <memory>
#include <string>

namespace platform {

struct CloseFile {
    void operator()(std::FILE* file) const { static_cast<void>(std::fclose(file)); }
};

/// An open file that is closed with its owner.
using OwnedFile = std::unique_ptr<std::FILE, CloseFile>;

/// Appends what stands between the stream's position and its end; nothing where its end-of-file indicator is
/// set. False where an error of the device ends the reading; what came before it is there. May throw
/// std::bad_alloc.
inline bool ReadToEnd(std::FILE* stream, std::string& bytes) {
    std::array<char, 65536> block; // not initialised: filled by the reading
    for (std::size_t count = 1; count > 0 && std::feof(stream) == 0;) {
        count = std::fread(block.data(), 1, block.size(), stream);
        bytes.append(block.data(), count);
    }
    return std::ferror(stream) == 0;
}

} // namespace platform
