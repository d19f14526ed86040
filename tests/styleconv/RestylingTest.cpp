// --color and --weight: other defaults of the parameters, in all that is written.
#include "tests/support/Has.h"
#include "tests/support/ToolRun.h"

#include <gtest/gtest.h>

namespace {

using support::Has;
using support::RunTool;
using support::ScratchFolder;
using support::ToolResult;
using support::ValuesOf;
using Texts = std::vector<std::string>;

constexpr const char* kGas = "*GAS,gas\nA,1,-.5\n";
constexpr const char* kLevel = "*LEVEL\n0, 0,0, 0,.125\n";
// A line whose colour and weight are those of its layer, and one with its own.
constexpr const char* kTree = R"({"format": "styleconversion/drawing", "version": 1, "insunits": 4,
  "layers": [{"name": "0"}],
  "blocks": [{"name": "TREE", "entities": [{"type": "line", "start": [0, 0], "end": [2, 0]}]},
             {"name": "ROD", "entities": [
    {"type": "line", "start": [0, 0], "end": [2, 0], "lineWeight": 50, "color": 1}]}]})";

class Restyling : public testing::Test {
protected:
    ScratchFolder folder;
    std::string lines = folder.Write("a.lin", kGas);
    std::string pattern = folder.Write("b.pat", kLevel);
    std::string drawing = folder.Write("c.json", kTree);
};

TEST_F(Restyling, DefaultsOfColoursAndWeightsAreAsGivenAndOthersStay) {
    const struct {
        std::vector<std::string> arguments;
        Texts defaults;
    } rows[] = {
        {{"linetypes", lines, "--color", "#12ABef"}, {"ff12abef", "0.0"}},
        {{"linetypes", lines, "--weight", "0.205"}, {"ff000000", "0.205"}},
        {{"linetypes", lines, "--weight", "0", "--color", "white"}, {"ffffffff", "0"}},
        {{"patterns", pattern, "--color", "black"}, {"0xff000000", "0.0"}},
        {{"patterns", pattern, "--color", "#0000ff"}, {"0xff0000ff", "0.0"}},
        {{"blocks", drawing, "--name", "TREE", "--color", "#00ff00", "--weight", "2"},
         {"ff00ff00", "2", "0.0"}},
        {{"convert", lines, pattern, "--color", "#00ff00"}, {"ff00ff00", "0.0", "0xff00ff00", "0.0"}},
    };
    for (const auto& row : rows) {
        const ToolResult result = RunTool(row.arguments);
        EXPECT_EQ(result.status, 0) << result.errors;
        EXPECT_EQ(ValuesOf(result.output, "defaultValue"), row.defaults) << row.arguments.back();
    }
}

TEST_F(Restyling, NothingButTheDefaultsChanges) {
    const std::string plain = RunTool({"linetypes", lines}).output;
    std::string restyled = RunTool({"linetypes", lines, "--color", "#102030", "--weight", "1.5"}).output;
    const auto put = [&](const std::string& now, const std::string& before) {
        const std::size_t at = restyled.find(now);
        ASSERT_NE(at, std::string::npos) << restyled;
        restyled.replace(at, now.size(), before);
    };
    put("\"defaultValue\": \"ff102030\"", "\"defaultValue\": \"ff000000\"");
    put("\"defaultValue\": \"1.5\"", "\"defaultValue\": \"0.0\"");
    EXPECT_EQ(restyled, plain);
}

TEST_F(Restyling, PicturesGalleriesAndStylesShowThem) {
    const struct {
        const char* format;
        const char* stroke;
    } rows[] = {{"svg", "stroke=\"#0123fe\""}, {"html", "\"value\":\"#0123fe\""}};
    for (const auto& row : rows) {
        for (const Texts& command : {Texts{"linetypes", lines}, Texts{"patterns", pattern}}) {
            Texts arguments = command;
            arguments.insert(arguments.end(), {"--format", row.format, "--color", "#0123fe"});
            const ToolResult result = RunTool(arguments);
            EXPECT_EQ(result.status, 0) << result.errors;
            EXPECT_TRUE(Has(result.output, row.stroke)) << row.format;
        }
    }
    const std::string style =
        RunTool({"linetypes", lines, "--format", "qgis", "--color", "#0123fe", "--weight", "0.7"}).output;
    EXPECT_TRUE(Has(style, "1,35,254")) << style;
    EXPECT_TRUE(Has(style, "\"0.7\"")) << style;
}

TEST_F(Restyling, SymbolsWithoutSuchAParameterStayAndAreCounted) {
    const ToolResult alone = RunTool({"patterns", pattern, "--weight", "1"});
    EXPECT_EQ(alone.status, 0);
    EXPECT_EQ(alone.output, RunTool({"patterns", pattern}).output);
    EXPECT_EQ(alone.errors,
              "styleconv: --weight changes nothing in 1 of 1 symbol: no parameter is a weight\n");
    const std::string own = RunTool({"blocks", drawing, "--name", "ROD"}).output;
    const ToolResult rod = RunTool({"blocks", drawing, "--name", "ROD", "--color", "white"});
    EXPECT_EQ(rod.output, own);
    EXPECT_TRUE(
        Has(rod.errors, "styleconv: --color changes nothing in 1 of 1 symbol: no parameter is a colour\n"));
    EXPECT_TRUE(Has(RunTool({"convert", lines, pattern, "--weight", "1"}).errors,
                    "styleconv: --weight changes nothing in 1 of 2 symbols: no parameter is a weight\n"));
    EXPECT_EQ(RunTool({"linetypes", lines, "--weight", "1", "--color", "white"}).errors, "");
}

TEST_F(Restyling, WhatIsNoColourOrWeightIsRefused) {
    for (const char* const color : {"red", "#fff", "#12345g", "123456", "#1234567", ""}) {
        const ToolResult result = RunTool({"linetypes", lines, "--color", color});
        EXPECT_EQ(result.status, 2) << color;
        EXPECT_EQ(result.output, "");
        EXPECT_TRUE(Has(result.errors, "--color: expected black, white or #rrggbb")) << result.errors;
    }
    for (const char* const weight : {"-1", "thin", "1mm", "inf", ""}) {
        const ToolResult result = RunTool({"patterns", pattern, "--weight", weight});
        EXPECT_EQ(result.status, 2) << weight;
        EXPECT_EQ(result.output, "");
        EXPECT_TRUE(Has(result.errors, "--weight: expected a number of millimetres, 0 or above"))
            << result.errors;
    }
}

} // namespace
