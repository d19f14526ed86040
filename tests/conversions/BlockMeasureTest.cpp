// How far strict symbols of blocks are from faithful ones, against distances worked out by hand.
#include "conversions/checking/BlockMeasure.h"

#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

namespace conversions_test {
namespace {

using conversions::BlockMeasure;
using Symbol = TylModel::SimpleSymbolDefinition;

void AddPath(Symbol& symbol, const std::wstring& geometry, bool isStroked, bool isFilled) {
    auto path = std::make_unique<TylModel::Path>();
    path->SetGeometry(geometry);
    path->SetLineColor(std::wstring(isStroked ? L"ff000000" : L""));
    path->SetFillColor(std::wstring(isFilled ? L"ff000000" : L""));
    symbol.GetGraphics().Adopt(path.release());
}

struct PlacedText {
    std::wstring content;
    std::wstring x;
    std::wstring y;
    std::wstring horizontal;
};

// 0.716 high, so that a letter is taken to be 0.58 wide.
void AddText(Symbol& symbol, const PlacedText& placed) {
    auto text = std::make_unique<TylModel::Text>();
    text->SetContent(L"'" + placed.content + L"'");
    text->SetHeight(std::wstring(L"0.716"));
    text->SetPositionX(placed.x);
    text->SetPositionY(placed.y);
    text->SetHorizontalAlignment(placed.horizontal);
    symbol.GetGraphics().Adopt(text.release());
}

struct PathsRow {
    const char* name;
    std::vector<std::wstring> strict;
    std::vector<std::wstring> faithful;
    bool isStroked;
    bool isFilled;
    std::size_t lost;
    double share;
};

void PrintTo(const PathsRow& row, std::ostream* out) {
    *out << row.name;
}

class MeasuredPaths : public testing::TestWithParam<PathsRow> {};

TEST_P(MeasuredPaths, AreSoFarFromTheirPlaces) {
    Symbol strict;
    Symbol faithful;
    for (const std::wstring& path : GetParam().strict) {
        AddPath(strict, path, GetParam().isStroked, GetParam().isFilled);
    }
    for (const std::wstring& path : GetParam().faithful) {
        AddPath(faithful, path, GetParam().isStroked, GetParam().isFilled);
    }
    const BlockMeasure measure = conversions::MeasureBlock(strict, faithful);
    EXPECT_EQ(measure.parts, GetParam().faithful.size());
    EXPECT_EQ(measure.lost, GetParam().lost);
    EXPECT_NEAR(measure.share, GetParam().share, 1e-3);
}

const std::wstring kOpenSquare = L"M 0,0 L 10,0 L 10,10 L 0,10";
const std::wstring kSquare = kOpenSquare + L" L 0,0";
// The halves of circles of radius 5, from the left and from the lowest point.
const std::wstring kFromLeft = L"M -5,0 A 5,5 0 1 1 5,0 A 5,5 0 1 1 -5,0";
const std::wstring kFromBelow = L"M 0,-5 A 5,5 0 1 1 0,5 A 5,5 0 1 1 0,-5";

INSTANTIATE_TEST_SUITE_P(
    Paths, MeasuredPaths,
    testing::Values(
        PathsRow{"nothing", {}, {}, true, false, 0, 0.0},
        PathsRow{"the same", {kSquare}, {kSquare}, true, false, 0, 0.0},
        PathsRow{"little", {L"M 0.0,0.0 L 10.0,0.1"}, {L"M 0,0 L 10,0.105"}, true, false, 0, 0.0},
        PathsRow{"two cut numbers",
                 {L"M 0.1,0.1 L 1.0,0.0"},
                 {L"M 0.103,0.104 L 1,0"},
                 true,
                 false,
                 0,
                 0.005 / 0.897},
        PathsRow{"built alike from elsewhere", {kFromLeft}, {kFromBelow}, true, false, 0, 0.0},
        // The middle of the side that is missing is 5 of 10 from the nearest corner.
        PathsRow{"a side lost", {kOpenSquare}, {kSquare}, true, false, 0, 0.5},
        PathsRow{"a side that filling adds", {kOpenSquare}, {kSquare}, false, true, 0, 0.0},
        PathsRow{"a side lost of what is filled and stroked", {kOpenSquare}, {kSquare}, true, true, 0, 0.5},
        PathsRow{"a side that another part draws",
                 {kOpenSquare, L"M 0,0 L 0,10"},
                 {kSquare, L"M 0,0 L 0,10"},
                 true,
                 false,
                 0,
                 0.0},
        // The middle of a half circle of radius 5 is 5 of 10 from its chord.
        PathsRow{"a bulge lost", {L"M -5,0 L 5,0"}, {L"M -5,0 A 5,5 0 0 1 5,0"}, true, false, 0, 0.5},
        // The fill of the right half: 5 of 10 from the left half.
        PathsRow{"half of a fill lost",
                 {L"M 0,0 L 5,0 L 5,10 L 0,10"},
                 {L"M 0,0 L 5,0 L 10,0 L 10,10 L 5,10 L 0,10"},
                 false,
                 true,
                 0,
                 0.5},
        PathsRow{"a part lost", {L"M 0,0 L 10,0"}, {L"M 0,0 L 10,0", L"M 0,0 L 5,0"}, true, false, 1, 0.0},
        PathsRow{"the geometry of a part lost",
                 {L"M 0,0", L"M 0,0 L 10,0"},
                 {L"M 0,0 L 5,0", L"M 0,0 L 10,0"},
                 true,
                 false,
                 1,
                 0.0},
        PathsRow{"all lost", {}, {kSquare, kSquare}, true, false, 2, 0.0}));

TEST(BlockMeasure, NamesTheNumberThatIsCut) {
    Symbol strict;
    Symbol faithful;
    AddPath(strict, L"M 0.0,0.0 L 0.1,0.2", true, false);
    AddPath(faithful, L"M 0,0 L 0.105,0.2", true, false);
    const BlockMeasure measure = conversions::MeasureBlock(strict, faithful);
    EXPECT_NEAR(measure.share, 0.025, 1e-9);
    ASSERT_TRUE(measure.cut.has_value());
    EXPECT_EQ(measure.cut->exact, 0.105);
    EXPECT_EQ(measure.cut->written, 0.1);
}

TEST(BlockMeasure, NamesTheNumberThatMakesAnArcAnother) {
    // A half circle whose radius and ends are 0.003333 too small.
    Symbol strict;
    Symbol faithful;
    AddPath(strict, L"M -0.1,0.0 A 0.1,0.1 0.0 0 1 0.1,0.0", true, false);
    AddPath(faithful, L"M -0.103333,0 A 0.103333,0.103333 0 0 1 0.103333,0", true, false);
    const BlockMeasure measure = conversions::MeasureBlock(strict, faithful);
    EXPECT_NEAR(measure.share, 0.003333 / 0.206666, 1e-3);
    ASSERT_TRUE(measure.cut.has_value());
    EXPECT_EQ(std::fabs(measure.cut->exact), 0.103333);
    EXPECT_EQ(std::fabs(measure.cut->written), 0.1);
}

BlockMeasure MeasuredTexts(const std::vector<PlacedText>& strict, const std::vector<PlacedText>& faithful) {
    Symbol written;
    Symbol exact;
    for (const PlacedText& text : strict) {
        AddText(written, text);
    }
    for (const PlacedText& text : faithful) {
        AddText(exact, text);
    }
    return conversions::MeasureBlock(written, exact);
}

TEST(BlockMeasure, TextsAreWhereTheirBoxesAre) {
    // Ten letters are 5.8 wide; 0.58 farther up.
    const BlockMeasure moved =
        MeasuredTexts({{L"ABCDEFGHIJ", L"0", L"0.58", L"'Left'"}}, {{L"ABCDEFGHIJ", L"0", L"0", L"'Left'"}});
    EXPECT_TRUE(moved.isText);
    EXPECT_NEAR(moved.share, 0.1, 1e-9);
    // 2.9 to the left of the middle is the left end.
    EXPECT_NEAR(
        MeasuredTexts({{L"ABCDEFGHIJ", L"2.9", L"0", L""}}, {{L"ABCDEFGHIJ", L"0", L"0", L"'Left'"}}).share,
        0.0, 1e-9);
}

// A quarter of 5.8 may be the estimate's.
TEST(BlockMeasure, WhatMayBeTheWidthOfLettersIsNotTold) {
    EXPECT_NEAR(
        MeasuredTexts({{L"ABCDEFGHIJ", L"4.3", L"0", L""}}, {{L"ABCDEFGHIJ", L"0", L"0", L"'Left'"}}).share,
        0.0, 1e-9);
    EXPECT_NEAR(
        MeasuredTexts({{L"ABCDEFGHIJ", L"4.93", L"0", L""}}, {{L"ABCDEFGHIJ", L"0", L"0", L"'Left'"}}).share,
        0.1, 1e-9);
}

TEST(BlockMeasure, CodesOfATextTakeRoom) {
    // Two letters for one: 0.58 of 0.928, the height with what reaches below the base line.
    const BlockMeasure measure =
        MeasuredTexts({{L"AB", L"0", L"0", L"'Left'"}}, {{L"A", L"0", L"0", L"'Left'"}});
    EXPECT_TRUE(measure.isText);
    EXPECT_NEAR(measure.share, 0.58 / 0.928, 1e-9);
}

TEST(BlockMeasure, BlocksWithoutASizeAreInPlace) {
    Symbol strict;
    Symbol faithful;
    AddPath(strict, L"M 0.1,0.0", true, false);
    AddPath(faithful, L"M 0.105,0", true, false);
    EXPECT_EQ(conversions::MeasureBlock(strict, faithful).share, 0.0);
}

// As many lines as a large drawing has, all elsewhere: each asks for the others, and none for all of them.
TEST(BlockMeasure, LargePartsTakeTimeThatGrowsWithTheirSize) {
    std::wstring written = L"M 0,0";
    std::wstring exact = L"M 0,10000";
    for (int i = 1; i < 20000; ++i) {
        written += L" L " + std::to_wstring(i) + L"," + std::to_wstring(i % 2);
        exact += L" L " + std::to_wstring(i) + L"," + std::to_wstring(10000 + i % 3);
    }
    Symbol strict;
    Symbol faithful;
    AddPath(strict, written, true, false);
    AddPath(faithful, exact + L" L 19999,10009", true, false);
    EXPECT_NEAR(conversions::MeasureBlock(strict, faithful).share, 0.5, 1e-3);
}

} // namespace
} // namespace conversions_test
