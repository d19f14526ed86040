// styleconv check on folders and several files, and how strictly it judges.
#include "tests/support/ShapeFileBuilder.h"
#include "tests/support/ToolRun.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace {

using support::RunTool;
using support::ScratchFolder;
using support::ToolResult;
using test_support::ShapeFileBuilder;

class CheckFolders : public testing::Test {
protected:
    std::string Write(const std::string& name, const std::string& text) {
        std::filesystem::create_directories(std::filesystem::path(folder / name).parent_path());
        return folder.Write(name, text);
    }

    ScratchFolder folder;
};

TEST_F(CheckFolders, AllFilesOfKnownKindsInAFolderAreCheckedInSortedOrder) {
    Write("b/walls.pat", "*X\n");
    Write("a/lines.lin", "*X\nA,x\n");
    Write("a/readme.txt", "*X\nA,x\n");
    const ToolResult result = RunTool({"check", folder / ""});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.output,
              folder / "a/lines.lin" +
                  ":2:3: error: expected a dash length or \"[\": A,x (linetype X) [invalid-dash]\n" +
                  folder / "b/walls.pat" +
                  ":1: error: the pattern has no lines (pattern X) [empty-pattern]\n"
                  "2 errors, 0 warnings in 2 files\n");
}

TEST_F(CheckFolders, FolderWithoutFilesOfAKnownKindIsTold) {
    Write("a/readme.txt", "");
    const ToolResult result = RunTool({"check", folder / "a"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.output, "0 errors, 0 warnings in 0 files\n");
    EXPECT_EQ(result.errors,
              "styleconv: no file of a kind that is converted: .lin, .pat, .shx, .json, .dxf\n");
}

TEST_F(CheckFolders, FileThatIsGivenAgainIsJudgedOnce) {
    const std::string file = Write("a/walls.pat", "*X\n");
    const std::string error = ":1: error: the pattern has no lines (pattern X) [empty-pattern]\n";
    EXPECT_EQ(RunTool({"check", folder / "a", file, folder / "a/../a/walls.pat"}).output,
              file + error + "1 error, 0 warnings in 1 file\n");
}

TEST_F(CheckFolders, IncludeAndExcludeChooseFilesOfFolders) {
    Write("one.lin", "*X\nA,x\n");
    Write("two.lin", "*X\nA,x\n");
    Write("walls.pat", "*X\n");
    const std::string text =
        RunTool({"check", folder / "", "--include", "*.lin", "--exclude", "two*"}).output;
    EXPECT_NE(text.find("one.lin:2:3"), std::string::npos) << text;
    EXPECT_NE(text.find("\n1 error, 0 warnings in 1 file\n"), std::string::npos) << text;
}

TEST_F(CheckFolders, OneMissingShapeFileOfManyFilesIsOneMessageWithItsCount) {
    Write("a.lin", "*A\nA,1,[M,none.shx]\n*B\nA,1,[M,none.shx]\n");
    Write("b.lin", "*C\nA,1,[M,none.shx]\n");
    const std::string text = RunTool({"check", folder / ""}).output;
    EXPECT_NE(text.find("; the same in 2 more places (linetype A) [missing-shape-file]\n1 error,"),
              std::string::npos)
        << text;
    // Programs are given each file.
    const std::string document = RunTool({"check", folder / "", "--format", "json"}).output;
    EXPECT_NE(document.find("\"errors\": 2"), std::string::npos) << document;
}

TEST_F(CheckFolders, WarningsEndWithStatusOneWhereTheyAreToFail) {
    const std::string file = folder.Write("gaps.lin", "*GAPS\nA,-1,-1\n");
    EXPECT_EQ(RunTool({"check", file}).status, 0);
    EXPECT_EQ(RunTool({"check", file, "--fail-on", "error"}).status, 0);
    EXPECT_EQ(RunTool({"check", file, "--fail-on", "warning"}).status, 1);
    EXPECT_EQ(RunTool({"check", file, "--fail-on", "note"}).status, 2);
    EXPECT_EQ(RunTool({"check", folder.Write("fine.lin", "*A\nA,1\n"), "--fail-on", "warning"}).status, 0);
}

TEST_F(CheckFolders, IgnoredCodesAreNeitherReportedNorFailures) {
    const std::string file = folder.Write("x.lin", "*X\nA,x\n*GAPS\nA,-1,-1\n");
    const ToolResult one = RunTool({"check", file, "--ignore", "invalid-dash"});
    EXPECT_EQ(one.status, 0);
    EXPECT_EQ(one.output.find("invalid-dash"), std::string::npos) << one.output;
    const ToolResult both =
        RunTool({"check", file, "--ignore", "invalid-dash", "--ignore", "gaps-only", "--fail-on", "warning"});
    EXPECT_EQ(both.status, 0);
    EXPECT_EQ(both.output.rfind("0 errors, 0 warnings in 1 file; ", 0), 0U) << both.output;
}

TEST_F(CheckFolders, UnknownCodeIsAnErrorThatNamesTheNearest) {
    const std::string file = folder.Write("x.lin", "*X\nA,1\n");
    const ToolResult result = RunTool({"check", file, "--ignore", "missing-shapefile"});
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.errors, "styleconv: --ignore: unknown code missing-shapefile; did you mean "
                             "missing-shape-file?\n");
    EXPECT_EQ(result.output, "");
}

// A shape file of another maker, which differs in the signature alone.
TEST_F(CheckFolders, ForeignSignatureIsNoErrorToATolerantJudgement) {
    std::string bytes = ShapeFileBuilder::Shapes().Shape(130, "MARK", {0x10, 0}).Text();
    bytes.replace(0, 10, "Foreign-86");
    const std::string file = folder.Write("marks.shx", bytes);
    const ToolResult strict = RunTool({"check", file});
    EXPECT_EQ(strict.status, 1);
    EXPECT_NE(strict.output.find(": error: byte 0: foreign signature"), std::string::npos) << strict.output;
    const ToolResult tolerant = RunTool({"check", file, "--tolerant"});
    EXPECT_EQ(tolerant.status, 0);
    EXPECT_NE(tolerant.output.find(": warning: byte 0: foreign signature"), std::string::npos)
        << tolerant.output;
    EXPECT_NE(tolerant.output.find("; read all the same"), std::string::npos) << tolerant.output;
}

TEST_F(CheckFolders, TolerantJudgementTellsWhatIsSkippedAndFailsWhereNothingIsLeft) {
    const ToolResult rest =
        RunTool({"check", "--tolerant", folder.Write("rest.lin", "*GOOD\nA,1\n*BAD\nA,x\n")});
    EXPECT_EQ(rest.status, 0);
    EXPECT_NE(rest.output.find(":4:3: warning: expected a dash length or \"[\": A,x; skipped (linetype BAD) "
                               "[invalid-dash]\n0 errors, 1 warning in 1 file\n"),
              std::string::npos)
        << rest.output;
    const ToolResult none = RunTool({"check", "--tolerant", folder.Write("none.lin", "*BAD\nA,x\n")});
    EXPECT_EQ(none.status, 1);
    EXPECT_NE(none.output.find("error: none of the linetypes can be converted [nothing-converted]"),
              std::string::npos)
        << none.output;
}

TEST_F(CheckFolders, SarifHasRulesLevelsAndPlaces) {
    const std::string file = folder.Write("x y.lin", "*X\nA,x\n*GAPS\nA,-1,-1\n");
    const ToolResult result = RunTool({"check", file, "--format", "sarif"});
    EXPECT_EQ(result.status, 1);
    for (const char* const part :
         {"\"version\": \"2.1.0\"", "\"name\": \"styleconv\"", "\"id\": \"invalid-dash\"",
          "\"text\": \"expected a dash length or \\\"[\\\": …\"", "\"level\": \"error\"",
          "\"level\": \"warning\"", "\"startLine\": 2", "x%20y.lin\"",
          "\"fullyQualifiedName\": \"linetype GAPS\""}) {
        EXPECT_NE(result.output.find(part), std::string::npos) << part << "\n" << result.output;
    }
}

} // namespace
