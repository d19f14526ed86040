// styleconv linetypes --tolerant and --font: what is converted, and what is said about the rest.
#include "tests/support/ShapeFileBuilder.h"
#include "tests/support/ToolRun.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace {

using support::RunTool;
using support::ScratchFolder;
using support::ToolResult;
using test_support::ShapeFileBuilder;

using Texts = std::vector<std::string>;

class TolerantLinetypes : public testing::Test {
protected:
    ToolResult Run(const std::string& text, Texts more = {"--tolerant"}) {
        Texts arguments = {"linetypes", folder.Write("lines.lin", text)};
        arguments.insert(arguments.end(), more.begin(), more.end());
        return RunTool(arguments);
    }

    // What is said, without the name of the file.
    std::string Said(const ToolResult& result) const {
        std::string said = result.errors;
        const std::string name = folder / "lines.lin";
        for (std::size_t at = said.find(name); at != std::string::npos; at = said.find(name, at)) {
            said.erase(at, name.size());
        }
        return said;
    }

    // The names of the symbols, each followed by ";". Parts of a compound are named as it is.
    static std::string Names(const ToolResult& result) {
        std::string names;
        const std::string key = R"("name": ")";
        for (std::size_t at = result.output.find(key); at != std::string::npos;
             at = result.output.find(key, at)) {
            at += key.size();
            const std::string name = result.output.substr(at, result.output.find('"', at) - at) + ";";
            names += names.ends_with(name) ? "" : name;
        }
        return names;
    }

    std::string Font() const {
        return ShapeFileBuilder::Shapes().FontInfo("FONT", {4, 1, 0}).Shape(65, "A", {0x10, 0}).Text();
    }

    ScratchFolder folder;
};

TEST_F(TolerantLinetypes, RightLinetypesAreConvertedAndWrongOnesNamed) {
    const ToolResult result = Run("*GOOD\nA,1\n*BAD\nA,1,,2\n*ALSO\nA,2\n");
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(Names(result), "GOOD;ALSO;");
    EXPECT_EQ(Said(result),
              ":4:5: warning: expected a dash length or \"[\": A,1,,2; skipped (linetype BAD)\n");
    EXPECT_EQ(Run("*GOOD\nA,1\n*BAD\nA,1,,2\n", {}).status, 1) << "strict is the default";
}

TEST_F(TolerantLinetypes, UprightRotationIsToldOnceAFile) {
    folder.Write("txt.shx", Font());
    const ToolResult result = Run("*X\nA,1,[\"A\",STANDARD,U=0]\n*Y\nA,1,[\"A\",STANDARD,U=90]\n");
    EXPECT_EQ(Names(result), "X;Y;");
    EXPECT_EQ(Said(result), ":2:19: warning: unknown key U= (upright text); read as R= in the whole file; "
                            "the same in 1 more place "
                            "(linetype X)\n");
}

TEST_F(TolerantLinetypes, CharacterCodesInTextsBecomeCharacters) {
    const ToolResult result = Run("*X\nA,1,[\"20\\U+00B0\",STANDARD]\n", {"--tolerant", "--font", "Arial"});
    EXPECT_NE(result.output.find("\"content\": \"'20\xC2\xB0'\""), std::string::npos) << result.output;
    EXPECT_EQ(Said(result),
              ":2:7: warning: a \\U+ code is not read as a character; read as one (linetype X)\n");
    EXPECT_NE(Run("*X\nA,1,[\"20\\U+00B0\",STANDARD]\n", {"--font", "Arial"}).output.find("20\\\\U+00B0"),
              std::string::npos);
}

TEST_F(TolerantLinetypes, BackslashesBeforeTheQuotesOfATextAreSkippedAndTold) {
    const ToolResult result = Run("*X\nA,1,[\\\"GAS\\\",STANDARD],-9\n", {"--tolerant", "--font", "Arial"});
    EXPECT_EQ(support::ValuesOf(result.output, "content"), std::vector<std::string>{"'GAS'"});
    EXPECT_EQ(Said(result),
              ":2:6: warning: a \"\\\" before a quote does not escape it; read as the quote alone "
              "(linetype X)\n");
}

TEST_F(TolerantLinetypes, MissingStyleAndShapeFileAreToldWithWhereTheyWereLookedFor) {
    const ToolResult result = Run("*X\nA,1,[\"A\",roads]\n*Y\nA,[M,none.shx]\n");
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(Names(result), "X;");
    EXPECT_EQ(
        Said(result),
        ": note: font file txt.shx not found in ., " + folder / "" +
            "; the built-in font is used instead\n"
            ":2: warning: text style roads not found: without a drawing there is only STANDARD; STANDARD is "
            "used instead (linetype X)\n"
            ":4: warning: shape file none.shx not found in ., " +
            folder / "" + "; skipped (linetype Y)\n");
}

TEST_F(TolerantLinetypes, NothingConvertedIsAFault) {
    const ToolResult result = Run("*X\nA,x\n");
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.output, "");
    EXPECT_NE(Said(result).find(": error: none of the linetypes can be converted\n"), std::string::npos);
    const std::string nothing = ": error: the file has no linetypes: no line begins with \"*\" and a name\n";
    EXPECT_EQ(Said(Run("nothing\n")), nothing);
    EXPECT_EQ(Said(Run("nothing\n", {"--tolerant", "--name", "X"})), nothing);
    EXPECT_EQ(Said(Run("nothing\n", {"--name", "X"})), nothing);
}

TEST_F(TolerantLinetypes, LinetypeAskedForThatIsLeftOutIsAFault) {
    const ToolResult result = Run("*X\nA,x\n*Y\nA,1\n", {"--tolerant", "--name", "X"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.output, "");
    const std::string leftOut = ":2:3: warning: expected a dash length or \"[\": A,x; skipped (linetype X)\n";
    EXPECT_EQ(Said(result), leftOut + ": error: none of the linetypes asked for can be converted\n");
    const ToolResult withAnother = Run("*X\nA,x\n*Y\nA,1\n", {"--tolerant", "--name", "X", "--name", "Y"});
    EXPECT_EQ(withAnother.status, 0);
    EXPECT_EQ(Names(withAnother), "Y;");
    EXPECT_EQ(Said(withAnother), leftOut);
}

TEST_F(TolerantLinetypes, LinetypeAskedForThatIsNotThereIsAWarningBesideAnother) {
    const ToolResult result = Run("*Y\nA,1\n", {"--tolerant", "--name", "Z", "--name", "Y"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(Names(result), "Y;");
    EXPECT_EQ(Said(result), ": warning: there is no linetype named Z\n");
    EXPECT_EQ(Said(Run("*Y\nA,1\n", {"--tolerant", "--name", "Z"})),
              ": warning: there is no linetype named Z\n"
              ": error: none of the linetypes asked for can be converted\n");
}

TEST_F(TolerantLinetypes, NoLinetypeHasTheEmptyName) {
    // The stray pattern is a fault that belongs to no linetype.
    const ToolResult result = Run("A,1\n*Y\nA,1\n", {"--tolerant", "--name", "", "--name", "Y"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(Said(result), ":1: warning: pattern without a header; skipped\n"
                            ": warning: there is no linetype named \n");
}

TEST_F(TolerantLinetypes, BuiltInFontStandsInOverADrawing) {
    const auto drawing = [&](const std::string& styles) {
        return folder.Write("drawing.json",
                            R"({"format": "styleconversion/drawing", "version": 1, "textStyles": [)" +
                                styles + "]}");
    };
    const std::string text = "*X\nA,1,[\"I\",STANDARD,S=21]\n";
    const ToolResult without = Run(text, {});
    const ToolResult over =
        Run(text, {"--tolerant", "--drawing", drawing(R"({"name": "STANDARD", "fileName": "txt.shx"})")});
    EXPECT_EQ(over.output, without.output);
    EXPECT_EQ(Said(over), Said(without));
    const ToolResult noStandard = Run(text, {"--tolerant", "--drawing", drawing("")});
    EXPECT_EQ(noStandard.output, without.output);
    EXPECT_EQ(Said(noStandard), ": note: text style STANDARD not found in " + folder / "drawing.json" +
                                    "; assumed, with font txt.shx\n" + Said(without));
}

using LinetypesFont = TolerantLinetypes;

TEST_F(LinetypesFont, IsOfTheDefaultStyle) {
    std::filesystem::create_directory(folder / "Fonts");
    const std::string path = folder.Write("Fonts/My Font.shx", Font());
    const std::string text = "*X\nA,1,[\"A\",STANDARD,S=2]\n";
    // 2 / 4 units high.
    const ToolResult byPath = Run(text, {"--font", path});
    EXPECT_EQ(byPath.errors, "");
    EXPECT_NE(byPath.output.find("\"M 1,0 l 0.5,0 \""), std::string::npos);
    EXPECT_EQ(Run(text, {"--font", "My Font.SHX", "--shapes", folder / "Fonts"}).output, byPath.output);
    const ToolResult typeface = Run(text, {"--font", "Times New Roman"});
    EXPECT_NE(typeface.output.find("\"fontName\": \"Times New Roman\""), std::string::npos);
}

TEST_F(LinetypesFont, ThatIsNotFoundIsAFault) {
    const ToolResult result = Run("*X\nA,1,[\"A\",STANDARD]\n", {"--font", "none.shx"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(Said(result), ":2: error: font file none.shx of text style STANDARD not found in ., " +
                                folder / "" + " (linetype X)\n" + support::HelpBehindErrors(""));
}

TEST_F(LinetypesFont, GoesWithoutADrawingOnly) {
    const ToolResult result = Run("*X\nA,1\n", {"--font", "Arial", "--drawing", "any.json"});
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.errors,
              "styleconv: --font cannot be used with --drawing: the drawing gives text styles their fonts\n");
}

TEST_F(TolerantLinetypes, CharactersThatAFontLacksAreNamedInTheOrderOfTheFile) {
    folder.Write("txt.shx", test_support::ShapeFileBuilder::Shapes()
                                .FontInfo("FONT", {4, 1, 0})
                                .Shape(65, "A", {0x10, 0})
                                .Text());
    const std::string file =
        folder.Write("x.lin", "*X\nA,1,[\"ABAC\",STANDARD],-9\n*Y\nA,x\n*Z\nA,1,[\"B\",STANDARD],-9\n");
    const support::ToolResult result = support::RunTool({"linetypes", file, "--tolerant"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.errors,
              file + ":2: warning: font txt.shx has no characters for BC; left out (linetype X)\n" + file +
                  ":4:3: warning: expected a dash length or \"[\": A,x; skipped (linetype Y)\n" + file +
                  ":6: warning: font txt.shx has no characters for B; left out (linetype Z)\n");
}

TEST_F(TolerantLinetypes, CharactersThatAFontLacksAreNamedUpToOneThatCannotBeDrawn) {
    // B goes on to shape 99, which is not there. No C and no D.
    folder.Write("txt.shx", ShapeFileBuilder::Shapes()
                                .FontInfo("FONT", {4, 1, 0})
                                .Shape(65, "A", {0x10, 0})
                                .Shape(66, "B", {7, 99, 0})
                                .Text());
    const ToolResult result =
        Run("*X\nA,1,[\"ACBD\",STANDARD],-9\n*Y\nA,1,[\"AB\",STANDARD],-9\n*Z\nA,1,[\"DA\",STANDARD],-9\n");
    EXPECT_EQ(Names(result), "Z;");
    const std::string notDrawn =
        "character B of text style STANDARD cannot be drawn: one of its subshapes is missing";
    EXPECT_EQ(Said(result), ":2: warning: " + notDrawn + "; skipped (linetype X)\n" +
                                ":2: warning: font txt.shx has no characters for C; left out (linetype X)\n" +
                                ":4: warning: " + notDrawn + "; skipped (linetype Y)\n" +
                                ":6: warning: font txt.shx has no characters for D; left out (linetype Z)\n");
}

} // namespace
