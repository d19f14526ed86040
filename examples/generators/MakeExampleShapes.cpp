// Writes the example shape files: make_example_shapes HERSHEY_FILE FOLDER
#include "examples/generators/HersheyFile.h"
#include "examples/generators/MarkLibrary.h"
#include "examples/generators/StrokeFont.h"

#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace {

namespace fs = std::filesystem;

bool Write(const fs::path& path, const std::string& bytes) {
    std::ofstream file(path, std::ios::binary);
    file << bytes;
    file.close();
    if (!file) {
        std::fprintf(stderr, "%s: cannot be written\n", path.string().c_str());
        return false;
    }
    return true;
}

int Make(const fs::path& hersheyFile, const fs::path& folder) {
    std::ifstream file(hersheyFile, std::ios::binary);
    const std::string text{std::istreambuf_iterator<char>(file), {}};
    const auto glyphs = example_shapes::ReadHershey(text);
    if (!file || !glyphs || glyphs->size() < 95) {
        std::fprintf(stderr, "%s: is not a file of at least 95 Hershey glyphs\n",
                     hersheyFile.string().c_str());
        return 1;
    }
    const bool written = Write(folder / "marks.shx", example_shapes::MarkLibrary().Text()) &&
                         Write(folder / "single-stroke.shx", example_shapes::StrokeFont(*glyphs).Text());
    return written ? 0 : 1;
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::fputs("usage: make_example_shapes HERSHEY_FILE FOLDER\n", stderr);
        return 2;
    }
    try {
        return Make(argv[1], argv[2]);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "make_example_shapes: %s\n", error.what());
        return 1;
    }
}
