// Text styles, shape files and shapes that are not there, where an error loses only the linetypes that need
// them.
#include "TolerantFixture.h"

#include "StyleConversion/linetype/CLinVisitor.h"
#include "tests/support/ReadSymbol.h"

#include <memory>

namespace linetypetest {
namespace {

using LineConverter::LinErrorKind;

class TolerantResolution : public TolerantFixture {
protected:
    /// The names of the symbols that the text gives, each followed by ";".
    std::string Symbols(std::string_view text) {
        EXPECT_EQ(Parse(text), LineConverter::kSuccess);
        LineConverter::CLinVisitor visitor(1.0, &parser.errorLog(), LineConverter::kTolerantLinPolicy);
        EXPECT_EQ(parser.Accept(visitor), LineConverter::kSuccess);
        const std::unique_ptr<std::vector<TylModel::SymbolDefinition*>> symbols(visitor.TakeResults());
        std::wstring names;
        for (TylModel::SymbolDefinition* const symbol : *symbols) {
            names += Read(*symbol).name + L";";
            delete symbol;
        }
        return platform::WideToAnsi(names);
    }
};

TEST_F(TolerantResolution, UnknownStyleIsReadAsStandard) {
    EXPECT_EQ(Walk("*X\nA,[\"A\",none],1\n*Y\nA,[\"B\",None]\n"),
              StrictWalk("*X\nA,[\"A\",standard],1\n*Y\nA,[\"B\",standard]\n"));
    EXPECT_EQ(ErrorKinds(), Kinds{LinErrorKind::kStyleUnknown}) << "told once for the style";
    EXPECT_TRUE(AllTolerated());
    EXPECT_EQ(parser.errors()[0].subject, L"NONE");
    EXPECT_EQ(parser.errors()[0].line, 2U);
}

TEST_F(TolerantResolution, UnknownStyleWithoutAStandardLosesItsLinetypes) {
    styles.styles.erase(L"STANDARD");
    EXPECT_EQ(Symbols("*X\nA,[\"A\",none],[\"B\",none]\n*Y\nA,1\n*Z\nA,[\"B\",none]\n"), "Y;");
    EXPECT_EQ(ErrorKinds(), (Kinds{LinErrorKind::kStyleUnknown, LinErrorKind::kStyleUnknown}));
    EXPECT_EQ(parser.errors()[0].linetype, "X");
    EXPECT_EQ(parser.errors()[1].linetype, "Z");
    EXPECT_EQ(parser.errors()[1].line, 6U);
}

TEST_F(TolerantResolution, MissingShapeFileLosesTheLinetypesThatNeedIt) {
    EXPECT_EQ(Symbols("*X\nA,[MARK,none.shx]\n*Y\nA,[MARK,marks.shx]\n*Z\nA,1,\n[A,none.shx],[B,nor.shx]\n"),
              "Y;");
    EXPECT_EQ(ErrorKinds(), (Kinds{LinErrorKind::kShapeFileNotFound, LinErrorKind::kShapeFileNotFound,
                                   LinErrorKind::kShapeFileNotFound}));
    EXPECT_EQ(parser.errors()[0].subject, L"NONE.SHX");
    EXPECT_EQ(parser.errors()[1].line, 7U);
    EXPECT_EQ(parser.errors()[1].element, 2U);
    EXPECT_EQ(parser.errors()[2].subject, L"NOR.SHX");
}

TEST_F(TolerantResolution, MissingFontLosesTheLinetypesOfItsStyles) {
    styles.AddShx(L"ROADS", L"roads.shx");
    EXPECT_EQ(Symbols("*X\nA,[\"A\",roads]\n*Y\nA,[\"A\",standard]\n"), "Y;");
    EXPECT_EQ(parser.errors()[0].kind, LinErrorKind::kShapeFileNotFound);
    EXPECT_EQ(parser.errors()[0].styleName, L"ROADS");
}

TEST_F(TolerantResolution, DamagedShapeFileIsLoggedWithItsError) {
    files.files[L"BAD.SHX"] = "no shapes";
    EXPECT_EQ(Symbols("*X\nA,[MARK,bad.shx]\n*Y\nA,1\n"), "Y;");
    EXPECT_EQ(ErrorKinds(), Kinds{LinErrorKind::kShapeFileNotLoaded});
    EXPECT_EQ(parser.errors()[0].shapeFileReport.offset, 9U);
}

TEST_F(TolerantResolution, FontIsNoShapeLibrary) {
    EXPECT_EQ(Symbols("*X\nA,[A,txt.shx]\n*Y\nA,[\"A\",STANDARD]\n"), "Y;");
    EXPECT_EQ(ErrorKinds(), Kinds{LinErrorKind::kNotAShapeFile});
}

TEST_F(TolerantResolution, ShapeThatIsNotThereLosesItsLinetype) {
    EXPECT_EQ(Symbols("*X\nA,1,[NONE,marks.shx],[NOR,marks.shx]\n*Y\nA,[MARK,marks.shx]\n"), "Y;");
    EXPECT_EQ(ErrorKinds(), (Kinds{LinErrorKind::kShapeNotInFile, LinErrorKind::kShapeNotInFile}));
    EXPECT_EQ(parser.errors()[0].line, 2U);
}

TEST_F(TolerantResolution, NobodyToAskLosesOnlyWhatNeedsAnAnswer) {
    TestParser alone(nullptr, nullptr, LineConverter::kTolerantLinPolicy);
    EXPECT_EQ(alone.Parse("*X\nA,[\"A\",ST]\n*Y\nA,1\n*Z\nA,[MARK,marks.shx]\n"), LineConverter::kSuccess);
    ASSERT_EQ(alone.linetypes().size(), 1U);
    EXPECT_EQ(alone.linetypes()[0].name, "Y");
    EXPECT_EQ(alone.errors().size(), 2U);
}

} // namespace
} // namespace linetypetest
