// --font: which text styles get which fonts, what is refused, and what is said of fonts that nothing needs.
#include "tests/support/ShapeFileBuilder.h"
#include "tests/support/ToolRun.h"

#include <cstdint>
#include <filesystem>
#include <gtest/gtest.h>

namespace {

using support::RunTool;
using support::ScratchFolder;
using support::ToolResult;
using test_support::ShapeFileBuilder;

using Texts = std::vector<std::string>;

class FontArguments : public testing::Test {
protected:
    // A font whose A is one stroke to the right, of so many of the four units that letters are high.
    std::string Font(const std::string& name, int length) const {
        return folder.Write(name, ShapeFileBuilder::Shapes()
                                      .FontInfo("FONT", {4, 1, 0})
                                      .Shape(65, "A", {static_cast<std::uint8_t>(length * 0x10), 0})
                                      .Text());
    }

    ToolResult Run(const std::string& command, const std::string& text, const Texts& fonts) const {
        Texts arguments{command, folder.Write("lines.lin", text)};
        for (const std::string& font : fonts) {
            arguments.insert(arguments.end(), {"--font", font});
        }
        return RunTool(arguments);
    }

    ScratchFolder folder;
};

// Letters are 2 high: a unit of the font is 0.5.
const std::string kTwoStyles = "*X\nA,1,[\"A\",GAS,S=2]\n*Y\nA,1,[\"A\",STANDARD,S=2]\n";

TEST_F(FontArguments, GiveEachStyleItsOwnFontInAnyOrderAndCase) {
    const std::string gas = "gas=" + Font("gas.shx", 2);
    const std::string standard = Font("standard.shx", 1);
    for (const Texts& fonts : {Texts{gas, standard}, Texts{standard, gas}, Texts{gas, "Standard=" + standard},
                               Texts{"GAS=gas.shx", "STANDARD=standard.shx"}}) {
        const ToolResult result = Run("linetypes", kTwoStyles, fonts);
        EXPECT_EQ(result.status, 0);
        EXPECT_EQ(result.errors, "");
        EXPECT_NE(result.output.find("\"M 1,0 l 1,0 \""), std::string::npos) << fonts.front();
        EXPECT_NE(result.output.find("\"M 1,0 l 0.5,0 \""), std::string::npos) << fonts.front();
    }
}

TEST_F(FontArguments, AreTypefacesWhereTheyAreNoFiles) {
    const ToolResult result = Run("linetypes", kTwoStyles, {"GAS=Times New Roman", "Arial"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(support::ValuesOf(result.output, "fontName"), (Texts{"Times New Roman", "Arial"}));
}

TEST_F(FontArguments, LeaveStandardAsItIsWhereOnlyAnotherStyleHasOne) {
    Font("txt.shx", 1);
    const ToolResult result = Run("linetypes", kTwoStyles, {"GAS=" + Font("gas.shx", 2)});
    EXPECT_EQ(result.status, 0);
    EXPECT_NE(result.output.find("\"M 1,0 l 0.5,0 \""), std::string::npos) << result.output;
}

TEST_F(FontArguments, MayHaveEqualsSignsInTheirPaths) {
    std::filesystem::create_directory(folder / "a=b");
    const std::string font = Font("a=b/c.shx", 1);
    for (const std::string& given : {font, "STANDARD=" + font}) {
        const ToolResult result = Run("linetypes", "*Y\nA,1,[\"A\",STANDARD,S=2]\n", {given});
        EXPECT_EQ(result.errors, "");
        EXPECT_NE(result.output.find("\"M 1,0 l 0.5,0 \""), std::string::npos) << given;
    }
}

TEST_F(FontArguments, AreTakenByEveryCommandThatReadsLinetypes) {
    const Texts fonts{"GAS=" + Font("gas.shx", 2), Font("standard.shx", 1)};
    const ToolResult converted = Run("convert", kTwoStyles, fonts);
    EXPECT_EQ(converted.status, 0);
    EXPECT_NE(converted.output.find("\"M 1,0 l 1,0 \""), std::string::npos) << converted.output;
    // The A of GAS is 1 wide, that of STANDARD 0.5.
    const ToolResult checked =
        Run("check", "*X\nA,1,[\"A\",GAS,S=2],-.6\n*Y\nA,1,[\"A\",STANDARD,S=2],-.6\n", fonts);
    EXPECT_EQ(checked.errors, "");
    EXPECT_EQ(checked.output, folder / "lines.lin" +
                                  ":2: warning: text \"A\" is 1 wide, its gap only 0.6 (linetype X) "
                                  "[wider-than-gap]\n0 errors, 1 warning in 1 file\n");
}

TEST_F(FontArguments, ThatAreNotFoundAreNamedWithTheirStyle) {
    const ToolResult result = Run("linetypes", kTwoStyles, {"GAS=none.shx"});
    EXPECT_EQ(result.status, 1);
    EXPECT_NE(result.errors.find("font file none.shx of text style GAS not found in ., "), std::string::npos)
        << result.errors;
}

TEST_F(FontArguments, OfOtherFormsAreRefused) {
    const std::string kind = "font files end in .shx; of another font, give the name of the typeface";
    const struct {
        Texts fonts;
        std::string message;
    } cases[] = {
        {{"=gas.shx"}, "\"=gas.shx\": there is no text style before the \"=\""},
        {{"GAS="}, "\"GAS=\": there is no font behind the \"=\""},
        {{""}, "\"\": there is no font"},
        {{"GAS=gas.ttf"}, "\"GAS=gas.ttf\": " + kind},
        {{"ARIAL.TTF"}, "\"ARIAL.TTF\": " + kind},
        {{"fonts/gas"}, "\"fonts/gas\": " + kind},
        {{"GAS=a.shx", "gas=b.shx"}, "\"gas=b.shx\": text style gas has a font already"},
        {{"Arial", "Times"}, "\"Times\": text style STANDARD has a font already"},
        {{"Arial", "STANDARD=Times"}, "\"STANDARD=Times\": text style STANDARD has a font already"},
    };
    for (const char* const command : {"linetypes", "convert", "check", "show"}) {
        for (const auto& each : cases) {
            const ToolResult result = Run(command, "*X\nA,1\n", each.fonts);
            EXPECT_EQ(result.status, 2);
            EXPECT_EQ(result.output, "");
            EXPECT_EQ(result.errors, "styleconv: --font " + each.message + "\n") << command;
        }
    }
}

TEST_F(FontArguments, GivenToStylesThatNoTextIsInAreTold) {
    const std::string text = "*X\nA,1,[\"A\",GAS,S=2],-9\n";
    const std::string told = "styleconv: warning: --font: no linetype that was read has a text in style ";
    const Texts fonts{"GAS=Arial", "WATER=Arial", "STANDARD=Arial"};
    for (const char* const command : {"linetypes", "check"}) {
        const ToolResult result = Run(command, text, fonts);
        EXPECT_EQ(result.status, 0);
        EXPECT_EQ(result.errors, told + "WATER\n" + told + "STANDARD\n") << command;
    }
    EXPECT_EQ(Run("linetypes", text, {"GAS=Arial", "Arial"}).errors, "") << "no style was named";
}

TEST_F(FontArguments, AreUsedWhereOneOfSeveralFilesUsesThem) {
    const std::string water = folder.Write("water.lin", "*W\nA,1,[\"A\",WATER,S=2],-9\n");
    const std::string plain = folder.Write("plain.lin", "*P\nA,1\n");
    const std::string told = "no linetype that was read has a text in style ";
    for (const char* const command : {"linetypes", "convert", "check"}) {
        const ToolResult result =
            RunTool({command, water, plain, "--font", "WATER=Arial", "--font", "GAS=Arial"});
        EXPECT_EQ(result.status, 0) << command;
        EXPECT_EQ(result.errors.find(told + "WATER"), std::string::npos) << command;
        EXPECT_NE(result.errors.find(told + "GAS\n"), std::string::npos) << command;
    }
}

TEST_F(FontArguments, NameTheStylesThatThereAreWhereOneIsMissing) {
    const std::string text = "*X\nA,1,[\"A\",roads]\n";
    const std::string start = folder / "lines.lin" +
                              ":2: error: text style roads not found: without a drawing "
                              "there is only STANDARD";
    const auto found = [&](const Texts& fonts) {
        const std::string errors = Run("linetypes", text, fonts).errors;
        return errors.substr(0, errors.find(';'));
    };
    EXPECT_EQ(found({}), start);
    EXPECT_EQ(found({"Standard=Arial"}), start);
    EXPECT_EQ(found({"GAS=Arial"}), start + " and GAS");
    EXPECT_EQ(found({"GAS=Arial", "WATER=Arial"}), start + ", GAS and WATER");
}

} // namespace
