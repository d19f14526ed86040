// styleconv convert, and the converting commands on several files: one result, its origins and names, and
// what is said at the end.
#include "tests/styleconv/SampleFiles.h"
#include "tests/support/DxfWriter.h"
#include "tests/support/Has.h"
#include "tests/support/ShapeFileBuilder.h"
#include "tests/support/ShapeProgramBuilder.h"
#include "tests/support/ToolRun.h"

#include <array>
#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

using samples::Marks;
using support::Has;
using support::RunTool;
using support::ScratchFolder;
using support::ToolResult;
using support::ValuesOf;

using Texts = std::vector<std::string>;

constexpr const char* kBrick = "*BRICK\n0,0,0,0,1\n";
constexpr const char* kPipes = "; pipes\n*GAS\nA,1,-1\n";
constexpr const char* kTreeAlone = R"({"format": "styleconversion/drawing", "version": 1, "insunits": 4,
  "layers": [{"name": "0"}],
  "blocks": [{"name": "*P", "layout": true, "entities": []},
             {"name": "TREE", "entities": [{"type": "line", "start": [0, 0], "end": [5, 0]}]}]})";

class ConvertCommand : public testing::Test {
protected:
    std::string Write(const std::string& name, const std::string& text) {
        std::filesystem::create_directories(std::filesystem::path(folder / name).parent_path());
        return folder.Write(name, text);
    }

    // What was said, without the folder.
    std::string Said(const ToolResult& result) const {
        std::string said = result.errors;
        const std::string name = folder / "";
        for (std::size_t at = said.find(name); at != std::string::npos; at = said.find(name, at)) {
            said.erase(at, name.size());
        }
        return said;
    }

    ScratchFolder folder;
};

TEST_F(ConvertCommand, FilesOfAllKindsBecomeOneDocumentThatTellsTheirOrigins) {
    const std::string shapes = Write("d.shx", Marks());
    const std::string lines = Write("b.lin", kPipes);
    const std::string patterns = Write("a.pat", kBrick);
    const std::string drawing = Write("c.json", kTreeAlone);
    const ToolResult result = RunTool({"convert", patterns, lines, drawing, shapes});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(Said(result), "styleconv: 4 files, 4 symbols\n");
    EXPECT_EQ(ValuesOf(result.output, "kind"), (Texts{"pattern", "linetype", "block", "glyph"}));
    EXPECT_EQ(ValuesOf(result.output, "file"), (Texts{patterns, lines, drawing, shapes}));
    EXPECT_EQ(ValuesOf(result.output, "path"), Texts{"blocks[1]"});
    EXPECT_TRUE(Has(result.output, "b.lin\",\n        \"line\": 2\n"));
    EXPECT_TRUE(Has(result.output, "d.shx\",\n        \"shape\": 130\n"));
}

TEST_F(ConvertCommand, OneFileGivesTheDocumentOfItsOwnCommand) {
    for (const auto& [command, name, text] :
         std::vector<std::array<std::string, 3>>{{"patterns", "a.pat", kBrick},
                                                 {"linetypes", "b.lin", kPipes},
                                                 {"blocks", "c.json", kTreeAlone}}) {
        const std::string file = Write(name, text);
        const ToolResult alone = RunTool({command, file});
        EXPECT_EQ(alone.status, 0);
        EXPECT_EQ(RunTool({"convert", file}).output, alone.output);
    }
}

TEST_F(ConvertCommand, FoldersAreWalkedInSortedOrderAndOtherFilesCounted) {
    Write("std/b/z.pat", "*Z\n0,0,0,0,1\n");
    Write("std/b/a.lin", "*A\nA,1,-1\n");
    Write("std/a.pat", "*B\n0,0,0,0,1\n");
    Write("std/readme.txt", "text");
    Write("std/package.json", "{\"name\": \"x\"}");
    Write("std/c.json", kTreeAlone);
    const ToolResult result = RunTool({"convert", folder / "std"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(ValuesOf(result.output, "name"), (Texts{"B", "A", "Z", "TREE"}));
    EXPECT_EQ(Said(result), "styleconv: 4 files, 4 symbols; 2 files of no kind that is converted\n");
}

TEST_F(ConvertCommand, FileThatIsGivenAgainIsTakenOnceHoweverItIsSpelled) {
    const std::string brick = Write("std/a.pat", kBrick);
    const std::string stone = Write("std/b/a.pat", "*STONE\n0,0,0,0,1\n");
    const std::string around = folder / "std/b/../a.pat";
    for (const std::string command : {"convert", "patterns"}) {
        const ToolResult result = RunTool({command, stone, around, brick, stone});
        EXPECT_EQ(result.status, 0);
        EXPECT_EQ(ValuesOf(result.output, "name"), (Texts{"STONE", "BRICK"}));
        EXPECT_EQ(ValuesOf(result.output, "file"), (Texts{stone, around}));
        EXPECT_EQ(Said(result), "styleconv: 2 files, 2 symbols; 2 files given again\n") << command;
    }
    const ToolResult mixed = RunTool({"convert", stone, folder / "std"});
    EXPECT_EQ(ValuesOf(mixed.output, "name"), (Texts{"STONE", "BRICK"}));
    EXPECT_EQ(Said(mixed), "styleconv: 2 files, 2 symbols; 1 file given again\n");
    const ToolResult missing = RunTool({"convert", brick, folder / "no/x.pat", folder / "no/x.pat"});
    EXPECT_EQ(missing.status, 1);
    EXPECT_TRUE(
        Has(Said(missing), "no/x.pat: error: not found\nstyleconv: 2 files, 1 symbol; 1 file given again\n"))
        << Said(missing);
}

TEST_F(ConvertCommand, FilesOfFoldersAreChosenByPatterns) {
    Write("std/b/z.pat", "*Z\n0,0,0,0,1\n");
    Write("std/b/a.lin", "*A\nA,1,-1\n");
    Write("std/a.pat", "*B\n0,0,0,0,1\n");
    const auto names = [&](std::vector<std::string> options) {
        options.insert(options.begin(), {"convert", folder / "std"});
        return ValuesOf(RunTool(options).output, "name");
    };
    EXPECT_EQ(names({"--include", "*.pat"}), (Texts{"B", "Z"}));
    EXPECT_EQ(names({"--include", "?.lin", "--include", "z*"}), (Texts{"A", "Z"}));
    EXPECT_EQ(names({"--exclude", "b/*"}), Texts{"B"});
    EXPECT_EQ(names({"--include", "*.pat", "--exclude", "a.*"}), Texts{"Z"});
    EXPECT_EQ(RunTool({"convert", folder / "std", "--include", "*.PAT"}).status, 1);
}

// Files are worked on at once, of which some are in one encoding and some in another: a byte of one would be
// another letter, or none, in the other.
TEST_F(ConvertCommand, ManyFilesGiveTheirSymbolsInOrderEachInItsOwnEncoding) {
    constexpr int kFirstFile = 100; // all numbers have the same length, by which they are sorted
    constexpr int kLastFile = 299;
    constexpr int kFirstPattern = 10;
    constexpr int kLastPattern = 29;
    Texts expected;
    for (int file = kFirstFile; file <= kLastFile; ++file) {
        const std::string letter = file % 2 == 0 ? "\xc3\x9c" : "\xdc";
        std::string text;
        for (int pattern = kFirstPattern; pattern <= kLastPattern; ++pattern) {
            const std::string end = "N-" + std::to_string(file) + "-" + std::to_string(pattern);
            text.append("*GR").append(letter).append(end).append("\n0,0,0,0,1\n");
            expected.push_back("GR\xc3\x9c" + end);
        }
        Write("all/" + std::to_string(file) + ".pat", text);
    }
    const ToolResult result = RunTool({"convert", folder / "all"});
    EXPECT_EQ(result.status, 0) << result.errors;
    Texts names;
    for (const std::string& name : ValuesOf(result.output, "name")) {
        if (name.rfind("GR", 0) == 0) {
            names.push_back(name);
        }
    }
    EXPECT_EQ(names, expected);
    const ToolResult listed = RunTool({"list", folder / "all", "--format", "names"});
    std::string lines;
    for (const std::string& name : expected) {
        lines += name + "\n";
    }
    EXPECT_EQ(listed.output, lines);
}

TEST_F(ConvertCommand, NamesThatOccurTwiceAreKeptApartAndSaidOnce) {
    const std::string first = Write("a.pat", "*X\n0,0,0,0,1\n*Y\n0,0,0,0,1\n");
    const std::string second = Write("b.pat", "*X\n0,0,0,0,2\n*Y\n0,0,0,0,2\n");
    const std::string lines = Write("c.lin", "*X\nA,1\n*X\nA,2\n");
    const ToolResult result = RunTool({"convert", first, second, lines});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(ValuesOf(result.output, "name"), (Texts{"X", "Y", "X (" + second + ")", "Y (" + second + ")",
                                                      "X (" + lines + ")", "X (" + lines + ":3)"}));
    EXPECT_EQ(Said(result),
              "b.pat:1: warning: the name is already used by another symbol; the file is added to it; the "
              "same in 3 more places (symbol X (b.pat))\n"
              "styleconv: 3 files, 6 symbols\n"
              "styleconv: 4 warnings: name-of-another-file (4)\n");
}

TEST_F(ConvertCommand, FileThatFailsFailsAlone) {
    const std::string good = Write("a.pat", kBrick);
    const std::string bad = Write("b.lin", "*BAD\nA,x\n");
    const ToolResult result =
        RunTool({"convert", bad, folder / "no.pat", good, good + ".txt", "-o", folder / "out.json"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(ValuesOf(folder.Read("out.json"), "name"), Texts{"BRICK"});
    const std::string said = Said(result);
    EXPECT_TRUE(Has(said, "b.lin:2:3: error: "));
    EXPECT_TRUE(Has(said, "no.pat: error: not found\n"));
    EXPECT_TRUE(said.ends_with("styleconv: 4 files, 1 symbol\n"
                               "styleconv: 3 errors: invalid-dash (1), missing-file (2)\n"
                               "styleconv: not converted: b.lin, no.pat, a.pat.txt; --tolerant converts what "
                               "is valid in them\n"))
        << said;
}

TEST_F(ConvertCommand, AllOrNothingWritesNothingWhereAFileFails) {
    const std::string good = Write("a.pat", kBrick);
    folder.Write("out.json", "old");
    const ToolResult result =
        RunTool({"convert", good, folder / "no.pat", "--all-or-nothing", "-o", folder / "out.json"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(folder.Read("out.json"), "old");
    EXPECT_TRUE(Said(result).ends_with("styleconv: nothing was written\n"));
    EXPECT_EQ(RunTool({"convert", good, "--all-or-nothing", "-o", folder / "out.json"}).status, 0);
    EXPECT_EQ(ValuesOf(folder.Read("out.json"), "name"), Texts{"BRICK"});
}

TEST_F(ConvertCommand, SameCauseInManyFilesIsOneMessageWithTheirNumber) {
    std::vector<std::string> arguments = {"convert"};
    for (const char* const name : {"a.lin", "b.lin", "c.lin"}) {
        arguments.push_back(Write(name, "*X\nA,1,[M,none.shx],-1\n*Y\nA,1,[M,none.shx],-1\n"));
    }
    arguments.emplace_back("--tolerant");
    const ToolResult result = RunTool(arguments);
    EXPECT_EQ(result.status, 1);
    const std::string said = Said(result);
    EXPECT_EQ(said.find("shape file none.shx not found"), said.rfind("shape file none.shx not found"))
        << said;
    EXPECT_TRUE(Has(said, "the same in 5 more places")) << said;
    EXPECT_TRUE(Has(said, "missing-shape-file (6)")) << said;
}

TEST_F(ConvertCommand, GalleriesTellTheFilesOfTheirSymbols) {
    const std::string first = Write("a.pat", kBrick);
    const std::string second = Write("b.lin", kPipes);
    const ToolResult result = RunTool({"convert", first, second, "-o", folder / "all.html"});
    EXPECT_EQ(result.status, 0);
    const std::string page = folder.Read("all.html");
    EXPECT_TRUE(Has(page, "a.pat"));
    EXPECT_TRUE(Has(page, "b.lin"));
    EXPECT_EQ(ValuesOf(page, "kind").size(), 0U);
    EXPECT_TRUE(Has(page, "<title>Symbols</title>"));
}

TEST_F(ConvertCommand, GalleryOfOneFileIsCalledAsTheFile) {
    const std::string good = Write("a.pat", kBrick);
    const std::string bad = Write("bad.lin", "*X\nA,x\n");
    for (const Texts& files : {Texts{good}, Texts{good, bad}, Texts{bad, good}}) {
        Texts arguments = {"convert", "-o", folder / "all.html"};
        arguments.insert(arguments.end(), files.begin(), files.end());
        RunTool(arguments);
        EXPECT_TRUE(Has(folder.Read("all.html"), "<title>a.pat</title>")) << files.size();
    }
}

TEST_F(ConvertCommand, EveryConvertingCommandTakesSeveralFiles) {
    struct Row {
        const char* command;
        const char* ending;
        std::string texts[2];
        Texts names;
    };
    const std::string rod = R"({"format": "styleconversion/drawing", "version": 1, "insunits": 4,
      "blocks": [{"name": "ROD", "entities": [{"type": "point", "position": [1, 2]}]}]})";
    for (const Row& row : {Row{"patterns", ".pat", {kBrick, "*A\n0,0,0,0,1\n"}, {"BRICK", "A"}},
                           Row{"linetypes", ".lin", {kPipes, "*A\nA,1,-1\n"}, {"GAS", "A"}},
                           Row{"blocks", ".json", {kTreeAlone, rod}, {"TREE", "ROD"}}}) {
        const std::string first = Write(std::string("first") + row.ending, row.texts[0]);
        const std::string second = Write(std::string("second") + row.ending, row.texts[1]);
        const ToolResult result = RunTool({row.command, first, second});
        EXPECT_EQ(result.status, 0) << result.errors;
        EXPECT_EQ(Said(result), "styleconv: 2 files, 2 symbols\n");
        EXPECT_EQ(ValuesOf(result.output, "name"), row.names);
        EXPECT_EQ(ValuesOf(result.output, "file"), (Texts{first, second}));
        EXPECT_EQ(RunTool({row.command, first, "-"}).status, 2);
        EXPECT_EQ(RunTool({row.command, first, second, "--name", "A"}).status, 2);
    }
    const std::string marks = Write("a.shx", Marks());
    const std::string more = Write("b.shx", Marks());
    EXPECT_EQ(ValuesOf(RunTool({"glyphs", marks, more}).output, "name"),
              (Texts{"130 MARK", "130 MARK (" + more + ")"}));
}

// A part library: files without blocks, whose model space is the symbol.
TEST_F(ConvertCommand, DrawingsAreSeenAsTheOptionsSay) {
    DxfWriter blocks;
    blocks.Text(0, "BLOCK").Text(2, "CORE").Point(10, 1, 0).Text(0, "LINE").Text(8, "0").Integer(62, 7);
    blocks.Point(10, 1, 0).Point(11, 2, 0).Text(0, "ENDBLK");
    DxfWriter entities;
    entities.Text(0, "INSERT").Text(8, "0").Text(2, "CORE").Point(10, 5, 5);
    entities.Text(0, "LINE").Text(8, "0").Integer(60, 1).Point(10, 0, 0).Point(11, 0, 9);
    const auto section = [](const std::string& name, const DxfWriter& pairs) {
        return DxfWriter().Text(0, "SECTION").Text(2, name).Append(pairs).Text(0, "ENDSEC");
    };
    const std::string file =
        section("BLOCKS", blocks).Append(section("ENTITIES", entities)).Text(0, "EOF").Ascii();
    Write("parts/valve.dxf", file);
    Write("parts/pump.dxf", file);
    Write("parts/brick.pat", kBrick);
    const ToolResult result = RunTool({"convert", folder / "parts", "--model-space", "--expand",
                                       "--visible-only", "--units", "inch", "--color-7", "black"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(ValuesOf(result.output, "name"), (Texts{"BRICK", "pump", "valve"}));
    const std::string line = "M 127.0,127.0 L 152.4,127.0"; // 5, 5 to 6, 5 in inches
    EXPECT_EQ(ValuesOf(result.output, "geometry").size(), 3U);
    EXPECT_EQ(ValuesOf(result.output, "geometry")[1], line);
    EXPECT_EQ(ValuesOf(result.output, "geometry")[2], line);
    EXPECT_NE(result.output.find("\"lineColor\": \"ff000000\""), std::string::npos);
    EXPECT_EQ(Said(result).find("no unit"), std::string::npos);
    EXPECT_EQ(RunTool({"convert", folder / "parts", "--model-space", "--format", "qgis"})
                  .output.find("standard output"), // which is no tag
              std::string::npos);
    // As the command of drawings does.
    EXPECT_EQ(RunTool({"convert", folder / "parts/pump.dxf", "--from-base-point", "--units", "mm"}).output,
              RunTool({"blocks", folder / "parts/pump.dxf", "--from-base-point", "--units", "mm"}).output);
    const Texts style = {"--format", "qgis", "--scale", "2"};
    Texts some = {"convert", folder / "parts/pump.dxf", "--model-space", "--expand"};
    some.insert(some.end(), style.begin(), style.end());
    Texts same = some;
    same[0] = "blocks";
    EXPECT_EQ(RunTool(some).output, RunTool(same).output);
    EXPECT_EQ(
        RunTool({"convert", folder / "parts/brick.pat", "--format", "qgis", "--hatch-units", "mm"}).output,
        RunTool({"patterns", folder / "parts/brick.pat", "--format", "qgis", "--hatch-units", "mm"}).output);
}

TEST_F(ConvertCommand, WhatGivesNothingWritesNothing) {
    std::filesystem::create_directory(folder / "empty");
    folder.Write("out.json", "old");
    const ToolResult result = RunTool({"convert", folder / "empty", "-o", folder / "out.json"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(Said(result), "styleconv: 0 files, 0 symbols\nstyleconv: no file of a kind that is "
                            "converted: .lin, .pat, .shx, .json, .dxf\nstyleconv: nothing was written\n");
    EXPECT_EQ(folder.Read("out.json"), "old");
    EXPECT_EQ(RunTool({"convert", "-"}).status, 2);
    EXPECT_EQ(RunTool({"convert"}).status, 2);
}

} // namespace
