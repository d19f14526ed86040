// styleconv convert on symbols documents: all that is made of them is what is made of the files.
#include "tests/support/ShapeFileBuilder.h"
#include "tests/support/ToolRun.h"

#include <gtest/gtest.h>
#include <string_view>

namespace {

using support::RunTool;
using support::ScratchFolder;
using support::ToolResult;
using test_support::ShapeFileBuilder;

constexpr const char* kLines = "*GAS,gas\nA,1,-.5\n*GAS,again\nA,2,-.5\n";
constexpr const char* kWalls = "*BRICK,b\n0,0,0,0,1\n*STONE,s\n45,0,0,0,1,.5,-.5\n";

class SymbolsDocuments : public testing::Test {
private:
    ScratchFolder folder_; // before what is written in it

protected:
    std::string lines = folder_.Write("a.lin", kLines);
    std::string walls = folder_.Write("b.pat", kWalls);
    std::string marks =
        folder_.Write("c.shx", ShapeFileBuilder::Shapes().Shape(130, "MARK", {0x10, 0x24, 0}).Text());
    const ScratchFolder& Folder() const { return folder_; }

    // Styles are tagged with the one file that they are made of.
    static std::string WithoutTags(std::string text) {
        constexpr std::string_view kTags = " tags=\"";
        for (std::size_t at = text.find(kTags); at != std::string::npos; at = text.find(kTags, at)) {
            text.erase(at, text.find('"', at + kTags.size()) + 1 - at);
        }
        return text;
    }

    // The document and what it becomes, in the same form.
    void ExpectTheSame(std::vector<std::string> convert) const {
        const std::string document = Folder() / "document.json";
        std::vector<std::string> first = convert;
        first.insert(first.end(), {"-o", document});
        ASSERT_EQ(RunTool(first).status, 0);
        for (const std::string form : {"json", "svg", "qgis"}) {
            std::vector<std::string> direct = convert;
            direct.insert(direct.end(), {"--format", form});
            if (form == "qgis" && convert.back() != "--faithful") {
                direct.push_back("--strict-symbols");
            }
            EXPECT_EQ(WithoutTags(RunTool({"convert", document, "--format", form}).output),
                      WithoutTags(RunTool(direct).output))
                << form << " of " << convert.front();
        }
    }
};

TEST_F(SymbolsDocuments, PicturesAndDocumentsAreThoseOfTheFiles) {
    ExpectTheSame({"linetypes", lines});
    ExpectTheSame({"patterns", walls});
    ExpectTheSame({"patterns", walls, "--faithful"});
    ExpectTheSame({"convert", lines, walls, marks});
}

TEST_F(SymbolsDocuments, SeveralAreOneResultWhoseSymbolsKeepTheirOrigins) {
    const std::string first = Folder() / "first.json";
    const std::string second = Folder() / "second.json";
    ASSERT_EQ(RunTool({"convert", lines, walls, "-o", first}).status, 0);
    ASSERT_EQ(RunTool({"patterns", walls, "-o", second}).status, 0);
    const ToolResult result = RunTool({"convert", first, second});
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(support::ValuesOf(result.output, "name"),
              (std::vector<std::string>{"GAS", "GAS (" + lines + ")", "BRICK", "STONE",
                                        "BRICK (" + second + ")", "STONE (" + second + ")"}));
    EXPECT_EQ(support::ValuesOf(result.output, "file"),
              (std::vector<std::string>{lines, lines, walls, walls, second, second}));
    EXPECT_EQ(support::ValuesOf(result.output, "kind"),
              (std::vector<std::string>{"linetype", "linetype", "pattern", "pattern", "pattern", "pattern"}));
}

TEST_F(SymbolsDocuments, FoldersAreSearchedForThemToo) {
    ASSERT_EQ(RunTool({"patterns", walls, "-o", Folder() / "walls.json"}).status, 0);
    Folder().Write("other.json", "{}");
    const ToolResult result = RunTool({"convert", Folder() / "", "--include", "*.json"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.errors, "styleconv: 1 file, 2 symbols; 1 file of no kind that is converted\n");
}

TEST_F(SymbolsDocuments, InvalidOnesAreRefusedAndCheckedAndTolerated) {
    const std::string symbol =
        R"({"type": "SimpleSymbolDefinition", "name": "A", "graphics": [], "parameters": []})";
    const std::string file = Folder().Write(
        "x.json", R"({"format": "styleconversion/symbols", "version": 1, "symbols": [5, )" + symbol + "]}");
    const std::string error = file + ": error: symbols[0]: expected an object, found 5";
    const ToolResult strict = RunTool({"convert", file});
    EXPECT_EQ(strict.status, 1);
    EXPECT_EQ(strict.errors.rfind(error + "\n", 0), 0U) << strict.errors;
    EXPECT_EQ(RunTool({"check", file}).output, error + " [invalid-value]\n1 error, 0 warnings in 1 file\n");
    EXPECT_EQ(RunTool({"check", file, "--tolerant"}).status, 0);
    const ToolResult tolerant = RunTool({"convert", file, "--tolerant"});
    EXPECT_EQ(tolerant.status, 0);
    EXPECT_EQ(support::ValuesOf(tolerant.output, "name"), std::vector<std::string>{"A"});
    EXPECT_EQ(RunTool({"list", file, "--tolerant"}).output, "A\n");
}

TEST_F(SymbolsDocuments, EmptyDocumentAndOneOfOtherFidelityAreRefused) {
    const std::string empty =
        Folder().Write("empty.json", R"({"format": "styleconversion/symbols", "version": 1, "symbols": []})");
    EXPECT_NE(RunTool({"convert", empty}).errors.find(": error: the document has no symbols\n"),
              std::string::npos);
    const std::string faithful = Folder() / "faithful.json";
    ASSERT_EQ(RunTool({"patterns", walls, "--faithful", "-o", faithful}).status, 0);
    const ToolResult mixed = RunTool({"convert", lines, faithful});
    EXPECT_EQ(mixed.status, 1);
    EXPECT_NE(mixed.errors.find(faithful +
                                ": error: its symbols are faithful, those of the files before strict; "
                                "convert it alone, or the others with --faithful\n"),
              std::string::npos)
        << mixed.errors;
    EXPECT_EQ(RunTool({"convert", lines, faithful, "--faithful"}).status, 0);
}

TEST_F(SymbolsDocuments, GlyphsGoWithSymbolsOfBothFidelities) {
    for (const bool isFaithful : {false, true}) {
        std::vector<std::string> convert = {"convert", walls, marks};
        if (isFaithful) {
            convert.push_back("--faithful");
        }
        const ToolResult result = RunTool(convert);
        EXPECT_EQ(result.status, 0) << result.errors;
        EXPECT_EQ(support::ValuesOf(result.output, "fidelity").size(), isFaithful ? 1U : 0U);
    }
}

// All kinds in one document, with their origins.
std::string DocumentOf(const ScratchFolder& folder, std::vector<std::string> files) {
    const std::string document = folder / "all.json";
    files.insert(files.begin(), "convert");
    files.insert(files.end(), {"-o", document});
    EXPECT_EQ(RunTool(files).status, 0);
    return document;
}

std::string WarningOfOthers(const std::string& document, const std::string& others, const std::string& kind) {
    return document + ": warning: " + others + " symbols are not of the kind " + kind + "; skipped\n";
}

TEST_F(SymbolsDocuments, EachCommandTakesThoseOfItsKindAndSaysWhatItLeavesOut) {
    const std::string drawing = Folder().Write(
        "d.json", R"({"format": "styleconversion/drawing", "version": 1, "insunits": 6, "blocks": [)"
                  R"({"name": "CROSS", "entities": [{"type": "line", "start": [0, 0], "end": [1, 0]}]}]})");
    const std::string document = DocumentOf(Folder(), {lines, walls, marks, drawing});
    struct Case {
        const char* command;
        const char* kind;
        const char* others;
        std::vector<std::string> names;
    };
    const Case cases[] = {{"linetypes", "linetype", "4 of its 6", {"GAS", "GAS (" + lines + ")"}},
                          {"patterns", "pattern", "4 of its 6", {"BRICK", "STONE"}},
                          {"glyphs", "glyph", "5 of its 6", {"130 MARK"}},
                          {"blocks", "block", "5 of its 6", {"CROSS"}}};
    for (const Case& c : cases) {
        const ToolResult result = RunTool({c.command, document});
        EXPECT_EQ(result.status, 0) << c.command;
        EXPECT_EQ(support::ValuesOf(result.output, "name"), c.names) << c.command;
        EXPECT_EQ(support::ValuesOf(result.output, "kind"), std::vector<std::string>(c.names.size(), c.kind));
        EXPECT_EQ(result.errors.rfind(WarningOfOthers(document, c.others, c.kind), 0), 0U) << result.errors;
    }
}

TEST_F(SymbolsDocuments, DocumentOfOneKindBecomesWhatItsFileDoes) {
    const std::string document = Folder() / "walls.json";
    ASSERT_EQ(RunTool({"patterns", walls, "-o", document}).status, 0);
    for (const std::string form : {"json", "svg", "qgis"}) {
        const ToolResult direct = form == "qgis"
                                      ? RunTool({"patterns", walls, "--format", form, "--strict-symbols"})
                                      : RunTool({"patterns", walls, "--format", form});
        const ToolResult read = RunTool({"patterns", document, "--format", form});
        EXPECT_EQ(read.status, 0) << form;
        EXPECT_EQ(read.errors.rfind("styleconv: 1 file, 2 symbols\n", 0), 0U) << read.errors;
        EXPECT_EQ(WithoutTags(read.output), WithoutTags(direct.output)) << form;
    }
}

TEST_F(SymbolsDocuments, FilesAndDocumentsOfOneKindAreOneResult) {
    const std::string document = Folder() / "walls.json";
    ASSERT_EQ(RunTool({"patterns", walls, "-o", document}).status, 0);
    const std::string others = Folder().Write("o.pat", "*REED,r\n0,0,0,0,1\n");
    const ToolResult result = RunTool({"patterns", others, document});
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(support::ValuesOf(result.output, "name"), (std::vector<std::string>{"REED", "BRICK", "STONE"}));
}

TEST_F(SymbolsDocuments, NamesSelectFromThem) {
    const std::string document = DocumentOf(Folder(), {lines, walls});
    const ToolResult both = RunTool({"patterns", document, "--name", "STONE", "--name", "BRICK"});
    EXPECT_EQ(support::ValuesOf(both.output, "name"), (std::vector<std::string>{"STONE", "BRICK"}));
    const std::vector<std::string> missing = {"patterns", document, "--name", "GAS", "--name", "BRICK"};
    const ToolResult strict = RunTool(missing);
    EXPECT_EQ(strict.status, 1);
    EXPECT_EQ(strict.output, "");
    EXPECT_NE(strict.errors.find(": error: there is no pattern named GAS\n"), std::string::npos)
        << strict.errors;
    std::vector<std::string> tolerated = missing;
    tolerated.emplace_back("--tolerant");
    const ToolResult tolerant = RunTool(tolerated);
    EXPECT_EQ(tolerant.status, 0);
    EXPECT_EQ(support::ValuesOf(tolerant.output, "name"), std::vector<std::string>{"BRICK"});
}

TEST_F(SymbolsDocuments, OneWithoutTheKindIsRefused) {
    const std::string document = Folder() / "walls.json";
    ASSERT_EQ(RunTool({"patterns", walls, "-o", document}).status, 0);
    for (const std::string command : {"linetypes", "blocks", "glyphs"}) {
        const ToolResult result = RunTool({command, document});
        EXPECT_EQ(result.status, 1) << command;
        EXPECT_EQ(result.output, "") << command;
        EXPECT_EQ(result.errors.rfind(document + ": error: 2 of its 2 symbols are not of the kind ", 0), 0U)
            << result.errors;
        EXPECT_NE(result.errors.find("; \"styleconv convert\" takes them all\n"), std::string::npos)
            << result.errors;
    }
}

TEST_F(SymbolsDocuments, PointsOfUnknownOriginAreBlocksAndGlyphs) {
    const std::string document = DocumentOf(Folder(), {marks});
    for (const std::string command : {"blocks", "glyphs"}) {
        EXPECT_EQ(support::ValuesOf(RunTool({command, document}).output, "name"),
                  std::vector<std::string>{"130 MARK"})
            << command;
    }
}

TEST_F(SymbolsDocuments, OptionsOfHowSymbolsAreMadeAreRefused) {
    const std::string document = DocumentOf(Folder(), {lines, walls, marks});
    const std::vector<std::string> cases[] = {{"linetypes", "--scale", "2"}, {"patterns", "--units", "mm"},
                                              {"blocks", "--expand"},        {"glyphs", "--number", "130"},
                                              {"glyphs", "--at", "1,0"},     {"blocks", "--model-space"}};
    for (const std::vector<std::string>& c : cases) {
        std::vector<std::string> arguments = c;
        arguments.push_back(document);
        const ToolResult result = RunTool(arguments);
        EXPECT_EQ(result.status, 2) << c[1];
        EXPECT_EQ(result.errors,
                  "styleconv: " + c[1] +
                      " cannot be used with a symbols document: its symbols are made already\n");
    }
}

TEST_F(SymbolsDocuments, DrawingThatSpeaksOfSymbolsStaysADrawing) {
    const std::string drawing = Folder().Write(
        "d.json", R"({"format": "styleconversion/drawing", "version": 1, "insunits": 6, "blocks": [)"
                  R"({"name": "styleconversion/symbols", "entities": [)"
                  R"({"type": "line", "start": [0, 0], "end": [1, 0]}]}]})");
    const ToolResult result = RunTool({"blocks", drawing});
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(support::ValuesOf(result.output, "name"), std::vector<std::string>{"styleconversion/symbols"});
}

} // namespace
