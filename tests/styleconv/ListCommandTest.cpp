// styleconv list: names for scripts, a table for people, JSON for programs; several files and folders.
#include "tests/support/ShapeFileBuilder.h"
#include "tests/support/ToolRun.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

using support::RunTool;
using support::ScratchFolder;
using support::ToolResult;
using test_support::ShapeFileBuilder;

// As it stands in JSON: separators on Windows are escaped.
std::string InJson(const std::string& path) {
    std::string text;
    for (const char c : path) {
        text += c == '\\' ? "\\\\" : std::string(1, c);
    }
    return text;
}

class ListSeveral : public testing::Test {
protected:
    // What is listed, where paths are below "DIR/".
    static std::string WithoutFolder(std::string text, const std::string& folder) {
        for (std::size_t at = text.find(folder); at != std::string::npos; at = text.find(folder, at)) {
            text.replace(at, folder.size(), "DIR/");
        }
        return text;
    }

    ScratchFolder folder;
};

TEST_F(ListSeveral, TableHasKindNameAndDescriptionInColumnsOfDisplayWidth) {
    // Two wide characters, and an accent that stands on its letter.
    const std::string file = folder.Write(
        "a.pat",
        "*ROAD,of "
        "asphalt\n0,0,0,0,1\n*\xe6\xb0\xb4\xe7\x94\xb0,paddy\n0,0,0,0,1\n*cafe\xcc\x81,x\n0,0,0,0,1\n");
    EXPECT_EQ(RunTool({"list", file, "--format", "table"}).output,
              "KIND     NAME  DESCRIPTION\n"
              "pattern  ROAD  of asphalt\n"
              "pattern  cafe\xcc\x81  x\n"
              "pattern  \xe6\xb0\xb4\xe7\x94\xb0  paddy\n");
}

TEST_F(ListSeveral, FilesOfAllKindsAreOneTableThatNamesThem) {
    folder.Write("a.lin", "*GAS,____ GAS ____\nA,1\n");
    folder.Write("b.shx", ShapeFileBuilder::Shapes().Shape(130, "MARK", {0x10, 0}).Text());
    folder.Write("c.txt", "");
    const ToolResult result = RunTool({"list", folder / ""});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(WithoutFolder(result.output, folder / ""),
              WithoutFolder("FILE" + std::string((folder / "a.lin").size() - 4, ' ') +
                                "  KIND      NAME  DESCRIPTION\n" + folder / "a.lin" +
                                "  linetype  GAS   ____ GAS ____\n" + folder / "b.shx" +
                                "  glyph     MARK  number 130\n",
                            folder / ""));
}

TEST_F(ListSeveral, OneFileGivesNamesAloneWhereNobodyReadsThem) {
    const std::string file = folder.Write("a.lin", "*GAS,____ GAS ____\nA,1\n*WATER\nA,1\n");
    EXPECT_EQ(RunTool({"list", file}).output, "GAS\nWATER\n");
    const std::string other = folder.Write("b.lin", "*GAS\nA,1\n");
    EXPECT_EQ(RunTool({"list", file, "--format", "names", other}).output, "GAS\nWATER\nGAS\n");
}

TEST_F(ListSeveral, FileThatIsGivenAgainIsListedOnce) {
    const std::string file = folder.Write("a.lin", "*GAS\nA,1\n");
    EXPECT_EQ(RunTool({"list", file, "--format", "names", folder / ""}).output, "GAS\n");
}

TEST_F(ListSeveral, JsonIsAListOfObjects) {
    const std::string lines = folder.Write("a.lin", "; pipes\n*GAS,____ GAS ____\nA,1\n");
    const std::string marks =
        folder.Write("b.shx", ShapeFileBuilder::Shapes().Shape(130, "MARK", {0x10, 0}).Text());
    EXPECT_EQ(RunTool({"list", lines, marks, "--format", "json"}).output,
              "[\n  {\n    \"kind\": \"linetype\",\n    \"name\": \"GAS\",\n    \"description\": \"____ GAS "
              "____\",\n"
              "    \"file\": \"" +
                  InJson(lines) +
                  "\",\n    \"line\": 2\n  },\n  {\n    \"kind\": \"glyph\",\n    \"name\": \"MARK\",\n"
                  "    \"file\": \"" +
                  InJson(marks) + "\",\n    \"shape\": 130\n  }\n]\n");
}

TEST_F(ListSeveral, FileThatIsRefusedIsToldAndTheOthersListed) {
    const std::string good = folder.Write("good.lin", "*GAS\nA,1\n");
    const std::string bad = folder.Write("bad.lin", "*WATER\nA,x\n");
    const ToolResult result = RunTool({"list", bad, good, "--format", "names"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.output, "GAS\n");
    EXPECT_EQ(result.errors, bad + ":2:3: error: expected a dash length or \"[\": A,x (linetype WATER)\n");
}

TEST_F(ListSeveral, TolerantListingLeavesOutWhatIsInvalidAndSaysSo) {
    const std::string lines = folder.Write("a.lin", "*WATER\nA,x\n*GAS\nA,1\n");
    const ToolResult result = RunTool({"list", lines, "--tolerant"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.output, "GAS\n");
    EXPECT_EQ(result.errors,
              lines + ":2:3: warning: expected a dash length or \"[\": A,x; skipped (linetype WATER)\n");
    std::string bytes = ShapeFileBuilder::Shapes().Shape(130, "MARK", {0x10, 0}).Text();
    bytes.replace(0, 10, "Foreign-86");
    const std::string marks = folder.Write("marks.shx", bytes);
    EXPECT_EQ(RunTool({"list", marks}).status, 1);
    EXPECT_EQ(RunTool({"list", marks, "--tolerant"}).output, "MARK\n");
    const std::string walls = folder.Write("walls.pat", " *BRICK,red\n0,0,0,0,1\n*STONE\n0,0,0,0,1\n");
    EXPECT_EQ(RunTool({"list", walls, "--tolerant"}).output, "BRICK\nSTONE\n");
}

TEST_F(ListSeveral, FolderWithoutFilesOfAKnownKindIsTold) {
    folder.Write("readme.txt", "");
    const ToolResult result = RunTool({"list", folder / ""});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors,
              "styleconv: no file of a kind that is converted: .lin, .pat, .shx, .json, .dxf\n");
    EXPECT_EQ(RunTool({"list", folder / "", "--format", "svg"}).status, 2);
}

} // namespace
