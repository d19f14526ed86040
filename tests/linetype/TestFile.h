// Files that live as long as a test needs them.
#pragma once

#include "StyleConversion/platform/Files.h"

#include <cstdio>
#include <filesystem>
#include <random>
#include <string>
#include <string_view>

namespace linetypetest {

/// A new folder for temporary files, removed with everything in it.
class TestFolder {
public:
    TestFolder() {
        std::random_device random;
        do {
            path_ = std::filesystem::temp_directory_path() / ("linetypes-" + std::to_string(random()));
        } while (!std::filesystem::create_directories(path_));
    }
    ~TestFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    TestFolder(const TestFolder&) = delete;
    TestFolder& operator=(const TestFolder&) = delete;

    /// Writes a file, and the folders that its name has, and returns its path.
    std::wstring Write(const std::string& name, std::string_view bytes) const {
        const std::filesystem::path path = path_ / name;
        std::filesystem::create_directories(path.parent_path());
        std::FILE* const file = std::fopen(path.string().c_str(), "wb");
        std::fwrite(bytes.data(), 1, bytes.size(), file);
        std::fclose(file);
        return Path(name);
    }

    std::wstring Path(const std::string& name) const {
        return platform::PathFromBytes((path_ / name).string());
    }

    const std::filesystem::path& path() const { return path_; }

private:
    std::filesystem::path path_;
};

} // namespace linetypetest
