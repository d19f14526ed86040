// Runs a fuzz target over files, so that what fuzzing has kept is a test of every run.
#include "fuzz/Fuzzing.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

std::vector<fs::path> FilesOf(const fs::path& path) {
    if (!fs::is_directory(path)) {
        return {path};
    }
    std::vector<fs::path> files;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(path)) {
        if (entry.is_regular_file()) {
            files.push_back(entry.path());
        }
    }
    std::sort(files.begin(), files.end());
    return files;
}

void Replay(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(file), {}};
    // Said before, for the input that ends the program. A block of its own: sanitizers see its very end.
    std::printf("%s\n", path.string().c_str());
    std::fflush(stdout);
    const std::vector<std::uint8_t> input(bytes.begin(), bytes.end());
    LLVMFuzzerTestOneInput(input.data(), input.size());
}

} // namespace

// Arguments: files, and folders whose files are meant. One that is not there, or no input at all, is an
// error.
int main(int argc, char** argv) {
    std::size_t replayed = 0;
    for (int i = 1; i < argc; ++i) {
        if (!fs::exists(argv[i])) {
            std::printf("%s: there is no such file\n", argv[i]);
            return 1;
        }
        for (const fs::path& path : FilesOf(argv[i])) {
            Replay(path);
            ++replayed;
        }
    }
    std::printf("%zu inputs\n", replayed);
    return replayed == 0 ? 1 : 0;
}
