// Text of a family line -> numbers.
#include "StyleConversion/pattern/FamilyNumbers.h"

#include "StyleConversion/encoding/NumberReader.h"
#include "StyleConversion/pattern/PatternLimits.h"

#include <algorithm>
#include <cstddef>

namespace pattern {
namespace {

bool IsBlank(char c) {
    return c == ' ' || (c >= '\t' && c <= '\r');
}

std::string_view WithoutBlanks(std::string_view text) {
    while (!text.empty() && IsBlank(text.front())) {
        text.remove_prefix(1);
    }
    while (!text.empty() && IsBlank(text.back())) {
        text.remove_suffix(1);
    }
    return text;
}

void Append(FamilyNumbers& numbers, std::size_t index, double value) {
    if (index < numbers.leading.size()) {
        numbers.leading[index] = value;
    } else {
        numbers.dashes.push_back(value);
    }
}

std::size_t CountPieces(std::string_view line) {
    return static_cast<std::size_t>(std::count(line.begin(), line.end(), ',')) + 1;
}

void ReserveDashes(FamilyNumbers& numbers, std::size_t count) {
    if (count > numbers.leading.size()) {
        numbers.dashes.reserve(count - numbers.leading.size());
    }
}

// One of each kind will do for a line.
void AddSlip(std::vector<PatternSlip>& slips, PatternSlip::Kind kind, std::string_view text) {
    if (std::any_of(slips.begin(), slips.end(),
                    [&](const PatternSlip& known) { return known.kind == kind; })) {
        return;
    }
    PatternSlip slip;
    slip.kind = kind;
    slip.text = text.substr(0, kLongestLine);
    slips.push_back(std::move(slip));
}

} // namespace

FamilyNumbers ReadNumbers(std::string_view line) {
    FamilyNumbers numbers;
    const std::size_t count = CountPieces(line);
    ReserveDashes(numbers, count);
    for (std::size_t i = 0; i < count; ++i) {
        // No number reaches over a comma, so the rest of the line can be offered whole.
        const encoding::NumberReading reading = encoding::ReadNumber(line);
        Append(numbers, i, reading.value);
        line.remove_prefix(std::min(line.size(), line.find(',', reading.used)));
        line.remove_prefix(line.empty() ? 0 : 1);
    }
    return numbers;
}

FamilyNumbers ReadNumbersLoosely(std::string_view line, std::vector<PatternSlip>& slips) {
    FamilyNumbers numbers;
    const std::size_t remark = line.find(';');
    if (remark != std::string_view::npos) {
        AddSlip(slips, PatternSlip::Kind::kRemarkBehind, line.substr(remark));
        line = line.substr(0, remark);
    }
    const std::size_t count = CountPieces(line);
    ReserveDashes(numbers, count);
    if (count < numbers.leading.size()) {
        AddSlip(slips, PatternSlip::Kind::kTooFewNumbers, line);
    }
    for (std::size_t i = 0; i < count; ++i) {
        const std::string_view piece = line.substr(0, line.find(','));
        const encoding::NumberReading reading = encoding::ReadNumber(piece);
        const std::string_view behind = WithoutBlanks(piece.substr(reading.used));
        if (reading.used == 0 && behind.empty()) {
            AddSlip(slips, PatternSlip::Kind::kEmptyNumber, {});
            if (i >= numbers.leading.size()) {
                break;
            }
        } else if (!behind.empty()) {
            AddSlip(slips,
                    reading.used == 0 ? PatternSlip::Kind::kNotANumber : PatternSlip::Kind::kTextBehindNumber,
                    WithoutBlanks(piece));
        }
        Append(numbers, i, reading.value);
        line.remove_prefix(std::min(line.size(), piece.size() + 1));
    }
    return numbers;
}

void ScaleLengths(FamilyNumbers& numbers, double factor) {
    for (std::size_t i = 1; i < numbers.leading.size(); ++i) {
        numbers.leading[i] *= factor;
    }
    for (double& dash : numbers.dashes) {
        dash *= factor;
    }
}

} // namespace pattern
