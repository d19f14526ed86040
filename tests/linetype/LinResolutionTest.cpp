// Text styles and SHX files that a linetype file names, and every result code.
#include "ParserFixture.h"

#include "StyleConversion/linetype/LinParser.h"

#include <new>

namespace linetypetest {
namespace {

using namespace LineConverter;

class LinResolution : public ParserFixture {
protected:
    LinResult ParseWith(IGetFontInfo* fontInfo, IGetFile* getFile, std::string_view text) {
        LinParser other(fontInfo, getFile);
        return other.Parse(folder.Write("test.lin", text));
    }
};

constexpr const char* kWithText = "*X\nA,1,[\"A\",ST]\n";
constexpr const char* kWithShape = "*X\nA,1,[MARK,marks.shx]\n";

TEST_F(LinResolution, FileThatNamesNothingNeedsNobody) {
    EXPECT_EQ(ParseWith(nullptr, nullptr, "*X\nA,1\n"), kSuccess);
}

TEST_F(LinResolution, FileThatCannotBeOpenedIsTwo) {
    LinParser missing(&styles, &files);
    EXPECT_EQ(missing.Parse(folder.Path("none.lin")), 2);
    EXPECT_EQ(missing.errorLog().errors()[0].kind, LinErrorKind::kFileNotOpened);
}

TEST_F(LinResolution, DirectoryCannotBeOpened) {
    EXPECT_EQ(LinParser(&styles, &files).Parse(folder.Path("")), 2);
}

TEST_F(LinResolution, TextWithoutAnyoneWhoKnowsStylesIsFive) {
    EXPECT_EQ(ParseWith(nullptr, &files, kWithText), 5);
}

TEST_F(LinResolution, UnknownStyleIsFive) {
    EXPECT_EQ(Parse("*X\nA,1,[\"A\",other]\n"), 5);
    EXPECT_TRUE(parser.fontInfos().empty());
    EXPECT_EQ(parser.errors()[0].kind, LinErrorKind::kStyleUnknown);
    EXPECT_EQ(parser.errors()[0].subject, L"OTHER");
    EXPECT_EQ(parser.errors()[0].line, 2U);
    EXPECT_EQ(parser.errors()[0].linetype, "X");
    EXPECT_EQ(parser.errors()[0].element, 2U);
}

TEST_F(LinResolution, BaseServicesKnowNothing) {
    IGetFontInfo noStyles;
    IGetFile noFiles;
    EXPECT_EQ(ParseWith(&noStyles, &files, kWithText), 5);
    EXPECT_EQ(ParseWith(&styles, &noFiles, kWithShape), 6);
    FontInfo info;
    EXPECT_FALSE(noStyles.GetFontInfoFromStyle(L"STANDARD", info));
    EXPECT_EQ(noFiles.GetFile(L"TXT", L".shx"), nullptr);
}

TEST_F(LinResolution, ShapeWithoutAnyoneWhoFindsFilesIsSix) {
    EXPECT_EQ(ParseWith(&styles, nullptr, kWithShape), 6);
}

TEST_F(LinResolution, StyleWithAnShxFontNeedsAFileToo) {
    EXPECT_EQ(ParseWith(&styles, nullptr, "*X\nA,[\"A\",STANDARD]\n"), 6);
    EXPECT_EQ(ParseWith(&styles, nullptr, kWithText), kSuccess);
}

TEST_F(LinResolution, ShapeFileThatIsNotFoundIsSix) {
    EXPECT_EQ(Parse("\n*X\nA,1,\n[M,none]\n"), 6);
    EXPECT_EQ(parser.errors()[0].kind, LinErrorKind::kShapeFileNotFound);
    EXPECT_EQ(parser.errors()[0].subject, L"NONE");
    EXPECT_EQ(parser.errors()[0].line, 4U);
    EXPECT_TRUE(parser.shapeFiles().empty());
}

TEST_F(LinResolution, DamagedShapeFileIsSix) {
    files.files[L"MARKS.SHX"].pop_back();
    EXPECT_EQ(Parse(kWithShape), 6);
    EXPECT_EQ(parser.errors()[0].kind, LinErrorKind::kShapeFileNotLoaded);
    EXPECT_EQ(parser.errors()[0].shxResult, ShxUtility::kMalformed);
    EXPECT_TRUE(parser.shapeFiles().empty());
}

TEST_F(LinResolution, ShapesAreNotTakenFromAUnifont) {
    files.files[L"MARKS.SHX"] = UnifontFile({{65, "MARK", UnitStroke()}});
    EXPECT_EQ(Parse(kWithShape), 6);
    EXPECT_EQ(parser.errors()[0].shxResult, ShxUtility::kKindNotAccepted);
}

TEST_F(LinResolution, TextsAreTakenFromAUnifont) {
    files.files[L"TXT.SHX"] = UnifontFile({FontInformation(8, 2, 0), {65, "A", UnitStroke()}});
    EXPECT_EQ(Parse("*X\nA,[\"A\",STANDARD]\n"), kSuccess);
    EXPECT_EQ(parser.shapeFiles().at(L"TXT.SHX").kind, ShxUtility::kUnifont);
}

TEST_F(LinResolution, FileThatIsNamedForShapesAndTextsMayBeEither) {
    files.files[L"TXT.SHX"] = UnifontFile({FontInformation(8, 2, 0), {65, "A", UnitStroke()}});
    EXPECT_EQ(Parse("*X\nA,[\"A\",STANDARD],[M,txt.shx]\n"), kSuccess);
    EXPECT_EQ(files.asked, (std::vector<std::wstring>{L"TXT.SHX|.shx"}));
}

TEST_F(LinResolution, StylesAreAskedForOnceEachInTheOrderOfTheirNames) {
    styles.AddTrueType(L"ZZ", L"T");
    styles.AddTrueType(L"AA", L"T");
    EXPECT_EQ(Parse("*X\nA,[\"1\",zz],[\"2\",st],[\"3\",ZZ]\n*Y\nA,[\"4\",aa]\n"), kSuccess);
    EXPECT_EQ(styles.asked, (std::vector<std::wstring>{L"AA", L"ST", L"ZZ"}));
}

TEST_F(LinResolution, NamesAreInTheOrderOfTheirUtf16Units) {
    // U+FF21 is one unit; U+1F682 begins with D83D and goes before it.
    styles.AddTrueType(L"\uFF21", L"T");
    styles.AddTrueType(L"\U0001F682", L"T");
    EXPECT_EQ(Parse("*X\nA,[\"1\",\xEF\xBC\xA1],[\"2\",\xF0\x9F\x9A\x82]\n"), kSuccess);
    EXPECT_EQ(styles.asked, (std::vector<std::wstring>{L"\U0001F682", L"\uFF21"}));
}

TEST_F(LinResolution, FilesAreLoadedOnceEachInTheOrderOfTheirNames) {
    EXPECT_EQ(Parse("*X\nA,[\"A\",STANDARD],[MARK,marks.shx],[TICK,Marks.shx]\n"), kSuccess);
    EXPECT_EQ(files.asked, (std::vector<std::wstring>{L"MARKS.SHX|.shx", L"TXT.SHX|.shx"}));
    EXPECT_EQ(parser.shapeFiles().size(), 2U);
}

TEST_F(LinResolution, FirstErrorInTheOrderOfNamesEndsTheParse) {
    EXPECT_EQ(Parse("*X\nA,[\"A\",zz],[\"A\",yy],[M,none]\n"), 5);
    EXPECT_EQ(parser.errors().size(), 1U);
    EXPECT_EQ(parser.errors()[0].subject, L"YY");
    EXPECT_TRUE(files.asked.empty());
}

TEST_F(LinResolution, FontFileOfAStyleIsPutInUpperCase) {
    EXPECT_EQ(Parse("*X\nA,[\"A\",STANDARD]\n"), kSuccess);
    EXPECT_EQ(parser.fontInfos().at(L"STANDARD").fileName, L"TXT.SHX");
    styles.AddTrueType(L"ST", L"Arial").fileName = L"arial.ttf";
    EXPECT_EQ(Parse("*X\nA,[\"A\",ST]\n"), kSuccess);
    EXPECT_EQ(parser.fontInfos().at(L"ST").fileName, L"arial.ttf");
}

// Throws as an allocation that fails does.
class ThrowingStyles : public IGetFontInfo {
public:
    bool GetFontInfoFromStyle(const wchar_t* /*styleName*/, FontInfo& /*info*/) override {
        throw std::bad_alloc();
    }
};

class ThrowingFiles : public IGetFile {
public:
    std::FILE* GetFile(const wchar_t* /*name*/, const wchar_t* /*extension*/) override { throw 7; }
};

TEST_F(LinResolution, ExceptionInsideTheParseIsOne) {
    ThrowingStyles throwingStyles;
    ThrowingFiles throwingFiles;
    EXPECT_EQ(ParseWith(&throwingStyles, &files, kWithText), 1);
    EXPECT_EQ(ParseWith(&styles, &throwingFiles, kWithShape), 1);
}

TEST_F(LinResolution, UnresolvedFileCanBeReadForItsNames) {
    EXPECT_EQ(parser.Read("*X\nA,[\"A\",none],[M,none]\n*Y\nA,1\n"), kSuccess);
    EXPECT_EQ(parser.linetypes().size(), 2U);
    EXPECT_TRUE(styles.asked.empty());
}

// A style without a name for the typeface or the font leaves it to the host's file search to find "".
TEST_F(LinResolution, StyleWithoutAnyFontAsksForAFileWithoutAName) {
    styles.AddShx(L"BARE", L"");
    EXPECT_EQ(Parse("*X\nA,[\"A\",bare]\n"), 6);
    EXPECT_EQ(files.asked, (std::vector<std::wstring>{L"|.shx"}));
}

} // namespace
} // namespace linetypetest
