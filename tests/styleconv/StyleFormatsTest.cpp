// The style libraries that commands write. How they look on a map is tested in the map program.
#include "tests/support/Has.h"
#include "tests/support/ShapeFileBuilder.h"
#include "tests/support/ToolRun.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <filesystem>
#include <utility>

namespace {

using support::Has;
using support::RunTool;
using support::ScratchFolder;
using support::ToolResult;

ToolResult RunQgis(std::vector<std::string> arguments, const std::vector<std::string>& more = {}) {
    arguments.insert(arguments.end(), {"--format", "qgis"});
    arguments.insert(arguments.end(), more.begin(), more.end());
    return RunTool(arguments);
}

// A pattern whose numbers the required output cuts.
constexpr const char* kThirds = "*THIRDS\n0, 0,0, 0,.33333333\n";

constexpr const char* kRod = R"({"format": "styleconversion/drawing", "version": 1, "insunits": 4,
  "layers": [{"name": "0"}],
  "blocks": [{"name": "ROD", "entities": [
    {"type": "line", "start": [0, 0], "end": [500, 0], "lineWeight": 50, "color": 1}]}]})";

TEST(StyleFormats, EveryCommandWritesALibraryWithTagsOfKindAndFile) {
    const ScratchFolder folder;
    const struct {
        std::vector<std::string> arguments;
        const char* symbol;
    } kCases[] = {
        {{"patterns", folder.Write("walls.pat", "*LEVEL\n0, 0,0, 0,.125\n")},
         "<symbol type=\"fill\" name=\"LEVEL\" alpha=\"1\" clip_to_extent=\"1\" force_rhr=\"0\" "
         "tags=\"hatch,walls\">"},
        {{"linetypes", folder.Write("pipes.lin", "*GAS\nA,1,-1\n")},
         "<symbol type=\"line\" name=\"GAS\" alpha=\"1\" clip_to_extent=\"0\" force_rhr=\"0\" "
         "tags=\"linetype,pipes\">"},
        {{"blocks", folder.Write("street.json", kRod)},
         "<symbol type=\"marker\" name=\"ROD\" alpha=\"1\" clip_to_extent=\"0\" force_rhr=\"0\" "
         "tags=\"block,street\">"},
    };
    for (const auto& test : kCases) {
        const ToolResult result = RunQgis(test.arguments);
        EXPECT_EQ(result.status, 0) << result.errors;
        EXPECT_TRUE(Has(result.output, test.symbol)) << result.output;
        EXPECT_TRUE(result.output.ends_with("</qgis_style>\n"));
    }
}

// Where the folder itself stands is no tag.
TEST(StyleFormats, SymbolsOfSeveralFilesHaveTagsOfTheirOwnFoldersAndFiles) {
    const ScratchFolder folder;
    std::filesystem::create_directories(folder / "city/roads");
    folder.Write("city/walls.pat", "*LEVEL\n0, 0,0, 0,.125\n");
    folder.Write("city/roads/kerbs.lin", "*KERB\nA,1,-1\n");
    const std::string pipes = folder.Write("pipes.lin", "*GAS\nA,1,-1\n*KERB\nA,2,-1\n");
    const ToolResult result = RunQgis({"convert", folder / "city", pipes});
    EXPECT_EQ(result.status, 0) << result.errors;
    for (const auto& [name, tags] : {std::pair<std::string, std::string>{"LEVEL", "hatch,city,walls"},
                                     {"KERB", "linetype,city,roads,kerbs"},
                                     {"GAS", "linetype,pipes"}}) {
        const std::size_t symbol = result.output.find("name=\"" + name + "\"");
        ASSERT_NE(symbol, std::string::npos) << name;
        EXPECT_TRUE(Has(result.output.substr(symbol, result.output.find('>', symbol) - symbol),
                        " tags=\"" + tags + "\""))
            << result.output;
    }
    // The second KERB is told apart by its file.
    EXPECT_TRUE(Has(result.output, "name=\"KERB (")) << result.output;
    EXPECT_FALSE(Has(result.output, "tags=\"linetype,city,roads,kerbs,")) << result.output;
}

TEST(StyleFormats, SymbolsOfADocumentKeepTheTagsOfTheFilesTheyCameFrom) {
    const ScratchFolder folder;
    const std::string walls = folder.Write("walls.pat", "*LEVEL\n0, 0,0, 0,.125\n");
    const std::string pipes = folder.Write("pipes.lin", "*GAS\nA,1,-1\n");
    const ToolResult made = RunTool({"convert", walls, pipes, "--faithful", "-o", folder / "all.json"});
    EXPECT_EQ(made.status, 0) << made.errors;
    const std::string library = RunQgis({"convert", folder / "all.json"}).output;
    EXPECT_TRUE(Has(library, " tags=\"hatch,walls\"")) << library;
    EXPECT_TRUE(Has(library, " tags=\"linetype,pipes\"")) << library;
}

TEST(StyleFormats, TheEndOfTheOutputsNameTellsTheFormat) {
    const ScratchFolder folder;
    const std::string file = folder.Write("pipes.lin", "*GAS\nA,1,-1\n");
    EXPECT_EQ(RunTool({"linetypes", file, "-o", folder / "pipes.xml"}).status, 0);
    EXPECT_EQ(folder.Read("pipes.xml"), RunQgis({"linetypes", file}).output);
}

TEST(StyleFormats, ALayerStyleIsOfOneSymbol) {
    const ScratchFolder folder;
    const std::string file = folder.Write("pipes.lin", "*GAS\nA,1,-1\n*WATER\nA,2,-1\n");
    const ToolResult chosen = RunTool({"linetypes", file, "--name", "GAS", "-o", folder / "gas.qml"});
    EXPECT_EQ(chosen.status, 0) << chosen.errors;
    const std::string style = folder.Read("gas.qml");
    EXPECT_TRUE(Has(style, "<symbol type=\"line\" name=\"0\"")) << style;
    EXPECT_EQ(RunTool({"linetypes", file, "--name", "GAS", "--format", "qml"}).output, style);
    const std::string one = folder.Write("a.pat", "*LEVEL\n0, 0,0, 0,.125\n");
    const ToolResult hatch = RunTool({"convert", one, "--format", "qml", "--scale", "4"});
    EXPECT_EQ(hatch.errors,
              "styleconv: 1 file, 1 symbol\n" + one +
                  ": note: the style keeps the angle at the default of its parameter (symbol LEVEL)\n");
    EXPECT_TRUE(Has(hatch.output, "y_min($geometry)+@element*0.5+0")) << hatch.output;
}

TEST(StyleFormats, SeveralSymbolsAreNoLayerStyle) {
    const ScratchFolder folder;
    const std::string lines = folder.Write("pipes.lin", "*GAS\nA,1,-1\n*WATER\nA,2,-1\n");
    const std::string marks = folder.Write("marks.shx", test_support::ShapeFileBuilder::Shapes()
                                                            .Shape(130, "UP", {0x14, 0})
                                                            .Shape(129, "E", {0x10, 0})
                                                            .Text());
    const std::string many =
        "convert one file by linetypes, patterns or blocks with --name, or by glyphs with --number";
    const std::pair<std::vector<std::string>, std::string> cases[] = {
        {{"linetypes", lines}, "choose one with --name"},
        {{"linetypes", lines, "--name", "GAS", "--name", "WATER"}, "choose one with --name"},
        {{"convert", lines}, many},
        {{"glyphs", marks}, "choose one with --number"},
    };
    for (auto [arguments, advice] : cases) {
        arguments.insert(arguments.end(), {"-o", folder / "a.qml"});
        const ToolResult result = RunTool(arguments);
        EXPECT_EQ(result.status, 2);
        EXPECT_EQ(result.errors,
                  "styleconv: --format qml is the style of one symbol, and there are 2: " + advice + "\n");
        EXPECT_EQ(folder.Read("a.qml"), "(none)");
    }
}

// 0.33333333 inches are 8.466666582 mm; the required output has five decimals of it.
TEST(StyleFormats, StylesAreMadeOfFaithfulSymbolsUnlessStrictOnesAreAskedFor) {
    const ScratchFolder folder;
    const std::string file = folder.Write("a.pat", kThirds);
    const std::string faithful = RunQgis({"patterns", file}).output;
    EXPECT_TRUE(Has(faithful, "@element*0.33333333+")) << faithful;
    const std::string strict = RunQgis({"patterns", file}, {"--strict-symbols"}).output;
    EXPECT_TRUE(Has(strict, "@element*0.33333+")) << strict;
    EXPECT_EQ(RunQgis({"patterns", file}, {"--faithful"}).output, faithful);
}

TEST(StyleFormats, HatchesRepeatInUnitsOfTheMapOrOfThePageTimesTheScale) {
    const ScratchFolder folder;
    const std::string file = folder.Write("a.pat", "*LEVEL\n0, 0,0, 0,.125\n");
    const std::string unit = "<Option name=\"units\" type=\"QString\" value=\"";
    const std::string map = RunQgis({"patterns", file}, {"--scale", "4"}).output;
    EXPECT_TRUE(Has(map, unit + "MapUnit\"/>"));
    EXPECT_TRUE(Has(map, "y_min($geometry)+@element*0.5+0")) << map;
    const std::string page = RunQgis({"patterns", file}, {"--hatch-units", "mm"}).output;
    EXPECT_TRUE(Has(page, unit + "MM\"/>"));
    EXPECT_TRUE(Has(page, "y_max($geometry)+@element*0.125+0")) << page;
}

// The square holds 500 mm and a tenth of it to each side.
TEST(StyleFormats, BlocksAreScaledAndKeepTheirPens) {
    const ScratchFolder folder;
    const std::string file = folder.Write("street.json", kRod);
    const std::string whole = RunQgis({"blocks", file}).output;
    EXPECT_TRUE(Has(whole, "name=\"size\" type=\"QString\" value=\"1100\"")) << whole;
    const std::string small = RunQgis({"blocks", file}, {"--scale", "0.01"}).output;
    EXPECT_TRUE(Has(small, "name=\"size\" type=\"QString\" value=\"11\"")) << small;
    EXPECT_TRUE(Has(small, "name=\"outline_width\" type=\"QString\" value=\"0.5\"")) << small;
}

TEST(StyleFormats, WhatIsNotCarriedOverIsTold) {
    const ScratchFolder folder;
    const std::string pattern = folder.Write("a.pat", "*LEVEL\n0, 0,0, 0,.125\n");
    EXPECT_EQ(RunQgis({"patterns", pattern}).errors,
              pattern + ": note: the style keeps the angle at the default of its parameter (symbol LEVEL)\n");
    const std::string lines = folder.Write("a.lin", "*TWICE\nA,1,-1\n*TWICE\nA,2,-1\n");
    EXPECT_EQ(
        RunQgis({"linetypes", lines}).errors,
        lines +
            ": warning: the library has the name already; this style is named TWICE (2) (symbol TWICE)\n");
    for (const auto& [text, isTold] :
         {std::pair<std::string, bool>{"%%u90", true}, {"%%o90", true}, {"90", false}}) {
        const std::string words = folder.Write("b.lin", "*HOT\nA,8,-1,[\"" + text + "\",STANDARD,S=1],-6\n");
        EXPECT_EQ(
            RunQgis({"linetypes", words, "--font", "Arial"}).errors,
            isTold ? words + ": warning: lines under and over texts are not part of the style (symbol HOT)\n"
                   : "");
    }
}

// What is said where a system makes no PNG pictures, left out.
std::string WithoutSheets(const std::string& errors) {
    std::string rest;
    for (std::size_t at = 0; at < errors.size();) {
        const std::size_t end = std::min(errors.find('\n', at), errors.size() - 1) + 1;
        const std::string line = errors.substr(at, end - at);
        rest += Has(line, ".png: note: not written: ") ? "" : line;
        at = end;
    }
    return rest;
}

TEST(StyleFormats, AFolderHoldsTheStyleOfMapLibreAndItsPictures) {
    const ScratchFolder folder;
    const std::string file = folder.Write("walls.pat", "*LEVEL\n0, 0,0, 0,.125\n");
    const ToolResult result = RunTool({"patterns", file, "--format", "maplibre", "-o", folder / "map"});
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(result.output, "");
    const std::string style = folder.Read("map/style.json");
    EXPECT_TRUE(Has(style, "\"fill-pattern\": \"hatch-level\"")) << style;
    EXPECT_TRUE(folder.Read("map/sprite/hatch-level.svg").starts_with("<svg xmlns="));
#if defined(_WIN32)
    EXPECT_EQ(folder.Read("map/sprite.json"), "(none)");
    EXPECT_TRUE(Has(result.errors, "sprite.png: note: not written: PNG pictures are not made on Windows"))
        << result.errors;
#else
    EXPECT_EQ(WithoutSheets(result.errors), result.errors);
    EXPECT_TRUE(folder.Read("map/sprite.png").starts_with("\x89PNG"));
    EXPECT_TRUE(folder.Read("map/sprite@2x.png").starts_with("\x89PNG"));
    EXPECT_TRUE(Has(folder.Read("map/sprite.json"), "\"hatch-level\": {\"x\": 0, \"y\": 0, "));
    EXPECT_TRUE(Has(folder.Read("map/sprite@2x.json"), "\"pixelRatio\": 2}"));
#endif
    // Writing again replaces what is there.
    EXPECT_EQ(RunTool({"patterns", file, "--format", "maplibre", "-o", folder / "map"}).status, 0);
    EXPECT_EQ(folder.Read("map/style.json"), style);
}

TEST(StyleFormats, WhatIsNotCarriedOverOfSeveralFilesIsToldOfTheSymbolsOwn) {
    const ScratchFolder folder;
    const std::string plain = folder.Write("a.lin", "*PLAIN\nA,1,-1\n");
    const std::string hot = folder.Write("b.lin", "*HOT\nA,8,-1,[\"%%u90\",STANDARD,S=1],-6\n");
    const std::string cold = folder.Write("c.lin", "*COLD\nA,8,-1,[\"%%u90\",STANDARD,S=1],-6\n");
    const std::string errors =
        RunQgis({"convert", plain, hot, cold}, {"--font", "Arial", "-o", folder / "all.xml"}).errors;
    const std::string lost = ": warning: lines under and over texts are not part of the style (symbol ";
    EXPECT_TRUE(Has(errors, hot + lost + "HOT)\n")) << errors;
    EXPECT_TRUE(Has(errors, cold + lost + "COLD)\n")) << errors;
    EXPECT_FALSE(Has(errors, "all.xml")) << errors;
    const std::string walls = folder.Write("walls.pat", "*LEVEL\n0, 0,0, 0,.125\n");
    const ToolResult map = RunTool({"convert", plain, walls, "--format", "maplibre", "-o", folder / "map"});
    EXPECT_TRUE(Has(map.errors, walls + ": note: the style keeps the angle at the default of its parameter "
                                        "(symbol LEVEL)\n"))
        << map.errors;
}

TEST(StyleFormats, AStyleOfMapLibreNeedsAFolder) {
    const ScratchFolder folder;
    const std::string file = folder.Write("a.pat", "*LEVEL\n0, 0,0, 0,.125\n");
    const ToolResult nameless = RunTool({"patterns", file, "--format", "maplibre"});
    EXPECT_EQ(nameless.status, 2);
    EXPECT_EQ(nameless.errors, "styleconv: --format maplibre writes a folder: name it with -o\n");
    EXPECT_EQ(RunTool({"patterns", file, "--format", "maplibre", "-o", file}).status, 1);
}

TEST(StyleFormats, WhatAStyleOfMapLibreLeavesOutIsTold) {
    const ScratchFolder folder;
    const std::string file = folder.Write("street.json", kRod);
    const ToolResult result = RunTool({"blocks", file, "--format", "maplibre", "-o", folder / "map"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(WithoutSheets(result.errors),
              file + ": warning: larger than a picture of 1024 pixels; it is not part of the "
                     "style; --scale makes it smaller (symbol ROD)\n");
    const ToolResult small =
        RunTool({"blocks", file, "--format", "maplibre", "--scale", "0.01", "-o", folder / "map"});
    EXPECT_EQ(WithoutSheets(small.errors), "");
    EXPECT_TRUE(Has(folder.Read("map/style.json"), "\"icon-image\": \"point-rod\""));
}

// What a reader takes out of a gallery where the symbols of these places are shown; all where there are none.
std::string TakenOut(const std::string& page, const std::vector<std::size_t>& places = {}) {
    using Json = nlohmann::json;
    const auto after = [&page](const std::string& start, std::size_t& at) {
        at = page.find(start, at);
        if (at == std::string::npos) {
            return Json();
        }
        at += start.size();
        return Json::parse(page.substr(at, page.find("</script>", at) - at));
    };
    std::vector<std::string> entries;
    std::size_t at = 0;
    for (Json data; !(data = after("\n<script type=\"application/json\">", at)).is_null();) {
        entries.push_back(data.value("style", "none"));
    }
    at = 0;
    const Json library = after("<script id=\"library\" type=\"application/json\">", at);
    if (library.is_null()) {
        return "";
    }
    std::string text = library["head"].get<std::string>();
    for (std::size_t i = 0; i < entries.size(); ++i) {
        if (places.empty() || std::find(places.begin(), places.end(), i) != places.end()) {
            text += entries[i];
        }
    }
    return text + library["tail"].get<std::string>();
}

TEST(StyleFormats, GalleriesHoldTheSymbolsOfTheLibraryWhereTheyAreToldTo) {
    const ScratchFolder folder;
    const std::string patterns =
        folder.Write("a.pat", "*LEVEL\n0, 0,0, 0,.125\n*UP\n90, 0,0, 0,.5, .25,-.1\n*STEEP\n60, 0,0, 0,.5\n");
    const std::string linetypes = folder.Write(
        "b.lin", "*\xc3\x84 & <DASH>\nA,1,-.25\n*GAS\nA,.5,-.2,[\"GAS\",STANDARD,S=.1,X=-.1],-.25\n");
    const auto output = [](std::vector<std::string> arguments, const std::vector<std::string>& more) {
        arguments.insert(arguments.end(), more.begin(), more.end());
        return RunTool(arguments).output;
    };
    const std::vector<std::string> html = {"--format", "html", "--with-style", "qgis"};
    const std::vector<std::string> qgis = {"--format", "qgis"};
    for (const std::vector<std::string>& options : std::vector<std::vector<std::string>>{
             {}, {"--strict-symbols"}, {"--faithful"}, {"--scale", "3", "--hatch-units", "mm"}}) {
        std::vector<std::string> arguments = {"convert", patterns, linetypes};
        arguments.insert(arguments.end(), options.begin(), options.end());
        const std::string library = output(arguments, qgis);
        EXPECT_NE(library.find("name=\"GAS\""), std::string::npos);
        EXPECT_EQ(TakenOut(output(arguments, html)), library);
    }
    // A selection is what a conversion of these symbols alone makes.
    EXPECT_EQ(TakenOut(output({"patterns", patterns}, html), {0, 2}),
              output({"patterns", patterns, "--name", "LEVEL", "--name", "UP"}, qgis));
    EXPECT_EQ(TakenOut(output({"linetypes", linetypes}, html), {1}),
              output({"linetypes", linetypes, "--name", "GAS"}, qgis));
    EXPECT_EQ(TakenOut(output({"patterns", patterns}, {"--format", "html"})), "");
}

TEST(StyleFormats, GalleriesWithStylesTellWhatThoseLose) {
    const ScratchFolder folder;
    const std::string file = folder.Write("a.pat", "*UP\n90, 0,0, 0,.5, .25,-.1\n");
    const ToolResult gallery = RunTool({"patterns", file, "--with-style", "qgis", "--format", "html"});
    EXPECT_EQ(gallery.status, 0);
    EXPECT_EQ(gallery.errors, RunTool({"patterns", file, "--format", "qgis"}).errors);
    EXPECT_NE(gallery.errors.find("the style keeps the angle"), std::string::npos);
    for (const std::string format : {"json", "svg", "qgis"}) {
        const ToolResult result = RunTool({"patterns", file, "--with-style", "qgis", "--format", format});
        EXPECT_EQ(result.status, 2);
        EXPECT_EQ(result.errors, "styleconv: --with-style can only be used with --format html\n");
    }
}

TEST(StyleFormats, OptionsOfStylesAreForStyles) {
    const ScratchFolder folder;
    const std::string file = folder.Write("a.pat", "*LEVEL\n0, 0,0, 0,.125\n");
    for (const std::vector<std::string>& option :
         std::vector<std::vector<std::string>>{{"--scale", "2", "--bare or --format qgis, qml or maplibre"},
                                               {"--strict-symbols", "qgis, qml or maplibre"},
                                               {"--hatch-units", "mm", "qgis or qml"},
                                               {"--allow-approximate", "maplibre"}}) {
        std::vector<std::string> arguments = {"patterns", file};
        arguments.insert(arguments.end(), option.begin(), option.end() - 1);
        const ToolResult result = RunTool(arguments);
        EXPECT_EQ(result.status, 2);
        const std::string with = option.front() == "--scale" ? "" : "--format ";
        EXPECT_EQ(result.errors,
                  "styleconv: " + option.front() + " can only be used with " + with + option.back() + "\n");
    }
    const ToolResult result = RunQgis({"patterns", file}, {"--faithful", "--strict-symbols"});
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.errors, "styleconv: --strict-symbols cannot be used with --faithful\n");
}

} // namespace
