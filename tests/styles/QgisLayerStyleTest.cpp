#include "styles/QgisLayerStyle.h"
#include "tests/styles/StyleSamples.h"

#include <gtest/gtest.h>

namespace {

using preview_test::NewSymbol;

std::string StyleOf(TylModel::SymbolDefinition& symbol, styles::Losses& losses) {
    return styles::QgisLayerStyle(symbol, {}, losses);
}

// What stands from the symbol's name on, and before the parts of a document around it.
std::string SymbolIn(const std::string& text, const std::string& end) {
    const std::size_t start = text.find("<symbol ");
    return text.substr(start, text.find(end) - start);
}

TEST(QgisLayerStyle, IsASingleSymbolForTheSymbolsKindOfGeometry) {
    const auto line = NewSymbol(L"LINE");
    preview_test::AddPath(*line, L"M 0,0 L 4,0 ");
    preview_test::SetLineUsage(*line, L"9");
    const auto area = NewSymbol(L"AREA");
    preview_test::AddPath(*area, L"M 0,0 L 1,2");
    preview_test::SetAreaUsage(*area, L"0", L"2", L"2");
    const auto point = NewSymbol(L"POINT");
    preview_test::AddPath(*point, L"M -2,0 L 2,0");
    preview_test::SetPointUsage(*point);
    const struct {
        TylModel::SymbolDefinition* symbol;
        std::string type;
        std::string geometry;
    } kCases[] = {{line.get(), "line", "1"}, {area.get(), "fill", "2"}, {point.get(), "marker", "0"}};
    for (const auto& test : kCases) {
        styles::Losses losses;
        const std::string text = StyleOf(*test.symbol, losses);
        EXPECT_TRUE(
            text.starts_with("<!DOCTYPE qgis>\n<qgis version=\"3.22.0\" styleCategories=\"Symbology\">\n"
                             "<renderer-v2 type=\"singleSymbol\" enableorderby=\"0\" forceraster=\"0\" "
                             "symbollevels=\"0\">\n<symbols>\n<symbol type=\"" +
                             test.type + "\" name=\"0\" alpha=\"1\" clip_to_extent=\""))
            << text;
        EXPECT_TRUE(text.ends_with(
            "</symbol>\n</symbols>\n<rotation/>\n<sizescale/>\n</renderer-v2>\n<layerGeometryType>" +
            test.geometry + "</layerGeometryType>\n</qgis>\n"))
            << text;
    }
}

TEST(QgisLayerStyle, HasTheLayersThatALibraryHas) {
    // The name that a layer style's symbol has, so that the inner names are alike.
    const auto symbol = NewSymbol(L"0");
    preview_test::AddPath(*symbol, L"M 0,0 L 1,2");
    preview_test::SetAreaUsage(*symbol, L"0", L"2", L"2");
    std::string library;
    styles::QgisLibraryWriter writer(
        [&](std::string_view piece) {
            library += piece;
            return true;
        },
        {});
    styles::AddedStyle added;
    ASSERT_TRUE(writer.Add(*symbol, {}, added));
    ASSERT_TRUE(writer.Finish());
    std::string expected = SymbolIn(library, "\n</symbols>");
    const std::string tags = " tags=\"hatch\"";
    expected.erase(expected.find(tags), tags.size());
    styles::Losses losses;
    EXPECT_EQ(SymbolIn(StyleOf(*symbol, losses), "\n</symbols>"), expected);
}

TEST(QgisLayerStyle, TellsOfLosses) {
    const auto symbol = NewSymbol(L"AREA");
    preview_test::AddPath(*symbol, L"M 0,0 L 1,2");
    styles::Losses losses;
    preview_test::SetAreaUsage(*symbol, L"0", L"0", L"0");
    StyleOf(*symbol, losses);
    EXPECT_EQ(losses, styles::Losses{styles::Loss::kUnrepeated});
}

} // namespace
