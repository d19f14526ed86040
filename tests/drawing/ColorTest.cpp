// Colours and the palette.
#include "tests/drawing/OpenedObjects.h"

#include <array>

namespace {

/// The palette's rule in whole fractions, worked out by itself: channel × 255 as a fraction over 80 × 255,
/// truncated. Hue h is in quarters of the six base hues.
std::uint32_t PaletteRule(int index) {
    const int tenths = std::array{10, 8, 6, 5, 3}[static_cast<std::size_t>(index % 10 / 2)];
    const int degrees = (index / 10 - 1) * 15;
    const int saturationHalves = index % 2 == 0 ? 2 : 1;
    const auto channel = [&](int offset) {
        // Distance of the hue from the channel's own, in degrees: full within 60, nothing beyond 120.
        int distance = (degrees - offset + 360) % 360;
        distance = distance > 180 ? 360 - distance : distance;
        const int towards = distance <= 60 ? 60 : distance >= 120 ? 0 : 120 - distance; // of 60
        // value × (1 - saturation × (1 - towards / 60)), over 10 × 2 × 60
        const int numerator = tenths * (2 * 60 - saturationHalves * (60 - towards));
        return static_cast<std::uint32_t>(numerator * 255 / (10 * 2 * 60));
    };
    return channel(0) << 16U | channel(120) << 8U | channel(240);
}

TEST(Palette, HuesFollowTheRuleInAllIndices) {
    for (int index = 10; index < 250; ++index) {
        EXPECT_EQ(TrueColor(ColorOfIndex(static_cast<std::uint8_t>(index))), PaletteRule(index)) << index;
    }
}

TEST(Palette, SomeHuesByHand) {
    EXPECT_EQ(TrueColor(ColorOfIndex(10)), 0xff0000U);
    EXPECT_EQ(TrueColor(ColorOfIndex(11)), 0xff7f7fU);  // 127.5 truncated
    EXPECT_EQ(TrueColor(ColorOfIndex(20)), 0xff3f00U);  // 15 degrees: 63.75
    EXPECT_EQ(TrueColor(ColorOfIndex(32)), 0xcc6600U);  // 30 degrees, 0.8: 204, 102
    EXPECT_EQ(TrueColor(ColorOfIndex(14)), 0x990000U);  // 0.6 × 255 is 153 exactly
    EXPECT_EQ(TrueColor(ColorOfIndex(16)), 0x7f0000U);  // 127.5
    EXPECT_EQ(TrueColor(ColorOfIndex(18)), 0x4c0000U);  // 76.5
    EXPECT_EQ(TrueColor(ColorOfIndex(249)), 0x4c262fU); // 345 degrees, half saturated: 76.5, 38.25, 47.81
}

TEST(Palette, TheFirstNineAndTheGreysAreFixed) {
    constexpr std::array<std::uint32_t, 9> kFirst = {0xff0000, 0xffff00, 0x00ff00, 0x00ffff, 0x0000ff,
                                                     0xff00ff, 0xffffff, 0x808080, 0xc0c0c0};
    for (std::size_t index = 0; index < kFirst.size(); ++index) {
        EXPECT_EQ(TrueColor(ColorOfIndex(static_cast<std::uint8_t>(index + 1))), kFirst[index]);
    }
    constexpr std::array<std::uint32_t, 6> kGreys = {0x333333, 0x5b5b5b, 0x848484,
                                                     0xadadad, 0xd6d6d6, 0xffffff};
    for (std::size_t index = 0; index < kGreys.size(); ++index) {
        EXPECT_EQ(TrueColor(ColorOfIndex(static_cast<std::uint8_t>(index + 250))), kGreys[index]);
    }
}

TEST(Color, MethodsExcludeEachOther) {
    OxCmColor color;
    EXPECT_FALSE(color.isByLayer());
    EXPECT_FALSE(color.isByBlock());
    EXPECT_EQ(TrueColor(color), 0U);
    color.setByLayer();
    EXPECT_TRUE(color.isByLayer());
    EXPECT_FALSE(color.isByBlock());
    color.setByBlock();
    EXPECT_FALSE(color.isByLayer());
    EXPECT_TRUE(color.isByBlock());
    color.setRGB(0x12, 0x34, 0x56);
    EXPECT_FALSE(color.isByLayer());
    EXPECT_FALSE(color.isByBlock());
    EXPECT_EQ(TrueColor(color), 0x123456U);
}

TEST(Color, ACopyIsIndependent) {
    OxCmColor original = ColorOfIndex(1);
    const OxCmColor copy = original;
    original.setRGB(0, 0, 0);
    EXPECT_EQ(TrueColor(copy), 0xff0000U);
}

TEST(Color, WhatNeedsALookAtTheDrawingIsBlack) {
    OxCmColor color;
    color.setByLayer();
    EXPECT_EQ(TrueColor(color), 0U);
    color.setByBlock();
    EXPECT_EQ(TrueColor(color), 0U);
    EXPECT_EQ(OxCmEntityColor::trueColor(0x00ffffffU), 0U); // no method that there is
}

} // namespace
