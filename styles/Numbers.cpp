#include "styles/Numbers.h"

#include "StyleConversion/encoding/GeneralNumber.h"

#include <array>
#include <cmath>

namespace styles {
namespace {

constexpr double kSmallest = 1e-12;

// Moves the point of "1.234" so many digits to the right, or to the left.
std::string WithPointMoved(const std::string& mantissa, int by) {
    std::string digits;
    int point = 0;
    for (const char c : mantissa) {
        if (c == '.') {
            point = static_cast<int>(digits.size());
        } else {
            digits += c;
        }
    }
    point = (mantissa.find('.') == std::string::npos ? static_cast<int>(digits.size()) : point) + by;
    if (point <= 0) {
        return "0." + std::string(static_cast<std::size_t>(-point), '0') + digits;
    }
    const auto whole = static_cast<std::size_t>(point);
    if (whole >= digits.size()) {
        return digits + std::string(whole - digits.size(), '0');
    }
    return digits.substr(0, whole) + "." + digits.substr(whole);
}

int ExponentOf(const std::string& text) {
    int exponent = 0;
    for (const char c : text) {
        if (c >= '0' && c <= '9') {
            exponent = exponent * 10 + (c - '0');
        }
    }
    return text.front() == '-' ? -exponent : exponent;
}

} // namespace

std::string PlainNumber(double value) {
    if (!std::isfinite(value) || std::fabs(value) < kSmallest) {
        return "0";
    }
    std::array<wchar_t, encoding::kLongestGeneral> wide{};
    std::string text;
    for (const wchar_t *c = wide.data(), *const end = encoding::WriteGeneral(wide.data(), std::fabs(value));
         c != end; ++c) {
        text += static_cast<char>(*c);
    }
    if (const std::size_t e = text.find('e'); e != std::string::npos) {
        text = WithPointMoved(text.substr(0, e), ExponentOf(text.substr(e + 1)));
    }
    return value < 0 ? "-" + text : text;
}

} // namespace styles
