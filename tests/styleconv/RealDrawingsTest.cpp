// What drawings of other programs need: the model space, units, inserts, base points, what is hidden,
// colour 7.
#include "tests/support/DxfWriter.h"
#include "tests/support/ToolRun.h"

#include <gtest/gtest.h>

namespace {

using support::RunTool;
using support::ScratchFolder;
using support::ToolResult;
using support::ValuesOf;

using Texts = std::vector<std::string>;

DxfWriter Line(double x0, double y0, double x1, double y1) {
    return DxfWriter().Text(0, "LINE").Text(8, "0").Integer(62, 1).Point(10, x0, y0).Point(11, x1, y1);
}

DxfWriter Section(const std::string& name, const DxfWriter& pairs) {
    return DxfWriter().Text(0, "SECTION").Text(2, name).Append(pairs).Text(0, "ENDSEC");
}

DxfWriter Block(const std::string& name, const DxfWriter& entities, double x = 0, double y = 0) {
    return DxfWriter().Text(0, "BLOCK").Text(2, name).Point(10, x, y).Append(entities).Text(0, "ENDBLK");
}

DxfWriter Layer(const std::string& name, int color, int flags = 0) {
    return DxfWriter().Text(0, "LAYER").Text(2, name).Integer(70, flags).Integer(62, color);
}

// A file of these blocks and entities in that unit, without a header where it is 0.
std::string File(const DxfWriter& blocks, const DxfWriter& entities = {}, int unit = 4) {
    DxfWriter file;
    if (unit != 0) {
        file.Append(Section("HEADER", DxfWriter().Text(9, "$INSUNITS").Integer(70, unit)));
    }
    DxfWriter layers;
    layers.Text(0, "TABLE").Text(2, "LAYER").Append(Layer("0", 7)).Append(Layer("OFF", -3));
    layers.Append(Layer("FROZEN", 3, 1)).Text(0, "ENDTAB");
    file.Append(Section("TABLES", layers)).Append(Section("BLOCKS", blocks));
    return file.Append(Section("ENTITIES", entities)).Text(0, "EOF").Ascii();
}

class RealDrawings : public testing::Test {
protected:
    Texts Geometries(const std::string& file, const Texts& options = {}) {
        Texts arguments = {"blocks", file};
        arguments.insert(arguments.end(), options.begin(), options.end());
        result = RunTool(arguments);
        return ValuesOf(result.output, "geometry");
    }

    ScratchFolder folder;
    ToolResult result;
};

TEST_F(RealDrawings, ADrawingWithoutBlocksNamesTheModelSpace) {
    const std::string file = folder.Write("valve 2.dxf", File({}, Line(0, 0, 1, 0).Append(Line(0, 1, 1, 1))));
    EXPECT_EQ(Geometries(file), Texts());
    EXPECT_EQ(result.status, 1);
    const std::string message = file +
                                ": error: the drawing has no block to convert, but a model space with 2 "
                                "entities; --model-space converts it";
    EXPECT_EQ(result.errors, message + "\n");
    EXPECT_EQ(RunTool({"list", file}).errors, message + "\n");
    EXPECT_EQ(RunTool({"check", file}).output,
              message + " [only-model-space]\n1 error, 0 warnings in 1 file\n");
    EXPECT_EQ(Geometries(file, {"--model-space"}), (Texts{"M 0.0,0.0 L 1.0,0.0", "M 0.0,1.0 L 1.0,1.0"}));
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(ValuesOf(result.output, "name"), (Texts{"valve 2"}));
    const std::string empty = folder.Write("empty.dxf", File({}));
    Geometries(empty);
    EXPECT_EQ(result.errors, empty +
                                 ": error: the drawing has no block to convert; layouts and anonymous blocks "
                                 "are converted only by --name\n");
    Geometries(empty, {"--model-space"});
    EXPECT_EQ(result.errors, empty + ": error: the drawing has no model space\n");
    Geometries(file, {"--model-space", "--name", "A"});
    EXPECT_EQ(result.status, 2);
}

TEST_F(RealDrawings, ADrawingWithoutAUnitIsInMetresOrInTheOneNamed) {
    const std::string file = folder.Write("a.dxf", File(Block("A", Line(0, 0, 1, 0)), {}, 0));
    const std::string message =
        file + ": warning: the drawing has no unit; its lengths are read as metres: --units names another";
    EXPECT_EQ(Geometries(file), (Texts{"M 0.0,0.0 L 1000.0,0.0"}));
    EXPECT_EQ(result.errors, message + "\n");
    EXPECT_EQ(RunTool({"check", file}).output, message + " [no-unit]\n0 errors, 1 warning in 1 file\n");
    for (const auto& [unit, end] : std::vector<std::pair<std::string, std::string>>{{"mm", "1.0"},
                                                                                    {"cm", "10.0"},
                                                                                    {"dm", "100.0"},
                                                                                    {"m", "1000.0"},
                                                                                    {"km", "1000000.0"},
                                                                                    {"inch", "25.4"},
                                                                                    {"foot", "304.8"},
                                                                                    {"yard", "914.4"},
                                                                                    {"mile", "1609344.0"}}) {
        EXPECT_EQ(Geometries(file, {"--units", unit}), (Texts{"M 0.0,0.0 L " + end + ",0.0"}));
        EXPECT_EQ(result.errors, "");
    }
    const std::string inches = folder.Write("b.dxf", File(Block("A", Line(0, 0, 1, 0)), {}, 1));
    EXPECT_EQ(Geometries(inches, {"--units", "mm"}), (Texts{"M 0.0,0.0 L 25.4,0.0"}));
    Geometries(file, {"--units", "ell"});
    EXPECT_EQ(result.status, 2);
}

TEST_F(RealDrawings, ADocumentWithoutAUnitIsToldOfWhereABlockHasNoneOfItsOwn) {
    const auto document = [&](const std::string& name, const std::string& head, const std::string& unit) {
        return folder.Write(
            name, R"({"format": "styleconversion/drawing", "version": 1,)" + head +
                      R"( "blocks": [{"name": "A", "units": 4, "entities": []}, {"name": "B",)" + unit +
                      R"( "entities": [{"type": "line", "start": [0, 0], "end": [1, 0]}]}]})");
    };
    const std::string file = document("none.json", "", "");
    const std::string message =
        file + ": warning: the drawing has no unit; its lengths are read as metres: --units names another";
    for (const Texts& options : {Texts(), Texts{"--tolerant"}}) {
        EXPECT_EQ(Geometries(file, options), (Texts{"M 0.0,0.0 L 1000.0,0.0"}));
        EXPECT_EQ(result.status, 0);
        EXPECT_EQ(result.errors, message + "\n");
    }
    EXPECT_EQ(RunTool({"check", file}).output, message + " [no-unit]\n0 errors, 1 warning in 1 file\n");
    EXPECT_EQ(RunTool({"check", file, "--units", "mm"}).output, "0 errors, 0 warnings in 1 file\n");
    Geometries(file, {"--name", "A"}); // which has a unit
    EXPECT_EQ(result.errors, "");
    for (const std::string& good :
         {document("drawing.json", R"("insunits": 4,)", ""), document("block.json", "", R"("units": 4,)")}) {
        EXPECT_EQ(Geometries(good), (Texts{"M 0.0,0.0 L 1.0,0.0"}));
        EXPECT_EQ(result.errors, "");
        EXPECT_EQ(RunTool({"check", good}).output, "0 errors, 0 warnings in 1 file\n");
    }
}

TEST_F(RealDrawings, AUnitThatIsNoneScalesNothing) {
    for (const int unit : {21, 25}) {
        const std::string file = folder.Write("a.dxf", File(Block("A", Line(0, 0, 1, 0)), {}, unit));
        EXPECT_EQ(Geometries(file), (Texts{"M 0.0,0.0 L 1.0,0.0"}));
        // The first is a foot of land surveys, which strict symbols do not know.
        EXPECT_EQ(result.errors, unit == 25 ? ""
                                            : file + ": warning: drawn up to 100 % of its size out of place: "
                                                     "unit 21 has no factor and leaves the scale as it was; "
                                                     "--faithful draws it (block A)\n");
        const std::string document = folder.Write("a.json", RunTool({"drawing", file}).output);
        EXPECT_EQ(Geometries(document), (Texts{"M 0.0,0.0 L 1.0,0.0"}));
    }
}

TEST_F(RealDrawings, InsertsAreExpandedInPlace) {
    DxfWriter insert;
    insert.Text(0, "INSERT").Text(8, "0").Text(2, "INNER").Integer(66, 1).Point(10, 10, 5).Number(41, 2);
    insert.Number(50, 90).Text(0, "ATTRIB").Text(8, "0").Point(10, 1, 1).Number(40, 3).Text(1, "value");
    insert.Text(2, "TAG").Text(0, "SEQEND");
    const std::string file =
        folder.Write("a.dxf", File(Block("INNER", Line(1, 0, 2, 0), 1, 0).Append(Block("OUTER", insert))));
    EXPECT_EQ(Geometries(file, {"--name", "OUTER"}), Texts());
    const std::string lost = ": warning: 1 entity (insert) is not drawn; --expand draws what is inserted "
                             "(block OUTER)";
    EXPECT_NE(RunTool({"check", file}).output.find(file + lost + " [insert]\n"), std::string::npos);
    EXPECT_EQ(Geometries(file, {"--name", "OUTER", "--expand"}), (Texts{"M 10.0,5.0 L 10.0,7.0"}));
    EXPECT_EQ(ValuesOf(result.output, "content"), (Texts{"'value'"}));
    EXPECT_EQ(ValuesOf(result.output, "name"), (Texts{"OUTER"}));
    // The document of the file says as much.
    const std::string expanded = result.output;
    const std::string document = folder.Write("a.json", RunTool({"drawing", file}).output);
    Geometries(document, {"--name", "OUTER", "--expand"});
    EXPECT_EQ(result.output, expanded);
}

TEST_F(RealDrawings, WhatCannotBeExpandedIsTold) {
    const auto insert = [](const std::string& name) { return DxfWriter().Text(0, "INSERT").Text(2, name); };
    const std::string file =
        folder.Write("a.dxf", File(Block("A", insert("A").Append(insert("NONE")).Append(Line(0, 0, 1, 0)))));
    EXPECT_EQ(Geometries(file, {"--expand"}), (Texts{"M 0.0,0.0 L 1.0,0.0"}));
    EXPECT_EQ(result.errors,
              file +
                  ": warning: 1 entity (insert) is not drawn: in the inserted block itself, or more than 32 "
                  "blocks deep (block A)\n" +
                  file +
                  ": warning: 1 entity (insert) is not drawn: the drawing has no block NONE (block A)\n");
    DxfWriter blocks;
    for (int i = 0; i < 7; ++i) {
        DxfWriter rows = insert("R" + std::to_string(i + 1));
        blocks.Append(Block("R" + std::to_string(i), rows.Integer(70, 100).Integer(71, 100)));
    }
    const std::string large = folder.Write("b.dxf", File(blocks.Append(Block("R7", Line(0, 0, 1, 0)))));
    EXPECT_EQ(Geometries(large, {"--expand", "--name", "R0"}), Texts());
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors,
              large + ": error: the block comes to more than 1000000 entities with what is inserted "
                      "(block R0)\n");
}

TEST_F(RealDrawings, BlocksAreDrawnAroundTheirBasePoints) {
    const std::string file = folder.Write("a.dxf", File(Block("A", Line(5, 5, 6, 5), 5, 4)));
    EXPECT_EQ(Geometries(file), (Texts{"M 5.0,5.0 L 6.0,5.0"}));
    EXPECT_EQ(Geometries(file, {"--from-base-point"}), (Texts{"M 0.0,1.0 L 1.0,1.0"}));
    EXPECT_EQ(RunTool({"check", file}).output,
              file + ": warning: the base point of the block is 5,4, and 0,0 its place on the map; "
                     "--from-base-point makes it that point (block A) [base-point]\n"
                     "0 errors, 1 warning in 1 file\n");
}

TEST_F(RealDrawings, WhatIsHiddenIsLeftOutWhereThatIsAskedFor) {
    const auto line = [](double y, const std::string& layer, int hidden) {
        DxfWriter pairs;
        return pairs.Text(0, "LINE").Text(8, layer).Integer(60, hidden).Point(10, 0, y).Point(11, 1, y);
    };
    DxfWriter lines = line(0, "0", 0);
    lines.Append(line(1, "0", 1)).Append(line(2, "OFF", 0)).Append(line(3, "FROZEN", 0));
    const std::string file = folder.Write("a.dxf", File(Block("A", lines)));
    EXPECT_EQ(Geometries(file).size(), 4U);
    EXPECT_EQ(Geometries(file, {"--visible-only"}), (Texts{"M 0.0,0.0 L 1.0,0.0"}));
    EXPECT_EQ(
        RunTool({"check", file}).output,
        file +
            ": warning: 3 entities are drawn that the drawing does not show; --visible-only leaves out what "
            "is hidden, off or frozen (block A) [hidden-entity]\n0 errors, 1 warning in 1 file\n");
}

TEST_F(RealDrawings, Color7IsTheOneThatIsAskedFor) {
    DxfWriter lines;
    lines.Text(0, "LINE").Text(8, "0").Point(11, 1, 0);
    lines.Text(0, "LINE").Text(8, "0").Integer(62, 7).Point(11, 1, 0);
    lines.Text(0, "LINE").Text(8, "0").Integer(420, 0xffffff).Point(11, 1, 0);
    const std::string file = folder.Write("a.dxf", File(Block("A", lines)));
    const auto colors = [&](const Texts& options) {
        Geometries(file, options);
        return ValuesOf(result.output, "lineColor");
    };
    const auto layerColor = [&] { return ValuesOf(result.output, "defaultValue").front(); };
    const Texts white = {"%COLORBYLAYER0%", "ffffffff", "ffffffff"};
    EXPECT_EQ(colors({}), white);
    EXPECT_EQ(layerColor(), "ffffffff");
    EXPECT_EQ(colors({"--color-7", "white"}), white);
    EXPECT_EQ(colors({"--color-7", "black"}), (Texts{"%COLORBYLAYER0%", "ff000000", "ffffffff"}));
    EXPECT_EQ(layerColor(), "ff000000");
    EXPECT_EQ(colors({"--color-7", "#12aBcd"}), (Texts{"%COLORBYLAYER0%", "ff12abcd", "ffffffff"}));
    EXPECT_EQ(RunTool({"blocks", file, "--color-7", "red"}).status, 2);
    EXPECT_EQ(RunTool({"check", "--notes", file}).output,
              file +
                  ": note: 2 entities are drawn white (colour 7); --color-7 names another colour (block A) "
                  "[drawn-white]\n0 errors, 0 warnings in 1 file\n");
}

// What is drawn only faithfully: one of each kind.
DxfWriter Shapes() {
    DxfWriter shapes;
    shapes.Text(0, "SOLID").Text(8, "0").Point(10, 0, 0).Point(11, 4, 0).Point(12, 0, 3).Point(13, 4, 3);
    shapes.Text(0, "TRACE").Text(8, "0").Point(10, 1, 0).Point(11, 2, 0).Point(12, 1, 3).Number(230, -1);
    shapes.Text(0, "LWPOLYLINE").Text(8, "0").Number(43, 2).Point(10, 0, 9).Point(10, 5, 9);
    shapes.Text(0, "POLYLINE").Text(8, "0").Number(40, 2).Text(0, "VERTEX").Point(10, 0, 19);
    shapes.Number(41, 0).Text(0, "VERTEX").Point(10, 5, 19).Text(0, "SEQEND");
    shapes.Text(0, "DIMENSION").Text(8, "0").Text(2, "*D1").Point(10, 7, 7).Point(12, 10, 0);
    return shapes.Text(0, "LEADER").Text(8, "0").Integer(76, 2).Point(10, 0, 0).Point(10, 3, 3);
}

DxfWriter ShapeBlocks() {
    const DxfWriter arrow = DxfWriter().Text(0, "INSERT").Text(8, "0").Text(2, "ARROW").Point(10, 5, 5);
    const DxfWriter helper = DxfWriter().Text(0, "POINT").Text(8, "DEFPOINTS").Point(10, 1, 1);
    DxfWriter blocks = Block("A", Shapes());
    blocks.Append(Block("*D1", Line(0, 5, 5, 5).Append(arrow).Append(helper)));
    return blocks.Append(Block("ARROW", Line(0, 0, 1, 1)));
}

TEST_F(RealDrawings, AreasWidthsDimensionsAndLeadersAreDrawnFaithfully) {
    const std::string file = folder.Write("a.dxf", File(ShapeBlocks()));
    EXPECT_EQ(Geometries(file, {"--name", "A"}), (Texts{"M 0.0,9.0 L 5.0,9.0", "M 0.0,19.0 L 5.0,19.0"}));
    EXPECT_EQ(Geometries(file, {"--name", "A", "--faithful"}),
              (Texts{"M 0,0 L 4,0 L 4,3 L 0,3 L 0,0", "M -1,0 L -2,0 L -1,3 L -1,3 L -1,0",
                     "M 0,10 L 5,10 L 5,8 L 0,8 L 0,10", "M 0,20 L 5,19 L 5,19 L 0,18 L 0,20",
                     "M 10,5 L 15,5", "M 15,5 L 16,6", "M 0,0 L 3,3"}));
    const auto note = [&](const std::string& what, const std::string& as) {
        return file + ": note: " + what + " drawn as " + as + " (block A)\n";
    };
    EXPECT_NE(result.errors.find(note("2 entities of the type polyline are", "a filled area") +
                                 note("1 entity of the type SOLID is", "a filled area") +
                                 note("1 entity of the type TRACE is", "a filled area") +
                                 note("1 entity of the type DIMENSION is", "the block that it names") +
                                 note("1 entity of the type LEADER is", "a polyline")),
              std::string::npos)
        << result.errors;
}

TEST_F(RealDrawings, DocumentsHoldWhatIsDrawnFaithfully) {
    const std::string file = folder.Write("a.dxf", File(ShapeBlocks()));
    const std::string document = RunTool({"drawing", file}).output;
    const std::string json = folder.Write("a.json", document);
    EXPECT_EQ(RunTool({"drawing", json}).output, document);
    EXPECT_EQ(Geometries(json, {"--faithful"}), Geometries(file, {"--faithful"}));
    EXPECT_EQ(Geometries(json), Geometries(file));
}

TEST_F(RealDrawings, FaithfulLeavesOutWhatIsHidden) {
    DxfWriter lines = Line(0, 0, 1, 0);
    lines.Text(0, "LINE").Text(8, "OFF").Point(10, 0, 1).Point(11, 1, 1);
    const std::string file = folder.Write("a.dxf", File(Block("A", lines, 5, 5)));
    EXPECT_EQ(Geometries(file).size(), 2U);
    EXPECT_EQ(Geometries(file, {"--faithful"}), (Texts{"M 0,0 L 1,0"})); // the base point stays an option
}

TEST_F(RealDrawings, ADimensionThatIsDrawnByItselfEnds) {
    const DxfWriter own = DxfWriter().Text(0, "DIMENSION").Text(8, "0").Text(2, "*D1");
    const DxfWriter none = DxfWriter().Text(0, "DIMENSION").Text(8, "0").Text(2, "*D9");
    DxfWriter blocks = Block("A", DxfWriter(own).Append(none));
    blocks.Append(Block("*D1", Line(0, 0, 1, 0).Append(own)));
    const std::string file = folder.Write("a.dxf", File(blocks));
    EXPECT_EQ(Geometries(file, {"--name", "A", "--faithful"}), (Texts{"M 0,0 L 1,0"}));
    EXPECT_NE(result.errors.find("the drawing has no block *D9"), std::string::npos) << result.errors;
    EXPECT_NE(result.errors.find("in the inserted block itself"), std::string::npos) << result.errors;
}

// By the names that files have for them, in their documents, too.
TEST_F(RealDrawings, WhatNothingDrawsIsCountedByClass) {
    const auto entity = [](const std::string& type) {
        return DxfWriter().Text(0, type).Text(8, "0").Point(10, 0, 0).Point(11, 1, 1);
    };
    DxfWriter entities = entity("RAY").Append(entity("3DFACE")).Append(Line(0, 0, 1, 0));
    entities.Append(entity("RAY")).Append(DxfWriter().Text(0, "POLYLINE").Text(8, "0").Integer(70, 64));
    entities.Text(0, "VERTEX").Text(8, "0").Point(10, 0, 0).Text(0, "SEQEND");
    const std::string file = folder.Write("a.dxf", File(Block("A", entities)));
    const std::string json = folder.Write("a.json", RunTool({"drawing", file}).output);
    for (const std::string& drawing : {file, json}) {
        const std::string found = RunTool({"check", drawing}).output;
        const auto told = [&](const std::string& what) {
            return found.find(drawing + ": warning: " + what +
                              " not drawn (block A) [unsupported-class]\n") != std::string::npos;
        };
        EXPECT_TRUE(told("2 entities of the type RAY are")) << found;
        EXPECT_TRUE(told("1 entity of the type 3DFACE is")) << found;
        EXPECT_TRUE(told("1 entity of the type POLYLINE is")) << found;
        EXPECT_NE(found.find("0 errors, 3 warnings in 1 file\n"), std::string::npos) << found;
        EXPECT_EQ(Geometries(drawing), (Texts{"M 0.0,0.0 L 1.0,0.0"}));
    }
}

TEST_F(RealDrawings, ACheckTakesTheOptionsOfDrawings) {
    DxfWriter entities;
    entities.Text(0, "SOLID").Text(8, "0").Point(10, 0, 0).Point(11, 4, 0).Point(12, 0, 3);
    entities.Text(0, "LWPOLYLINE").Text(8, "0").Integer(62, 1).Number(43, 2).Point(10, 0, 9).Point(10, 5, 9);
    entities.Text(0, "INSERT").Text(8, "0").Integer(62, 1).Text(2, "B").Point(10, 5, 5);
    entities.Text(0, "LINE").Text(8, "OFF").Integer(62, 7).Point(10, 0, 1).Point(11, 1, 1);
    const DxfWriter blocks = Block("A", entities, 1, 2).Append(Block("B", Line(0, 0, 1, 1)));
    const std::string file = folder.Write("a.dxf", File(blocks, Line(0, 0, 1, 0), 0));
    const auto check = [&](const Texts& options) {
        Texts arguments = {"check", "--notes", file};
        arguments.insert(arguments.end(), options.begin(), options.end());
        std::string output = RunTool(arguments).output;
        Texts codes;
        for (std::size_t at = 0; (at = output.find(" [", at)) != std::string::npos; ++at) {
            codes.push_back(output.substr(at + 2, output.find(']', at) - at - 2));
        }
        return codes;
    };
    EXPECT_EQ(check({}), (Texts{"no-unit", "width", "hidden-entity", "drawn-if-faithful", "insert",
                                "drawn-white", "base-point", "only-by-name"}));
    EXPECT_EQ(check({"--expand", "--from-base-point", "--visible-only", "--units", "mm"}),
              (Texts{"width", "drawn-if-faithful", "only-by-name"}));
    EXPECT_EQ(check({"--color-7", "black", "--units", "mm"}),
              (Texts{"width", "hidden-entity", "drawn-if-faithful", "insert", "base-point", "only-by-name"}));
    EXPECT_EQ(check({"--model-space", "--units", "mm"}), Texts());
    EXPECT_NE(RunTool({"check", file})
                  .output.find(
                      file +
                      ": warning: 1 entity of the type SOLID is not drawn; --faithful draws what the drawing "
                      "shows of such (block A) [drawn-if-faithful]\n"),
              std::string::npos);
    const std::string empty = folder.Write("b.dxf", File(blocks));
    EXPECT_EQ(
        RunTool({"check", "--model-space", empty}).output,
        empty + ": error: the drawing has no model space [no-model-space]\n1 error, 0 warnings in 1 file\n");
}

} // namespace
