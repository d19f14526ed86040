// styleconv check: what it finds in files, in which words, and with which status.
#include "tests/support/ShapeFileBuilder.h"
#include "tests/support/ToolRun.h"

#include <gtest/gtest.h>

namespace {

using support::RunTool;
using support::ScratchFolder;
using support::ToolResult;
using test_support::ShapeFileBuilder;

using Texts = std::vector<std::string>;

class Check : public testing::Test {
protected:
    // What is found in a file, without its name; the last line is the summary.
    std::string Found(const std::string& name, const std::string& text, Texts more = {}) {
        more.insert(more.begin(), {"check", folder.Write(name, text)});
        const ToolResult result = RunTool(more);
        EXPECT_EQ(result.errors, "");
        EXPECT_EQ(result.status, result.output.find("\n0 errors") == std::string::npos &&
                                         result.output.rfind("0 errors", 0) != 0
                                     ? 1
                                     : 0);
        std::string found = result.output;
        const std::string path = folder / name;
        for (std::size_t at = found.find(path); at != std::string::npos; at = found.find(path, at)) {
            found.erase(at, path.size());
        }
        return found;
    }

    std::string Lines(const std::string& text, const Texts& more = {}) {
        return Found("lines.lin", text, more);
    }
    std::string Walls(const std::string& text, const Texts& more = {}) {
        return Found("walls.pat", text, more);
    }

    ScratchFolder folder;
};

TEST_F(Check, FileWithoutFaultsIsClean) {
    EXPECT_EQ(Lines("*DASHED,d\nA,.5,-.25\n"), "0 errors, 0 warnings in 1 file\n");
    EXPECT_EQ(Walls("*BRICK\n0,0,0,0,1\n"), "0 errors, 0 warnings in 1 file\n");
}

TEST_F(Check, FindingsAreInTheFormThatEditorsParse) {
    EXPECT_EQ(Lines("*GAS\nA,1,[\"I\",STANDARD,U=0]\n", {"--font", "Arial"}),
              ":2:19: error: unknown key U= (upright text); write R=, or use --tolerant (linetype GAS) "
              "[upright-key]\n"
              "1 error, 0 warnings in 1 file\n");
}

TEST_F(Check, EveryFaultOfEveryLinetypeIsFound) {
    folder.Write("marks.shx", ShapeFileBuilder::Shapes().Shape(130, "MARK", {0x10, 0}).Text());
    EXPECT_EQ(Lines("*A\na,1 ,[NONE,marks.shx]\n*B\nA,x\n*C\nA,1,[M,none.shx]\n*D\n"),
              ":2:1: error: the alignment letter must be in upper case (linetype A) [lower-case-alignment]\n"
              ":2:4: error: a blank is not allowed here (linetype A) [unexpected-blank]\n"
              ":2: error: shape file marks.shx has no shape NONE (linetype A) [missing-shape]\n"
              ":4:3: error: expected a dash length or \"[\": A,x (linetype B) [invalid-dash]\n"
              ":6: error: shape file none.shx not found in ., " +
                  folder / "" +
                  " (linetype C) [missing-shape-file]\n"
                  ":7: error: header without a pattern (linetype D) [header-without-pattern]\n"
                  "6 errors, 0 warnings in 1 file\n");
}

TEST_F(Check, NamesAndPatternsThatSurpriseAreWarnings) {
    EXPECT_EQ(
        Lines("*A\nA,1\n*A\nA,1\n*a\nA,-1,1\n*GAPS\nA,-1,-1\n*NONE\nA,0\n*END ,x\nA,1 -- end\n"),
        ":3: warning: the name is already used in line 1 (linetype A) [duplicate-name]\n"
        ":5: warning: the name differs only in case from the name in line 1 (linetype a) [similar-name]\n"
        ":6: warning: the pattern begins with a gap; CAD systems begin and end a line with a dash (linetype "
        "a) [starts-with-gap]\n"
        ":8: warning: the pattern has only gaps and draws nothing (linetype GAPS) [gaps-only]\n"
        ":10: warning: the pattern has no length and cannot repeat (linetype NONE) [no-pattern-length]\n"
        ":11: warning: the blank before or after the name is part of it (linetype END ) [blank-around-name]\n"
        ":12:5: warning: the pattern ends here, as no comma follows; not read: -- end (linetype END ) "
        "[text-after-pattern]\n"
        "0 errors, 7 warnings in 1 file\n");
}

TEST_F(Check, LongNamesAndLinesAreShownUpToAWholeCharacter) {
    // 200 characters of a name are shown, and 160 of a line.
    const auto letters = [](std::size_t count) {
        std::string text;
        for (std::size_t i = 0; i < count; ++i) {
            text += "\xc3\xa4";
        }
        return text;
    };
    const std::string wrong = ":3: error: expected a dash length or \"[\": A,";
    EXPECT_EQ(Lines("*" + letters(200) + "\nA," + letters(158) + "\n*A" + letters(200) + "\nA,B" +
                    letters(158) + "\n"),
              ":2" + wrong + letters(158) + " (linetype " + letters(200) + ") [invalid-dash]\n" + ":4" +
                  wrong + "B" + letters(157) + "… (linetype A" + letters(199) + "…) [invalid-dash]\n" +
                  "2 errors, 0 warnings in 1 file\n");
}

TEST_F(Check, TextsAndShapesWiderThanTheirGapAreWarningsWithBothFigures) {
    // A stroke of one unit along the line.
    folder.Write("marks.shx", ShapeFileBuilder::Shapes().Shape(130, "MARK", {0x10, 0}).Text());
    EXPECT_EQ(
        Lines("*WIDE\nA,1,-.5,[MARK,marks.shx,x=-.5],-.25\n*FITS\nA,1,-.5,[MARK,marks.shx,x=-.5],-.5\n"
              "*ABOVE\nA,1,-.5,[MARK,marks.shx,x=-.5,y=1],-.1\n*ON\nA,1,[MARK,marks.shx,x=-.8],-.1\n"
              "*TURNED\nA,1,-.1,[MARK,marks.shx,R=90],-.1\n*ROUND\nA,-.25,1,-.5,[MARK,marks.shx,x=-.5]\n"),
        ":2: warning: shape MARK is 1 wide, its gap only 0.75 (linetype WIDE) [wider-than-gap]\n"
        ":12: warning: the pattern begins with a gap; CAD systems begin and end a line with a dash (linetype "
        "ROUND) [starts-with-gap]\n"
        ":12: warning: shape MARK is 1 wide, its gap only 0.75 (linetype ROUND) [wider-than-gap]\n"
        "0 errors, 3 warnings in 1 file\n");
}

// A text of a typeface is as wide as its letters are on average: 0.58 em, where a capital is 0.716 em high.
TEST_F(Check, TextsOfATypefaceAreMeasuredByTheUsualWidthOfLetters) {
    // Three letters of height .4 are .4 / .716 * .58 * 3 = .9721 wide, of which a gap of .7 is less than 1
    // / 1.25.
    EXPECT_EQ(Lines("*NARROW\nA,1,[\"GAS\",STANDARD,S=.4],-.7\n*FITS\nA,1,[\"GAS\",STANDARD,S=.4],-.8\n"
                    "*TURNED\nA,1,[\"GAS\",STANDARD,S=.4,R=90,X=.2,Y=-.2],-.7\n"
                    "*BELOW\nA,1,[\"GAS\",STANDARD,S=.4,Y=-.6],-.1\n",
                    {"--font", "Arial"}),
              ":2: warning: text \"GAS\" is about 0.9721 wide, its gap only 0.7 (linetype NARROW) "
              "[wider-than-gap]\n"
              "0 errors, 1 warning in 1 file\n");
}

// Its angle to the line is another one in every direction; along itself it is as wide as it is long.
TEST_F(Check, WhatKeepsItsAngleIsMeasuredWhereTheLineRunsAlongIt) {
    folder.Write("marks.shx", ShapeFileBuilder::Shapes().Shape(130, "MARK", {0x10, 0}).Text());
    EXPECT_EQ(
        Lines("*WIDE\nA,1,-.5,[MARK,marks.shx,A=90,x=-.5],-.25\n*FITS\nA,1,-.5,[MARK,marks.shx,A=90,x=-.5],-."
              "5\n"
              "*TURNS\nA,1,-.1,[MARK,marks.shx,A=90,R=90],-.1\n"),
        ":2: warning: shape MARK is 1 wide where the line runs along it, its gap only 0.75 (linetype WIDE) "
        "[fixed-wider-than-gap]\n"
        "0 errors, 1 warning in 1 file\n");
}

TEST_F(Check, CharactersThatAFontLacksAreErrors) {
    folder.Write("txt.shx",
                 ShapeFileBuilder::Shapes().FontInfo("FONT", {4, 1, 0}).Shape(65, "A", {0x10, 0}).Text());
    EXPECT_EQ(Lines("*X\nA,1,[\"ABAC\",STANDARD],-9\n"),
              ":2: error: font txt.shx has no characters for BC (linetype X) [missing-characters]\n"
              "1 error, 0 warnings in 1 file\n");
}

TEST_F(Check, NotesAreShownWhereTheyAreAskedFor) {
    folder.Write(
        "marks.shx",
        ShapeFileBuilder::Shapes().Shape(130, "MARK", {0x10, 0}).Shape(131, "TICK", {0x10, 0}).Text());
    const std::string text = "*X\nA,1,-1,[MARK,marks.shx]\n";
    EXPECT_EQ(Lines(text), "0 errors, 0 warnings in 1 file\n");
    EXPECT_EQ(Lines(text, {"--notes"}),
              ": note: no linetype uses these shapes of marks.shx: TICK [unused-shapes]\n"
              "0 errors, 0 warnings in 1 file\n");
}

TEST_F(Check, PatternsThatLoseLinesOrDrawThemOutOfPlaceAreTold) {
    // A tile 0.005 of 0.105 too low, ten times; after 3 lines 1.0002 of 1, ten times, of 0.5, which nobody
    // sees; after 3 lines 0.002 of 0.5; 64 × 0.001 is no cycle.
    const std::string text = "*A\n0,0,0,0,0.105\n*B\n0,0,0,0.3334,1,0.5,-0.5\n*C\n0,0,0,0.334,1,0.5,-0.5\n"
                             "*D\n0,0,0,0,1\n0,0,0,0.001,1,1,-1\n*E\n*D\n0,0,0,0,0.25,1,-1\n";
    const std::string found =
        ":2: error: drawn up to 48 % of the line spacing out of place: 0.105 is written 0.1; --faithful "
        "draws "
        "it (pattern A) [out-of-place]\n"
        ":6: warning: drawn up to 4 % of the shortest dash out of place: after 3 lines the dashes are 0.002 "
        "drawing units out of phase; --faithful draws it (pattern C) [out-of-place]\n"
        ":9: error: 1 of 3 families not drawn, as no rectangle of a strict symbol repeats them; --faithful "
        "draws all (pattern D) [lost-families]\n"
        ":10: error: the pattern has no lines (pattern E) [empty-pattern]\n"
        ":11: warning: the name is already used in line 7; both make one pattern (pattern D) "
        "[duplicate-pattern]\n"
        "3 errors, 2 warnings in 1 file\n";
    EXPECT_EQ(Walls(text), found);
    EXPECT_EQ(Walls(text, {"--notes"}), found);
}

TEST_F(Check, PatternsAreErrorsFromATenthOnAndWarningsFromAHundredthOn) {
    // The origin alone is cut, by 0.00505: of dashes 0.05, 0.051, 0.5 and 0.51 long.
    const auto severity = [this](const std::string& dashes) {
        const std::string found = Walls("*A\n0,0.30505,0,0,1," + dashes + "\n");
        return found.substr(0, found.find(" drawn"));
    };
    EXPECT_EQ(severity("0.05,-0.95"), ":2: error:");
    EXPECT_EQ(severity("0.0510,-0.949"), ":2: warning:");
    EXPECT_EQ(severity("0.5,-0.5"), ":2: warning:");
    EXPECT_EQ(severity("0.51,-0.51"), "0 errors, 0 warnings in 1 file\n");
}

TEST_F(Check, SlipsOfPatternFilesAreFound) {
    EXPECT_EQ(Walls(";%UNITS=MM\n*X\n0,0,0,0,x\n0,0,0,0,1,1,-1,\n0,0,0,0,1;remark\n"),
              ":1: warning: the file says that its lengths are in millimetres; conversions ignore that; "
              "--units inch scales them [ignored-units]\n"
              ":3: error: \"x\" is not a number; read as 0 (pattern X) [invalid-number]\n"
              ":4: error: missing number; read as 0 (pattern X) [empty-number]\n"
              ":5: warning: \";\" begins a comment only at the start of a line (pattern X) "
              "[comment-after-data]\n"
              "2 errors, 2 warnings in 1 file\n");
}

TEST_F(Check, ShapesThatCannotBeDrawnOrFoundAreTold) {
    const std::string found = Found("marks.shx", ShapeFileBuilder::Shapes()
                                                         .Shape(130, "MARK", {0x10, 0})
                                                         .Shape(131, "mark", {0x10, 0})
                                                         .Shape(132, "MARK", {0x10, 0})
                                                         .Shape(133, "LOOP", {7, 133, 0})
                                                         .Text() +
                                                     "more");
    EXPECT_NE(
        found.find("no linetype can find a name with lower-case letters; rename the shape (shape 131 mark) "
                   "[lower-case-shape-name]\n"),
        std::string::npos)
        << found;
    EXPECT_NE(
        found.find(
            "shape 130 has the same name; linetypes find that one (shape 132 MARK) [duplicate-shape-name]\n"),
        std::string::npos)
        << found;
    EXPECT_NE(
        found.find("it cannot be drawn: it draws itself as a subshape (shape 133 LOOP) [recursive-shape]\n"),
        std::string::npos)
        << found;
    EXPECT_NE(found.find("4 bytes after the end are not read [extra-bytes]\n"), std::string::npos) << found;
    EXPECT_NE(found.find("1 error, 3 warnings in 1 file\n"), std::string::npos) << found;
}

TEST_F(Check, NotesTellWhichCharactersAFontHas) {
    const auto fontOf = [](ShapeFileBuilder builder, unsigned first, unsigned last) {
        builder.FontInfo("FONT", {4, 1, 0, 0, 0, 0});
        for (unsigned number = first; number <= last; ++number) {
            builder.Shape(static_cast<std::uint16_t>(number), "", {0x10, 0});
        }
        return builder;
    };
    struct Row {
        std::string font;
        std::string coverage;
    };
    const Row rows[] = {
        {fontOf(ShapeFileBuilder::Unifont(), 32, 255).Text(),
         "has 95 of 95 characters of ASCII, 96 of 96 of Latin-1"},
        {fontOf(ShapeFileBuilder::Unifont(), 32, 126).Text(),
         "has 95 of 95 characters of ASCII, 0 of 96 of Latin-1: lacks U+00A0 to U+00FF"},
        {fontOf(ShapeFileBuilder::Shapes(), 33, 175).Shape(177, "", {0x10, 0}).Text(),
         "has 94 of 95 characters of ASCII, 17 of 96 of Latin-1: lacks U+0020, U+00B0, U+00B2 to U+00FF"},
        {fontOf(ShapeFileBuilder::Shapes(), 65, 65).Text(),
         "has 1 of 95 characters of ASCII, 0 of 96 of Latin-1: lacks U+0020 to U+0040, U+0042 to U+007E, "
         "U+00A0 to U+00FF"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(Found("font.shx", row.font), "0 errors, 0 warnings in 1 file\n");
        EXPECT_EQ(Found("font.shx", row.font, {"--notes"}),
                  ": note: " + row.coverage + " [font-coverage]\n0 errors, 0 warnings in 1 file\n");
    }
    const std::string json =
        RunTool({"check", folder.Write("font.shx", rows[1].font), "--notes", "--format", "json"}).output;
    EXPECT_NE(json.find("\"severity\": \"note\",\n      \"code\": \"font-coverage\",\n      \"message\": "
                        "\"has 95 of 95"),
              std::string::npos)
        << json;
    const std::string sarif = RunTool({"check", folder / "font.shx", "--notes", "--format", "sarif"}).output;
    EXPECT_NE(sarif.find("\"ruleId\": \"font-coverage\""), std::string::npos) << sarif;
}

TEST_F(Check, SignatureAndTrailerOfAShapeFileAreTold) {
    std::string shapes = ShapeFileBuilder::Shapes().Shape(130, "MARK", {0x10, 0}).Text();
    shapes.replace(0, 7, "Someone");
    shapes.resize(shapes.size() - 3);
    EXPECT_EQ(
        Found("marks.shx", shapes),
        ": error: byte 0: foreign signature: expected \"Vorlanx-86 \" at the start [foreign-signature]\n"
        ": error: byte " +
            std::to_string(shapes.size()) + ": missing \"EOF\" after the last shape [missing-trailer]\n" +
            "2 errors, 0 warnings in 1 file\n");
    const ToolResult glyphs = RunTool({"glyphs", folder / "marks.shx", "--tolerant"});
    EXPECT_EQ(glyphs.status, 0);
    EXPECT_NE(glyphs.output.find("\"MARK\""), std::string::npos);
    EXPECT_EQ(RunTool({"glyphs", folder / "marks.shx"}).status, 1);
    EXPECT_NE(RunTool({"linetypes", folder.Write("x.lin", "*X\nA,1,[MARK,marks.shx]\n"), "--tolerant"})
                  .errors.find("marks.shx: warning: foreign signature: expected \"Vorlanx-86 \" at the "
                               "start; read all the same"),
              std::string::npos);
}

TEST_F(Check, EntitiesThatWillNotBeDrawnAreCountedByBlock) {
    const std::string found =
        Found("drawing.json", R"({"format": "styleconversion/drawing", "version": 1, "insunits": 6,
        "linetypes": [{"name": "GAS", "dashes": [{"length": 1, "shapeStyle": "MARKS", "shapeNumber": 130}]}],
        "textStyles": [{"name": "MARKS", "fileName": "marks.shx"}],
        "blocks": [
            {"name": "GOOD", "entities": [{"type": "line", "start": [0, 0], "end": [1, 0]}]},
            {"name": "BAD", "entities": [
                {"type": "other", "class": "Ray"}, {"type": "other", "class": "Ray"},
                {"type": "line", "start": [0, 0], "end": [1, 0], "linetype": "NONE"},
                {"type": "line", "start": [0, 0], "end": [1, 0], "linetype": "GAS"},
                {"type": "hatch", "loops": []},
                {"type": "line", "start": [0, 0], "end": [1, 0], "color": "ByBlock"}]}]})");
    EXPECT_EQ(found,
              ": error: 1 entity (hatch) is not drawn: not solid, and no pattern (block BAD) "
              "[hatch-without-pattern]\n"
              ": error: 1 entity is drawn without dashes: the drawing has no linetype NONE (block BAD) "
              "[missing-linetype]\n"
              ": error: 1 entity is drawn without the shapes of linetype GAS: shape file marks.shx not found "
              "beside the drawing (block BAD) [dash-file-missing]\n"
              ": warning: 2 entities of the type Ray are not drawn (block BAD) [unsupported-class]\n"
              ": warning: colours by block are drawn black; no insert gives the block a colour (block BAD) "
              "[color-by-block]\n"
              "3 errors, 2 warnings in 1 file\n");
}

std::string DrawingOf(const std::string& blocks) {
    return R"({"format": "styleconversion/drawing", "version": 1, "insunits": 6, "blocks": [)" + blocks +
           "]}";
}

TEST_F(Check, WhatADrawingIsRefusedForIsFoundAllAtOnce) {
    EXPECT_EQ(
        Found("drawing.json", DrawingOf(R"({"name": "A", "entities": [7, {"type": "ray"}, 8]}, {"name": 5},
                                                {"name": "B", "units": -1, "entities": []})")),
        ": error: blocks[0].entities[0]: expected an object, found a number; the same in 1 more place (block "
        "A) [invalid-value]\n"
        ": error: blocks[0].entities[1].type: expected the type of an entity, found \"ray\" (block A) "
        "[invalid-value]\n"
        ": error: blocks[1].name: expected a string, found a number [invalid-value]\n"
        ": error: blocks[2].units: expected a whole number from 0 to 2147483647, found -1 (block B) "
        "[invalid-value]\n"
        "4 errors, 0 warnings in 1 file\n");
    EXPECT_EQ(Found("other.json", "{}"),
              ": error: format: expected \"styleconversion/drawing\", found nothing [missing-value]\n"
              "1 error, 0 warnings in 1 file\n");
}

// A drawing in millimetres with a block of these entities.
std::string BlockOf(const std::string& entities) {
    return R"({"format": "styleconversion/drawing", "version": 1, "insunits": 4, "blocks": [
        {"name": "B", "entities": [)" +
           entities + "]}]}";
}

TEST_F(Check, BlocksThatAreDrawnOutOfPlaceAreTold) {
    // Both numbers of the end are cut by 0.00999: 0.01413 of 0.10999.
    EXPECT_EQ(
        Found("a.json", BlockOf(R"({"type": "line", "start": [0, 0], "end": [0.10999, 0.10999]})")),
        ": error: drawn up to 13 % of its size out of place: 0.10999 is written 0.1; --faithful draws it "
        "(block B) [block-out-of-place]\n"
        "1 error, 0 warnings in 1 file\n");
    // 0.0071 of 0.7071.
    EXPECT_EQ(
        Found("a.json", BlockOf(R"({"type": "line", "start": [0, 0], "end": [0.7071, 0]})")),
        ": warning: drawn up to 1 % of its size out of place: 0.7071 is written 0.7; --faithful draws it "
        "(block B) [block-out-of-place]\n"
        "0 errors, 1 warning in 1 file\n");
    // 0.0071 of 7.
    EXPECT_EQ(Found("a.json", BlockOf(R"({"type": "line", "start": [0, 0], "end": [0.7071, 7]})")),
              "0 errors, 0 warnings in 1 file\n");
}

TEST_F(Check, BlocksOfAUnitWithoutAFactorAreTold) {
    const auto drawing = [](int ofDrawing, int ofBlock) {
        return R"({"format": "styleconversion/drawing", "version": 1, "insunits": )" +
               std::to_string(ofDrawing) + R"(, "blocks": [{"name": "B", "units": )" +
               std::to_string(ofBlock) +
               R"(, "entities": [{"type": "line", "start": [0, 0], "end": [10, 0]}]}]})";
    };
    const std::string rest = " has no factor and leaves the scale as it was; --faithful draws it "
                             "(block B) [block-out-of-place]\n"
                             "1 error, 0 warnings in 1 file\n";
    // 10 mm for 254 mm: inches are 25.4 mm, and those of land surveys hardly more.
    EXPECT_EQ(Found("a.json", drawing(4, 22)),
              ": error: drawn up to 96 % of its size out of place: unit 22" + rest);
    EXPECT_EQ(Found("a.json", drawing(22, 0)),
              ": error: drawn up to 96 % of its size out of place: unit 22" + rest);
    // 100 mm for 10 mm.
    EXPECT_EQ(Found("a.json", drawing(5, 99)),
              ": error: drawn up to 900 % of its size out of place: unit 99" + rest);
    // A millimetre either way.
    EXPECT_EQ(Found("a.json", drawing(4, 99)), "0 errors, 0 warnings in 1 file\n");
    EXPECT_EQ(Found("a.json", drawing(99, 0)), "0 errors, 0 warnings in 1 file\n");
}

TEST_F(Check, BlocksAreMeasuredAsTheyAreSeen) {
    // 0.00999 of 10, of 0.10999 where the long line is left out, and of nothing where it is 1.0999 as
    // inserted.
    const std::string text = R"({"format": "styleconversion/drawing", "version": 1, "insunits": 4, "blocks": [
        {"name": "A", "entities": [{"type": "insert", "block": "B", "scale": [10, 10]}]},
        {"name": "B", "entities": [{"type": "line", "start": [0, 0], "end": [0.10999, 0]},
            {"type": "line", "layer": "LONG", "start": [0, 0], "end": [10, 0]}]}]})";
    const std::string ofB =
        ": warning: drawn up to 9.1 % of its size out of place: 0.10999 is written 0.1; --faithful draws it "
        "(block B) [block-out-of-place]\n";
    EXPECT_EQ(Found("a.json", text, {"--expand"}), "0 errors, 0 warnings in 1 file\n");
    const std::string found = Found("a.json", text, {"--expand", "--ignore-layer", "LONG"});
    EXPECT_NE(found.find(ofB), std::string::npos) << found;
    EXPECT_EQ(found.find("(block A) [block-out-of-place]"), std::string::npos) << found;
}

TEST_F(Check, DashesThatOnlyTheDrawingKnowsAreTold) {
    const auto found = [this](const std::string& head, const std::string& line) {
        return RunTool(
                   {"check",
                    folder.Write("d.json",
                                 R"({"format": "styleconversion/drawing", "version": 1, "insunits": 4, )" +
                                     head + R"("layers": [{"name": "0", "linetype": "GAPS"}, {"name": "A"}],
            "linetypes": [{"name": "GAPS", "dashes": [{"length": 2}, {"length": -1}]}], "blocks": [{"name": "B",
            "entities": [{"type": "line", "start": [0, 0], "end": [900, 0], "color": 3, )" +
                                     line + "}]}]}")})
            .output;
    };
    EXPECT_NE(found("", R"("layer": "0")")
                  .find("the dashes of 1 entity are drawn without the linetypes of layers; "
                        "--faithful draws them (block B) [other-dashes]"),
              std::string::npos)
        << found("", R"("layer": "0")");
    const std::string scaled = R"("layer": "A", "linetype": "GAPS")";
    EXPECT_NE(
        found(R"("linetypeScale": 2, )", scaled).find("the dashes of 1 entity are drawn without their scale"),
        std::string::npos)
        << found(R"("linetypeScale": 2, )", scaled);
    EXPECT_EQ(found("", scaled).find("other-dashes"), std::string::npos);
    EXPECT_EQ(found(R"("linetypeScale": 2, )", R"("layer": "A")").find("other-dashes"), std::string::npos);
}

TEST_F(Check, PartsThatAreLostAreTold) {
    // A fill of one spline, which strict symbols skip, inside a square that is whole.
    EXPECT_EQ(Found("a.json", BlockOf(R"({"type": "hatch", "solid": true, "loops": [{"edges": [
        {"type": "spline", "degree": 1, "knots": [0, 0, 1, 2, 3, 3],
         "controlPoints": [[0, 0], [4, 0], [4, 4], [0, 0]]}]}]},
        {"type": "line", "start": [0, 0], "end": [4, 4]})")),
              ": error: 1 of 2 parts not drawn; --faithful draws all (block B) [lost-parts]\n"
              "1 error, 0 warnings in 1 file\n");
}

TEST_F(Check, BlocksThatAreNotConvertedByDefaultAreNotes) {
    const std::string text = DrawingOf(
        R"({"name": "PAPER", "layout": true, "entities": [{"type": "other", "class": "Ray"}]},
           {"name": "*U1", "anonymous": true, "entities": []}, {"name": "TREE", "entities": []})");
    EXPECT_EQ(Found("drawing.json", text), "0 errors, 0 warnings in 1 file\n");
    EXPECT_EQ(Found("drawing.json", text, {"--notes"}),
              ": note: a layout is converted only by --name (block PAPER) [only-by-name]\n"
              ": note: an anonymous block is converted only by --name (block *U1) [only-by-name]\n"
              "0 errors, 0 warnings in 1 file\n");
    EXPECT_EQ(
        Found("drawing.json", DrawingOf(R"({"name": "PAPER", "layout": true, "entities": []})")),
        ": error: the drawing has no block to convert; layouts and anonymous blocks are converted only by "
        "--name [no-blocks]\n1 error, 0 warnings in 1 file\n");
}

TEST_F(Check, EntitiesOnIgnoredLayersAreCountedWhereSomeAreIgnored) {
    const std::string text = DrawingOf(R"({"name": "TREE", "entities": [
        {"type": "point", "position": [0, 0], "layer": "Notes"},
        {"type": "other", "class": "Ray", "layer": "Notes"},
        {"type": "point", "position": [0, 0], "layer": "NOTES"}]})");
    EXPECT_EQ(Found("drawing.json", text, {"--ignore-layer", "Notes", "--ignore-layer", "0"}),
              ": warning: 2 entities on the ignored layer Notes are not drawn (block TREE) [ignored-layer]\n"
              "0 errors, 1 warning in 1 file\n");
    EXPECT_EQ(Found("drawing.json", text),
              ": warning: 1 entity of the type Ray is not drawn (block TREE) [unsupported-class]\n"
              "0 errors, 1 warning in 1 file\n");
}

// A colour by block is that of the first insert.
TEST_F(Check, ColoursByBlockAreFineWhereTheBlockIsInserted) {
    const std::string tree =
        R"({"name": "TREE", "entities": [{"type": "point", "position": [0, 0], "color": "ByBlock"}]})";
    EXPECT_EQ(Found("drawing.json", DrawingOf(tree + R"(, {"name": "PAPER", "layout": true,
                                               "entities": [{"type": "insert", "block": "TREE"}]})")),
              "0 errors, 0 warnings in 1 file\n");
}

TEST_F(Check, FilesAreSortedAndFaultsOfOneDoNotHideTheOthers) {
    const std::string b = folder.Write("b.lin", "*X\nA,x\n");
    const std::string a = folder.Write("a.pat", "*X\n");
    const std::string other = folder.Write("c.txt", "");
    const ToolResult result = RunTool({"check", other, b, folder / "none.lin", a});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.output,
              a + ":1: error: the pattern has no lines (pattern X) [empty-pattern]\n" + b +
                  ":2:3: error: expected a dash length or \"[\": A,x (linetype X) [invalid-dash]\n" + other +
                  ": error: unknown kind of file: the name must end in .lin, .pat, .shx, .json or .dxf "
                  "[unknown-file-kind]\n" +
                  folder / "none.lin" +
                  ": error: not found [missing-file]\n4 errors, 0 warnings in 4 files\n");
}

TEST_F(Check, JsonIsTheFindingsDocument) {
    const std::string file = folder.Write("x.lin", "*X\nA,x\n");
    std::string fileAsJson;
    for (const char character : file) {
        fileAsJson += character == '\\' ? "\\\\" : std::string(1, character); // separators on Windows
    }
    const ToolResult result = RunTool({"check", file, "--format", "json"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.output,
              "{\n  \"format\": \"styleconversion/findings\",\n  \"version\": 1,\n  \"errors\": 1,\n"
              "  \"warnings\": 0,\n  \"findings\": [\n    {\n      \"file\": \"" +
                  fileAsJson +
                  "\",\n      \"line\": 2,\n      \"column\": 3,\n      \"severity\": \"error\",\n"
                  "      \"code\": \"invalid-dash\",\n      \"message\": "
                  "\"expected a dash length or \\\"[\\\": A,x\",\n      \"item\": "
                  "\"linetype X\"\n    }\n  ]\n}\n");
}

TEST_F(Check, JsonHasTheByteAndTheNumberOfAShape) {
    const std::string shapes = ShapeFileBuilder::Shapes().Shape(131, "TICK", {6, 0}).Text();
    const std::size_t at = shapes.find("TICK");
    const ToolResult result = RunTool({"check", folder.Write("marks.shx", shapes), "--format", "json"});
    EXPECT_NE(result.output.find("\"byte\": " + std::to_string(at) +
                                 ",\n      \"shape\": 131,\n      \"severity\": \"error\""),
              std::string::npos)
        << result.output;
    const std::string text = RunTool({"check", folder / "marks.shx"}).output;
    EXPECT_NE(text.find("marks.shx: error: byte " + std::to_string(at) + ": it cannot be drawn: it returns"),
              std::string::npos)
        << text;
}

TEST_F(Check, WrongCommandLineIsTold) {
    EXPECT_EQ(RunTool({"check"}).status, 2);
    EXPECT_EQ(RunTool({"check", "-"}).status, 2);
    EXPECT_EQ(RunTool({"check", "x.lin", "--format", "svg"}).status, 2);
}

} // namespace
