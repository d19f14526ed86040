#include "styles/AreaParts.h"
#include "tests/styles/StyleSamples.h"

#include <gtest/gtest.h>

namespace {

using namespace styles;
using styles_test::AreaSymbol;

Tiling OnlyTilingOf(const preview::ResolvedSymbol& symbol, double scale = 1.0) {
    const AreaParts parts = AreaPartsOf(symbol, scale);
    EXPECT_EQ(parts.layers.size(), 1U);
    EXPECT_EQ(parts.layers.at(0).tilings.size(), 1U);
    return parts.layers.at(0).tilings.at(0);
}

TEST(AreaParts, AreStrokesAndDotsOfTheTileMultipliedByTheScale) {
    const Tiling tiling = OnlyTilingOf(AreaSymbol(L"M 0,0 L 1,2 M 3,1 L 3,1", L"4", L"5", L"30"), 2.0);
    EXPECT_EQ(tiling.angle, 30);
    EXPECT_EQ(tiling.stepX, 8);
    EXPECT_EQ(tiling.stepY, 10);
    EXPECT_EQ(tiling.strokes, (std::vector<Stroke>{{{0, 0}, {2, 4}}}));
    EXPECT_EQ(tiling.dots, (std::vector<preview::Point>{{6, 2}}));
    EXPECT_TRUE(tiling.rows.empty());
    EXPECT_TRUE(tiling.columns.empty());
}

TEST(AreaParts, StrokesThatFillAStepAreLinesWithoutAnEnd) {
    const struct {
        const wchar_t* geometry;
        std::vector<double> rows;
        std::vector<double> columns;
        std::size_t strokes;
    } kCases[] = {
        {L"M 0,1 h 4", {1}, {}, 0},           {L"M 0,1 h 3", {}, {}, 1},
        {L"M 0,1 h 1 M 1,1 h 3", {1}, {}, 0}, {L"M -2,1 h 4 M 0,2 h 4", {1, 2}, {}, 0},
        {L"M 2,0 v 5", {}, {2}, 0},           {L"M 2,0 v 2 M 2,2 v 3 M 0,0 h 1", {}, {2}, 1},
        {L"M 0,0 L 4,5", {}, {}, 1},
    };
    for (const auto& test : kCases) {
        const Tiling tiling = OnlyTilingOf(AreaSymbol(test.geometry, L"4", L"5"));
        EXPECT_EQ(tiling.rows, test.rows);
        EXPECT_EQ(tiling.columns, test.columns);
        EXPECT_EQ(tiling.strokes.size(), test.strokes);
    }
}

TEST(AreaParts, WhatDoesNotRepeatIsLost) {
    const AreaParts parts = AreaPartsOf(AreaSymbol(L"M 0,0 L 1,2", L"", L"5"), 1.0);
    EXPECT_TRUE(parts.layers.empty());
    EXPECT_EQ(parts.losses, Losses{Loss::kUnrepeated});
}

TEST(AreaParts, AnAngleThatFollowsAParameterIsLost) {
    const auto symbol = preview_test::NewSymbol(L"AREA");
    preview_test::AddPath(*symbol, L"M 0,0 L 1,2");
    preview_test::AddParameter(*symbol, L"HATCHANGLE", L"Angle", L"15", TylModel::Parameter::kAngle);
    preview_test::SetAreaUsage(*symbol, L"%HATCHANGLE%+30", L"4", L"5");
    const AreaParts parts = AreaPartsOf(preview::Resolve(*symbol), 1.0);
    EXPECT_EQ(parts.losses, Losses{Loss::kTurningParts});
    EXPECT_EQ(parts.layers.at(0).tilings.at(0).angle, 45);
}

TEST(AreaParts, DensityCountsPiecesOnASquareUnit) {
    const AreaParts parts = AreaPartsOf(AreaSymbol(L"M 0,1 h 4 M 0,0 L 1,2 M 3,1 L 3,1", L"4", L"5"), 1.0);
    EXPECT_DOUBLE_EQ(DensityOf(parts.layers.at(0).tilings), 3.0 / 20);
}

} // namespace
