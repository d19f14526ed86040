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

TEST_F(SymbolsDocuments, OtherCommandsNameTheOneThatReadsThem) {
    const std::string document = Folder() / "walls.json";
    ASSERT_EQ(RunTool({"patterns", walls, "-o", document}).status, 0);
    EXPECT_EQ(RunTool({"linetypes", document}).errors,
              document +
                  ": error: this is a symbols document, not a linetype file; use \"styleconv convert\"\n");
}

} // namespace
