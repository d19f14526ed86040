// styleconv patterns and styleconv list on pattern files: what is converted, what is refused, and in which
// words.
#include "tests/support/ToolRun.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace {

using support::RunTool;
using support::ScratchFolder;
using support::ToolResult;
using support::ValuesOf;

using Texts = std::vector<std::string>;

// At 17 degrees the shift 0.1 of the cycle 1 never comes back near a start, and no lattice cell stands
// upright: the stacked search ends with its best error above a quarter of the shift.
constexpr const char* kNoTile = "*NOTILE\n17,0,0,0.6180339887,1,0.5,-100.5\n";

TEST(PatternsCommand, ConvertsAPatternWithAllItsKeys) {
    const ScratchFolder folder;
    const ToolResult result =
        RunTool({"patterns", folder.Write("a.pat", "*LINE,Parallel lines\n0,0,0,0,.125\n")});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(result.output, R"({
  "format": "styleconversion/symbols",
  "version": 1,
  "symbols": [
    {
      "type": "SimpleSymbolDefinition",
      "name": "LINE",
      "graphics": [
        {
          "type": "Path",
          "geometry": "M 0.0,0.0 h 10.0",
          "lineColor": "%HATCHCOLOR%"
        }
      ],
      "parameters": [
        {
          "identifier": "HATCHCOLOR",
          "displayName": "&Hatch Color",
          "description": "Color for the hatch style",
          "defaultValue": "0xff000000",
          "dataType": 6
        },
        {
          "identifier": "HATCHANGLE",
          "displayName": "Hatch &Color",
          "description": "Rotation angle for the hatch style",
          "defaultValue": "0.0",
          "dataType": 5
        }
      ],
      "areaUsage": {
        "angle": "%HATCHANGLE%",
        "repeatX": "10.0",
        "repeatY": "0.125"
      }
    }
  ]
}
)");
}

TEST(PatternsCommand, ConvertsAllInTheOrderOfTheirNames) {
    const ScratchFolder folder;
    const ToolResult result =
        RunTool({"patterns", folder.Write("a.pat", "*b\n0,0,0,0,1\n*a\n0,0,0,0,1\n*B\n0,0,0,0,1\n")});
    EXPECT_EQ(ValuesOf(result.output, "name"), (Texts{"B", "a", "b"}));
}

TEST(PatternsCommand, ConvertsTheNamedOnesInTheOrderAsked) {
    const ScratchFolder folder;
    const std::string file = folder.Write("a.pat", "*A\n0,0,0,0,1\n*B\n0,0,0,0,1\n");
    const ToolResult result = RunTool({"patterns", file, "--name", "B", "--name", "A", "--name", "B"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(ValuesOf(result.output, "name"), (Texts{"B", "A", "B"}));
}

// One converter does them all, and building a pattern turns its stored origin: (0, 1) by -90 degrees is (1,
// 0), and by another -90 degrees (0, -1).
TEST(PatternsCommand, APatternAskedForTwiceHasItsOriginTurnedTwice) {
    const ScratchFolder folder;
    const std::string file = folder.Write("a.pat", "*A\n90,0,1,0,2\n");
    const ToolResult result = RunTool({"patterns", file, "--name", "A", "--name", "A"});
    EXPECT_EQ(ValuesOf(result.output, "geometry"), (Texts{"M 1.0,0.0 h 10.0", "M 0.0,-1.0 h 10.0"}));
}

TEST(PatternsCommand, ANameIsTakenAsItStands) {
    const ScratchFolder folder;
    const std::string file = folder.Write("a.pat", "*[A]\n0,0,0,0,1\n*A\n0,0,0,0,2\n*,x\n0,0,0,0,3\n");
    EXPECT_EQ(ValuesOf(RunTool({"patterns", file, "--name", "[A]"}).output, "name"), Texts{"[A]"});
    EXPECT_EQ(ValuesOf(RunTool({"patterns", file, "--name=[A]", "--name=A"}).output, "name"),
              (Texts{"[A]", "A"}));
    EXPECT_EQ(ValuesOf(RunTool({"patterns", "--name=", file}).output, "name"), Texts{""});
    EXPECT_EQ(ValuesOf(RunTool({"patterns", "--name", "", file}).output, "name"), Texts{""});
    EXPECT_EQ(RunTool({"patterns", file, "--name", "[A,A]"}).errors,
              file + ": error: there is no pattern named [A,A]\n");
}

TEST(PatternsCommand, AnUnknownNameIsAFault) {
    const ScratchFolder folder;
    const std::string file = folder.Write("a.pat", "*A\n0,0,0,0,1\n");
    folder.Write("out.json", "old");
    const ToolResult result =
        RunTool({"patterns", file, "--name", "a", "--name", "C", "-o", folder / "out.json"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors, file + ": error: there is no pattern named a\n" + file +
                                 ": error: there is no pattern named C\n");
    EXPECT_EQ(folder.Read("out.json"), "old");
}

TEST(PatternsCommand, AFileThatIsNotThereIsAFault) {
    const ScratchFolder folder;
    folder.Write("out.json", "old");
    const ToolResult result = RunTool({"patterns", folder / "no.pat", "-o", folder / "out.json"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors, (folder / "no.pat") + ": error: not found\n");
    EXPECT_EQ(folder.Read("out.json"), "old");
}

TEST(PatternsCommand, ADirectoryIsAFault) {
    const ScratchFolder folder;
    std::filesystem::create_directory(folder / "d.pat");
    folder.Write("out.json", "old");
    const ToolResult result = RunTool({"patterns", folder / "d.pat", "-o", folder / "out.json"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(
        result.errors,
        (folder / "d.pat") +
            ": error: cannot be read: it is a folder, of which \"styleconv convert\" takes all files\n");
    EXPECT_EQ(folder.Read("out.json"), "old");
}

TEST(PatternsCommand, AnOverlongLineIsAFault) {
    const ScratchFolder folder;
    folder.Write("out.json", "old");
    const std::string file =
        folder.Write("a.pat", "*A\n0,0,0,0,1\n;" + std::string(127, 'x') + "\n*B\n0,0,0,0,1\n");
    const ToolResult result = RunTool({"patterns", file, "-o", folder / "out.json"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(
        result.errors,
        file +
            ":3: error: the line has more than 127 characters; nothing from here on is read: shorten the "
            "line\n" +
            support::HelpBehindErrors(file));
    EXPECT_EQ(folder.Read("out.json"), "old");
}

TEST(PatternsCommand, APatternWithoutATileIsNamedAndLeftOut) {
    const ScratchFolder folder;
    const std::string file = folder.Write("a.pat", std::string("*A\n0,0,0,0,1\n") + kNoTile);
    const ToolResult result = RunTool({"patterns", file});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(ValuesOf(result.output, "name"), (Texts{"A"}));
    EXPECT_EQ(
        result.errors,
        file +
            ":3: warning: the pattern has no repeat tile: no rectangle of a strict symbol repeats its lines "
            "(--faithful draws it); skipped (pattern NOTILE)\n");
}

TEST(PatternsCommand, APatternWithoutATileThatIsAskedForIsAFault) {
    const ScratchFolder folder;
    folder.Write("out.json", "old");
    const std::string file = folder.Write("a.pat", std::string("*A\n0,0,0,0,1\n") + kNoTile);
    const ToolResult result = RunTool({"patterns", file, "--name", "NOTILE", "-o", folder / "out.json"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(
        result.errors,
        file + ":3: error: the pattern has no repeat tile: no rectangle of a strict symbol repeats its lines "
               "(--faithful draws it) (pattern NOTILE)\n");
    EXPECT_EQ(folder.Read("out.json"), "old");
}

TEST(PatternsCommand, AFileWhosePatternsAllLackATileIsAFault) {
    const ScratchFolder folder;
    const std::string file = folder.Write("a.pat", std::string("*EMPTY\n") + kNoTile);
    const ToolResult result = RunTool({"patterns", file});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(
        result.errors,
        file + ":1: warning: the pattern has no lines; skipped (pattern EMPTY)\n" + file +
            ":2: warning: the pattern has no repeat tile: no rectangle of a strict symbol repeats its lines "
            "(--faithful draws it); skipped (pattern NOTILE)\n" +
            file + ": error: none of the patterns can be converted\n");
}

TEST(PatternsCommand, APatternWhoseTileHasNextToNoSizeIsAFault) {
    const ScratchFolder folder;
    const std::string file = folder.Write("a.pat", "*SMALL\n0,0,0,0,.00005,.00005\n*A\n0,0,0,0,1\n");
    const ToolResult result = RunTool({"patterns", file, "--name", "SMALL"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors, file +
                                 ":1: error: the repeat tile of the pattern is too small to draw: its sides "
                                 "are shorter than 0.0001 (pattern SMALL)\n");
}

TEST(PatternsCommand, AFileWithoutPatternsIsAFault) {
    const ScratchFolder folder;
    folder.Write("out.json", "old");
    const std::string file = folder.Write("a.pat", "; nothing here\n0,0,0,0,1\n");
    const ToolResult result = RunTool({"patterns", file, "-o", folder / "out.json"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors, file + ": error: the file has no patterns: no line begins with \"*\"\n");
    EXPECT_EQ(folder.Read("out.json"), "old");
}

TEST(PatternsCommand, AByteOrderMarkThatHidesTheOnlyHeaderIsNamed) {
    const ScratchFolder folder;
    const std::string file = folder.Write("a.pat", "\xef\xbb\xbf*A\n0,0,0,0,1\n");
    const ToolResult result = RunTool({"patterns", file});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(
        result.errors,
        file + ":1: error: a UTF-8 byte-order mark hides the header behind it; save the file without it\n" +
            support::HelpBehindErrors(file));
}

TEST(PatternsCommand, StandardInputIsReadForADash) {
    const ToolResult result = RunTool({"patterns", "-"}, "*A\n0,0,0,0,1\n");
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(ValuesOf(result.output, "name"), (Texts{"A"}));
    EXPECT_EQ(RunTool({"patterns", "-"}, "").errors,
              "standard input: error: the file has no patterns: no line begins with \"*\"\n");
}

// "ä" is 0xe4 in WINDOWS-1252 and 0xc3 0xa4 in UTF-8; a file that is not UTF-8 throughout is WINDOWS-1252.
TEST(PatternsCommand, NamesAreReadAsUtf8OrElseAsWindows1252) {
    const ScratchFolder folder;
    const std::string windows = folder.Write("w.pat", "*b\xe4ume\n0,0,0,0,1\n");
    const std::string utf8 = folder.Write("u.pat", "*b\xc3\xa4ume\n0,0,0,0,1\n");
    const std::string greek = folder.Write("g.pat", "*\xe1\n0,0,0,0,1\n");
    EXPECT_EQ(ValuesOf(RunTool({"patterns", windows}).output, "name"), (Texts{"b\xc3\xa4ume"}));
    EXPECT_EQ(ValuesOf(RunTool({"patterns", utf8}).output, "name"), (Texts{"b\xc3\xa4ume"}));
    EXPECT_EQ(ValuesOf(RunTool({"patterns", greek, "--code-page", "WINDOWS-1253"}).output, "name"),
              (Texts{"\xce\xb1"}));
    EXPECT_EQ(RunTool({"patterns", windows, "--name", "b\xc3\xa4ume"}).status, 0);
    EXPECT_EQ(RunTool({"list", windows}).output, "b\xc3\xa4ume\n");
}

TEST(PatternsCommand, AnUnknownCodePageIsWrong) {
    const ScratchFolder folder;
    const std::string file = folder.Write("a.pat", "*A\n0,0,0,0,1\n");
    const ToolResult result = RunTool({"patterns", file, "--code-page", "KLINGON"});
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.errors, "styleconv: --code-page: unknown encoding KLINGON\n");
}

TEST(ListCommand, PrintsTheNamesOfPatternsOneALine) {
    const ScratchFolder folder;
    const std::string file =
        folder.Write("a.PAT", std::string("*b,x\n0,0,0,0,1\n*A , y\n0,0,0,0,1\n") + kNoTile);
    const ToolResult result = RunTool({"list", file});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.output, "A\nNOTILE\nb\n");
    EXPECT_EQ(RunTool({"list", file, "-o", folder / "names"}).status, 0);
    EXPECT_EQ(folder.Read("names"), result.output);
}

TEST(ListCommand, AFileWithoutPatternsIsAFault) {
    const ScratchFolder folder;
    const std::string file = folder.Write("a.pat", "");
    const ToolResult result = RunTool({"list", file});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors, file + ": error: the file has no patterns: no line begins with \"*\"\n");
}

TEST(ListCommand, NeedsAFileOfAKnownKind) {
    const ScratchFolder folder;
    const std::string file = folder.Write("a.txt", "*A\n0,0,0,0,1\n");
    EXPECT_EQ(RunTool({"list", file}).errors,
              file + ": error: unknown kind of file: the name must end in .lin, .pat, .shx, .json or .dxf\n");
    EXPECT_EQ(RunTool({"list", file}).status, 1);
    EXPECT_EQ(RunTool({"list", "-"}, "*A\n").status, 2);
}

TEST(PatternsCommand, WarnsOfWhatTheSymbolsLoseAndConverts) {
    const ScratchFolder folder;
    // The tile is 0.005 of 0.105 too low, and after ten tiles 0.05.
    const std::string file = folder.Write("a.pat", "*X\n0,0,0,0,0.105\n*Y\n0,0,0,0,1\n0,0,0,0.001,1,1,-1\n");
    const std::string said = file + ":2: warning: drawn up to 48 % of the line spacing out of place: 0.105 "
                                    "is written 0.1; --faithful draws it "
                                    "(pattern X)\n";
    const ToolResult all = RunTool({"patterns", file});
    EXPECT_EQ(all.status, 0);
    EXPECT_EQ(all.errors, said + file +
                              ":5: warning: 1 of 2 families not drawn, as no rectangle of a strict symbol "
                              "repeats them; --faithful draws all (pattern Y)\n");
    EXPECT_EQ(RunTool({"patterns", file, "--name", "X", "--name", "X"}).errors, said);
    EXPECT_EQ(RunTool({"patterns", file, "--faithful"}).errors, "");
}

TEST(PatternsCommand, WarnsWherePatternsOfOneNameBecomeOne) {
    const ScratchFolder folder;
    const std::string file = folder.Write("a.pat", "*X\n0,0,0,0,1\n*Y\n0,0,0,0,1\n*X\n90,0,0,0,1\n");
    const std::string said =
        file + ":5: warning: the name is already used in line 1; both make one pattern (pattern X)\n";
    for (const Texts& more : {Texts{}, {"--tolerant"}, {"--faithful"}, {"--name", "X", "--name", "X"}}) {
        Texts arguments{"patterns", file};
        arguments.insert(arguments.end(), more.begin(), more.end());
        const ToolResult result = RunTool(arguments);
        EXPECT_EQ(result.status, 0);
        EXPECT_EQ(result.errors, said);
    }
    EXPECT_EQ(RunTool({"patterns", file, "--name", "Y"}).errors, "");
}

} // namespace
