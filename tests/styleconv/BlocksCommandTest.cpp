// styleconv blocks and styleconv list on drawings: what is converted, what is refused, and in which words.
#include "tests/styleconv/SampleFiles.h"
#include "tests/support/ShapeFileBuilder.h"
#include "tests/support/ToolRun.h"

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>

namespace {

using samples::Drawing;
using support::RunTool;
using support::ScratchFolder;
using support::ToolResult;
using support::ValuesOf;
using test_support::ShapeFileBuilder;

using Texts = std::vector<std::string>;

// A block with one line from (0, 0) to (length, 0).
std::string Block(const std::string& name, int length, const std::string& more = "",
                  const std::string& linetype = "Continuous") {
    return R"({"name": ")" + name + R"(", )" + more + R"("entities": [{"type": "line", "linetype": ")" +
           linetype + R"(", "start": [0, 0], "end": [)" + std::to_string(length) + ", 0]}]}";
}

const char* const kShapedTables =
    R"("textStyles": [{"name": "MARKS", "fileName": "marks"}],
    "linetypes": [{"name": "MARKED", "dashes": [{"length": 1},
                   {"length": -1, "shapeStyle": "MARKS", "shapeNumber": 130}]}],)";
const char* const kMarkedLine = "M 0.0,0.0 L 1.0,0.0 M 2.0,0.0 L 3.0,0.0";
const char* const kMark = " M 2,0 l 1,0 ";

class BlocksCommand : public testing::Test {
protected:
    ToolResult Run(const std::string& text, Texts more = {}) {
        Texts arguments = {"blocks", folder.Write("drawing.json", text)};
        arguments.insert(arguments.end(), more.begin(), more.end());
        return RunTool(arguments);
    }

    Texts Names(const std::string& text, const Texts& more = {}) {
        const ToolResult result = Run(text, more);
        EXPECT_EQ(result.status, 0) << result.errors;
        EXPECT_EQ(result.errors, "");
        return ValuesOf(result.output, "name");
    }

    // The geometry of the only path; what is said on standard error goes to `notes`.
    std::string Geometry(const std::string& text, const Texts& more, std::string& notes) {
        const ToolResult result = Run(text, more);
        EXPECT_EQ(result.status, 0) << result.errors;
        notes = result.errors;
        const Texts geometries = ValuesOf(result.output, "geometry");
        return geometries.size() == 1 ? geometries[0] : "not one path";
    }

    // What is said on standard error about the drawing, without its name.
    std::string Fault(const std::string& text, const Texts& more = {}) {
        const ToolResult result = Run(text, more);
        EXPECT_EQ(result.status, 1);
        EXPECT_EQ(result.output, "");
        return WithoutName(result.errors);
    }

    // Every line but the last, which helps, begins with the drawing's name.
    std::string WithoutName(std::string lines) const {
        const std::string file = folder / "drawing.json";
        const std::string start = file + ": ";
        lines.erase(std::min(lines.find(support::HelpBehindErrors(file)), lines.size()));
        for (std::size_t at = 0; at < lines.size(); at = lines.find('\n', at) + 1) {
            if (lines.compare(at, start.size(), start) != 0) {
                return "unexpected: " + lines;
            }
            lines.erase(at, start.size());
        }
        return lines;
    }

    void WriteMarks(const std::string& name) {
        std::filesystem::create_directories(std::filesystem::path(folder / name).parent_path());
        folder.Write(name, ShapeFileBuilder::Shapes().Shape(130, "MARK", {0x10, 0}).Text());
    }

    ScratchFolder folder;
};

TEST_F(BlocksCommand, ConvertsABlockWithAllItsKeys) {
    const ToolResult result = Run(Drawing(Block("TREE", 2)));
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(result.output, R"({
  "format": "styleconversion/symbols",
  "version": 1,
  "symbols": [
    {
      "type": "SimpleSymbolDefinition",
      "name": "TREE",
      "graphics": [
        {
          "type": "Path",
          "geometry": "M 0.0,0.0 L 2.0,0.0",
          "lineColor": "%COLORBYLAYER0%",
          "lineWeight": "%LWBYLAYER0%",
          "lineWeightScalable": "false"
        }
      ],
      "parameters": [
        {
          "identifier": "COLORBYLAYER0",
          "displayName": "Color Defined ByLayer 0",
          "description": "Color Defined ByLayer 0",
          "defaultValue": "ffffffff",
          "dataType": 7
        },
        {
          "identifier": "LWBYLAYER0",
          "displayName": "Lineweight Defined ByLayer 0",
          "description": "Lineweight Defined ByLayer 0",
          "defaultValue": "0.5",
          "dataType": 8
        },
        {
          "identifier": "ROTATION",
          "displayName": "&Rotation",
          "description": "Rotation",
          "defaultValue": "0.0",
          "dataType": 5
        }
      ],
      "pointUsage": {
        "angle": "%ROTATION%"
      }
    }
  ]
}
)");
}

TEST_F(BlocksCommand, ConvertsAllConvertibleBlocksInTableOrder) {
    EXPECT_EQ(Names(Drawing(Block("ZEBRA", 1) + "," + Block("*Model_Space", 1, R"("layout": true,)") + "," +
                            Block("*U1", 1, R"("anonymous": true,)") + "," + Block("ant", 1))),
              (Texts{"ZEBRA", "ant"}));
}

TEST_F(BlocksCommand, ConvertsTheNamedBlocksInTheOrderGivenAndOfAnyKind) {
    const std::string drawing =
        Drawing(Block("TREE", 1) + "," + Block("*Model_Space", 1, R"("layout": true,)") + "," +
                Block("*U1", 1, R"("anonymous": true,)"));
    EXPECT_EQ(Names(drawing, {"--name", "*U1", "--name", "*Model_Space", "--name", "tree", "--name", "TREE"}),
              (Texts{"*U1", "*Model_Space", "TREE", "TREE"}));
}

TEST_F(BlocksCommand, MissingNamesAreAllNamed) {
    EXPECT_EQ(Fault(Drawing(Block("TREE", 1)), {"--name", "OAK", "--name", "TREE", "--name", "ELM"}),
              "error: there is no block named OAK\nerror: there is no block named ELM\n");
}

TEST_F(BlocksCommand, DrawingWithoutAConvertibleBlockIsAnError) {
    const char* const message =
        "error: the drawing has no block to convert; layouts and anonymous blocks are converted only "
        "by --name\n";
    EXPECT_EQ(Fault(Drawing("")), message);
    EXPECT_EQ(Fault(Drawing(Block("*U1", 1, R"("anonymous": true,)"))), message);
}

TEST_F(BlocksCommand, RefusedDrawingIsNamedWithThePathOfTheValue) {
    EXPECT_EQ(Fault(Drawing(
                  R"({"name": "TREE", "entities": [{"type": "circle", "center": [0, 0], "radius": "2"}]})")),
              "error: blocks[0].entities[0].radius: expected a number, found a string\n");
}

TEST_F(BlocksCommand, LeavesOutWhatIsOnIgnoredLayers) {
    const std::string drawing =
        Drawing(R"({"name": "TREE", "entities": [{"type": "point", "position": [1, 2], "layer": "Roads"},
                    {"type": "point", "position": [3, 4], "layer": "ROADS"},
                    {"type": "point", "position": [5, 6], "layer": "W\u00e4lder"}]})");
    const auto geometries = [&](const Texts& more) {
        return ValuesOf(Run(drawing, more).output, "geometry");
    };
    EXPECT_EQ(geometries({}).size(), 3U);
    EXPECT_EQ(geometries({"--ignore-layer", "Roads", "--ignore-layer", "W\xc3\xa4lder"}),
              Texts{"M 3.0,4.0 L 3.0,4.0"});
}

TEST_F(BlocksCommand, ReadsStandardInput) {
    const ToolResult result = RunTool({"blocks", "-"}, Drawing(Block("TREE", 2)));
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(ValuesOf(result.output, "name"), Texts{"TREE"});
    const ToolResult refused = RunTool({"blocks", "-"}, "[]");
    EXPECT_EQ(refused.status, 1);
    EXPECT_EQ(refused.errors.rfind("standard input: ", 0), 0U) << refused.errors;
}

TEST_F(BlocksCommand, ShapeFilesAreFoundBesideTheDrawing) {
    WriteMarks("marks.shx");
    std::string notes;
    EXPECT_EQ(Geometry(Drawing(Block("TREE", 3, "", "MARKED"), kShapedTables), {}, notes),
              kMarkedLine + std::string(kMark));
    EXPECT_EQ(notes, "");
}

TEST_F(BlocksCommand, ShapeFilesAreFoundInTheFoldersGivenFirstByTheNameAsItStands) {
    WriteMarks("b/marks.shx");
    std::string notes;
    const std::string drawing = Drawing(Block("TREE", 3, "", "MARKED"), kShapedTables);
    EXPECT_EQ(Geometry(drawing, {"--shapes", folder / "a", "--shapes", folder / "b"}, notes),
              kMarkedLine + std::string(kMark));
    EXPECT_EQ(notes, "");
    // A file of just the name goes before one with the extension, and is of no use here.
    folder.Write("b/marks", "no shape file");
    EXPECT_EQ(Geometry(drawing, {"--shapes", folder / "b"}, notes), kMarkedLine);
}

TEST_F(BlocksCommand, MissingShapeFileIsNotedOnceAndTheRestIsConverted) {
    std::string notes;
    const std::string drawing = Drawing(Block("TREE", 9, "", "MARKED"), kShapedTables);
    EXPECT_EQ(Geometry(drawing, {}, notes).find('l'), std::string::npos);
    EXPECT_EQ(WithoutName(notes), "warning: shape file marks not found beside the drawing; skipped\n");
    Geometry(drawing, {"--shapes", "here", "--shapes", "there"}, notes);
    EXPECT_EQ(WithoutName(notes),
              "warning: shape file marks not found beside the drawing or in here, there; skipped\n");
}

TEST_F(BlocksCommand, BrokenShapeFileIsNotedWithItsPlaceAndTheRestIsConverted) {
    folder.Write("marks.shx", "no shape file");
    std::string notes;
    EXPECT_EQ(Geometry(Drawing(Block("TREE", 3, "", "MARKED"), kShapedTables), {}, notes), kMarkedLine);
    EXPECT_EQ(notes.rfind(
                  folder / "marks.shx" +
                      ": warning: byte 0: not a shape file: expected \"Vorlanx-86 \" at the start; skipped\n",
                  0),
              0U)
        << notes;
}

TEST_F(BlocksCommand, ManyDashesWithABrokenShapeFileStillWriteTheirResult) {
    // Far more dashes than a process may have files open.
    folder.Write("marks.shx", "no shape file");
    const ToolResult result =
        Run(Drawing(Block("TREE", 100000, "", "MARKED"), kShapedTables), {"-o", folder / "symbols.json"});
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_NE(folder.Read("symbols.json").find("\"TREE\""), std::string::npos);
}

TEST_F(BlocksCommand, WrongCommandLinesAreUsageFaults) {
    EXPECT_EQ(RunTool({"blocks"}).status, 2);
    EXPECT_EQ(RunTool({"drawing", folder / "a.json", folder / "b.json"}).status, 2);
    EXPECT_EQ(RunTool({"blocks", folder / "a.json", "--format", "xml"}).status, 2);
}

TEST_F(BlocksCommand, MissingDrawingIsAnInputFault) {
    const ToolResult result = RunTool({"blocks", folder / "nowhere.json"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors, folder / "nowhere.json" + ": error: not found\n");
}

TEST_F(BlocksCommand, ListGivesTheConvertibleBlocks) {
    const std::string path = folder.Write("drawing.json", Drawing(Block("ZEBRA", 1) + "," +
                                                                  Block("*U1", 1, R"("anonymous": true,)") +
                                                                  "," + Block("\xc3\xa4nt", 1)));
    const ToolResult result = RunTool({"list", path});
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(result.output, "ZEBRA\n\xc3\xa4nt\n");
    const ToolResult none = RunTool({"list", folder.Write("none.json", Drawing(""))});
    EXPECT_EQ(none.status, 1);
    EXPECT_NE(none.errors.find("no block to convert"), std::string::npos);
}

} // namespace
