// styleconv blocks --tolerant: what is right of a drawing is converted, what is wrong is left out and named.
#include "tests/styleconv/SampleFiles.h"
#include "tests/support/ShapeFileBuilder.h"
#include "tests/support/ToolRun.h"

#include <gtest/gtest.h>

namespace {

using samples::Drawing;
using support::RunTool;
using support::ScratchFolder;
using support::ToolResult;
using test_support::ShapeFileBuilder;

using Texts = std::vector<std::string>;

std::string Block(const std::string& name, const std::string& entities, const std::string& more = "") {
    return R"({"name": ")" + name + R"(", "entities": [)" + entities + "]" + more + "}";
}

std::string ThreeLong(const std::string& more = "") {
    return R"({"type": "line", "start": [0, 0], "end": [3, 0])" + more + "}";
}

class TolerantBlocks : public testing::Test {
protected:
    ToolResult Run(const std::string& text, Texts more = {}) {
        more.insert(more.begin(), {"blocks", folder.Write("drawing.json", text)});
        return RunTool(more);
    }

    // What is said on standard error, without the folder.
    std::string Said(const std::string& text, Texts more = {}, int status = 0) {
        more.emplace_back("--tolerant");
        ToolResult result = Run(text, std::move(more));
        EXPECT_EQ(result.status, status) << result.errors;
        output = result.output;
        std::string said = result.errors;
        const std::string path = folder / "";
        for (std::size_t at = said.find(path); at != std::string::npos; at = said.find(path, at)) {
            said.erase(at, path.size());
        }
        return said;
    }

    bool Has(const std::string& text) const { return output.find(text) != std::string::npos; }

    ScratchFolder folder;
    std::string output;
};

TEST_F(TolerantBlocks, ADrawingWithoutFaultsGivesTheSameBytesAndNothingIsSaid) {
    const std::string text = Drawing(Block("TREE", ThreeLong()));
    EXPECT_EQ(Said(text), "");
    EXPECT_EQ(output, Run(text).output);
}

TEST_F(TolerantBlocks, AWrongEntityIsLeftOutByNameOfItsBlock) {
    const std::string text =
        Drawing(Block("TREE", R"({"type": "circle", "center": [0, 0], "radius": "2"}, )" + ThreeLong()) +
                "," + Block("POST", ThreeLong()));
    EXPECT_EQ(Run(text).status, 1);
    EXPECT_EQ(Said(text),
              "drawing.json: warning: blocks[0].entities[0].radius: expected a number, found a string; "
              "the entity is skipped (block TREE)\n");
    EXPECT_EQ(output, Run(Drawing(Block("TREE", ThreeLong()) + "," + Block("POST", ThreeLong()))).output);
}

TEST_F(TolerantBlocks, FaultsOfOneKindAreSaidOnceInABlock) {
    const std::string bad = R"({"type": "circle", "center": [0, 0], "thickness": 1, "radius": 2})";
    EXPECT_EQ(
        Said(Drawing(Block("TREE", bad + "," + bad) + "," + Block("POST", bad + "," + bad + "," + bad))),
        "drawing.json: warning: blocks[0].entities[0].thickness: unknown key; the key is skipped; the same "
        "in 1 more place (block TREE)\n"
        "drawing.json: warning: blocks[1].entities[0].thickness: unknown key; the key is skipped; the same "
        "in 2 more places (block POST)\n");
}

TEST_F(TolerantBlocks, ADocumentThatIsCutGivesTheBlocksBefore) {
    const std::string text =
        Drawing(Block("TREE", ThreeLong()) + "," + Block("POST", ThreeLong() + "," + ThreeLong()));
    const std::string said = Said(text.substr(0, text.size() - 10));
    EXPECT_EQ(
        said.rfind(
            "drawing.json: warning: blocks[1].entities[1].end: expected JSON, found an error at line 1, ", 0),
        0U)
        << said;
    EXPECT_NE(said.find("; the block and all that follows is skipped (block POST)\n"), std::string::npos)
        << said;
    EXPECT_TRUE(Has("\"TREE\""));
    EXPECT_FALSE(Has("\"POST\""));
}

TEST_F(TolerantBlocks, WhatIsNoDrawingOrHasNoBlocksIsRefused) {
    EXPECT_EQ(Said("{}", {}, 1),
              "drawing.json: error: format: expected \"styleconversion/drawing\", found nothing\n");
    EXPECT_EQ(Said(Drawing("7"), {}, 1),
              "drawing.json: warning: blocks[0]: expected an object, found a number; the block is skipped\n"
              "drawing.json: error: the drawing has no block to convert; layouts and anonymous blocks are "
              "converted "
              "only by --name\n");
    EXPECT_EQ(output, "");
}

TEST_F(TolerantBlocks, ABlockThatIsNotThereIsNamedAndTheOthersAreConverted) {
    const std::string text = Drawing(Block("TREE", ThreeLong()));
    EXPECT_EQ(Said(text, {"--name", "NONE", "--name", "TREE"}),
              "drawing.json: warning: there is no block named NONE\n");
    EXPECT_TRUE(Has("\"TREE\""));
    EXPECT_EQ(Said(text, {"--name", "NONE"}, 1),
              "drawing.json: warning: there is no block named NONE\n"
              "drawing.json: error: none of the blocks asked for can be converted\n");
}

TEST_F(TolerantBlocks, WhatAConversionLeavesOutIsNamedByBlock) {
    const std::string text = Drawing(
        Block("TREE", ThreeLong(R"(, "linetype": "GAS")") + "," + ThreeLong(R"(, "linetype": "GAS")") +
                          R"(, {"type": "hatch", "loops": []}, {"type": "hatch", "loops": [], "solid": true},
                {"type": "hatch", "loops": [], "pattern": [{"angle": 0, "base": [0, 0], "offset": [0, 1],
                 "dashes": []}]},
                {"type": "hatch", "loops": [{"vertices": [[0, 1], [1, 1], [1, 2]]}],
                 "pattern": [{"angle": 0, "base": [0, 0], "offset": [0, 1e-9], "dashes": []}]},
                {"type": "spline", "fitPoints": []},
                {"type": "text", "position": [0, 0], "height": 1, "text": "T", "style": "ROMAN"},
                {"type": "other", "class": "Ray"}, {"type": "line", "start": [0, 0], "end": [1, 0]})") +
        "," +
        Block("POST", R"({"type": "point", "position": [0, 0], "id": "a"}, )" + ThreeLong(),
              R"(, "drawOrder": ["a"])"));
    EXPECT_EQ(
        Said(text),
        "drawing.json: warning: 1 entity (spline) is not drawn: the data make no curve (block TREE)\n"
        "drawing.json: warning: 1 entity (hatch) is not drawn: no boundary (block TREE)\n"
        "drawing.json: warning: 1 entity (hatch) is not drawn: not solid, and no pattern (block TREE)\n"
        "drawing.json: warning: 1 entity (hatch) has more than 10000000 lines; skipped (block TREE)\n"
        "drawing.json: warning: 2 entities are drawn without dashes: the drawing has no linetype GAS "
        "(block TREE)\n"
        "drawing.json: warning: 1 entity (text) is written without a font: the drawing has no text style "
        "ROMAN (block TREE)\n"
        "drawing.json: warning: 1 entity of the type Ray is not drawn (block TREE)\n"
        "drawing.json: warning: 1 entity (hatch) is not drawn: no line of the pattern lies inside the "
        "boundary (block TREE)\n"
        "drawing.json: warning: 1 entity is not drawn: missing in the draw order of the block (block "
        "POST)\n");
    // A strict conversion would work on the dense hatch until a limit ends it.
    std::string sparse = text;
    sparse.replace(sparse.find("1e-9"), 4, "2000");
    EXPECT_EQ(output, Run(sparse).output);
}

// A ".5" dash and a gap that carries the mark: a stroke of one unit along the line.
class TolerantBlockShapes : public TolerantBlocks {
protected:
    static std::string Marked(const std::string& style, const std::string& carried) {
        return Drawing(Block("FENCE", ThreeLong(R"(, "linetype": "MARKED")")),
                       R"("textStyles": [{"name": "MARKS", "fileName": "marks"},
                          {"name": "STANDARD", "fileName": "txt.shx"}, {"name": "ARIAL", "typeface": "Arial"}],
                          "linetypes": [{"name": "MARKED", "dashes": [{"length": 1},
                          {"length": -1, "shapeStyle": ")" +
                           style + "\", " + carried + "}]}],");
    }

    static ShapeFileBuilder Marks() { return ShapeFileBuilder::Shapes().Shape(130, "MARK", {0x10, 0}); }
};

TEST_F(TolerantBlockShapes, AShapeFileThatIsNotFoundLosesItsShapesAndNoMore) {
    EXPECT_EQ(
        Said(Marked("MARKS", R"("shapeNumber": 130)")),
        "drawing.json: warning: 1 entity is drawn without the shapes of linetype MARKED: shape file marks "
        "not found beside the drawing (block FENCE)\n");
    EXPECT_TRUE(Has("\"M 0.0,0.0 L 1.0,0.0 M 2.0,0.0 L 3.0,0.0\""));
}

TEST_F(TolerantBlockShapes, AnyMakersSignatureIsReadAndAMissingTrailer) {
    const std::string marks = Marks().Text();
    folder.Write("marks.shx", marks);
    const std::string text = Marked("MARKS", R"("shapeNumber": 130)");
    const std::string expected = Run(text).output;
    folder.Write("marks.shx", "ForeignX-86 " + marks.substr(11));
    EXPECT_EQ(
        Said(text),
        "drawing.json: warning: 1 entity is drawn without the shapes of linetype MARKED: shape file marks "
        "cannot be read: byte 0: not a shape file: expected \"Vorlanx-86 \" at the start (block FENCE)\n");
    folder.Write("marks.shx", "Foreign-86 " + marks.substr(11, marks.size() - 14));
    EXPECT_EQ(
        Said(text),
        "marks.shx: warning: byte 0: foreign signature: expected \"Vorlanx-86 \" at the start; read all the "
        "same\n"
        "marks.shx: warning: byte " +
            std::to_string(marks.size() - 3) + ": missing \"EOF\" after the last shape; read all the same\n");
    EXPECT_EQ(output, expected);
    folder.Write("marks.shx", marks.substr(0, marks.size() - 3) + "eof!");
    EXPECT_EQ(Said(text), "marks.shx: warning: byte " + std::to_string(marks.size() - 3) +
                              ": missing \"EOF\" after the last shape; read all the same\n");
    EXPECT_EQ(output, expected);
    EXPECT_EQ(folder.Names(), (Texts{"drawing.json", "marks.shx"})); // no copy stays
}

TEST_F(TolerantBlockShapes, ShapesThatTheFileLacksOrThatCannotBeDrawnAreNamed) {
    folder.Write("marks.shx", Marks().Shape(131, "BAD", {6, 0}).Text());
    EXPECT_EQ(Said(Marked("MARKS", R"("shapeNumber": 132)")),
              "drawing.json: warning: 1 entity is drawn without shape 132 of marks, which is missing (block "
              "FENCE)\n");
    EXPECT_EQ(
        Said(Marked("MARKS", R"("shapeNumber": 131)")),
        "drawing.json: warning: 1 entity is drawn without shape 131 of marks: it cannot be drawn: it returns "
        "to a position that it has not saved (block FENCE)\n");
    EXPECT_EQ(
        Said(Marked("NONE", R"("shapeNumber": 131)")),
        "drawing.json: warning: 1 entity is drawn without the shapes of linetype MARKED: the drawing has no "
        "text style NONE (block FENCE)\n");
    EXPECT_EQ(
        Said(Marked("ARIAL", R"("text": "GAS")")),
        "drawing.json: warning: 1 entity is drawn without the texts of linetype MARKED: text style ARIAL has "
        "no shape file (block FENCE)\n");
}

TEST_F(TolerantBlockShapes, TheBuiltInFontStandsInForATxtThatIsNotThere) {
    const std::string text = Marked("STANDARD", R"("text": "G")");
    const std::string without = Run(text).output;
    EXPECT_EQ(Said(text),
              "drawing.json: note: font file txt.shx not found beside the drawing; the built-in font is used "
              "instead\n");
    EXPECT_NE(output, without);
    const std::string drawn = output;
    folder.Write("txt.shx", ShapeFileBuilder::Shapes().FontInfo("FONT", {1, 1, 0}).Text());
    EXPECT_EQ(
        Said(text),
        "drawing.json: warning: 1 entity is drawn without character 71 (G) of txt.shx, which is missing "
        "(block FENCE)\n");
    EXPECT_EQ(output, without);
    EXPECT_NE(drawn, without);
}

} // namespace
