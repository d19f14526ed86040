// Shape files in a folder of their own, and host services that find them and count.
#pragma once

#include "StyleConversion/platform/Files.h"
#include "drawing/database/HostServices.h"

#include <cstdio>
#include <filesystem>
#include <random>
#include <string>
#ifdef _WIN32
#include <io.h>
#endif

namespace blocktest {

/// A folder that is removed with everything in it. While it lives, it is where the process looks for files.
class ShapeFolder {
public:
    ShapeFolder() : path_(NewFolder()), services_({platform::PathFromBytes(path_.string())}) {
        oxdbSetHostApplicationServices(&services_);
    }
    ~ShapeFolder() {
        oxdbSetHostApplicationServices(nullptr);
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    ShapeFolder(const ShapeFolder&) = delete;
    ShapeFolder& operator=(const ShapeFolder&) = delete;

    void Write(const std::string& name, const std::string& bytes) const {
        std::FILE* const file = std::fopen((path_ / name).string().c_str(), "wb");
        std::fwrite(bytes.data(), 1, bytes.size(), file);
        std::fclose(file);
    }

    drawing::HostServices& Services() { return services_; }
    std::uint64_t Searches() { return services_.Failures().Calls(drawing::Operation::kFindFile); }

private:
    static std::filesystem::path NewFolder() {
        std::random_device random;
        std::filesystem::path path;
        do {
            path = std::filesystem::temp_directory_path() / ("block-shapes-" + std::to_string(random()));
        } while (!std::filesystem::create_directories(path));
        return path;
    }

    std::filesystem::path path_;
    drawing::HostServices services_;
};

/// How many files this process has open; -1 where the system does not tell.
inline int OpenFileCount() {
    int count = 0;
#ifdef _WIN32
    // Those of the C runtime. Under wine there is /proc, too, but it tells of wine's own files as well.
    constexpr int kMostFiles = 2048;
    for (int file = 0; file < kMostFiles; ++file) {
        count += _get_osfhandle(file) != -1 ? 1 : 0;
    }
    return count;
#else
    std::error_code error;
    for (std::filesystem::directory_iterator entries("/proc/self/fd", error);
         !error && entries != std::filesystem::directory_iterator(); entries.increment(error)) {
        ++count;
    }
    return error ? -1 : count;
#endif
}

} // namespace blocktest
