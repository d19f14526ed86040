// Symbols by themselves: sizes are millimetres, user units are pixels of which an inch has 96.
#include "styles/BarePicture.h"
#include "tests/styles/StyleSamples.h"
#include "tests/support/Has.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <regex>
#include <vector>

namespace {

using namespace styles;
using styles_test::AreaSymbol;
using styles_test::LineSymbol;
using styles_test::PointSymbol;
using support::Has;

constexpr double kPixels = 96 / 25.4; // of a millimetre

std::size_t CountOf(const std::string& text, const std::string& sought) {
    std::size_t count = 0;
    for (std::size_t at = text.find(sought); at != std::string::npos; at = text.find(sought, at + 1)) {
        ++count;
    }
    return count;
}

// A symbol without a pen has one of 0.3 mm.
TEST(BarePicture, OfALineIsSoManyWholeRepeatsAs100MillimetresHold) {
    const BarePicture picture = DrawBare(LineSymbol(L"M 0,0 h 3", L"7"), 1.0, 0.0);
    EXPECT_TRUE(picture.losses.empty());
    EXPECT_TRUE(Has(picture.svg, R"(width="98mm" height="0.3mm")")) << picture.svg;
    EXPECT_EQ(CountOf(picture.svg, "M"), 14U) << picture.svg;
    const BarePicture scaled = DrawBare(LineSymbol(L"M 0,0 h 3", L"7"), 20.0, 0.0);
    EXPECT_TRUE(Has(scaled.svg, R"(width="140mm" height="0.3mm")")) << scaled.svg;
    // 1000 times 0.1, which is no sum of powers of two.
    const BarePicture tenths = DrawBare(LineSymbol(L"M 0,0 h .05", L".1"), 1.0, 0.0);
    EXPECT_TRUE(Has(tenths.svg, R"(width="100mm")")) << tenths.svg.substr(0, 200);
}

// Of 10 mm the third dash has 2: pixels 30.236 to 37.795.
TEST(BarePicture, CutsDashesAtTheEndOfALineOfAGivenLength) {
    const BarePicture picture = DrawBare(LineSymbol(L"M 0,0 h 3", L"4"), 1.0, 10.0);
    EXPECT_TRUE(Has(picture.svg, R"(width="10mm" height="0.3mm")")) << picture.svg;
    EXPECT_TRUE(Has(picture.svg, "M0,0.567H11.339M15.118,0.567H26.457M30.236,0.567H37.795\"")) << picture.svg;
    const BarePicture whole = DrawBare(LineSymbol(L"M 0,0 h 4", L"4"), 1.0, 10.0);
    EXPECT_TRUE(Has(whole.svg, "\"M0,0.567H37.795\"")) << whole.svg;
}

// Two up and nothing down; the line runs through the middle. Half of the pen stands beside the mark.
TEST(BarePicture, LeavesOutMarksThatReachOverTheEndsOfTheLine) {
    const BarePicture inside = DrawBare(LineSymbol(L"M 1,0 v 2", L"4"), 1.0, 10.0);
    EXPECT_TRUE(Has(inside.svg, R"(width="10mm" height="4.3mm")")) << inside.svg;
    EXPECT_EQ(CountOf(inside.svg, "<g transform"), 3U) << inside.svg; // at 1, 5 and 9
    EXPECT_TRUE(Has(inside.svg, "translate(3.78 8.126)")) << inside.svg;
    const BarePicture atEnds = DrawBare(LineSymbol(L"M 0,0 v 2", L"4"), 1.0, 8.0);
    EXPECT_EQ(CountOf(atEnds.svg, "<g transform"), 1U) << atEnds.svg; // at 4, and not at 0 and 8
    EXPECT_TRUE(Has(atEnds.svg, "translate(15.118 8.126)")) << atEnds.svg;
}

TEST(BarePicture, OfAnAreaIsAPatternOfTheTilesOwnSize) {
    const BarePicture picture = DrawBare(AreaSymbol(L"M 1,1 L 2,3", L"4", L"5"), 1.0, 0.0);
    EXPECT_TRUE(picture.losses.empty());
    EXPECT_TRUE(Has(picture.svg, R"(width="4mm" height="5mm" viewBox="0 0 15.11)")) << picture.svg;
    EXPECT_TRUE(Has(picture.svg, R"(<pattern id="hatch" patternUnits="userSpaceOnUse" width="15.11)"))
        << picture.svg;
    EXPECT_TRUE(Has(picture.svg, "M3.78,15.118L7.559,7.559")) << picture.svg; // y down
    EXPECT_TRUE(Has(picture.svg, R"svg(<rect width="100%" height="100%" fill="url(#hatch)"/></svg>)svg"))
        << picture.svg;
    const BarePicture scaled = DrawBare(AreaSymbol(L"M 1,1 L 2,3", L"4", L"5"), 25.4, 0.0);
    EXPECT_TRUE(Has(scaled.svg, R"(width="101.6mm" height="127mm" viewBox="0 0 384 480")")) << scaled.svg;
    EXPECT_TRUE(Has(scaled.svg, "stroke-width=\"1.134\"")) << "pens are not scaled: " << scaled.svg;
}

struct DrawnStroke {
    double x1, y1, x2, y2;
};

std::vector<DrawnStroke> StrokesOf(const std::string& svg) {
    static const std::regex stroke("M(-?[0-9.]+),(-?[0-9.]+)L(-?[0-9.]+),(-?[0-9.]+)");
    std::vector<DrawnStroke> strokes;
    for (auto found = std::sregex_iterator(svg.begin(), svg.end(), stroke); found != std::sregex_iterator();
         ++found) {
        strokes.push_back(
            {std::stod((*found)[1]), std::stod((*found)[2]), std::stod((*found)[3]), std::stod((*found)[4])});
    }
    return strokes;
}

// Where strokes cross the upright line at `x`, from the top to the bottom of the tile.
std::vector<double> CrossingsOf(const std::vector<DrawnStroke>& strokes, double x, double height) {
    std::vector<double> crossings;
    for (const DrawnStroke& stroke : strokes) {
        const double along = (x - stroke.x1) / (stroke.x2 - stroke.x1);
        const double y = stroke.y1 + along * (stroke.y2 - stroke.y1);
        if (along > 0.0 && along < 1.0 && y > 0.0 && y < height) {
            crossings.push_back(y);
        }
    }
    std::sort(crossings.begin(), crossings.end());
    return crossings;
}

// A stroke of a tilted lattice leaves the tile on one side and comes in at the other at the same height. At
// 45 degrees steps of 3 and 2 meet again after six times the root of 2.
TEST(BarePicture, OfATiltedAreaMeetsAtTheEdgesOfItsTile) {
    const double side = 6 * std::sqrt(2.0) * kPixels;
    const BarePicture picture =
        DrawBare(AreaSymbol(L"M .1,.2 L 1.9,.7 M 1,1.5 L 2.5,1.2", L"3", L"2", L"45"), 1.0, 0.0);
    EXPECT_TRUE(Has(picture.svg, R"(width="8.48528)")) << picture.svg;
    const std::vector<DrawnStroke> strokes = StrokesOf(picture.svg);
    ASSERT_GE(strokes.size(), 24U); // 12 of each in a tile, some of them at several edges
    const std::vector<double> left = CrossingsOf(strokes, 0.0, side);
    const std::vector<double> right = CrossingsOf(strokes, side, side);
    ASSERT_FALSE(left.empty());
    ASSERT_EQ(left.size(), right.size());
    for (std::size_t i = 0; i < left.size(); ++i) {
        EXPECT_NEAR(left[i], right[i], 0.01);
    }
}

// Turned by 45 degrees, these primes meet after 7 km.
TEST(BarePicture, OfAnAreaThatNoTileRepeatsIsNone) {
    const BarePicture picture = DrawBare(AreaSymbol(L"M 0,0 L 1,1", L"99991", L"99989", L"45"), 1.0, 0.0);
    EXPECT_TRUE(picture.svg.empty());
    EXPECT_EQ(picture.losses, Losses{Loss::kNoCell});
}

// The box around the ink: half of the pen of 0.3 around a stroke of 2 by 4.
TEST(BarePicture, OfAPointIsTheBoxAroundItsInk) {
    const BarePicture picture = DrawBare(PointSymbol(L"M 11,1 L 13,5"), 1.0, 0.0);
    EXPECT_TRUE(Has(picture.svg, R"(width="2.3mm" height="4.3mm")")) << picture.svg;
    // The insertion point is 10.85 mm to the left and 0.85 below.
    EXPECT_TRUE(Has(picture.svg, "translate(-41.008 19.465)")) << picture.svg;
    const BarePicture scaled = DrawBare(PointSymbol(L"M 11,1 L 13,5"), 3.0, 0.0);
    EXPECT_TRUE(Has(scaled.svg, R"(width="6.3mm" height="12.3mm")")) << scaled.svg;
}

TEST(BarePicture, DrawsPensThinnerThanAScreenShows) {
    const auto symbol = preview_test::NewSymbol(L"POINT");
    preview_test::SetPointUsage(*symbol);
    preview_test::AddPath(*symbol, L"M 0,1 h 5").SetLineWeight(L"0.1");
    const BarePicture picture = DrawBare(preview::Resolve(*symbol), 1.0, 0.0);
    EXPECT_TRUE(Has(picture.svg, "stroke-width=\"0.38\"")) << picture.svg;
    EXPECT_FALSE(Has(picture.svg, "vector-effect")) << picture.svg;
}

TEST(BarePicture, OfWhatDrawsNothingIsNone) {
    for (const auto& symbol : {LineSymbol(L"", L"4"), AreaSymbol(L"", L"4", L"4"), PointSymbol(L"")}) {
        const BarePicture picture = DrawBare(symbol, 1.0, 0.0);
        EXPECT_TRUE(picture.svg.empty());
        EXPECT_EQ(picture.losses, Losses{Loss::kNoInk});
    }
}

TEST(BarePicture, TooLargeOrTooDenseIsNone) {
    EXPECT_EQ(DrawBare(PointSymbol(L"M 0,0 L 2000000,1"), 1.0, 0.0).losses, Losses{Loss::kTooLarge});
    EXPECT_EQ(DrawBare(LineSymbol(L"M 0,0 h 3", L"4"), 1.0, 2e6).losses, Losses{Loss::kTooLarge});
    EXPECT_EQ(DrawBare(LineSymbol(L"M 0,0 h .001", L".002"), 1.0, 1000).losses, Losses{Loss::kTooDense});
}

} // namespace
