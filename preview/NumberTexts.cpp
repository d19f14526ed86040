#include "preview/NumberTexts.h"

#include "StyleConversion/encoding/IntegerConversion.h"
#include "StyleConversion/encoding/PathCommands.h"

#include <algorithm>
#include <cmath>

namespace preview {
namespace {

constexpr double kLargest = 1e7;

} // namespace

long long ToHundredths(double pixels) {
    if (!std::isfinite(pixels)) {
        return 0;
    }
    return encoding::ToInt32(std::floor(std::clamp(pixels, -kLargest, kLargest) * 100 + 0.5));
}

void AppendHundredths(std::string& text, long long hundredths) {
    if (hundredths < 0) {
        text += '-';
        hundredths = -hundredths;
    }
    text += std::to_string(hundredths / 100);
    const auto decimals = static_cast<int>(hundredths % 100);
    if (decimals == 0) {
        return;
    }
    text += '.';
    text += static_cast<char>('0' + decimals / 10);
    if (decimals % 10 != 0) {
        text += static_cast<char>('0' + decimals % 10);
    }
}

void AppendPixels(std::string& text, double pixels) {
    AppendHundredths(text, ToHundredths(pixels));
}

std::string ExactNumber(double value) {
    std::string text;
    for (const wchar_t c : encoding::FormatNumber(value)) {
        text += static_cast<char>(c);
    }
    return text;
}

std::string ShownNumber(double value) {
    if (value == 0.0 || !std::isfinite(value)) {
        return ExactNumber(value);
    }
    const double exponent = std::floor(std::log10(std::fabs(value))) - 3;
    // A power of ten that a double holds exactly divides without leaving digits behind.
    const double power = std::pow(10.0, std::fabs(exponent));
    const double rounded =
        exponent < 0 ? std::round(value * power) / power : std::round(value / power) * power;
    return ExactNumber(std::isfinite(rounded) && rounded != 0.0 ? rounded : value);
}

} // namespace preview
