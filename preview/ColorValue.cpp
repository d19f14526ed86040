#include "preview/ColorValue.h"

#include "StyleConversion/platform/Characters.h"

#include <algorithm>
#include <cmath>

namespace preview {
namespace {

// The linear part of a channel of sRGB (IEC 61966-2-1).
double Linear(std::uint8_t channel) {
    const double value = channel / 255.0;
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

} // namespace

std::optional<Color> ReadColor(std::wstring_view text) {
    if (text.starts_with(L"0x") || text.starts_with(L"0X")) {
        text.remove_prefix(2);
    }
    if (text.size() != 8) {
        return std::nullopt;
    }
    std::uint32_t bits = 0;
    for (const wchar_t c : text) {
        const int digit = platform::HexDigitValue(c);
        if (digit < 0) {
            return std::nullopt;
        }
        bits = bits << 4U | static_cast<std::uint32_t>(digit);
    }
    const auto channel = [bits](unsigned shift) { return static_cast<std::uint8_t>(bits >> shift & 0xffU); };
    return Color{channel(24), channel(16), channel(8), channel(0)};
}

std::string ColorText(const Color& color) {
    std::string text = "#";
    for (const std::uint8_t channel : {color.red, color.green, color.blue}) {
        platform::AppendHexByte(text, channel);
    }
    return text;
}

double Luminance(const Color& color) {
    return 0.2126 * Linear(color.red) + 0.7152 * Linear(color.green) + 0.0722 * Linear(color.blue);
}

double Contrast(double luminance, double other) {
    return (std::max(luminance, other) + 0.05) / (std::min(luminance, other) + 0.05);
}

} // namespace preview
