// SHX files and text styles through the host's services.
#include "ParserFixture.h"
#include "StyleConversion/linetype/CLineConverterDep.h"
#include "StyleConversion/linetype/LinLimits.h"

#include "drawing/database/Database.h"
#include "drawing/database/HostServices.h"

#include <filesystem>
#include <memory>

namespace linetypetest {
namespace {

using namespace LineConverter;

constexpr double kPi = 3.141592653589793;

// Finds what it is told to, and writes down what it was asked.
class FakeHost : public OxDbHostApplicationServices {
public:
    Oxsys::ErrorStatus findFile(wchar_t* path, int pathLength, const wchar_t* fileName,
                                OxDbDatabase* database, FindFileHint hint) override {
        asked += std::wstring(fileName) + L" in " + std::to_wstring(pathLength) +
                 (database == nullptr ? L" hint " : L" with a database, hint ") + std::to_wstring(hint) +
                 L";";
        found.copy(path, found.size());
        path[found.size()] = 0;
        return status;
    }

    std::wstring asked;
    std::wstring found;
    Oxsys::ErrorStatus status = Oxsys::eOk;
};

// The files of a folder that is the current directory meanwhile, each holding its own name.
class FileSearch : public testing::Test {
protected:
    FileSearch() : before_(std::filesystem::current_path()) { std::filesystem::current_path(folder.path()); }
    ~FileSearch() override { std::filesystem::current_path(before_); }

    void Make(const std::string& name) const { folder.Write(name, name); }

    // The name of the file that is found, or "none".
    std::string Find(const std::wstring& name, const std::wstring& searchDirectory = L"",
                     OxDbHostApplicationServices* services = nullptr,
                     const std::wstring& extension = L".shx") const {
        CLineConverterDep dependencies(services, searchDirectory.c_str());
        std::FILE* const stream = dependencies.GetFile(name.c_str(), extension.c_str());
        if (stream == nullptr) {
            return "none";
        }
        char content[2000] = {};
        const std::size_t length = std::fread(content, 1, sizeof content, stream);
        std::fclose(stream);
        return std::string(content, length);
    }

    TestFolder folder;

private:
    std::filesystem::path before_;
};

TEST_F(FileSearch, NameAsGivenGoesBeforeTheExtension) {
    Make("sub/plain.shx");
    EXPECT_EQ(Find(L"sub/plain"), "sub/plain.shx");
    Make("sub/plain");
    EXPECT_EQ(Find(L"sub/plain"), "sub/plain");
}

TEST_F(FileSearch, AbsoluteNamesAreTriedWithTheExtension) {
    Make("fonts/plain.shx");
    EXPECT_EQ(Find(folder.Path("fonts/plain")), "fonts/plain.shx");
    Make("fonts/plain");
    EXPECT_EQ(Find(folder.Path("fonts/plain")), "fonts/plain");
}

TEST_F(FileSearch, AnotherExtensionIsReplaced) {
    Make("plain.shx");
    EXPECT_EQ(Find(L"plain.shp"), "plain.shx");
    EXPECT_EQ(Find(L"other.shp"), "none");
}

TEST_F(FileSearch, SameExtensionInAnyCaseIsNotReplaced) {
    Make("plain.txt");
    EXPECT_EQ(Find(L"plain.SHX", L"", nullptr, L".shx"), "none");
    EXPECT_EQ(Find(L"plain.SHX", L"", nullptr, L".txt"), "plain.txt");
}

TEST_F(FileSearch, SecondOfTwoExtensionsMayBeLeftOut) {
    Make("a.b");
    EXPECT_EQ(Find(L"a.b.shx"), "a.b");
    EXPECT_EQ(Find(L"a.b.c"), "a.b");
    Make("a.b.shx");
    EXPECT_EQ(Find(L"a.b.c"), "a.b.shx");
    // One extension stays.
    Make("x");
    EXPECT_EQ(Find(L"x.shx"), "none");
}

TEST_F(FileSearch, SearchDirectoryIsForNamesWithoutADirectory) {
    Make("beside/plain.shx");
    EXPECT_EQ(Find(L"plain", L"beside/"), "beside/plain.shx");
    EXPECT_EQ(Find(L"plain.shp", L"beside/"), "beside/plain.shx");
    EXPECT_EQ(Find(L"sub/plain", L"beside/"), "none");
    Make("beside/sub/plain.shx");
    EXPECT_EQ(Find(L"sub/plain", L"beside/"), "none");
}

TEST_F(FileSearch, SearchDirectoryTriesTheSameThreeNames) {
    Make("beside/a.b");
    EXPECT_EQ(Find(L"a.b.c", L"beside/"), "beside/a.b");
    Make("beside/a.b.shx");
    EXPECT_EQ(Find(L"a.b.c", L"beside/"), "beside/a.b.shx");
    Make("beside/a.b.c");
    EXPECT_EQ(Find(L"a.b.c", L"beside/"), "beside/a.b.c");
    // All names without it go before.
    Make("a.b");
    EXPECT_EQ(Find(L"a.b.c", L"beside/"), "a.b");
}

TEST_F(FileSearch, SearchDirectoryMayBeMissing) {
    CLineConverterDep dependencies(nullptr, nullptr);
    EXPECT_EQ(dependencies.GetFile(L"plain", L".shx"), nullptr);
}

TEST_F(FileSearch, UpperCaseNamesFindFilesOfAnyCase) {
    Make("Marks.shx");
    EXPECT_EQ(Find(L"MARKS.SHX"), "Marks.shx");
    EXPECT_EQ(Find(L"MARKS"), "Marks.shx");
    Make("beside/other.Shx");
    EXPECT_EQ(Find(L"OTHER.SHX", L"beside/"), "beside/other.Shx");
}

TEST_F(FileSearch, DirectoriesInNamesMayEndInABackslash) {
    Make("sub/plain.shx");
    EXPECT_EQ(Find(L"sub\\PLAIN"), "sub/plain.shx");
}

TEST_F(FileSearch, HostIsAskedLastAndWithTheNameAsGiven) {
    FakeHost host;
    host.found = folder.Path("elsewhere/found.shx");
    Make("elsewhere/found.shx");
    EXPECT_EQ(Find(L"plain", L"beside/", &host), "elsewhere/found.shx");
    EXPECT_EQ(host.asked, L"plain in 1542 hint 2;");
    host.asked.clear();
    Make("beside/plain.shx");
    EXPECT_EQ(Find(L"plain", L"beside/", &host), "beside/plain.shx");
    EXPECT_EQ(host.asked, L"");
}

TEST_F(FileSearch, HostThatFailsOrFindsNothingOrAMissingFileIsNone) {
    FakeHost host;
    EXPECT_EQ(Find(L"plain", L"", &host), "none");
    host.found = folder.Path("missing.shx");
    EXPECT_EQ(Find(L"plain", L"", &host), "none");
    Make("found.shx");
    host.found = folder.Path("found.shx");
    host.status = Oxsys::eFileNotFound;
    EXPECT_EQ(Find(L"plain", L"", &host), "none");
    host.status = Oxsys::eOk;
    EXPECT_EQ(Find(L"plain", L"", &host), "found.shx");
}

TEST_F(FileSearch, PartsOf255UnitsAreLookedForAndLongerOnesAreNot) {
    EXPECT_EQ(kPathPartBufferSize, 256U);
    FakeHost host;
    const std::wstring longest(255, L'x');
    EXPECT_EQ(Find(longest, L"", &host), "none");
    EXPECT_EQ(host.asked, longest + L" in 1542 hint 2;");
    host.asked.clear();
    EXPECT_EQ(Find(longest + L"x", L"", &host), "none");
    EXPECT_EQ(Find(L"a." + longest, L"", &host), "none"); // the point counts
    EXPECT_EQ(Find(longest + L"/a", L"", &host), "none"); // and the separator
    std::wstring pairs;                                   // 256 units
    for (int i = 0; i < 128; ++i) {
        pairs += L"\U0001F682";
    }
    EXPECT_EQ(Find(pairs, L"", &host), "none");
    EXPECT_EQ(host.asked, L"");
    Find(L"a." + longest.substr(1), L"", &host);
    Find(longest.substr(1) + L"/a", L"", &host);
    EXPECT_NE(host.asked, L"");
}

TEST_F(FileSearch, PathsOf1541UnitsAreTriedAndLongerOnesAreNot) {
    EXPECT_EQ(kPathBufferSize, 1542U);
    Make("sub/plain.shx");
    // "sub////…": as long as wanted, and the same directory still. "plain.shx" has 9 units.
    const std::wstring directory = L"sub" + std::wstring(1541 - 9 - 3, L'/');
    EXPECT_EQ(Find(L"PLAIN", directory), "sub/plain.shx");
    EXPECT_EQ(Find(L"PLAIN", directory + L"/"), "none");
}

class StyleSearch : public testing::Test {
protected:
    StyleSearch() { host.setWorkingDatabase(&database); }
    ~StyleSearch() override { EXPECT_TRUE(database.IsEverythingClosed()); }

    static drawing::TextStyleData Everything() {
        drawing::TextStyleData data;
        data.fileName = L"font.shx";
        data.bigFontFileName = L"big.shx";
        data.typeface = L"Arial";
        data.bold = true;
        data.italic = true;
        data.isShapeFile = true;
        data.isVertical = true;
        data.obliquingAngle = kPi / 12;
        data.textSize = 2.5;
        data.xScale = 0.75;
        data.flagBits = 6;
        return data;
    }

    bool Read(const wchar_t* name) { return dependencies.GetFontInfoFromStyle(name, info); }

    drawing::Database database;
    drawing::HostServices host;
    CLineConverterDep dependencies{&host, nullptr};
    FontInfo info;
};

TEST_F(StyleSearch, EveryFieldOfTheStyleIsRead) {
    database.AddTextStyle(L"ROADS", Everything());
    ASSERT_TRUE(Read(L"ROADS"));
    EXPECT_EQ(info.fileName, L"font.shx");
    EXPECT_EQ(info.bigFontFileName, L"big.shx");
    EXPECT_EQ(info.typeface, L"Arial");
    EXPECT_TRUE(info.bold);
    EXPECT_TRUE(info.italic);
    EXPECT_TRUE(info.isShapeFile);
    EXPECT_TRUE(info.isVertical);
    EXPECT_EQ(info.textSize, 2.5);
    EXPECT_EQ(info.xScale, 0.75);
    EXPECT_EQ(info.obliquingAngle, kPi / 12 * 180.0 / kPi);
    EXPECT_EQ(info.flagBits, 6);
}

TEST_F(StyleSearch, NamesAreLookedUpWithoutRegardToCase) {
    database.AddTextStyle(L"Roads", Everything());
    EXPECT_TRUE(Read(L"ROADS"));
}

TEST_F(StyleSearch, SlantsBeyond86DegreesAreBackward) {
    drawing::TextStyleData data;
    data.obliquingAngle = 350.0 * kPi / 180.0;
    database.AddTextStyle(L"BACK", data);
    data.obliquingAngle = 85.5 * kPi / 180.0;
    database.AddTextStyle(L"BELOW", data);
    data.obliquingAngle = 86.5 * kPi / 180.0;
    database.AddTextStyle(L"ABOVE", data);
    ASSERT_TRUE(Read(L"BACK"));
    EXPECT_NEAR(info.obliquingAngle, -10.0, 1e-9);
    ASSERT_TRUE(Read(L"BELOW"));
    EXPECT_NEAR(info.obliquingAngle, 85.5, 1e-9);
    ASSERT_TRUE(Read(L"ABOVE"));
    EXPECT_NEAR(info.obliquingAngle, -273.5, 1e-9);
}

TEST_F(StyleSearch, UnknownStyleIsNone) {
    EXPECT_FALSE(Read(L"NONE"));
}

TEST_F(StyleSearch, ErasedStyleIsNone) {
    const drawing::TextStyleRecord* const record = database.AddTextStyle(L"ROADS", Everything());
    drawing::Database::Erase(record->objectId());
    EXPECT_FALSE(Read(L"ROADS"));
}

TEST_F(StyleSearch, WithoutServicesOrDrawingThereAreNoStyles) {
    CLineConverterDep nobody(nullptr, nullptr);
    EXPECT_FALSE(nobody.GetFontInfoFromStyle(L"STANDARD", info));
    host.setWorkingDatabase(nullptr);
    EXPECT_FALSE(Read(L"STANDARD"));
}

TEST_F(StyleSearch, EveryFailingCallLeavesTheInformationAloneAndEverythingClosed) {
    database.AddTextStyle(L"ROADS", Everything());
    using drawing::Operation;
    for (const Operation operation :
         {Operation::kGetTextStyleTable, Operation::kTextStyleTableGetAt,
          Operation::kTextStyleBigFontFileName, Operation::kTextStyleFont, Operation::kTextStyleFileName}) {
        database.Failures().Clear();
        database.Failures().Fail(operation, 1, Oxsys::eInvalidInput);
        info = FontInfo();
        info.typeface = L"untouched";
        EXPECT_FALSE(Read(L"ROADS")) << OperationName(operation);
        EXPECT_EQ(database.Failures().FailedCalls(), 1U) << OperationName(operation);
        EXPECT_EQ(info.typeface, L"untouched") << OperationName(operation);
        EXPECT_EQ(info.fileName, L"") << OperationName(operation);
        EXPECT_TRUE(database.IsEverythingClosed()) << OperationName(operation);
    }
}

TEST_F(StyleSearch, CallsThatSucceedAndGiveNothingAreSurvived) {
    database.AddTextStyle(L"ROADS", Everything());
    using drawing::Operation;
    for (const Operation operation : {Operation::kGetTextStyleTable, Operation::kTextStyleTableGetAt}) {
        database.Failures().Clear();
        database.Failures().Fail(operation, 1, Oxsys::eOk);
        EXPECT_FALSE(Read(L"ROADS")) << OperationName(operation);
    }
}

TEST_F(StyleSearch, FailureToCloseIsIgnored) {
    database.AddTextStyle(L"ROADS", Everything());
    database.Failures().Fail(drawing::Operation::kClose, 0, Oxsys::eInvalidInput);
    EXPECT_TRUE(Read(L"ROADS"));
}

} // namespace
} // namespace linetypetest
