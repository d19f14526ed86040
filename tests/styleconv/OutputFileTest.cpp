// The file of a result when writing fails at a byte, for each byte.
#include "styleconv/files/OutputFile.h"
#include "tests/support/ToolRun.h"

#include <csignal>
#include <gtest/gtest.h>
#include <sys/resource.h>

namespace {

using styleconv::OutputFile;
using support::ScratchFolder;

// No file of this process can grow beyond `bytes` while it lives.
class FileSizeLimit {
public:
    explicit FileSizeLimit(std::size_t bytes) {
        // A write past the limit is then an error of its own and not the end of the process.
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &before_);
        rlimit limited = before_;
        limited.rlim_cur = bytes;
        setrlimit(RLIMIT_FSIZE, &limited);
    }
    ~FileSizeLimit() { setrlimit(RLIMIT_FSIZE, &before_); }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

private:
    rlimit before_{};
};

// More than a stream keeps to itself before it writes.
constexpr std::size_t kPiece = 7;
constexpr std::size_t kSize = kPiece * 800;

bool WriteAll(const std::string& path) {
    OutputFile file(path);
    for (std::size_t at = 0; at < kSize; at += kPiece) {
        if (!file.Write("piece.\n")) {
            return false;
        }
    }
    return file.Commit();
}

TEST(OutputFile, AWriteThatFailsAtAnyByteLeavesTheOldFileAndNoOther) {
    const ScratchFolder folder;
    folder.Write("out", "old");
    for (std::size_t limit = 0; limit < kSize; ++limit) {
        testing::internal::CaptureStderr();
        bool written = false;
        {
            const FileSizeLimit limited(limit);
            written = WriteAll(folder / "out");
        }
        testing::internal::GetCapturedStderr();
        ASSERT_FALSE(written) << limit;
        ASSERT_EQ(folder.Read("out"), "old") << limit;
        ASSERT_EQ(folder.Names(), std::vector<std::string>{"out"}) << limit;
    }
    const FileSizeLimit enough(kSize);
    EXPECT_TRUE(WriteAll(folder / "out"));
    EXPECT_EQ(folder.Read("out").size(), kSize);
}

} // namespace
