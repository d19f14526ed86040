#include "styles/SpriteSheet.h"

#include "styles/Limits.h"

#include <gtest/gtest.h>

namespace {

using namespace styles;

// The highest first: 3 high, then 2, then 1; of the two that are 2 high, the one that came first.
TEST(SpriteSheet, PicturesStandSideBySideTheHighestFirst) {
    const SpriteSheet sheet =
        PlaceOnSheet({{"low", 4, 1}, {"second", 5, 2}, {"high", 6, 3}, {"third", 7, 2}});
    ASSERT_EQ(sheet.pictures.size(), 4U);
    const struct {
        const char* name;
        int x;
    } kExpected[] = {{"low", 18}, {"second", 6}, {"high", 0}, {"third", 11}};
    for (std::size_t i = 0; i < sheet.pictures.size(); ++i) {
        EXPECT_EQ(sheet.pictures[i].name, kExpected[i].name);
        EXPECT_EQ(sheet.pictures[i].x, kExpected[i].x) << sheet.pictures[i].name;
        EXPECT_EQ(sheet.pictures[i].y, 0);
    }
    EXPECT_EQ(sheet.width, 22);
    EXPECT_EQ(sheet.height, 3);
}

TEST(SpriteSheet, AFullRowIsFollowedByOneBelowIt) {
    const SpriteSheet fits = PlaceOnSheet({{"a", kSheetRow - 1, 3}, {"b", 1, 2}});
    EXPECT_EQ(fits.pictures[1].x, kSheetRow - 1);
    EXPECT_EQ(fits.height, 3);
    const SpriteSheet wraps = PlaceOnSheet({{"a", kSheetRow - 1, 3}, {"b", 2, 2}, {"c", 5, 1}});
    EXPECT_EQ(wraps.pictures[1].x, 0);
    EXPECT_EQ(wraps.pictures[1].y, 3);
    EXPECT_EQ(wraps.pictures[2].x, 2);
    EXPECT_EQ(wraps.pictures[2].y, 3);
    EXPECT_EQ(wraps.width, kSheetRow - 1);
    EXPECT_EQ(wraps.height, 5);
}

TEST(SpriteSheet, NoTwoPicturesMeet) {
    std::vector<SheetPicture> pictures;
    for (int i = 0; i < 200; ++i) {
        pictures.push_back({"p", 1 + i * 37 % kLargestPicture, 1 + i * 101 % kLargestPicture});
    }
    const SpriteSheet sheet = PlaceOnSheet(pictures);
    for (std::size_t i = 0; i < sheet.pictures.size(); ++i) {
        const SheetPicture& a = sheet.pictures[i];
        EXPECT_GE(a.x, 0);
        EXPECT_GE(a.y, 0);
        EXPECT_LE(a.x + a.width, sheet.width);
        EXPECT_LE(a.y + a.height, sheet.height);
        for (std::size_t j = 0; j < i; ++j) {
            const SheetPicture& b = sheet.pictures[j];
            EXPECT_TRUE(a.x + a.width <= b.x || b.x + b.width <= a.x || a.y + a.height <= b.y ||
                        b.y + b.height <= a.y)
                << i << " and " << j;
        }
    }
}

TEST(SpriteSheet, TheIndexTellsPlacesInTheSheetsOwnPixels) {
    const SpriteSheet sheet = PlaceOnSheet({{"a", 6, 3}, {"b", 5, 2}});
    EXPECT_EQ(SheetIndex(sheet, 1),
              "{\n"
              "  \"a\": {\"x\": 0, \"y\": 0, \"width\": 6, \"height\": 3, \"pixelRatio\": 1},\n"
              "  \"b\": {\"x\": 6, \"y\": 0, \"width\": 5, \"height\": 2, \"pixelRatio\": 1}\n"
              "}\n");
    EXPECT_EQ(SheetIndex(sheet, 2),
              "{\n"
              "  \"a\": {\"x\": 0, \"y\": 0, \"width\": 12, \"height\": 6, \"pixelRatio\": 2},\n"
              "  \"b\": {\"x\": 12, \"y\": 0, \"width\": 10, \"height\": 4, \"pixelRatio\": 2}\n"
              "}\n");
}

TEST(SpriteSheet, OfNoPicturesIsOneClearPixel) {
    const SpriteSheet sheet = PlaceOnSheet({});
    EXPECT_EQ(sheet.width, 1);
    EXPECT_EQ(sheet.height, 1);
    EXPECT_EQ(SheetIndex(sheet, 1), "{}\n");
}

} // namespace
