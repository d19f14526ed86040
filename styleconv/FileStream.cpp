#include "styleconv/FileStream.h"

#include <array>
#include <cstddef>

namespace styleconv {

bool ReadAll(std::FILE* file, std::string& bytes) {
    std::array<char, 1 << 16> block{};
    std::size_t count = 0;
    while ((count = std::fread(block.data(), 1, block.size(), file)) > 0) {
        bytes.append(block.data(), count);
    }
    return std::ferror(file) == 0;
}

} // namespace styleconv
