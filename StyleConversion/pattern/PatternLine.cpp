// Numbers of a family line -> the family.
#include "StyleConversion/pattern/PatternLine.h"

#include "StyleConversion/pattern/FamilyNumbers.h"
#include "StyleConversion/pattern/RepeatTile.h"

#include <cmath>
#include <cstddef>
#include <utility>

namespace pattern {
namespace {

bool IsGap(double dash) {
    return dash < 0;
}

// Sums neighbours of one kind. The sums are built from the end of the list towards its start, which decides
// their last digits.
void MergeDashes(std::vector<double>& dashes) {
    if (dashes.empty()) {
        return;
    }
    std::size_t merged = dashes.size() - 1;
    for (std::size_t i = merged; i > 0; --i) {
        const double before = dashes[i - 1];
        if (IsGap(before) == IsGap(dashes[merged])) {
            dashes[merged] = before + dashes[merged];
        } else {
            dashes[--merged] = before;
        }
    }
    dashes.erase(dashes.begin(), dashes.begin() + static_cast<std::ptrdiff_t>(merged));
}

double SumOfLengths(const std::vector<double>& dashes) {
    double sum = 0.0;
    for (const double dash : dashes) {
        sum += std::fabs(dash);
    }
    return sum;
}

void FindTile(PatternLine& line) {
    if (line.offset == 0) {
        line.repeatX = line.dashTotal;
        line.repeatY = line.spacing;
    } else if (!FindRotatedTile(line) && !FindStackedTile(line)) {
        line.rowCount = -1;
    }
}

} // namespace

PatternLine MakePatternLine(FamilyNumbers&& numbers, encoding::Fidelity fidelity) {
    PatternLine line;
    line.angle = numbers.leading[0];
    line.originX = numbers.leading[1];
    line.originY = numbers.leading[2];
    line.spacing = numbers.leading[4] == 0 ? kDefaultLength : numbers.leading[4];
    line.dashes = std::move(numbers.dashes);
    MergeDashes(line.dashes);
    line.dashTotal = SumOfLengths(line.dashes);
    // One dash alone is drawn from end to end of its cycle, or not at all: its shift cannot be seen.
    double shift = line.dashes.size() >= 2 ? numbers.leading[3] : 0.0;
    if (line.dashTotal == 0) {
        line.dashes.clear();
        line.dashTotal = kDefaultLength;
        shift = 0.0;
    }
    line.offset = std::fmod(shift, line.dashTotal);
    if (line.offset < 0) {
        line.offset += line.dashTotal;
    }
    if (fidelity == encoding::Fidelity::kStrict) {
        FindTile(line);
    }
    return line;
}

PatternLine ParsePatternLine(std::string_view line) {
    return MakePatternLine(ReadNumbers(line));
}

} // namespace pattern
