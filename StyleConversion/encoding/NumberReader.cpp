#include "StyleConversion/encoding/NumberReader.h"

#include "StyleConversion/encoding/ReadDecimal.h"
#include "StyleConversion/platform/Characters.h"

#include <charconv>
#include <limits>
#include <system_error>

namespace encoding {
namespace {

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

} // namespace

NumberReading ReadNumber(std::string_view text) {
    std::size_t start = 0;
    while (start < text.size() && platform::IsBlank(text[start])) {
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
    double value = 0.0;
    const auto [end, error] = ReadDecimal(number.data(), number.data() + number.size(), value);
    const auto length = static_cast<std::size_t>(end - number.data());
    if (error == std::errc::result_out_of_range) {
        value = IsTooLarge(number.substr(0, length)) ? std::numeric_limits<double>::infinity() : 0.0;
    }
    return {negative ? -value : value, start + length};
}

NumberReading ScanNumber(std::string_view text) {
    const NumberReading number = ReadNumber(text);
    // A whole exponent would have been used.
    constexpr std::string_view kMarks = "eE";
    const bool hasExponent = text.substr(0, number.used).find_first_of(kMarks) != std::string_view::npos;
    const bool isCutShort = number.used != 0 && !hasExponent && number.used < text.size() &&
                            kMarks.find(text[number.used]) != std::string_view::npos;
    return isCutShort ? NumberReading{} : number;
}

} // namespace encoding
