// The standard palette of index colours.
#include "OxDb/OxCmColor.h"

#include <array>

namespace {

constexpr std::uint32_t Rgb(std::uint32_t red, std::uint32_t green, std::uint32_t blue) {
    return (red << 16U) | (green << 8U) | blue;
}

// Indices 10 to 249: 24 hues of 15 degrees, each in five values, fully and half saturated. Channels are
// fractions over 80 (value in tenths × saturation in halves × position between two of the six base hues in
// quarters), so they are exact; × 255 they are truncated.
constexpr std::uint32_t HueColor(std::uint32_t index) {
    constexpr std::array<std::uint32_t, 5> kValueTenths = {10, 8, 6, 5, 3};
    const std::uint32_t hueStep = index / 10 - 1;
    const std::uint32_t value = kValueTenths[index % 10 / 2];
    const std::uint32_t saturation = index % 2 == 0 ? 2 : 1; // halves
    const std::uint32_t quarter = hueStep % 4;
    const auto channel = [value](std::uint32_t eighths) { return value * eighths * 255 / 80; };
    const std::uint32_t high = channel(8);
    const std::uint32_t low = channel(8 - 4 * saturation);
    const std::uint32_t falling = channel(8 - saturation * quarter);
    const std::uint32_t rising = channel(8 - saturation * (4 - quarter));
    switch (hueStep / 4) {
    case 0:
        return Rgb(high, rising, low);
    case 1:
        return Rgb(falling, high, low);
    case 2:
        return Rgb(low, high, rising);
    case 3:
        return Rgb(low, falling, high);
    case 4:
        return Rgb(rising, low, high);
    default:
        return Rgb(high, low, falling);
    }
}

constexpr std::array<std::uint32_t, 256> MakePalette() {
    std::array<std::uint32_t, 256> palette = {0,        0xff0000, 0xffff00, 0x00ff00, 0x00ffff,
                                              0x0000ff, 0xff00ff, 0xffffff, 0x808080, 0xc0c0c0};
    for (std::uint32_t index = 10; index < 250; ++index) {
        palette[index] = HueColor(index);
    }
    constexpr std::array<std::uint32_t, 6> kGreys = {0x333333, 0x5b5b5b, 0x848484,
                                                     0xadadad, 0xd6d6d6, 0xffffff};
    for (std::uint32_t index = 250; index < 256; ++index) {
        palette[index] = kGreys[index - 250];
    }
    return palette;
}

constexpr std::array<std::uint32_t, 256> kPalette = MakePalette();

} // namespace

std::uint32_t OxCmEntityColor::trueColor(std::uint32_t packedColor) {
    switch (colorMethod(packedColor)) {
    case kByColor:
        return packedColor & 0xffffffU;
    case kByIndex:
        return kPalette[packedColor & 0xffU];
    default:
        return 0;
    }
}
