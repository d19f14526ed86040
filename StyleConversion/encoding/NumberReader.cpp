#include "StyleConversion/encoding/NumberReader.h"

#include <array>
#include <charconv>
#include <cstdint>
#include <limits>
#include <system_error>

namespace encoding {
namespace {

bool IsSpace(char c) {
    return c == ' ' || (c >= '\t' && c <= '\r');
}

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

// Whether an unsigned number that no double holds is too large rather than too small: where its first
// significant digit stands, counted from the point, together with its exponent.
bool IsTooLarge(std::string_view number) {
    const std::size_t mark = number.find_first_of("eE");
    const std::string_view digits = number.substr(0, mark);
    const std::size_t point = digits.find('.');
    const std::size_t integerDigits = point == std::string_view::npos ? digits.size() : point;
    const std::size_t first = digits.find_first_of("123456789");
    auto position = static_cast<long long>(integerDigits) - static_cast<long long>(first);
    if (mark != std::string_view::npos) {
        std::string_view exponent = number.substr(mark + 1);
        const bool negative = exponent.front() == '-';
        if (negative || exponent.front() == '+') {
            exponent.remove_prefix(1);
        }
        long long power = 0;
        if (std::from_chars(exponent.data(), exponent.data() + exponent.size(), power).ec != std::errc()) {
            return !negative;
        }
        position += negative ? -power : power;
    }
    return position > 0;
}

// Reads digits with at most one point among them, where that is all there is and they are few. A double holds
// up to 15 digits exactly, and the power of ten as well: the quotient is then rounded once, as it must be.
// Nothing is used where the number is of another kind.
NumberReading ReadFewDigits(std::string_view number) {
    constexpr std::size_t kDigitsOfDouble = 15;
    constexpr std::array<double, kDigitsOfDouble + 1> kPowersOfTen{
        1e0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
    std::uint64_t digits = 0;
    std::size_t used = 0;
    std::size_t point = number.size();
    for (; used < number.size() && used <= kDigitsOfDouble + 1; ++used) {
        if (IsDigit(number[used])) {
            digits = digits * 10 + static_cast<std::uint64_t>(number[used] - '0');
        } else if (number[used] == '.' && point == number.size()) {
            point = used;
        } else {
            break;
        }
    }
    const bool hasPoint = point < used;
    const std::size_t count = used - (hasPoint ? 1 : 0);
    const bool hasExponent = used < number.size() && (number[used] == 'e' || number[used] == 'E');
    if (count == 0 || count > kDigitsOfDouble || hasExponent) {
        return {};
    }
    const std::size_t decimals = hasPoint ? used - point - 1 : 0;
    return {static_cast<double>(digits) / kPowersOfTen[decimals], used};
}

} // namespace

NumberReading ReadNumber(std::string_view text) {
    std::size_t start = 0;
    while (start < text.size() && IsSpace(text[start])) {
        ++start;
    }
    bool negative = false;
    if (start < text.size() && (text[start] == '-' || text[start] == '+')) {
        negative = text[start] == '-';
        ++start;
    }
    const std::string_view number = text.substr(start);
    const bool begins = !number.empty() &&
                        (IsDigit(number[0]) || (number[0] == '.' && number.size() > 1 && IsDigit(number[1])));
    if (!begins) {
        return {};
    }
    if (const NumberReading few = ReadFewDigits(number); few.used != 0) {
        return {negative ? -few.value : few.value, start + few.used};
    }
    double value = 0.0;
    const auto [end, error] = std::from_chars(number.data(), number.data() + number.size(), value);
    const auto length = static_cast<std::size_t>(end - number.data());
    if (error == std::errc::result_out_of_range) {
        value = IsTooLarge(number.substr(0, length)) ? std::numeric_limits<double>::infinity() : 0.0;
    }
    return {negative ? -value : value, start + length};
}

} // namespace encoding
