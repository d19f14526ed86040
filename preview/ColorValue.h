// Colours as the symbol model writes them and as pictures need them.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace preview {

/// Channels from 0 to 255; alpha 255 is opaque.
struct Color {
    std::uint8_t alpha = 255;
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;

    friend bool operator==(const Color&, const Color&) = default;
};

/// Reads eight hexadecimal digits, alpha first, with or without "0x" before them. Nothing for any other text.
std::optional<Color> ReadColor(std::wstring_view text);

/// "#rrggbb"; alpha is left out.
std::string ColorText(const Color& color);

/// How light a colour looks: 0 for black to 1 for white (relative luminance of sRGB).
double Luminance(const Color& color);

/// The ratio of two luminances as the eye sees it: from 1, indistinguishable, to 21.
double Contrast(double luminance, double other);

} // namespace preview
