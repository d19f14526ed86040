// The file search of the model's host services.
#include "drawing/database/HostServices.h"
#include "drawing/database/Database.h"

#include <array>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <string>

namespace {

namespace fs = std::filesystem;

class HostServices : public testing::Test {
protected:
    HostServices() {
        fs::remove_all(root);
        for (const char* const folder : {"one", "two", "two/sub"}) {
            fs::create_directories(root / folder);
        }
    }
    ~HostServices() override { fs::remove_all(root); }

    void Touch(const std::string& name) const { std::ofstream(root / name).put('x'); }

    /// What the services find, from the test's folder on; the status when they find nothing.
    std::string Find(const std::wstring& name, int length = 1024) {
        std::vector<wchar_t> path(static_cast<std::size_t>(length), L'?');
        drawing::HostServices services({(root / "one").wstring(), (root / "two").wstring() + L"/"});
        const Oxsys::ErrorStatus status = services.findFile(path.data(), length, name.c_str(), nullptr,
                                                            OxDbHostApplicationServices::kCompiledShapeFile);
        if (status != Oxsys::eOk) {
            EXPECT_EQ(path[0], L'\0');
            return "status " + std::to_string(status);
        }
        return fs::relative(fs::path(path.data()), root).generic_string();
    }

    const std::string notFound = "status " + std::to_string(Oxsys::eFileNotFound);
    const fs::path root =
        fs::temp_directory_path() / (std::string("styleconversion host services ") +
                                     testing::UnitTest::GetInstance()->current_test_info()->name());
};

TEST_F(HostServices, DirectoriesAreSearchedInOrder) {
    Touch("two/a.shx");
    EXPECT_EQ(Find(L"a.shx"), "two/a.shx");
    Touch("one/a.shx");
    EXPECT_EQ(Find(L"a.shx"), "one/a.shx");
}

TEST_F(HostServices, TheNameAsItStandsComesBeforeTheOneWithTheExtension) {
    Touch("one/a.shx");
    EXPECT_EQ(Find(L"a"), "one/a.shx");
    Touch("one/a");
    EXPECT_EQ(Find(L"a"), "one/a");
    Touch("one/b.shx");
    Touch("two/b");
    EXPECT_EQ(Find(L"b"), "one/b.shx"); // both names in one directory before the next
    Touch("one/c.shx.shx");
    EXPECT_EQ(Find(L"c.shx"), "one/c.shx.shx");
}

#if defined(_WIN32)
TEST_F(HostServices, ANameInOtherCaseOpensTheFileAsItIs) {
    Touch("one/Marks.Shx");
    Touch("two/sub/a.shx");
    EXPECT_EQ(Find(L"MARKS.SHX"), "one/MARKS.SHX");
    EXPECT_EQ(Find(L"MARKS"), "one/MARKS.shx");
    EXPECT_EQ(Find(L"sub\\A.SHX"), "two/sub/A.SHX");
}
#else
TEST_F(HostServices, ANameInOtherCaseIsFoundAsTheFileSystemSpellsIt) {
    Touch("one/Marks.Shx");
    EXPECT_EQ(Find(L"MARKS.SHX"), "one/Marks.Shx");
    EXPECT_EQ(Find(L"MARKS"), "one/Marks.Shx");
    Touch("one/MARKS.shx");
    EXPECT_EQ(Find(L"marks.SHX"), "one/MARKS.shx"); // the first in byte order
    EXPECT_EQ(Find(L"Marks.Shx"), "one/Marks.Shx"); // unless one is spelled just so
    Touch("two/sub/a.shx");
    EXPECT_EQ(Find(L"sub\\A.SHX"), "two/sub/a.shx");
}
#endif

TEST_F(HostServices, NamesMayHoldFolders) {
    Touch("two/sub/a.shx");
    EXPECT_EQ(Find(L"sub/a"), "two/sub/a.shx");
    EXPECT_EQ(Find(L"sub\\a.shx"), "two/sub/a.shx");
}

TEST_F(HostServices, OnlyRegularFilesAreFound) {
    EXPECT_EQ(Find(L"sub"), notFound);
    EXPECT_EQ(Find(L"SUB"), notFound);
    EXPECT_EQ(Find(L"nothing"), notFound);
    EXPECT_EQ(Find(L""), "status " + std::to_string(Oxsys::eInvalidInput));
}

TEST_F(HostServices, APathThatDoesNotFitIsAFailure) {
    Touch("one/a.shx");
    const int length = static_cast<int>((root / "one").wstring().size() + std::wstring(L"/a.shx").size());
    EXPECT_EQ(Find(L"a.shx", length + 1), "one/a.shx");
    EXPECT_EQ(Find(L"a.shx", length), "status " + std::to_string(Oxsys::eBufferTooSmall));
    EXPECT_EQ(Find(L"a.shx", 1), "status " + std::to_string(Oxsys::eBufferTooSmall));
    drawing::HostServices services;
    EXPECT_EQ(services.findFile(nullptr, 10, L"a", nullptr, OxDbHostApplicationServices::kDefault),
              Oxsys::eInvalidInput);
}

TEST(ServicesOfTheProcess, AreSetAndTakenAway) {
    EXPECT_EQ(oxdbHostApplicationServices(), nullptr);
    drawing::HostServices services;
    drawing::Database database;
    oxdbSetHostApplicationServices(&services);
    EXPECT_EQ(oxdbHostApplicationServices(), &services);
    EXPECT_EQ(services.workingDatabase(), nullptr);
    services.setWorkingDatabase(&database);
    EXPECT_EQ(oxdbHostApplicationServices()->workingDatabase(), &database);
    oxdbSetHostApplicationServices(nullptr);
    EXPECT_EQ(oxdbHostApplicationServices(), nullptr);
}

} // namespace
