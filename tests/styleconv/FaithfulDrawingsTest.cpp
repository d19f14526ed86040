// styleconv blocks and linetypes --faithful: what is drawn where the required output draws something else.
#include "tests/support/ToolRun.h"

#include <gtest/gtest.h>
#include <utility>

namespace {

using support::RunTool;
using support::ScratchFolder;
using support::ToolResult;

constexpr const char* kFaithful = "\"fidelity\": \"faithful\"";

class FaithfulDrawings : public ::testing::Test {
protected:
    ToolResult Run(const std::string& command, const std::string& name, const std::string& text,
                   std::vector<std::string> more) {
        std::vector<std::string> arguments{command, folder_.Write(name, text)};
        arguments.insert(arguments.end(), more.begin(), more.end());
        return RunTool(arguments);
    }

    const ScratchFolder folder_;
};

TEST_F(FaithfulDrawings, BlocksAreWrittenWithAllDigitsInADocumentThatSaysSo) {
    const std::string drawing =
        R"({"format": "styleconversion/drawing", "version": 1, "insunits": 4, "blocks": [
        {"name": "B", "entities": [{"type": "line", "start": [0.105, 0], "end": [3.003333, 1]}]}]})";
    const ToolResult faithful = Run("blocks", "a.json", drawing, {"--faithful"});
    EXPECT_EQ(faithful.status, 0);
    EXPECT_EQ(faithful.errors, "");
    EXPECT_NE(faithful.output.find(kFaithful), std::string::npos);
    EXPECT_NE(faithful.output.find("\"M 0.105,0 L 3.003333,1\""), std::string::npos) << faithful.output;
    const ToolResult strict = Run("blocks", "a.json", drawing, {});
    EXPECT_EQ(strict.output.find("fidelity"), std::string::npos);
    EXPECT_NE(strict.output.find("\"M 0.1,0.0 L 3.0,1.0\""), std::string::npos) << strict.output;
}

TEST_F(FaithfulDrawings, HiddenEntitiesAreNotDrawn) {
    const std::string drawing =
        R"({"format": "styleconversion/drawing", "version": 1, "insunits": 4, "blocks": [
        {"name": "B", "entities": [{"type": "point", "position": [1, 0]}, {"type": "point", "position": [2, 0],
        "hidden": true}]}]})";
    EXPECT_EQ(Run("blocks", "a.json", drawing, {"--faithful"}).output.find("M 2,0"), std::string::npos);
    EXPECT_NE(Run("blocks", "a.json", drawing, {}).output.find("M 2.0,0.0"), std::string::npos);
}

TEST_F(FaithfulDrawings, DashesHaveTheirScalesAndTheLinetypesOfLayers) {
    const auto convert = [this](const std::string& head, const std::string& dashes, const std::string& line,
                                std::vector<std::string> more) {
        const std::string drawing = R"({"format": "styleconversion/drawing", "version": 1, "insunits": 4, )" +
                                    head +
                                    R"("layers": [{"name": "0"}, {"name": "ROAD", "linetype": "gaps"}],
               "linetypes": [{"name": "GAPS", "dashes": [)" +
                                    dashes + R"(]}],
               "blocks": [{"name": "B", "entities": [{"type": "line", "start": [0, 0], "end": [30, 0], )" +
                                    line + "}]}]}";
        return Run("blocks", "a.json", drawing, std::move(more)).output;
    };
    const std::string once = R"({"length": 2}, {"length": -1})";
    const std::string thrice = R"({"length": 6}, {"length": -3})";
    const std::string gaps = R"("linetype": "GAPS")";
    const std::vector<std::string> faithful = {"--faithful"};
    const std::string expected = convert("", thrice, gaps, faithful);
    EXPECT_NE(expected.find(" M "), std::string::npos) << expected;
    EXPECT_NE(expected, convert("", once, gaps, faithful));
    EXPECT_EQ(convert(R"("linetypeScale": 3, )", once, gaps, faithful), expected);
    EXPECT_EQ(convert("", once, gaps + R"(, "linetypeScale": 3)", faithful), expected);
    EXPECT_EQ(convert(R"("linetypeScale": 1.5, )", once, gaps + R"(, "linetypeScale": 2)", faithful),
              expected);
    // By layer; the parameters of the layer stay.
    const std::string byLayer = R"("layer": "ROAD", "linetypeScale": 3)";
    EXPECT_EQ(convert("", once, byLayer, faithful),
              convert("", thrice, R"("layer": "ROAD", "linetype": "GAPS")", faithful));
    // Strict symbols know neither.
    EXPECT_EQ(convert(R"("linetypeScale": 3, )", once, gaps + R"(, "linetypeScale": 2)", {}),
              convert("", once, gaps, {}));
    EXPECT_EQ(convert("", once, byLayer, {}),
              convert("", once, R"("layer": "ROAD", "linetype": "Continuous")", {}));
}

TEST_F(FaithfulDrawings, AreDrawnInPicturesAndGalleries) {
    const std::string drawing =
        R"({"format": "styleconversion/drawing", "version": 1, "insunits": 4, "blocks": [
        {"name": "B", "entities": [{"type": "text", "position": [0, 0], "height": 2, "text": "%%d C"}]}]})";
    // The linetype's text is a radian from the line, 57.3 degrees.
    const std::string linetype = "*A,\nA,4,[\"GAS\",STANDARD,R=1r]\n";
    for (const std::string format : {"svg", "html"}) {
        for (const bool isFaithful : {false, true}) {
            std::vector<std::string> options{"--format", format};
            if (isFaithful) {
                options.emplace_back("--faithful");
            }
            const std::string block = Run("blocks", "a.json", drawing, options).output;
            EXPECT_EQ(block.find("%%d C") == std::string::npos, isFaithful) << block;
            // A gallery of strict symbols brings the faithful drawing of those that lose something.
            EXPECT_EQ(block.find("\xc2\xb0 C") != std::string::npos, isFaithful || format == "html") << block;
            options.insert(options.end(), {"--font", "Arial"});
            const std::string line = Run("linetypes", "a.lin", linetype, options).output;
            EXPECT_EQ(line.find("rotate(-57.29") != std::string::npos, isFaithful) << line;
        }
    }
}

TEST_F(FaithfulDrawings, LinetypesTakeRadiansAsSuch) {
    const std::string linetypes = "*A,\nA,4,[\"GAS\",STANDARD,R=1r]\n";
    const std::vector<std::string> font{"--font", "Arial"};
    const ToolResult strict = Run("linetypes", "a.lin", linetypes, font);
    EXPECT_NE(strict.output.find("0.0174532925199433"), std::string::npos) << strict.errors;
    const ToolResult faithful = Run("linetypes", "a.lin", linetypes, {"--font", "Arial", "--faithful"});
    EXPECT_NE(faithful.output.find(kFaithful), std::string::npos);
    EXPECT_NE(faithful.output.find("57.2957795130823"), std::string::npos);
}

} // namespace
