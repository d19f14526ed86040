#include "styles/QgisLibrary.h"
#include "tests/styles/StyleSamples.h"

#include <gtest/gtest.h>

namespace {

using namespace styles;
using preview_test::NewSymbol;

struct Library {
    std::string text;
    std::vector<AddedStyle> added;

    bool Has(const std::string& part) const { return text.find(part) != std::string::npos; }
};

Library LibraryOf(const std::vector<TylModel::SymbolDefinition*>& symbols, QgisOptions options = {},
                  const std::vector<std::string>& tags = {}) {
    Library library;
    QgisLibraryWriter writer(
        [&](std::string_view text) {
            library.text += text;
            return true;
        },
        options);
    for (TylModel::SymbolDefinition* const symbol : symbols) {
        EXPECT_TRUE(writer.Add(*symbol, tags, library.added.emplace_back()));
    }
    EXPECT_TRUE(writer.Finish());
    return library;
}

std::string Option(const std::string& name, const std::string& value) {
    return "<Option name=\"" + name + "\" type=\"QString\" value=\"" + value + "\"/>";
}

std::string LayerOf(const std::string& layerClass) {
    return "<layer class=\"" + layerClass + "\" enabled=\"1\" locked=\"0\" pass=\"0\"><Option type=\"Map\">";
}

const std::string kThinLine = Option("line_color", "0,0,0,255") + Option("line_width", "0.3") +
                              Option("line_width_unit", "MM") + Option("capstyle", "flat") +
                              Option("joinstyle", "bevel") + Option("line_style", "solid");

TEST(QgisLibrary, WithoutSymbolsIsALibrary) {
    EXPECT_EQ(LibraryOf({}).text, "<!DOCTYPE qgis_style>\n<qgis_style version=\"2\">\n<symbols>\n</symbols>\n"
                                  "<colorramps/>\n<textformats/>\n<labelsettings/>\n<legendpatchshapes/>\n"
                                  "</qgis_style>\n");
}

TEST(QgisLibrary, DashesArePlainLinesWithDashesOfTheirOwn) {
    const auto symbol = NewSymbol(L"DASHED");
    preview_test::AddPath(*symbol, L"M 0,0 L 4,0 M 5,0 L 9,0 ");
    preview_test::SetLineUsage(*symbol, L"9");
    const Library library = LibraryOf({symbol.get()}, {HatchUnit::kMap, 1.0}, {"roads", "posts, and more"});
    EXPECT_TRUE(library.Has(
        "<symbol type=\"line\" name=\"DASHED\" alpha=\"1\" clip_to_extent=\"0\" force_rhr=\"0\" "
        "tags=\"linetype,roads,posts  and more\">" +
        LayerOf("SimpleLine") + kThinLine + Option("use_custom_dash", "1") + Option("customdash", "8;1") +
        Option("customdash_unit", "MM") + Option("dash_pattern_offset", "4") +
        Option("dash_pattern_offset_unit", "MM") + Option("align_dash_pattern", "0") +
        Option("tweak_dash_pattern_on_corners", "0") + "</Option></layer></symbol>\n"))
        << library.text;
}

TEST(QgisLibrary, DotsAreMarkersInALine) {
    const auto symbol = NewSymbol(L"DOTTED");
    preview_test::AddPath(*symbol, L"M 1,0 L 1,0 ");
    preview_test::SetLineUsage(*symbol, L"1.5");
    const Library library = LibraryOf({symbol.get()}, {HatchUnit::kMap, 2.0});
    EXPECT_TRUE(library.Has(
        LayerOf("MarkerLine") + Option("interval", "3") + Option("interval_unit", "MM") +
        Option("offset_along_line", "2") + Option("offset_along_line_unit", "MM") + Option("rotate", "1") +
        Option("placement", "interval") + Option("placements", "Interval") +
        Option("average_angle_length", "0") + Option("average_angle_unit", "MM") + Option("offset", "0") +
        Option("place_on_every_part", "1") +
        "</Option><symbol type=\"marker\" name=\"@DOTTED@0\" alpha=\"1\" clip_to_extent=\"0\" "
        "force_rhr=\"0\">" +
        LayerOf("SimpleMarker") + Option("name", "circle") + Option("color", "0,0,0,255") +
        Option("outline_style", "no") + Option("size", "0.3") + Option("size_unit", "MM") +
        "</Option></layer></symbol></layer></symbol>\n"))
        << library.text;
}

TEST(QgisLibrary, HatchesAreGeneratorsOfLinesThatEndAtALimit) {
    const auto symbol = NewSymbol(L"HATCH");
    preview_test::AddPath(*symbol, L"M 0,0 L 1,2");
    preview_test::SetAreaUsage(*symbol, L"0", L"2", L"2");
    const Library library = LibraryOf({symbol.get()});
    EXPECT_TRUE(
        library.Has("<symbol type=\"fill\" name=\"HATCH\" alpha=\"1\" clip_to_extent=\"1\" force_rhr=\"0\" "
                    "tags=\"hatch\">" +
                    LayerOf("GeometryGenerator") + Option("SymbolType", "Line")))
        << library.text;
    // A stroke on four square units.
    EXPECT_TRUE(library.Has(Option("units", "MapUnit") +
                            "</Option><data_defined_properties><Option type=\"Map\">" + Option("name", "") +
                            "<Option name=\"properties\" type=\"Map\"><Option name=\"enabled\" type=\"Map\">"
                            "<Option name=\"active\" type=\"bool\" value=\"true\"/>"));
    EXPECT_TRUE(library.Has("bounds($geometry))))&lt;400000\"/>"));
    EXPECT_TRUE(library.Has(
        "<symbol type=\"line\" name=\"@HATCH@0\" alpha=\"1\" clip_to_extent=\"1\" force_rhr=\"0\">" +
        LayerOf("SimpleLine") + kThinLine + "</Option></layer></symbol></layer></symbol>\n"));
}

TEST(QgisLibrary, HatchesOfThePageHaveTheLimitInTheExpression) {
    const auto symbol = NewSymbol(L"HATCH");
    preview_test::AddPath(*symbol, L"M 0,0 L 1,2");
    preview_test::SetAreaUsage(*symbol, L"0", L"2", L"2");
    const Library library = LibraryOf({symbol.get()}, {HatchUnit::kMillimetre, 1.0});
    EXPECT_TRUE(library.Has("value=\"if(area(bounds($geometry))&lt;400000,with_variable(")) << library.text;
    EXPECT_TRUE(library.Has(",NULL)\"/>" + Option("units", "MM") + "</Option><symbol "));
}

TEST(QgisLibrary, PointsAreMarkersAsLargeAsTheirSquare) {
    const auto symbol = NewSymbol(L"POINT");
    preview_test::AddPath(*symbol, L"M -2,0 L 2,0", L"80ff0000").SetLineWeight(L"0.5");
    preview_test::SetPointUsage(*symbol);
    const Library library = LibraryOf({symbol.get()});
    EXPECT_TRUE(library.Has("tags=\"block\">" + LayerOf("SvgMarker") +
                            "<Option name=\"name\" type=\"QString\" "
                            "value=\"base64:"))
        << library.text;
    EXPECT_TRUE(library.Has(Option("size", "5") + Option("size_unit", "MM") + Option("color", "255,0,0,128") +
                            Option("outline_color", "255,0,0,128") + Option("outline_width", "0.5") +
                            Option("outline_width_unit", "MM") + Option("angle", "0") +
                            Option("fixedAspectRatio", "0") + "</Option></layer></symbol>\n"));
}

TEST(QgisLibrary, TextsOfParametersComeFromAttributes) {
    const auto symbol = NewSymbol(L"STOP");
    preview_test::AddParameter(*symbol, L"STOP'S", L"Stop", L"'000'", TylModel::Parameter::kText);
    preview_test::AddText(*symbol, L"%STOP'S%");
    preview_test::SetPointUsage(*symbol);
    const Library library = LibraryOf({symbol.get()});
    EXPECT_TRUE(library.Has(
        "<Option name=\"parameters\" type=\"Map\"><Option name=\"text\" type=\"Map\">"
        "<Option name=\"active\" type=\"bool\" value=\"true\"/>" +
        Option("expression", "coalesce(attribute(&#39;STOP&#39;&#39;S&#39;),&#39;000&#39;)") +
        "<Option name=\"type\" type=\"int\" value=\"3\"/></Option></Option></Option></layer></symbol>\n"))
        << library.text;
}

TEST(QgisLibrary, SymbolsThatDrawNothingHaveALayerThatDrawsNothing) {
    const auto line = NewSymbol(L"GAP");
    preview_test::SetLineUsage(*line, L"5");
    const auto area = NewSymbol(L"BARE");
    preview_test::SetAreaUsage(*area, L"0", L"2", L"2");
    const auto point = NewSymbol(L"VOID");
    const Library library = LibraryOf({line.get(), area.get(), point.get()});
    EXPECT_TRUE(library.Has(LayerOf("SimpleLine") + Option("line_style", "no")));
    EXPECT_TRUE(library.Has(LayerOf("SimpleFill") + Option("style", "no") + Option("outline_style", "no")));
    EXPECT_TRUE(
        library.Has(LayerOf("SimpleMarker") + Option("color", "0,0,0,0") + Option("outline_style", "no")));
    EXPECT_TRUE(
        library.Has("name=\"VOID\" alpha=\"1\" clip_to_extent=\"0\" force_rhr=\"0\" tags=\"shape\">"));
}

TEST(QgisLibrary, NoTwoNamesAreAlike) {
    std::vector<std::unique_ptr<TylModel::SimpleSymbolDefinition>> owned;
    std::vector<TylModel::SymbolDefinition*> symbols;
    for (const wchar_t* const name : {L"A", L"A", L"A (2)", L"A", L"", L"", L"a"}) {
        owned.push_back(NewSymbol(name));
        symbols.push_back(owned.back().get());
    }
    std::vector<std::string> names;
    std::vector<bool> renamed;
    for (const AddedStyle& added : LibraryOf(symbols).added) {
        names.push_back(added.name);
        renamed.push_back(added.isRenamed);
    }
    EXPECT_EQ(names,
              (std::vector<std::string>{"A", "A (2)", "A (2) (2)", "A (3)", "unnamed", "unnamed (2)", "a"}));
    EXPECT_EQ(renamed, (std::vector<bool>{false, true, true, true, true, true, false}));
}

TEST(QgisLibrary, NamesFromHostileFilesStayInsideTheirAttribute) {
    const auto symbol = NewSymbol(L"\"/><x a=\"&\n\x01");
    const Library library = LibraryOf({symbol.get()});
    EXPECT_TRUE(library.Has("name=\"&quot;/&gt;&lt;x a=&quot;&amp;\n\xef\xbf\xbd\"")) << library.text;
}

TEST(QgisLibrary, EndsWhereTheSinkRefuses) {
    const auto symbol = NewSymbol(L"A");
    QgisLibraryWriter writer([](std::string_view) { return false; }, {});
    AddedStyle added;
    EXPECT_FALSE(writer.Add(*symbol, {}, added));
    EXPECT_FALSE(writer.Finish());
}

// Symbols that readers of damaged files come upon: no crash, no endless text.
TEST(QgisLibrary, HostileSymbolsAreWritten) {
    for (const auto& symbol : preview_test::HostileSymbols()) {
        EXPECT_LT(LibraryOf({symbol.get()}).text.size(), 100'000'000U);
    }
}

} // namespace
