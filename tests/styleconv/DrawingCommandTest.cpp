// styleconv drawing, and DXF files wherever a drawing is asked for.
#include "tests/support/DxfWriter.h"
#include "tests/support/ToolRun.h"

#include <gtest/gtest.h>

namespace {

using support::RunTool;
using support::ScratchFolder;
using support::ToolResult;

// A file in millimetres with the block "B" of these entities, and one style.
DxfWriter FileOf(const DxfWriter& entities) {
    DxfWriter file;
    file.Text(0, "SECTION").Text(2, "HEADER").Text(9, "$INSUNITS").Integer(70, 4).Text(0, "ENDSEC");
    file.Text(0, "SECTION").Text(2, "TABLES").Text(0, "TABLE").Text(2, "LAYER");
    file.Text(0, "LAYER").Text(2, "0").Integer(62, 7).Text(0, "ENDTAB");
    file.Text(0, "TABLE").Text(2, "STYLE").Text(0, "STYLE").Text(2, "SIGNS").Text(3, "txt.shx");
    file.Text(0, "ENDTAB").Text(0, "ENDSEC");
    file.Text(0, "SECTION").Text(2, "BLOCKS").Text(0, "BLOCK").Text(2, "B").Append(entities);
    return file.Text(0, "ENDBLK").Text(0, "ENDSEC").Text(0, "EOF");
}

DxfWriter Line() {
    return DxfWriter().Text(0, "LINE").Text(8, "0").Point(10, 0, 0).Point(11, 2, 0);
}

DxfWriter BrokenHatch() {
    return DxfWriter().Text(0, "HATCH").Text(8, "0").Integer(70, 1).Integer(91, 3);
}

const char* const kDocument = R"({
  "format": "styleconversion/drawing",
  "version": 1,
  "insunits": 4,
  "layers": [
    {
      "name": "0",
      "color": 7
    }
  ],
  "linetypes": [],
  "textStyles": [
    {
      "name": "SIGNS",
      "fileName": "txt.shx"
    }
  ],
  "blocks": [
    {
      "name": "B",
      "entities": [
        {"type": "line", "start": [0.0, 0.0], "end": [2.0, 0.0]}
      ]
    }
  ]
}
)";

class DrawingCommand : public testing::Test {
protected:
    ScratchFolder folder;
    std::string dxf = folder.Write("d.dxf", FileOf(Line()).Ascii());
    std::string broken = folder.Write("broken.dxf", FileOf(Line().Append(BrokenHatch())).Ascii());
};

TEST_F(DrawingCommand, WritesADxfFileAsADocument) {
    const ToolResult result = RunTool({"drawing", dxf});
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(result.output, kDocument);
    EXPECT_EQ(RunTool({"drawing", folder.Write("b.dxf", FileOf(Line()).Binary())}).output, kDocument);
}

TEST_F(DrawingCommand, WritesADocumentAgain) {
    EXPECT_EQ(RunTool({"drawing", folder.Write("d.json", kDocument)}).output, kDocument);
}

// Files are read piece by piece, and again from their start where a late text tells of another encoding; what
// comes through a pipe cannot be.
TEST_F(DrawingCommand, LargeFilesAndPipesGiveTheSameInEveryEncoding) {
    DxfWriter lines;
    for (int i = 0; i < 3000; ++i) {
        lines.Text(0, "LINE")
            .Text(8, "STRA\xC3\x9F"
                     "E")
            .Point(10, i, 0.5)
            .Point(11, i, 2.25);
    }
    for (const std::string text : {"\xC3\xA4", "\xE4"}) {
        DxfWriter all = lines;
        all.Text(0, "TEXT").Text(8, "0").Point(10, 0, 0).Number(40, 1).Text(1, text);
        const std::string bytes = FileOf(all).Ascii();
        ASSERT_GT(bytes.size(), 2U << 16);
        const ToolResult result = RunTool({"drawing", folder.Write("large.dxf", bytes)});
        const bool isUtf8 = text.size() > 1;
        EXPECT_NE(result.output.find("\"text\": \"\xC3\xA4\""), std::string::npos);
        EXPECT_EQ(result.output.find("\"STRA\xC3\x9F"
                                     "E\"") != std::string::npos,
                  isUtf8);
        EXPECT_EQ(RunTool({"drawing", "-"}, bytes).output, result.output);
    }
}

TEST_F(DrawingCommand, TellsTheKindByTheContents) {
    const std::string symbols = RunTool({"blocks", dxf}).output;
    EXPECT_NE(symbols.find("M 0.0,0.0 L 2.0,0.0"), std::string::npos) << symbols;
    for (const char* const name : {"d", "d.txt", "d.json"}) {
        EXPECT_EQ(RunTool({"blocks", folder.Write(name, FileOf(Line()).Ascii())}).output, symbols) << name;
    }
    EXPECT_EQ(RunTool({"blocks", "-"}, FileOf(Line()).Binary()).output, symbols);
    EXPECT_EQ(RunTool({"blocks", folder.Write("j.dxf", kDocument)}).output, symbols);
    EXPECT_EQ(RunTool({"list", folder.Write("e.txt", FileOf(Line()).Ascii())}).output, "B\n");
    EXPECT_EQ(RunTool({"check", folder.Write("f.txt", FileOf(Line()).Ascii())}).output,
              "0 errors, 0 warnings in 1 file\n");
}

TEST_F(DrawingCommand, GivesLinetypesTheirStyles) {
    const std::string lines = folder.Write("a.lin", "*A\nA,1,[\"x\",SIGNS],-1\n");
    const std::string help = "; add --drawing";
    EXPECT_NE(RunTool({"linetypes", lines}).errors.find(help), std::string::npos);
    EXPECT_EQ(RunTool({"linetypes", lines, "--drawing", dxf, "--tolerant"}).errors.find("SIGNS not found"),
              std::string::npos);
}

TEST_F(DrawingCommand, WhatIsLostIsRefusedOrLeftOut) {
    const std::string error = broken + ":61: error: the boundary of HATCH cannot be read";
    const ToolResult strict = RunTool({"blocks", broken});
    EXPECT_EQ(strict.status, 1);
    EXPECT_EQ(strict.errors, error + " (block B)\n" + support::HelpBehindErrors(broken));
    const ToolResult tolerant = RunTool({"blocks", broken, "--tolerant"});
    EXPECT_EQ(tolerant.status, 0);
    EXPECT_EQ(tolerant.errors,
              broken + ":61: warning: the boundary of HATCH cannot be read; skipped (block B)\n");
    EXPECT_EQ(tolerant.output, RunTool({"blocks", dxf}).output);
    EXPECT_EQ(RunTool({"check", broken}).output,
              error + " (block B) [invalid-boundary]\n1 error, 0 warnings in 1 file\n");
}

TEST_F(DrawingCommand, ABinaryFileIsRefusedWithItsByte) {
    const std::string bytes = FileOf(Line()).Binary();
    const std::string cut = folder.Write("cut.dxf", bytes.substr(0, bytes.size() - 3));
    // The last pair, "EOF" behind the group code 0, begins six bytes before the end.
    EXPECT_EQ(RunTool({"blocks", cut}).errors, cut + ": error: byte " + std::to_string(bytes.size() - 6) +
                                                   ": the file ends within a pair of group code and value\n" +
                                                   support::HelpBehindErrors(cut));
}

TEST_F(DrawingCommand, AFileThatOnlyEndsSoIsNoSuchFile) {
    const std::string file = folder.Write("x.dxf", "hello\n");
    EXPECT_EQ(RunTool({"drawing", file}).errors,
              file + ":1: error: expected a group code, found \"hello\"\n" + support::HelpBehindErrors(file));
}

TEST(DrawingFiles, FilesThatAreNoDrawingsAreSaidToBeWhatTheyAre) {
    const ScratchFolder folder;
    const std::string archive = "PK\x03\x04 rest\n";
    const std::string wide("\xff\xfe{\0}\0", 6);
    for (const char* const end : {".dxf", ".json"}) {
        const std::string packed = folder.Write(std::string("packed") + end, archive);
        const std::string utf16 = folder.Write(std::string("wide") + end, wide);
        for (const char* const command : {"blocks", "list", "check"}) {
            const ToolResult archived = RunTool({command, packed});
            EXPECT_EQ(archived.status, 1);
            EXPECT_NE(
                (archived.output + archived.errors)
                    .find(packed + ": error: the file is a ZIP archive; unpack it, and give what is in it"),
                std::string::npos)
                << command << ": " << archived.output << archived.errors;
            const ToolResult widened = RunTool({command, utf16});
            EXPECT_EQ(widened.status, 1);
            EXPECT_NE((widened.output + widened.errors)
                          .find(utf16 + ": error: the file is UTF-16; save it as UTF-8"),
                      std::string::npos)
                << command << ": " << widened.output << widened.errors;
        }
    }
    EXPECT_NE(RunTool({"blocks", "-"}, wide).errors.find("the file is UTF-16; save it as UTF-8"),
              std::string::npos);
}

} // namespace
