// styleconv glyphs and styleconv list on shape files: what is drawn, what is refused, and in which words.
#include "tests/support/ShapeFileBuilder.h"
#include "tests/support/ToolRun.h"

#include <gtest/gtest.h>

namespace {

using support::RunTool;
using support::ScratchFolder;
using support::ToolResult;
using test_support::Bytes;
using test_support::ShapeFileBuilder;

// The document with its line breaks and the blanks of its indentation left out.
std::string Packed(const std::string& document) {
    std::string packed;
    bool lineStart = false;
    for (const char character : document) {
        if (character == '\n') {
            lineStart = true;
        } else if (!lineStart || character != ' ') {
            lineStart = false;
            packed += character;
        }
    }
    return packed;
}

// The list of glyphs of a document.
std::string GlyphsOf(const std::string& document) {
    const std::string packed = Packed(document);
    const std::string start = "\"glyphs\": ";
    const std::size_t at = packed.find(start);
    return at == std::string::npos ? packed : packed.substr(at + start.size());
}

std::string TwoShapes() {
    return ShapeFileBuilder::Shapes().Shape(130, "UP", {0x14, 0}).Shape(129, "", {0x10, 0}).Text();
}

TEST(GlyphsCommand, WritesADocumentOfAllShapesInFileOrder) {
    const ScratchFolder folder;
    const std::string file = folder.Write(
        "font.shx",
        ShapeFileBuilder::Shapes().FontInfo("F", {8, 2, 0, 0}).Shape(65, "UCA", {0x14, 0}).Text());
    const ToolResult result = RunTool({"glyphs", file});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(result.output, R"({
  "format": "styleconversion/glyphs",
  "version": 1,
  "kind": "kFont",
  "isVersion10": true,
  "fontInfo": [8,2,0,0],
  "glyphs": [
    {
      "number": 65,
      "name": "UCA",
      "geometry": "M 0,0 l 0,1 ",
      "end": [
        0,
        1
      ],
      "result": 0
    }
  ]
}
)");
}

TEST(GlyphsCommand, DrawsEachShapeByItself) {
    const ScratchFolder folder;
    const ToolResult result = RunTool({"glyphs", folder.Write("a.shx", TwoShapes())});
    EXPECT_EQ(GlyphsOf(result.output),
              R"([{"number": 130,"name": "UP","geometry": "M 0,0 l 0,1 ","end": [0,1],"result": 0},)"
              R"({"number": 129,"name": "","geometry": "M 0,0 l 1,0 ","end": [1,0],"result": 0}]})");
}

TEST(GlyphsCommand, NamesTheKindAndTheVersion) {
    const ScratchFolder folder;
    const std::string shapes = folder.Write("a.shx", ShapeFileBuilder::Shapes().Shape(1, "", {0}).Text());
    EXPECT_NE(RunTool({"glyphs", shapes})
                  .output.find("\"kind\": \"kShapes\",\n  \"isVersion10\": true,\n  "
                               "\"fontInfo\": [],"),
              std::string::npos);
    const std::string unifont =
        folder.Write("u.shx", ShapeFileBuilder::Unifont().Version("1.1\x1a").Shape(300, "", {0}).Text());
    EXPECT_NE(RunTool({"glyphs", unifont}).output.find("\"kind\": \"kUnifont\",\n  \"isVersion10\": false,"),
              std::string::npos);
}

TEST(GlyphsCommand, PicturesAreNamedByTheCharactersOfFonts) {
    const ScratchFolder folder;
    using Numbers = std::vector<std::uint16_t>;
    const auto named = [&](ShapeFileBuilder builder, bool isFont, const Numbers& numbers) {
        if (isFont) {
            builder.FontInfo("F", {1, 2, 3, 0, 0, 0});
        }
        for (const std::uint16_t number : numbers) {
            builder.Shape(number, number == 65 ? "UCA" : "", {0x10, 0});
        }
        const ToolResult result =
            RunTool({"glyphs", folder.Write("a.shx", builder.Text()), "--format", "svg"});
        EXPECT_EQ(result.status, 0) << result.errors;
        std::string names;
        const std::string bold = "font-weight=\"bold\">";
        for (std::size_t at = result.output.find(bold); at != std::string::npos;
             at = result.output.find(bold, at)) {
            at += bold.size();
            names += result.output.substr(at, result.output.find('<', at) - at) + "|";
        }
        return names;
    };
    // What a number beyond ASCII is in a font of bytes depends on a code page.
    EXPECT_EQ(named(ShapeFileBuilder::Shapes(), true, {10, 32, 33, 60, 65, 126, 127, 228}),
              "10|32|! (33)|&lt; (60)|A (65) UCA|~ (126)|127|228|");
    EXPECT_EQ(named(ShapeFileBuilder::Unifont(), true, {32, 65, 160, 228, 0x200b, 0x6c34, 0xd800, 0xe000}),
              "32|A (65) UCA|160|\xc3\xa4 (228)|8203|\xe6\xb0\xb4 (27700)|55296|57344|");
    EXPECT_EQ(named(ShapeFileBuilder::Shapes(), false, {65, 66}), "65 UCA|66|");
}

TEST(GlyphsCommand, GalleriesOfFontsKnowHowGlyphsFollowEachOther) {
    const ScratchFolder folder;
    const std::string font = folder.Write(
        "font.shx", ShapeFileBuilder::Shapes().FontInfo("F", {8, 2, 0, 0}).Shape(65, "A", {0x30, 0}).Text());
    const std::string other = folder.Write(
        "other.shx",
        ShapeFileBuilder::Unifont().FontInfo("F", {6, 0, 0, 0, 0, 0}).Shape(0x3a9, "", {0x20, 0}).Text());
    const auto page = [](std::vector<std::string> arguments) {
        arguments.insert(arguments.end(), {"--format", "html"});
        return RunTool(arguments).output;
    };
    const auto has = [](const std::string& text, const std::string& part) {
        return text.find(part) != std::string::npos;
    };
    const std::string one = page({"glyphs", font, "--scale", "2"});
    EXPECT_TRUE(has(one, R"( data-glyph="65">)"));
    EXPECT_TRUE(has(one, R"("glyph":{"advance":6.0,"above":16.0,"below":4.0})")) << one;
    const std::string both = page({"convert", font, other});
    EXPECT_TRUE(has(both, R"( data-glyph="65">)"));
    EXPECT_TRUE(has(both, R"( data-glyph="937">)"));
    EXPECT_TRUE(has(both, R"("glyph":{"advance":2.0,"above":6.0,"below":0.0})")) << both;
    // Neither shapes nor letters that stand on no line from the left to the right.
    const std::string shapes = folder.Write("marks.shx", TwoShapes());
    EXPECT_FALSE(has(page({"glyphs", shapes}), "data-glyph=\""));
    const std::vector<std::vector<std::string>> others = {
        {"--rotation", "30"}, {"--vertical"}, {"--at", "1,0"}};
    for (const std::vector<std::string>& options : others) {
        std::vector<std::string> arguments = {"glyphs", font};
        arguments.insert(arguments.end(), options.begin(), options.end());
        EXPECT_FALSE(has(page(arguments), "data-glyph=\"")) << options[0];
    }
}

TEST(GlyphsCommand, DrawsTheShapesAskedForInTheOrderAsked) {
    const ScratchFolder folder;
    const std::string file = folder.Write("a.shx", TwoShapes());
    const ToolResult result =
        RunTool({"glyphs", file, "--number", "129", "--number", "130", "--number", "129"});
    const std::string right =
        R"({"number": 129,"name": "","geometry": "M 0,0 l 1,0 ","end": [1,0],"result": 0})";
    const std::string up =
        R"({"number": 130,"name": "UP","geometry": "M 0,0 l 0,1 ","end": [0,1],"result": 0})";
    EXPECT_EQ(GlyphsOf(result.output), "[" + right + "," + up + "," + right + "]}");
}

TEST(GlyphsCommand, ANumberThatTheFileLacksIsAFault) {
    const ScratchFolder folder;
    const std::string file =
        folder.Write("a.shx", ShapeFileBuilder::Shapes().FontInfo("F", {1, 2, 3}).Shape(65, "A", {0}).Text());
    folder.Write("out.json", "old");
    const ToolResult result = RunTool({"glyphs", file, "--number", "0", "--number", "65", "--number", "66",
                                       "--number", "65601", "--number", "-1", "-o", folder / "out.json"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors,
              file + ": error: there is no shape 0\n" + file + ": error: there is no shape 66\n" + file +
                  ": error: there is no shape 65601\n" + file + ": error: there is no shape -1\n");
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(folder.Read("out.json"), "old");
}

TEST(GlyphsCommand, ToleratesANumberThatTheFileLacksBesideOneThatItHas) {
    const ScratchFolder folder;
    const std::string file = folder.Write("a.shx", ShapeFileBuilder::Shapes().Shape(65, "A", {0}).Text());
    const ToolResult one = RunTool({"glyphs", file, "--tolerant", "--number", "66", "--number", "65"});
    EXPECT_EQ(one.status, 0);
    EXPECT_EQ(one.errors, file + ": warning: there is no shape 66\n");
    EXPECT_EQ(one.output, RunTool({"glyphs", file, "--number", "65"}).output);
    const ToolResult none = RunTool({"glyphs", file, "--tolerant", "--number", "66"});
    EXPECT_EQ(none.status, 1);
    EXPECT_EQ(none.errors, file + ": warning: there is no shape 66\n" + file +
                               ": error: none of the shapes asked for can be converted\n");
    EXPECT_EQ(none.output, "");
}

TEST(GlyphsCommand, TolerantLeavesOutWhatCannotBeDrawnTheWayItIsAskedFor) {
    const ScratchFolder folder;
    // In vertical text only, the first one goes on to shape 99, which is not there.
    const std::string file = folder.Write(
        "a.shx",
        ShapeFileBuilder::Shapes().Shape(65, "A", {14, 7, 99, 0x10, 0}).Shape(66, "B", {0x10, 0}).Text());
    const ToolResult across = RunTool({"glyphs", file, "--tolerant"});
    EXPECT_EQ(across.errors, "");
    EXPECT_EQ(across.output, RunTool({"glyphs", file}).output);
    const ToolResult down = RunTool({"glyphs", file, "--tolerant", "--vertical"});
    EXPECT_EQ(down.status, 0);
    EXPECT_EQ(down.errors, file + ": warning: it cannot be drawn: one of its subshapes is missing; skipped "
                                  "(shape 65 A)\n");
    EXPECT_EQ(down.output, RunTool({"glyphs", file, "--vertical", "--number", "66"}).output);
}

TEST(GlyphsCommand, ScaleRotationAndStartActOnEveryShape) {
    const ScratchFolder folder;
    const std::string file = folder.Write("a.shx", TwoShapes());
    const ToolResult result =
        RunTool({"glyphs", file, "--number", "130", "--scale", "2", "--rotation", "90", "--at", "-1,.5"});
    // At 90 degrees upward becomes leftward; twice the cosine of 90 degrees is 1.2246e-16.
    EXPECT_EQ(GlyphsOf(result.output),
              R"([{"number": 130,"name": "UP","geometry": "M -1,0.5 l -2,1.22464679914735e-16 ",)"
              R"("end": [-3,0.5000000000000001],"result": 0}]})");
}

TEST(GlyphsCommand, VerticalDrawsWhatIsForVerticalTextOnly) {
    const ScratchFolder folder;
    const std::string file =
        folder.Write("a.shx", ShapeFileBuilder::Shapes().Shape(1, "", {14, 0x14, 0x10, 0}).Text());
    EXPECT_NE(RunTool({"glyphs", file}).output.find("\"M 0,0 l 1,0 \""), std::string::npos);
    EXPECT_NE(RunTool({"glyphs", file, "--vertical"}).output.find("\"M 0,0 l 0,1 M 0,1 l 1,0 \""),
              std::string::npos);
}

TEST(GlyphsCommand, AShapeThatFailsIsWrittenWithItsResult) {
    const ScratchFolder folder;
    const std::string file = folder.Write("a.shx", ShapeFileBuilder::Shapes()
                                                       .Shape(1, "CUT", {0x10, 8, 1})
                                                       .Shape(2, "SELF", {0x10, 7, 2, 0})
                                                       .Shape(3, "GOOD", {0x10, 0})
                                                       .Shape(4, "FULL", {5, 5, 5, 5, 0})
                                                       .Shape(5, "EMPTY", {6, 0})
                                                       .Shape(6, "GONE", {7, 99, 0})
                                                       .Shape(7, "FIRST", {7, 1, 0})
                                                       .Text());
    const ToolResult result = RunTool({"glyphs", file});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(GlyphsOf(result.output),
              R"([{"number": 1,"name": "CUT","result": 2},{"number": 2,"name": "SELF","result": 7},)"
              R"({"number": 3,"name": "GOOD","geometry": "M 0,0 l 1,0 ","end": [1,0],"result": 0},)"
              R"({"number": 4,"name": "FULL","result": 5},{"number": 5,"name": "EMPTY","result": 6},)"
              R"({"number": 6,"name": "GONE","result": 8},{"number": 7,"name": "FIRST","result": 2}]})");
}

TEST(GlyphsCommand, DecodesWithTheKindOfTheFile) {
    const ScratchFolder folder;
    const std::string file = folder.Write(
        "a.shx", ShapeFileBuilder::Unifont().Shape(300, "", {7, 1, 45, 0}).Shape(301, "", {0x10, 0}).Text());
    EXPECT_EQ(GlyphsOf(RunTool({"glyphs", file, "--number", "300"}).output),
              R"([{"number": 300,"name": "","geometry": "M 0,0 l 1,0 ","end": [1,0],"result": 0}]})");
}

TEST(GlyphsCommand, AnEndThatIsNotFiniteIsNull) {
    Bytes program;
    for (int i = 0; i < 200; ++i) {
        program.insert(program.end(), {4, 255});
    }
    program.insert(program.end(), {2, 8, 1, 1, 0});
    const ScratchFolder folder;
    const std::string file = folder.Write("a.shx", ShapeFileBuilder::Shapes().Shape(1, "", program).Text());
    EXPECT_EQ(GlyphsOf(RunTool({"glyphs", file}).output),
              R"([{"number": 1,"name": "","geometry": "","end": [null,null],"result": 0}]})");
}

TEST(GlyphsCommand, NamesAreReadAsUtf8OrElseAsWindows1252) {
    const ScratchFolder folder;
    const std::string windows =
        folder.Write("w.shx", ShapeFileBuilder::Shapes().Shape(1, "B\xe4UM", {0x10, 0}).Text());
    const std::string utf8 =
        folder.Write("u.shx", ShapeFileBuilder::Shapes().Shape(1, "B\xc3\xa4UM", {0x10, 0}).Text());
    EXPECT_NE(RunTool({"glyphs", windows}).output.find("\"name\": \"B\xc3\xa4UM\""), std::string::npos);
    EXPECT_NE(RunTool({"glyphs", utf8}).output.find("\"name\": \"B\xc3\xa4UM\""), std::string::npos);
    EXPECT_NE(
        RunTool({"glyphs", windows, "--code-page", "WINDOWS-1253"}).output.find("\"name\": \"B\xce\xb4UM\""),
        std::string::npos);
    EXPECT_EQ(RunTool({"list", windows}).output, "B\xc3\xa4UM\n");
}

TEST(GlyphsCommand, StandardInputIsReadForADash) {
    const ToolResult result = RunTool({"glyphs", "-", "--number", "130"}, TwoShapes());
    EXPECT_EQ(result.status, 0);
    EXPECT_NE(result.output.find("\"UP\""), std::string::npos);
    EXPECT_EQ(RunTool({"glyphs", "-"}, "").errors,
              "standard input: error: byte 0: the file ends within its signature\n");
}

TEST(GlyphsCommand, ReplacesItsOutputInOneStep) {
    const ScratchFolder folder;
    const std::string file = folder.Write("a.shx", TwoShapes());
    folder.Write("out.json", "old");
    EXPECT_EQ(RunTool({"glyphs", file, "-o", folder / "out.json"}).status, 0);
    EXPECT_EQ(folder.Read("out.json"), RunTool({"glyphs", file}).output);
    EXPECT_EQ(folder.Names(), (std::vector<std::string>{"a.shx", "out.json"}));
}

TEST(GlyphsCommand, NumbersOnTheCommandLineAreHeldToTheirForm) {
    const ScratchFolder folder;
    const std::string file = folder.Write("a.shx", TwoShapes());
    const std::vector<std::vector<std::string>> wrong = {
        {"--scale", "x"},     {"--scale", ""},    {"--scale", "1x"},     {"--scale", "nan"},
        {"--scale", "1e999"}, {"--scale", "0x1"}, {"--rotation", "inf"}, {"--at", "1"},
        {"--scale", "0"},     {"--scale", "-2"},  {"--scale", "-0"},     {"--scale", "inf"},
        {"--at", "1,"},       {"--at", "1,2,3"},  {"--at", "1;2"},       {"--number", "A"},
        {"--number", "1.5"}};
    for (const std::vector<std::string>& words : wrong) {
        const ToolResult result = RunTool({"glyphs", file, words[0], words[1]});
        EXPECT_EQ(result.status, 2) << words[0] << ' ' << words[1];
        EXPECT_EQ(result.output, "") << words[0] << ' ' << words[1];
    }
    EXPECT_EQ(RunTool({"glyphs", file, "--scale", "1e-3", "--rotation", "-720.5", "--at", "-.5,-0"}).status,
              0);
}

struct Refusal {
    std::string bytes;
    const char* sentence; // what stands behind the file's name
};

TEST(GlyphsCommand, EveryFaultOfAFileHasItsPlaceAndItsSentence) {
    const auto shapes = [] { return ShapeFileBuilder::Shapes().Shape(129, "A", {1, 0}); };
    const auto unifont = [] { return ShapeFileBuilder::Unifont().Shape(300, "A", {1, 0}); };
    const auto font = [](const Bytes& bytes) { return ShapeFileBuilder::Shapes().FontInfo("", bytes); };
    const char* const kUnknownKind =
        R"(byte 11: unknown kind of shape file: expected "shapes " or "unifont ")";
    const char* const kFontInfoSize =
        "byte 34: the font information (shape 0) must have 3 to 1024 bytes after its name";
    // The headers end at 24 and 25, the counts stand at 28 and 25, the first entry at 34 and 27.
    const Refusal refusals[] = {
        {"Vorl", "byte 4: the file ends within its signature"},
        {shapes().Magic("Vorlanx 86 ").Text(),
         "byte 0: not a shape file: expected \"Vorlanx-86 \" at the start"},
        {shapes().TextCutTo(14), "byte 14: the file ends within its kind"},
        {shapes().KindWord("shapesxx ").Text(), kUnknownKind},
        {shapes().KindWord("fonts ").Text(), kUnknownKind},
        {ShapeFileBuilder::Bigfont().Text(),
         R"(byte 11: big fonts are not supported; use a font of the kind "shapes " or "unifont ")"},
        {shapes().TextCutTo(21), "byte 21: the file ends within its version"},
        {shapes().Version("1.0" + std::string(1021, ' ') + "\x1a").Text(),
         "byte 18: the version does not end: expected the byte 1A (hexadecimal) within 1024 bytes"},
        {shapes().Version("1.2\x1a").Text(), "byte 18: unknown version: expected 1.0 or 1.1"},
        {shapes().TextCutTo(29), "byte 29: the file ends within its count of shapes"},
        {unifont().TextCutTo(26), "byte 26: the file ends within its count of shapes"},
        {shapes().TextCutTo(31), "byte 31: the file ends within the index of its shapes"},
        {unifont().TextCutTo(30),
         "byte 30: the file ends within its list of shapes: there are fewer than it counts"},
        {shapes().TextCutTo(35), "byte 35: the file ends within the name of shape 129"},
        {font({1, 2, 3}).TextCutTo(34),
         "byte 34: the file ends within the name of the font information (shape 0)"},
        {ShapeFileBuilder::Shapes().Shape(129, "A", {}).Text(),
         "byte 34: shape 129 has no program after its name"},
        {shapes().Shape(129, "B", {1}).Text(), "byte 42: shape 129 is defined twice"},
        {shapes().TextCutTo(37), "byte 37: the file ends within the program of shape 129"},
        {font({1, 2, 3}).FontInfo("", {1, 2, 3}).Text(),
         "byte 42: the font information (shape 0) is defined twice"},
        {font({1, 2}).Text(), kFontInfoSize},
        {font(Bytes(1025, 1)).Text(), kFontInfoSize},
        {font({1, 2, 3}).TextCutTo(37), "byte 37: the file ends within the font information (shape 0)"},
        {shapes().Trailer("EO").Text(), "byte 40: missing \"EOF\" after the last shape"},
        {shapes().Trailer("END").Text(), "byte 38: missing \"EOF\" after the last shape"},
    };
    const ScratchFolder folder;
    for (const Refusal& refusal : refusals) {
        const std::string file = folder.Write("a.shx", refusal.bytes);
        for (const char* const command : {"glyphs", "list"}) {
            const ToolResult result = RunTool({command, file});
            EXPECT_EQ(result.status, 1) << refusal.sentence;
            EXPECT_EQ(result.output, "") << refusal.sentence;
            const bool helps = std::string(refusal.sentence).find("EOF") != std::string::npos;
            EXPECT_EQ(result.errors,
                      file + ": error: " + refusal.sentence + "\n" +
                          (helps && command == std::string("glyphs") ? support::HelpBehindErrors(file) : ""));
        }
    }
}

TEST(GlyphsCommand, AFileWithoutShapesIsAFault) {
    const ScratchFolder folder;
    const std::string empty = folder.Write("e.shx", ShapeFileBuilder::Shapes().Text());
    const std::string only =
        folder.Write("o.shx", ShapeFileBuilder::Shapes().FontInfo("F", {1, 2, 3}).Text());
    for (const std::string& file : {empty, only}) {
        for (const char* const command : {"glyphs", "list"}) {
            const ToolResult result = RunTool({command, file});
            EXPECT_EQ(result.status, 1);
            EXPECT_EQ(result.output, "");
            EXPECT_EQ(result.errors, file + ": error: the file has no shapes\n");
        }
    }
}

TEST(GlyphsCommand, AFileThatIsNotThereIsAFault) {
    const ScratchFolder folder;
    const ToolResult result = RunTool({"glyphs", folder / "no.shx"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors, (folder / "no.shx") + ": error: not found\n");
}

TEST(ListCommand, PrintsTheNamesOfShapesInFileOrder) {
    const ScratchFolder folder;
    const std::string file = folder.Write("a.shx", ShapeFileBuilder::Shapes()
                                                       .FontInfo("FONT", {1, 2, 3})
                                                       .Shape(9, "ZIG", {0})
                                                       .Shape(5, "", {0})
                                                       .Shape(7, "ARROW", {0})
                                                       .Shape(6, "ZIG", {0})
                                                       .Text());
    const ToolResult result = RunTool({"list", file});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.output, "ZIG\nARROW\nZIG\n");
}

} // namespace
