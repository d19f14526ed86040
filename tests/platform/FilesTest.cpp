// Files are opened by wide name; names from other systems are found whatever their case.
#include "StyleConversion/platform/Files.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <string>

namespace {

using namespace platform;
namespace fs = std::filesystem;

class Files : public testing::Test {
protected:
    Files() {
        folder_ = fs::temp_directory_path() / (std::string("files_test_") +
                                               testing::UnitTest::GetInstance()->current_test_info()->name());
        fs::remove_all(folder_);
        fs::create_directories(folder_);
    }
    ~Files() override { fs::remove_all(folder_); }

    void Write(const fs::path& name, const std::string& text) {
        std::ofstream(folder_ / name, std::ios::binary) << text;
    }

    // The text of a stream, which is closed, or "(null)".
    static std::string TextOf(std::FILE* file) {
        if (file == nullptr) {
            return "(null)";
        }
        char buffer[64];
        const std::size_t size = std::fread(buffer, 1, sizeof buffer, file);
        std::fclose(file);
        return {buffer, size};
    }

    static std::wstring Wide(const fs::path& path) {
        const std::u8string bytes = path.u8string();
        return PathFromBytes({reinterpret_cast<const char*>(bytes.data()), bytes.size()});
    }
    std::string Open(const std::wstring& name) {
        return TextOf(OpenForReading((Wide(folder_ / "") + name).c_str()));
    }
    std::string OpenIgnoringCase(const std::wstring& name) {
        return TextOf(OpenForReadingIgnoringCase((Wide(folder_ / "") + name).c_str()));
    }

    fs::path folder_;
};

TEST_F(Files, AreOpenedByWideName) {
    Write(fs::path(u8"b\u00e4ume \u6797.shx"), "trees");
    EXPECT_EQ(Open(L"b\u00e4ume \u6797.shx"), "trees");
    EXPECT_EQ(Open(L"other.shx"), "(null)");
}

TEST_F(Files, AreReadAsTheyAre) {
    Write("ends", std::string("a\r\nb\x1a\0c", 7));
    EXPECT_EQ(Open(L"ends"), std::string("a\r\nb\x1a\0c", 7));
}

TEST_F(Files, ADirectoryIsNotOpened) {
    fs::create_directory(folder_ / "sub");
    EXPECT_EQ(Open(L"sub"), "(null)");
    EXPECT_EQ(OpenIgnoringCase(L"SUB"), "(null)");
}

TEST_F(Files, AreFoundWithoutRegardToCaseWhenTheExactNameIsNotThere) {
    Write("Marks.shx", "found");
    EXPECT_EQ(OpenIgnoringCase(L"MARKS.SHX"), "found");
    EXPECT_EQ(OpenIgnoringCase(L"MARK.SHX"), "(null)");
    EXPECT_EQ(OpenIgnoringCase(L"nowhere/MARKS.SHX"), "(null)");
}

TEST_F(Files, LongPathsAreOpened) {
    fs::path deep = folder_;
    for (int i = 0; i < 6; ++i) {
        deep /= std::string(60, static_cast<char>('a' + i));
    }
    ASSERT_GT(deep.native().size(), 360U);
    const fs::path openable = fs::path(OpenablePath(Wide(deep / "x.pat")));
    fs::create_directories(openable.parent_path());
    std::ofstream(openable) << "deep";
    EXPECT_EQ(TextOf(OpenForReading(Wide(deep / "x.pat").c_str())), "deep");
    EXPECT_EQ(OpenIgnoringCase(Wide(deep.lexically_relative(folder_) / "X.PAT")), "deep");
    // From below, each by a path that can be opened.
    for (fs::path path = deep / "x.pat"; path != folder_; path = path.parent_path()) {
        EXPECT_TRUE(fs::remove(fs::path(OpenablePath(Wide(path)))));
    }
}

#if !defined(_WIN32)
TEST_F(Files, TheExactNameIsTakenBeforeOneInAnotherCase) {
    Write("MARKS.shx", "other");
    Write("MARKS.SHX", "exact");
    EXPECT_EQ(OpenIgnoringCase(L"MARKS.SHX"), "exact");
}

TEST_F(Files, OfSeveralNamesInOtherCasesTheFirstInByteOrderIsTaken) {
    Write("marks.shx", "lower");
    Write("Marks.shx", "first");
    EXPECT_EQ(OpenIgnoringCase(L"MARKS.SHX"), "first");
}

TEST_F(Files, ADeviceIsNotOpened) {
    EXPECT_EQ(TextOf(OpenForReading(L"/dev/null")), "(null)");
}

TEST_F(Files, NamesOfAnyBytesCanBeOpened) {
    const std::string name = "b\xe4ume";
    Write(name, "bytes");
    EXPECT_EQ(Open(PathFromBytes(name)), "bytes");
    EXPECT_EQ(PathToBytes(PathFromBytes(name)), name);
}
#endif

struct Split {
    const wchar_t* path;
    const wchar_t* drive;
    const wchar_t* directory;
    const wchar_t* fileName;
    const wchar_t* extension;
};

TEST(SplitPath, CutsBehindTheLastSeparatorAndBeforeTheLastPoint) {
    const Split rows[] = {
        {L"/a/b/c.lin", L"", L"/a/b/", L"c", L".lin"},
        {L"c.lin", L"", L"", L"c", L".lin"},
        {L"a/b", L"", L"a/", L"b", L""},
        {L"a.b/c", L"", L"a.b/", L"c", L""},
        {L"x.y.z", L"", L"", L"x.y", L".z"},
        {L"a\\b.shx", L"", L"a\\", L"b", L".shx"},
        {L"dir/", L"", L"dir/", L"", L""},
        {L".hidden", L"", L"", L"", L".hidden"},
        {L"", L"", L"", L"", L""},
#if defined(_WIN32)
        {L"C:\\data\\c.lin", L"C:", L"\\data\\", L"c", L".lin"},
        {L"d:c.lin", L"d:", L"", L"c", L".lin"},
        {L"\\\\server\\share\\c.lin", L"", L"\\\\server\\share\\", L"c", L".lin"},
#else
        {L"C:\\data\\c.lin", L"", L"C:\\data\\", L"c", L".lin"},
        {L"d:c.lin", L"", L"", L"d:c", L".lin"},
#endif
    };
    for (const Split& row : rows) {
        const PathParts parts = platform::SplitPath(row.path);
        EXPECT_EQ(parts.drive, row.drive) << row.path;
        EXPECT_EQ(parts.directory, row.directory) << row.path;
        EXPECT_EQ(parts.fileName, row.fileName) << row.path;
        EXPECT_EQ(parts.extension, row.extension) << row.path;
    }
}

TEST(SplitPath, PartsOfAnyLengthAreWhole) {
    const std::wstring directory(5000, L'd');
    const std::wstring name(3000, L'n');
    const PathParts parts = platform::SplitPath(directory + L"/" + name + L"." + name);
    EXPECT_EQ(parts.directory, directory + L"/");
    EXPECT_EQ(parts.fileName, name);
    EXPECT_EQ(parts.extension, L"." + name);
}

TEST(CompareIgnoringCase, LettersAToZCountAsOne) {
    EXPECT_EQ(CompareIgnoringCase(L".SHX", L".shx"), 0);
    EXPECT_LT(CompareIgnoringCase(L"a", L"B"), 0);
    EXPECT_GT(CompareIgnoringCase(L"ab", L"A"), 0);
    EXPECT_NE(CompareIgnoringCase(L"[", L"{"), 0);
}

} // namespace
