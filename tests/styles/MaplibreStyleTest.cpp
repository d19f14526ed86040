#include "styles/MaplibreStyle.h"
#include "tests/preview/SampleSymbols.h"
#include "tests/support/Has.h"

#include <gtest/gtest.h>

namespace {

using namespace styles;
using preview_test::AddPath;
using preview_test::NewSymbol;
using support::Has;

struct Written {
    std::string text;
    std::vector<AddedLayer> added;
};

Written Write(const std::vector<TylModel::SymbolDefinition*>& symbols, const MaplibreOptions& options = {}) {
    Written written;
    MaplibreStyleWriter writer(
        [&](std::string_view piece) {
            written.text += piece;
            return true;
        },
        options);
    for (TylModel::SymbolDefinition* const symbol : symbols) {
        EXPECT_TRUE(writer.Add(*symbol, written.added.emplace_back()));
    }
    EXPECT_TRUE(writer.Finish());
    return written;
}

std::unique_ptr<TylModel::SimpleSymbolDefinition> Line(const std::wstring& name,
                                                       const std::wstring& geometry) {
    auto symbol = NewSymbol(name);
    AddPath(*symbol, geometry).SetLineWeight(L"1");
    preview_test::SetLineUsage(*symbol, L"10");
    return symbol;
}

TEST(MaplibreStyle, HasALayerForEachSymbolThatTheFeaturesNameChooses) {
    const auto area = NewSymbol(L"Grass \"2\"");
    AddPath(*area, L"M 0,0 L 1,2");
    preview_test::SetAreaUsage(*area, L"0", L"4", L"5");
    const auto point = preview_test::PointSymbol(L"Tree", L"M 0,0 L 2,0");
    const Written written = Write({area.get(), point.get()});
    EXPECT_TRUE(Has(written.text, R"("id": "Grass \"2\"", "source": "features", "filter": ["==", ["get", )"
                                  R"("symbol"], "Grass \"2\""],)"))
        << written.text;
    EXPECT_TRUE(Has(written.text, R"("type": "fill", "paint": {"fill-pattern": "hatch-grass--2-"}})"));
    EXPECT_TRUE(Has(written.text, R"("type": "symbol", "layout": {"icon-image": "point-tree")"));
    EXPECT_EQ(written.added.at(0).pictureName, "hatch-grass--2-");
    EXPECT_FALSE(written.added.at(1).picture.svg.empty());
}

// A pen of 1 mm, so that the list is in millimetres.
TEST(MaplibreStyle, LinesOfDashesAloneNeedNoPicture) {
    const struct {
        const wchar_t* geometry;
        const char* list;
    } kCases[] = {
        {L"M 0,0 h 6", "[6, 4]"},
        {L"M 0,0 h 4 M 6,0 h 4", "[4, 2, 4]"}, // begins in a dash: the last one joins it
        {L"M 1,0 h 6", "[0, 1, 6, 3]"},
    };
    for (const auto& test : kCases) {
        const auto symbol = Line(L"GAS", test.geometry);
        const Written written = Write({symbol.get()});
        EXPECT_TRUE(Has(written.text, std::string(R"("line-dasharray": )") + test.list)) << written.text;
        EXPECT_TRUE(Has(written.text, R"("line-color": "#000000", "line-width": 3.78)")) << written.text;
        EXPECT_EQ(written.added.front().pictureName, "");
    }
    const auto solid = Line(L"WALL", L"M 0,0 h 10");
    EXPECT_FALSE(Has(Write({solid.get()}).text, "dasharray"));
}

TEST(MaplibreStyle, NamesOfLayersAndPicturesAreUnique) {
    const auto first = preview_test::PointSymbol(L"Tree", L"M 0,0 L 2,0");
    const auto second = preview_test::PointSymbol(L"TREE", L"M 0,0 L 2,0");
    const auto third = preview_test::PointSymbol(L"Tree", L"M 0,0 L 2,0");
    const auto path = preview_test::PointSymbol(L"../../etc", L"M 0,0 L 2,0");
    const Written written = Write({first.get(), second.get(), third.get(), path.get()});
    EXPECT_EQ(written.added.at(0).name, "Tree");
    EXPECT_EQ(written.added.at(1).name, "TREE");
    EXPECT_EQ(written.added.at(2).name, "Tree (2)");
    EXPECT_TRUE(written.added.at(2).isRenamed);
    EXPECT_EQ(written.added.at(0).pictureName, "point-tree");
    EXPECT_EQ(written.added.at(1).pictureName, "point-tree-2");
    EXPECT_EQ(written.added.at(2).pictureName, "point-tree-3");
    EXPECT_EQ(written.added.at(3).pictureName, "point-------etc");
}

TEST(MaplibreStyle, LeavesOutWhatHasNoPicture) {
    const auto large = preview_test::PointSymbol(L"HOUSE", L"M 0,0 L 9000,0");
    const auto small = preview_test::PointSymbol(L"TREE", L"M 0,0 L 2,0");
    const Written written = Write({large.get(), small.get()});
    EXPECT_EQ(written.added.front().picture.losses, Losses{Loss::kTooLarge});
    EXPECT_FALSE(Has(written.text, "HOUSE"));
    EXPECT_TRUE(Has(written.text, "[\n    {\"id\": \"TREE\""));
}

TEST(MaplibreStyle, OfNoSymbolsHasNoLayers) {
    EXPECT_TRUE(Write({}).text.ends_with("\"layers\": [\n  ]\n}\n"));
}

TEST(MaplibreStyle, StopsWhereTheSinkRefuses) {
    MaplibreStyleWriter writer([](std::string_view) { return false; }, {});
    AddedLayer added;
    EXPECT_FALSE(writer.Add(*preview_test::PointSymbol(L"TREE", L"M 0,0 L 2,0"), added));
    EXPECT_FALSE(writer.Finish());
}

} // namespace
