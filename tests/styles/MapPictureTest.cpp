#include "styles/MapPicture.h"
#include "tests/styles/StyleSamples.h"
#include "tests/support/Has.h"

#include <gtest/gtest.h>

namespace {

using namespace styles;
using styles_test::AreaSymbol;
using styles_test::LineSymbol;
using styles_test::PointSymbol;
using support::Has;

// So that a unit is 10 pixels.
constexpr double kTenPixels = 10 / (96 / 25.4);

TEST(MapPicture, OfAnAreaIsOneCellOfWholePixels) {
    const MapPicture picture = AreaPicture(AreaSymbol(L"M 1,1 L 2,3", L"4", L"5"), kTenPixels, false);
    EXPECT_EQ(picture.width, 40);
    EXPECT_EQ(picture.height, 50);
    EXPECT_LE(picture.error, 1e-9);
    EXPECT_TRUE(picture.losses.empty());
    EXPECT_TRUE(Has(picture.svg, R"( width="40" height="50" viewBox="0 0 40 50")")) << picture.svg;
    EXPECT_TRUE(Has(picture.svg, "M10,40L20,20")) << picture.svg; // y down
}

// 2.5 pixels are no whole ones, but twice as many are five.
TEST(MapPicture, OfASmallCellIsSeveralThatWholePixelsFit) {
    const MapPicture picture = AreaPicture(AreaSymbol(L"M 0,0 L .1,.1", L".25", L".5"), kTenPixels, false);
    EXPECT_EQ(picture.width, 5);
    EXPECT_EQ(picture.height, 5);
    EXPECT_TRUE(Has(picture.svg, R"(viewBox="0 0 5 5")")) << picture.svg;
}

// A stroke that leaves the cell on the right comes in on the left.
TEST(MapPicture, StrokesGoOnAtTheOtherSide) {
    const MapPicture picture = AreaPicture(AreaSymbol(L"M 3,1 L 5,2", L"4", L"5"), kTenPixels, false);
    EXPECT_TRUE(Has(picture.svg, "M30,40L50,30")) << picture.svg;
    EXPECT_TRUE(Has(picture.svg, "M-10,40L10,30")) << picture.svg;
}

// At 45 degrees the steps of 3 and 2.9 meet first in 87 times the root of 2: 1230 pixels.
TEST(MapPicture, OfAnAreaWithoutASeamlessCellIsApproximateOrNone) {
    const preview::ResolvedSymbol symbol = AreaSymbol(L"M 0,0 L 1,1", L"3", L"2.9", L"45");
    const MapPicture none = AreaPicture(symbol, kTenPixels, false);
    EXPECT_TRUE(none.svg.empty());
    EXPECT_EQ(none.losses, Losses{Loss::kNoCell});
    const MapPicture approximate = AreaPicture(symbol, kTenPixels, true);
    EXPECT_FALSE(approximate.svg.empty());
    EXPECT_LE(approximate.width, 1024);
    EXPECT_GT(approximate.error, 0.1);
    EXPECT_LE(approximate.error, 15); // half a step
}

TEST(MapPicture, OfAnAreaThatIsTooDenseIsNone) {
    const MapPicture picture =
        AreaPicture(AreaSymbol(L"M 0,0 L .001,.001 M 0,0 L 0,.001", L".002", L".002"), kTenPixels, false);
    EXPECT_TRUE(picture.svg.empty());
    EXPECT_EQ(picture.losses, Losses{Loss::kTooDense});
}

// One stroke up from the line at 1 of 4, in the middle of the picture, which stands on its head.
TEST(MapPicture, OfALineIsOneRepeatUpsideDown) {
    const MapPicture picture = LinePicture(LineSymbol(L"M 1,0 v 2", L"4"), kTenPixels);
    EXPECT_EQ(picture.width, 40);
    EXPECT_TRUE(picture.losses.empty());
    const std::string height = std::to_string(picture.height);
    EXPECT_TRUE(Has(picture.svg, "matrix(1 0 0 -1 0 " + height + ")")) << picture.svg;
    EXPECT_TRUE(Has(picture.svg, "translate(10 " + std::to_string(picture.height / 2) + ")")) << picture.svg;
}

// 300 mm are 1134 pixels at 96 dots an inch.
TEST(MapPicture, OfALineWithALongRepeatIsNone) {
    const MapPicture picture = LinePicture(LineSymbol(L"M 1,0 v 2", L"300"), 1.0);
    EXPECT_TRUE(picture.svg.empty());
    EXPECT_EQ(picture.losses, Losses{Loss::kLongRepeat});
}

TEST(MapPicture, OfAPointHasItsInsertionPointInTheMiddle) {
    const MapPicture picture = PointPicture(PointSymbol(L"M 0,0 L 2,0"), kTenPixels);
    EXPECT_EQ(picture.width, picture.height);
    EXPECT_GE(picture.width, 40);
    const std::string middle = std::to_string(picture.width / 2);
    EXPECT_TRUE(Has(picture.svg, "translate(" + middle + " " + middle + ")")) << picture.svg;
}

TEST(MapPicture, OfALargePointIsNone) {
    const MapPicture picture = PointPicture(PointSymbol(L"M 0,0 L 200,0"), 1.0);
    EXPECT_TRUE(picture.svg.empty());
    EXPECT_EQ(picture.losses, Losses{Loss::kTooLarge});
}

TEST(MapPicture, OfHostileSymbolsIsBounded) {
    for (const auto& symbol : preview_test::HostileSymbols()) {
        const preview::ResolvedSymbol resolved = preview::Resolve(*symbol);
        for (const MapPicture& picture :
             {AreaPicture(resolved, 1.0, true), LinePicture(resolved, 1.0), PointPicture(resolved, 1.0)}) {
            EXPECT_EQ(picture.svg.empty(),
                      picture.losses.contains(Loss::kNoCell) || picture.losses.contains(Loss::kLongRepeat) ||
                          picture.losses.contains(Loss::kTooLarge) ||
                          picture.losses.contains(Loss::kTooDense) || picture.losses.contains(Loss::kNoInk));
            EXPECT_LE(picture.width, 1024);
            EXPECT_LE(picture.height, 1024);
        }
    }
}

} // namespace
