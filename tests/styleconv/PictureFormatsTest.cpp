// The pictures that every command writes with --format.
#include "tests/support/Has.h"
#include "tests/support/ShapeFileBuilder.h"
#include "tests/support/ShapeProgramBuilder.h"
#include "tests/support/ToolRun.h"

#include <cmath>
#include <filesystem>
#include <gtest/gtest.h>
#include <utility>

namespace {

using support::Has;
using support::RunTool;
using support::ScratchFolder;
using support::ToolResult;
using test_support::ShapeFileBuilder;
using test_support::ShapeProgramBuilder;

// A font of a bar from the base line to 8 and of a bar of 2 below it.
std::string TallAndLow() {
    return ShapeFileBuilder::Shapes()
        .FontInfo("FONT", {8, 2, 0, 0})
        .Shape(65, "TALL", ShapeProgramBuilder().Vector(8, 4).End())
        .Shape(66, "LOW", ShapeProgramBuilder().Vector(2, 12).End())
        .Text();
}

std::string TallAndLowShapes() {
    return ShapeFileBuilder::Shapes()
        .Shape(130, "TALL", ShapeProgramBuilder().Vector(8, 4).End())
        .Shape(131, "LOW", ShapeProgramBuilder().Vector(2, 12).End())
        .Text();
}

constexpr const char* kRodAndRing = R"({"format": "styleconversion/drawing", "version": 1, "insunits": 4,
  "layers": [{"name": "0"}],
  "blocks": [
    {"name": "ROD", "entities": [{"type": "line", "start": [0, 0], "end": [5, 0]}]},
    {"name": "RING", "entities": [{"type": "circle", "center": [0, 0], "radius": 2}]}]})";

// A command line for each kind of file, the names of its two symbols, and what selects the first alone.
struct Kind {
    std::vector<std::string> arguments;
    std::string names[2];
    std::vector<std::string> first;
};

std::vector<Kind> Kinds(const ScratchFolder& folder) {
    const std::string pattern =
        folder.Write("a.pat", "*LEVEL,Lines\n0, 0,0, 0,.125\n*STEEP,More\n90, 0,0, 0,.125\n");
    const std::string lines = folder.Write("a.lin", "*DASHED,Dashes\nA,1,-1\n*DOTTED,Dots\nA,0,-1\n");
    const std::string drawing = folder.Write("a.json", kRodAndRing);
    const std::string shapes = folder.Write("a.shx", TallAndLowShapes());
    return {{{"patterns", pattern}, {"LEVEL", "STEEP"}, {"--name", "LEVEL"}},
            {{"linetypes", lines}, {"DASHED", "DOTTED"}, {"--name", "DASHED"}},
            {{"blocks", drawing}, {"RING", "ROD"}, {"--name", "RING"}},
            {{"glyphs", shapes}, {"130 TALL", "131 LOW"}, {"--number", "130"}}};
}

std::string WithFormat(const std::vector<std::string>& arguments, const std::string& format,
                       const std::vector<std::string>& more = {}) {
    std::vector<std::string> all = arguments;
    all.insert(all.end(), {"--format", format});
    all.insert(all.end(), more.begin(), more.end());
    const ToolResult result = RunTool(all);
    EXPECT_EQ(result.status, 0) << arguments[0] << ": " << result.errors;
    EXPECT_EQ(result.errors, "") << arguments[0];
    return result.output;
}

std::size_t Count(const std::string& text, const std::string& part) {
    std::size_t count = 0;
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) {
        ++count;
    }
    return count;
}

TEST(PictureFormats, SvgOfOneSymbolIsItsPicture) {
    const ScratchFolder folder;
    for (const Kind& kind : Kinds(folder)) {
        const std::string svg = WithFormat(kind.arguments, "svg", kind.first);
        EXPECT_TRUE(svg.starts_with("<?xml")) << svg.substr(0, 100);
        EXPECT_EQ(Count(svg, "<svg"), 1U) << kind.arguments[0];
        EXPECT_TRUE(Has(svg, "<title>" + kind.names[0] + "</title>")) << svg;
        EXPECT_FALSE(Has(svg, kind.names[1])) << svg;
        EXPECT_TRUE(svg.ends_with("</svg>\n")) << kind.arguments[0];
    }
}

TEST(PictureFormats, SvgOfSeveralSymbolsIsASheetWithTheirNames) {
    const ScratchFolder folder;
    for (const Kind& kind : Kinds(folder)) {
        const std::string svg = WithFormat(kind.arguments, "svg");
        // The sheet and a picture for each symbol.
        EXPECT_EQ(Count(svg, "<svg"), 3U) << kind.arguments[0];
        EXPECT_TRUE(Has(svg, "<title>2 symbols</title>")) << svg;
        for (const std::string& name : kind.names) {
            EXPECT_TRUE(Has(svg, ">" + name + "</text>")) << name << " in " << svg;
        }
    }
}

TEST(PictureFormats, HtmlIsAGalleryThatNeedsNothingElse) {
    const ScratchFolder folder;
    for (const Kind& kind : Kinds(folder)) {
        const std::string page = WithFormat(kind.arguments, "html");
        EXPECT_TRUE(page.starts_with("<!DOCTYPE html>")) << page.substr(0, 100);
        EXPECT_EQ(Count(page, "<div class=\"card\""), 2U) << kind.arguments[0];
        for (const std::string& name : kind.names) {
            EXPECT_TRUE(Has(page, "aria-label=\"Enlarge " + name + "\"")) << name;
        }
        // No address of anything but the name of the picture language itself.
        EXPECT_EQ(Count(page, "http"), Count(page, "http://www.w3.org/2000/svg") + Count(page, "http-equiv"));
        EXPECT_FALSE(Has(page, " src=")) << kind.arguments[0];
        EXPECT_FALSE(Has(page, "<link")) << kind.arguments[0];
    }
}

TEST(PictureFormats, GalleriesMarkTheSymbolsThatAreMeasured) {
    const ScratchFolder folder;
    const std::string pat = folder.Write("a.pat", "*A\n0,0,0,0,0.105\n*B\n0,0,0,0,1\n");
    const std::string json = folder.Write("a.json", R"({"format": "styleconversion/drawing", "version": 1,
        "insunits": 4, "blocks": [
        {"name": "C", "entities": [{"type": "line", "start": [0, 0], "end": [0.10999, 0]}]},
        {"name": "D", "entities": [{"type": "line", "start": [0, 0], "end": [1, 0]}]}]})");
    using Arguments = std::vector<std::string>;
    for (const Arguments& arguments :
         {Arguments{"patterns", pat}, {"blocks", json}, {"convert", pat, json}}) {
        Arguments all = arguments;
        all.insert(all.end(), {"--format", "html"});
        const std::string page = RunTool(all).output;
        EXPECT_EQ(Count(page, "<li class=\"loss\">drawn up to "), arguments.size() - 1) << arguments[0];
        EXPECT_EQ(Count(page, "\"faithful\":\"\\u003csvg"), arguments.size() - 1) << page;
        all.emplace_back("--faithful");
        EXPECT_FALSE(Has(RunTool(all).output, "<li class=\"loss\">"));
    }
}

TEST(PictureFormats, AGalleryIsCalledAsItsFileAndHoldsDescriptionsAndDefinitions) {
    const ScratchFolder folder;
    const std::string file = folder.Write("a & b.pat", "*LEVEL,Level <lines>\n0, 0,0, 0,.125\n");
    const std::string page = RunTool({"patterns", file, "--format", "html"}).output;
    EXPECT_TRUE(Has(page, "<title>a &amp; b.pat</title>"));
    EXPECT_TRUE(Has(page, "<p class=\"description\">Level &lt;lines&gt;</p>"));
    EXPECT_EQ(Count(page, "\"symbol\":{"), 1U);
    EXPECT_TRUE(Has(page, "\"name\": \"LEVEL\""));
    EXPECT_TRUE(Has(page, "\"format\": \"styleconversion/symbols\""));
    EXPECT_TRUE(Has(RunTool({"patterns", "-", "--format", "html"}, "*A\n0,0,0,0,1\n").output,
                    "<title>Symbols</title>"));
}

TEST(PictureFormats, AreWrittenWholeOrNotAtAll) {
    const ScratchFolder folder;
    const std::string file = folder.Write("a.pat", "*LEVEL,Lines\n0, 0,0, 0,.125\n");
    folder.Write("out", "old");
    for (const std::string format : {"svg", "html"}) {
        EXPECT_EQ(
            RunTool({"patterns", file, "--name", "NONE", "--format", format, "-o", folder / "out"}).status,
            1);
        EXPECT_EQ(folder.Read("out"), "old");
        EXPECT_EQ(RunTool({"patterns", file, "--format", format, "-o", folder / format}).status, 0);
        EXPECT_EQ(folder.Read(format), WithFormat({"patterns", file}, format));
    }
    EXPECT_EQ(RunTool({"patterns", file, "--format", "gif"}).status, 2);
}

TEST(PictureFormats, EndOfTheOutputsNameTellsTheFormat) {
    const ScratchFolder folder;
    for (const Kind& kind : Kinds(folder)) {
        for (const auto& [name, format] :
             std::vector<std::pair<std::string, std::string>>{{"a.svg", "svg"},
                                                              {"a.HTML", "html"},
                                                              {"a.json", "json"},
                                                              {"a", "json"},
                                                              {"a.b/c", "json"}}) {
            std::vector<std::string> arguments = kind.arguments;
            arguments.insert(arguments.end(), {"-o", folder / ("of " + name)});
            std::filesystem::create_directories(std::filesystem::path(folder / ("of " + name)).parent_path());
            EXPECT_EQ(RunTool(arguments).status, 0) << name;
            EXPECT_EQ(folder.Read("of " + name), WithFormat(kind.arguments, format)) << name;
        }
    }
}

TEST(PictureFormats, FormatThatIsGivenWinsOverTheOutputsName) {
    const ScratchFolder folder;
    for (const Kind& kind : Kinds(folder)) {
        WithFormat(kind.arguments, "svg", {"-o", folder / "a.html"});
        EXPECT_EQ(folder.Read("a.html"), WithFormat(kind.arguments, "svg"));
    }
}

TEST(PictureFormats, NameThatTellsNoFormatIsAFaultOfTheCommandLine) {
    const ScratchFolder folder;
    for (const Kind& kind : Kinds(folder)) {
        std::vector<std::string> arguments = kind.arguments;
        arguments.insert(arguments.end(), {"-o", folder / "a.gif"});
        const ToolResult result = RunTool(arguments);
        EXPECT_EQ(result.status, 2);
        EXPECT_EQ(result.errors,
                  "styleconv: -o " + (folder / "a.gif") +
                      ": the end of the name tells no format; use .json, .svg, .png, .html, .xml or .qml, or "
                      "--format\n");
        EXPECT_EQ(folder.Read("a.gif"), "(none)");
    }
}

#if defined(_WIN32)
TEST(PictureFormats, PngIsNotMadeOnWindows) {
    const ScratchFolder folder;
    const std::string file = folder.Write("a.pat", "*LEVEL,Lines\n0, 0,0, 0,.125\n");
    const ToolResult result = RunTool({"patterns", file, "-o", folder / "a.png"});
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.errors, "styleconv: --format png: PNG pictures are not made on Windows\n");
    EXPECT_EQ(folder.Read("a.png"), "(none)");
}
#else
TEST(PictureFormats, PngIsAsLargeAsTheSvg) {
    const ScratchFolder folder;
    for (const Kind& kind : Kinds(folder)) {
        for (const auto& [more, size] : {std::pair<std::vector<std::string>, std::string>{
                                             kind.first, {0, 0, 2, '\x80', 0, 0, 2, 0x2c}}, // 640 x 556
                                         {{}, {0, 0, 2, '\x88', 0, 0, 1, 0x50}}}) {         // 648 x 336
            const std::string png = WithFormat(kind.arguments, "png", more);
            EXPECT_EQ(png.substr(0, 8), "\x89PNG\r\n\x1a\n");
            EXPECT_EQ(png.substr(12, 12), "IHDR" + size) << kind.arguments[0];
        }
        std::vector<std::string> arguments = kind.arguments;
        arguments.insert(arguments.end(), {"-o", folder / "a.PNG"});
        EXPECT_EQ(RunTool(arguments).status, 0);
        EXPECT_EQ(folder.Read("a.PNG"), WithFormat(kind.arguments, "png"));
    }
}
#endif

// The pixels that the strokes of a picture "M0 0v-123" are high.
double HeightOfFirstLine(const std::string& svg) {
    const std::size_t at = svg.find('v', svg.find(" d=\"M"));
    return std::abs(std::stod(svg.substr(at + 1)));
}

TEST(PictureFormats, LettersOfAFontAreShownAtOneScale) {
    const ScratchFolder folder;
    const std::string font = folder.Write("font.shx", TallAndLow());
    const std::string shapes = folder.Write("shapes.shx", TallAndLowShapes());
    const auto ratio = [](const std::string& file) {
        const std::string sheet = WithFormat({"glyphs", file}, "svg");
        return HeightOfFirstLine(sheet) / HeightOfFirstLine(sheet.substr(sheet.rfind("<svg")));
    };
    EXPECT_NEAR(ratio(font), 4.0, 0.01);
    // Shapes have nothing in common: each fills its picture.
    EXPECT_NEAR(ratio(shapes), 1.0, 0.01);
    // What holds the place is not seen, and is no part of the size.
    const std::string low = WithFormat({"glyphs", font}, "svg");
    EXPECT_TRUE(Has(low, "Drawing, 0 \xc3\x97 2<")) << low;
    EXPECT_EQ(Count(low, "<path"), 2U) << low;
}

// Each in millimetres: lines across 100 mm of which a repeat of 2 goes into whole ones, a tile of one line
// every eighth, a ring of 4 mm and a bar of 8, which have pens of 0.3.
TEST(PictureFormats, BareIsOneSymbolWithNothingAroundIt) {
    const ScratchFolder folder;
    const std::vector<Kind> kinds = Kinds(folder);
    const std::vector<std::string> sizes = {R"(height="0.125mm")", R"(width="100mm" height="0.3mm")",
                                            R"(width="4.3mm" height="4.3mm")",
                                            R"(width="0.3mm" height="8.3mm")"};
    for (std::size_t i = 0; i < kinds.size(); ++i) {
        std::vector<std::string> arguments = kinds[i].arguments;
        arguments.insert(arguments.end(), {"--bare", "--format", "svg"});
        const ToolResult several = RunTool(arguments);
        EXPECT_EQ(several.status, 2);
        EXPECT_EQ(several.errors,
                  "styleconv: --bare is the picture of one symbol, and there are 2: choose one with " +
                      kinds[i].first.front() + "\n");
        arguments.insert(arguments.end(), kinds[i].first.begin(), kinds[i].first.end());
        const ToolResult result = RunTool(arguments);
        EXPECT_EQ(result.status, 0) << result.errors;
        EXPECT_TRUE(Has(result.output, sizes[i])) << result.output;
        EXPECT_FALSE(Has(result.output, "<text")) << "no caption: " << result.output;
        EXPECT_TRUE(result.output.ends_with("</svg>\n"));
        arguments[arguments.size() - 3] = "html";
        const ToolResult page = RunTool(arguments);
        EXPECT_EQ(page.status, 2);
        EXPECT_EQ(page.errors, "styleconv: --bare can only be used with --format svg or png\n");
    }
}

TEST(PictureFormats, BareTakesLengthScaleAndWeight) {
    const ScratchFolder folder;
    const std::string lines = folder.Write("a.lin", "*DASHED,Dashes\nA,1,-1\n");
    const ToolResult line = RunTool({"linetypes", lines, "--bare", "--format", "svg", "--length", "25.4",
                                     "--scale", "10", "--weight", "0.5"});
    EXPECT_TRUE(Has(line.output, R"(width="25.4mm" height="0.5mm" viewBox="0 0 96 )")) << line.output;
    EXPECT_TRUE(Has(line.output, "M0,0.945H37.795M75.591,0.945H96\"")) << line.output; // 0 to 10, 20 to 25.4
    const std::string drawing = folder.Write("a.json", kRodAndRing);
    const ToolResult ring = RunTool({"convert", drawing, "--bare", "--format", "svg"});
    EXPECT_EQ(ring.status, 2);
    const ToolResult scaled =
        RunTool({"blocks", drawing, "--name", "RING", "--bare", "--format", "svg", "--scale", "2"});
    EXPECT_TRUE(Has(scaled.output, R"(width="8.3mm" height="8.3mm")")) << scaled.output;
    const ToolResult alone = RunTool({"linetypes", lines, "--format", "svg", "--length", "25"});
    EXPECT_EQ(alone.status, 2);
    EXPECT_EQ(alone.errors, "styleconv: --length can only be used with --bare\n");
}

// A drawing of nothing has no box.
TEST(PictureFormats, WhatHasNoBarePictureIsSaidAndNothingIsWritten) {
    const ScratchFolder folder;
    const std::string pattern = folder.Write("a.pat", "*FINE\n45,0,0,0,.00001,.00001,-.00002\n");
    const std::string output = folder / "fine.svg";
    const ToolResult result = RunTool({"patterns", pattern, "--bare", "-o", output});
    EXPECT_EQ(result.status, 1) << result.output;
    EXPECT_TRUE(Has(result.errors, "a.pat: error: there is no bare picture of it: ")) << result.errors;
    EXPECT_FALSE(std::filesystem::exists(output));
}

} // namespace
