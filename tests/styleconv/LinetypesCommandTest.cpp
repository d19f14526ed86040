// styleconv linetypes and styleconv list on linetype files: what is converted, what is refused, and in which
// words.
#include "tests/styleconv/SampleFiles.h"
#include "tests/support/ShapeFileBuilder.h"
#include "tests/support/ToolRun.h"

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>

namespace {

using samples::Font;
using samples::Marks;
using support::RunTool;
using support::ScratchFolder;
using support::ToolResult;
using support::ValuesOf;
using test_support::ShapeFileBuilder;

using Texts = std::vector<std::string>;

class LinetypesCommand : public testing::Test {
protected:
    // The tool runs in another directory than the one that the files are in.
    ToolResult Run(const std::string& text, Texts more = {}) {
        Texts arguments = {"linetypes", folder.Write("lines.lin", text)};
        arguments.insert(arguments.end(), more.begin(), more.end());
        return RunTool(arguments);
    }

    // Every line but the last, which helps, begins with the file's name.
    std::string WithoutFileName(std::string lines) const {
        const std::string file = folder / "lines.lin";
        const std::size_t help = lines.find(support::HelpBehindErrors(file));
        lines.erase(std::min(help, lines.size()));
        for (std::size_t at = 0; at < lines.size(); at = lines.find('\n', at) + 1) {
            if (lines.compare(at, file.size() + 1, file + ":") != 0) {
                return "unexpected: " + lines;
            }
            lines.erase(at, file.size() + 1);
        }
        return lines;
    }

    // What is said on standard error about the file, without its name.
    std::string Fault(const std::string& text, const Texts& more = {}) {
        const ToolResult result = Run(text, more);
        EXPECT_EQ(result.status, 1);
        EXPECT_EQ(result.output, "");
        return WithoutFileName(result.errors);
    }

    // The folder of the linetype file, as messages have it.
    std::string Here() const { return folder / ""; }

    ScratchFolder folder;
};

TEST_F(LinetypesCommand, ConvertsALinetypeWithAllItsKeys) {
    const ToolResult result = Run("*DASHED,Dashed __ __\nA,.5,-.25\n");
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(result.output.substr(0, result.output.find_last_not_of('\n') + 1), R"({
  "format": "styleconversion/symbols",
  "version": 1,
  "symbols": [
    {
      "type": "SimpleSymbolDefinition",
      "name": "DASHED",
      "description": "Dashed __ __",
      "graphics": [
        {
          "type": "Path",
          "geometry": "M 0,0 L 0.5,0 ",
          "lineColor": "%LINECOLOR%",
          "lineWeight": "%LINEWEIGHT%",
          "lineWeightScalable": "false"
        }
      ],
      "parameters": [
        {
          "identifier": "LINECOLOR",
          "displayName": "Line &Color",
          "description": "Line Color",
          "defaultValue": "ff000000",
          "dataType": 7
        },
        {
          "identifier": "LINEWEIGHT",
          "displayName": "Line &Thickness",
          "description": "Line Thickness",
          "defaultValue": "0.0",
          "dataType": 8
        }
      ],
      "lineUsage": {
        "repeat": "0.75"
      }
    }
  ]
})");
}

TEST_F(LinetypesCommand, ReadsStandardInput) {
    const ToolResult result = RunTool({"linetypes", "-"}, "*X\nA,1\n");
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(ValuesOf(result.output, "name"), Texts{"X"});
}

TEST_F(LinetypesCommand, ScaleMultipliesLengths) {
    EXPECT_EQ(ValuesOf(Run("*X\nA,1,-1\n", {"--scale", "25.4"}).output, "geometry"),
              Texts{"M 0,0 L 25.4,0 "});
    for (const char* const scale : {"wide", "1e999", "0", "-1", "-0", "inf", "nan", "1e-999"}) {
        EXPECT_EQ(Run("*X\nA,1\n", {"--scale", scale}).status, 2) << scale;
    }
}

TEST_F(LinetypesCommand, GivesTheLinetypesAskedForInTheOrderAsked) {
    const std::string text = "*A\nA,1\n*B\nA,2\n*A\nA,3\n*a\nA,4\n";
    EXPECT_EQ(ValuesOf(Run(text).output, "repeat"), (Texts{"1", "2", "3", "4"}));
    EXPECT_EQ(ValuesOf(Run(text, {"--name", "B", "--name", "A"}).output, "repeat"), (Texts{"2", "1", "3"}));
    EXPECT_EQ(ValuesOf(Run(text, {"--name", "a", "--name", "a"}).output, "repeat"), (Texts{"4", "4"}));
}

TEST_F(LinetypesCommand, NamesThatTheFileLacksAreFaults) {
    EXPECT_EQ(Fault("*A\nA,1\n", {"--name", "B", "--name", "A"}), " error: there is no linetype named B\n");
}

TEST_F(LinetypesCommand, NamesAreOfTheFilesEncoding) {
    // 0xE9 is é in the encoding that a file which is not UTF-8 is taken to have.
    const ToolResult result = Run("*caf\xE9\nA,1\n", {"--name", "caf\xC3\xA9"});
    EXPECT_EQ(ValuesOf(result.output, "name"), Texts{"caf\xC3\xA9"});
}

TEST_F(LinetypesCommand, FileWithoutLinetypesIsAFault) {
    EXPECT_EQ(Fault("; nothing\nA,1\n"),
              " error: the file has no linetypes: no line begins with \"*\" and a name\n");
    EXPECT_EQ(Fault("\xEF\xBB\xBF*X\nA,1\n"),
              "1: error: a UTF-8 byte-order mark hides the header behind it; save the file without it\n");
}

TEST_F(LinetypesCommand, SyntaxErrorsNameLineElementAndByte) {
    EXPECT_EQ(Fault("*GOOD\nA,1\n*BAD\n  A,1,,2\n"),
              "4:7: error: expected a dash length or \"[\": A,1,,2 (linetype BAD)\n");
    EXPECT_EQ(Fault("*BAD\nB,1\n"),
              "2:1: error: expected \"A,\" or \"S,\" at the start of the pattern: B,1 (linetype BAD)\n");
    EXPECT_EQ(Fault("*BAD\n"), "1: error: header without a pattern (linetype BAD)\n");
    EXPECT_EQ(Fault("*BAD\nA,1,\n"), "2: error: the pattern ends with a comma (linetype BAD)\n");
    EXPECT_EQ(Fault("*BAD\nA,[\"GAS\"],1\n"),
              "2:10: error: missing text style, as in [\"TEXT\",STANDARD]: A,[\"GAS\"],1 (linetype BAD)\n");
}

TEST_F(LinetypesCommand, EverySyntaxErrorHasWordsOfItsOwn) {
    const std::pair<const char*, const char*> cases[] = {
        {R"(["A)", "missing closing quote"},
        {R"(["A"x)", R"(missing text style, as in ["TEXT",STANDARD])"},
        {R"(["A",ST)", R"(expected "," or "]" after the text style)"},
        {R"(["A",])", "missing name of the text style"},
        {"[A]", R"(expected "," and a shape file after the shape name)"},
        {"[A,f", R"(expected "," or "]" after the shape file)"},
        {"[A,]", "missing name of the shape file"},
        {"[A,f,Z=1]", "expected A=, R=, S=, X= or Y="},
        {"[A,f,S]", R"(expected "=")"},
        {"[A,f,S=x]", "expected a number"},
        {"[A,f,S=1d]", "units (d, g, r) are allowed only with A= and R="},
        {"[A,f,S=1 ]", R"(expected "," or "]")"},
    };
    for (const auto& [element, words] : cases) {
        EXPECT_NE(
            Fault("*X\nA," + std::string(element) + "\n").find(std::string(" error: ") + words + ": A,"),
            std::string::npos)
            << element;
    }
}

TEST_F(LinetypesCommand, ShapeFilesAreFoundBesideTheLinetypeFile) {
    folder.Write("marks.shx", Marks());
    EXPECT_EQ(ValuesOf(Run("*X\nA,1,[MARK,marks.shx]\n").output, "geometry"),
              (Texts{"M 1,0 l 1,0 ", "M 0,0 L 1,0 "}));
}

TEST_F(LinetypesCommand, ShapeFilesAreFoundInTheFoldersGivenInTheirOrder) {
    std::filesystem::create_directory(folder / "one");
    std::filesystem::create_directory(folder / "two");
    folder.Write("one/other.shx", Marks());
    folder.Write("two/marks.shx", Marks());
    const std::string text = "*X\nA,1,[MARK,marks],[MARK,other]\n";
    EXPECT_EQ(Run(text, {"--shapes", folder / "one", "--shapes", folder / "two"}).status, 0);
    folder.Write("one/marks.shx", "this is no shape file");
    EXPECT_EQ(Run(text, {"--shapes", folder / "one", "--shapes", folder / "two"}).status, 1);
    EXPECT_EQ(Run(text, {"--shapes", folder / "two", "--shapes", folder / "one"}).status, 0);
}

TEST_F(LinetypesCommand, ShapeFileThatIsNotFoundIsNamedWithTheFoldersSearched) {
    EXPECT_EQ(Fault("*X\nA,1\n*Y\nA,1,\n[MARK,marks.shx]\n", {"--shapes", "shapes/", "--shapes", "more"}),
              "5: error: shape file marks.shx not found in ., " + Here() + ", shapes/, more (linetype Y)\n");
    EXPECT_EQ(Fault("*X\nA,[MARK,sub/marks.shx]\n", {"--shapes", "shapes/"}),
              "2: error: shape file sub/marks.shx not found in sub/, shapes/ (linetype X)\n");
}

TEST_F(LinetypesCommand, NothingIsBesideStandardInput) {
    const ToolResult result = RunTool({"linetypes", "-", "--shapes", "shapes/"}, "*X\nA,[MARK,marks.shx]\n");
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors,
              "standard input:2: error: shape file marks.shx not found in ., shapes/ (linetype X)\n"
              "styleconv: nothing was converted; --tolerant converts the rest of the file\n");
}

TEST_F(LinetypesCommand, DamagedShapeFileIsNamedWithItsFault) {
    folder.Write("marks.shx", "Vorlanx-86 shapes 2.0\r\n\x1A");
    EXPECT_EQ(Fault("*X\nA,[MARK,marks.shx]\n"),
              "2: error: shape file marks.shx cannot be read: byte 18: unknown version: expected 1.0 or 1.1 "
              "(linetype X)\n");
}

TEST_F(LinetypesCommand, FaultsOfElementsAreSaidOneALine) {
    folder.Write(
        "marks.shx",
        ShapeFileBuilder::Shapes().Shape(130, "MARK", {0x10, 0}).Shape(131, "LOOP", {7, 131, 0}).Text());
    folder.Write("font.shx", Font());
    EXPECT_EQ(
        Fault("*X\nA,1,[NONE,marks.shx],[LOOP,marks.shx]\n*Y\nA,[A,font.shx]\n"),
        "2: error: shape file marks.shx has no shape NONE (linetype X)\n"
        "2: error: shape LOOP of marks.shx cannot be drawn: it draws itself as a subshape (linetype X)\n"
        "4: error: shape file font.shx is a font; shapes cannot be taken from fonts (linetype Y)\n");
}

TEST_F(LinetypesCommand, FontOfHeightZeroIsAFault) {
    folder.Write("txt.shx",
                 ShapeFileBuilder::Shapes().FontInfo("FONT", {0, 1, 0}).Shape(65, "A", {0x10, 0}).Text());
    EXPECT_EQ(Fault("*GAS\nA,1,[\"A\",STANDARD]\n"),
              "2: error: font txt.shx of text style STANDARD has height 0 (linetype GAS)\n");
}

TEST_F(LinetypesCommand, DefaultStyleIsStandardInItsFontFile) {
    folder.Write("txt.shx", Font());
    const ToolResult result = Run("*X\nA,1,[\"A\",Standard,S=2]\n");
    EXPECT_EQ(result.errors, "");
    // 2 / 4 units high.
    EXPECT_EQ(ValuesOf(result.output, "geometry"), (Texts{"M 1,0 l 0.5,0 ", "M 0,0 L 1,0 "}));
}

TEST_F(LinetypesCommand, BuiltInFontStandsInForTheDefaultStylesAndSaysSo) {
    const ToolResult result = Run("*X\nA,1,[\"I\",STANDARD,S=21]\n", {"--shapes", "shapes/"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.errors, folder / "lines.lin" + ": note: font file txt.shx not found in ., " + Here() +
                                 ", shapes/; the built-in font is used instead\n");
    // Its letters are 21 units high, and its I is one stroke from top to bottom.
    EXPECT_EQ(ValuesOf(result.output, "geometry"), (Texts{"M 5,21 l 0,-21 ", "M 0,0 L 1,0 "}));
}

TEST_F(LinetypesCommand, UnknownStyleIsAFault) {
    EXPECT_EQ(
        Fault("*X\nA,1,[\"A\",roads]\n"),
        "2: error: text style roads not found: without a drawing there is only STANDARD; add --drawing with "
        "the drawing that has it, or give it a font with --font STYLE=FONT (linetype X)\n");
}

class LinetypesOverADrawing : public LinetypesCommand {
protected:
    Texts Drawing(const std::string& textStyles) const {
        return {"--drawing",
                folder.Write("drawing.json", R"({"format": "styleconversion/drawing", "version": 1,
            "textStyles": [)" + textStyles + "]}")};
    }
};

TEST_F(LinetypesOverADrawing, TextStylesAreTheDrawings) {
    const Texts drawing = Drawing(R"({"name": "Roads", "typeface": "Arial", "bold": true, "textSize": 2.5},
                                     {"name": "Pipes", "fileName": "pipes.shx", "textSize": 8})");
    folder.Write("pipes.shx", Font());
    const ToolResult result = Run("*X\nA,1,[\"A\",ROADS],[\"A\",pipes]\n", drawing);
    EXPECT_EQ(result.errors, "");
    // A height of 2.5; a stroke of 1 / 4 × 8 units.
    EXPECT_EQ(ValuesOf(result.output, "height"), Texts{"2.5"});
    EXPECT_EQ(ValuesOf(result.output, "bold"), Texts{"true"});
    EXPECT_EQ(ValuesOf(result.output, "geometry"), (Texts{"M 1,0 l 2,0 ", "M 0,0 L 1,0 "}));
}

TEST_F(LinetypesOverADrawing, StandardIsNotImplied) {
    EXPECT_EQ(Fault("*X\nA,1,[\"A\",STANDARD]\n", Drawing("")),
              "2: error: text style STANDARD not found in " + folder / "drawing.json" + " (linetype X)\n");
}

TEST_F(LinetypesOverADrawing, BuiltInFontDoesNotStandIn) {
    EXPECT_EQ(Fault("*X\nA,1,[\"A\",STANDARD]\n", Drawing(R"({"name": "STANDARD", "fileName": "txt.shx"})")),
              "2: error: font file txt.shx of text style STANDARD not found in ., " + Here() +
                  " (linetype X)\n");
}

TEST_F(LinetypesOverADrawing, DrawingThatCannotBeReadIsAFault) {
    const ToolResult result = Run("*X\nA,1\n", Drawing(R"({"name": "S", "bold": 1})"));
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors.find(folder / "drawing.json" + ": error: textStyles[0].bold: expected "), 0U);
    EXPECT_EQ(Run("*X\nA,1\n", {"--drawing", folder / "none.json"}).status, 1);
}

TEST_F(LinetypesCommand, FailureLeavesTheOutputFileAsItWas) {
    folder.Write("out.json", "before");
    Run("*X\nA,x\n", {"-o", folder / "out.json"});
    EXPECT_EQ(folder.Read("out.json"), "before");
}

TEST_F(LinetypesCommand, ListPrintsNamesInFileOrder) {
    const ToolResult result =
        RunTool({"list", folder.Write("a.LIN", "*B,x\nA,[\"A\",none],[M,none]\n*A\nA,1\n*B\nA,1\n")});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.output, "B\nA\nB\n");
}

TEST_F(LinetypesCommand, ListRefusesWhatCannotBeRead) {
    EXPECT_EQ(RunTool({"list", folder.Write("a.lin", "*B\nA,x\n")}).status, 1);
    EXPECT_EQ(RunTool({"list", folder.Write("b.lin", "nothing\n")}).status, 1);
}

} // namespace
