// Text of a family line -> numbers.
#include "StyleConversion/pattern/FamilyNumbers.h"

#include "StyleConversion/encoding/NumberReader.h"
#include "StyleConversion/pattern/PatternLimits.h"
#include "StyleConversion/platform/Characters.h"

#include <algorithm>
#include <cstddef>

namespace pattern {
namespace {

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
void AddError(std::vector<PatternError>& errors, PatternError::Kind kind, std::string_view text) {
    if (std::any_of(errors.begin(), errors.end(),
                    [&](const PatternError& known) { return known.kind == kind; })) {
        return;
    }
    PatternError error;
    error.kind = kind;
    error.subject = text.substr(0, kLongestLine);
    errors.push_back(std::move(error));
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

FamilyNumbers ReadNumbersLoosely(std::string_view line, std::vector<PatternError>& errors) {
    FamilyNumbers numbers;
    const std::size_t remark = line.find(';');
    if (remark != std::string_view::npos) {
        AddError(errors, PatternError::Kind::kRemarkBehind, line.substr(remark));
        line = line.substr(0, remark);
    }
    const std::size_t count = CountPieces(line);
    ReserveDashes(numbers, count);
    if (count < numbers.leading.size()) {
        AddError(errors, PatternError::Kind::kTooFewNumbers, line);
    }
    for (std::size_t i = 0; i < count; ++i) {
        const std::string_view piece = line.substr(0, line.find(','));
        const encoding::NumberReading reading = encoding::ReadNumber(piece);
        const std::string_view behind = platform::WithoutBlanks(piece.substr(reading.used));
        if (reading.used == 0 && behind.empty()) {
            AddError(errors, PatternError::Kind::kEmptyNumber, {});
            if (i >= numbers.leading.size()) {
                break;
            }
        } else if (!behind.empty()) {
            AddError(errors,
                     reading.used == 0 ? PatternError::Kind::kNotANumber
                                       : PatternError::Kind::kTextBehindNumber,
                     platform::WithoutBlanks(piece));
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
