#include "conversions/checking/PatternCheck.h"

#include "StyleConversion/pattern/AreaSymbol.h"
#include "StyleConversion/pattern/PatternLimits.h"
#include "StyleConversion/pattern/RepeatTile.h"
#include "conversions/checking/Check.h"
#include "conversions/checking/PatternMeasure.h"
#include "conversions/reading/Shown.h"

#include <memory>
#include <utility>

namespace conversions {
namespace {

using diagnostics::Code;
using diagnostics::Diagnostic;
using diagnostics::Diagnostics;
using diagnostics::Severity;

Diagnostic At(const Input& input, std::size_t line, const std::string& name, Severity severity, Code code,
              std::vector<std::string> subjects = {}) {
    diagnostics::Place place;
    place.file = input.name;
    place.line = line;
    place.item = PatternItem(name);
    return {severity, code, std::move(place), std::move(subjects)};
}

// "48 % of the spacing"
std::string ShareText(const FamilyMeasure& measure) {
    return PercentText(measure.Share()) +
           (measure.across >= measure.along ? " of the line spacing" : " of the shortest dash");
}

// ": 0.105 is written 0.1"
std::string CauseText(const FamilyMeasure& measure, const pattern::PatternLine& family) {
    if (measure.cut) {
        return TextOf(*measure.cut);
    }
    constexpr double kMillionths = 1e6;
    const double error = pattern::PhaseError(family);
    if (error < pattern::kPhaseTolerance) {
        return {};
    }
    const std::string rows = std::to_string(family.rowCount) + (family.rowCount == 1 ? " line" : " lines");
    return ": after " + rows + " the dashes are " + RoundedText(error, kMillionths) +
           " drawing units out of phase";
}

void AddPattern(const Input& input, LoadedPatterns& loaded, const std::string& name,
                std::vector<pattern::PatternLine>& lines, Diagnostics& found) {
    std::vector<pattern::PatternLine> families = lines;
    if (const auto symbol = pattern::BuildAreaSymbol(name, lines)) {
        if (auto losses = StrictLosses(input, loaded, name, families, *symbol)) {
            found.push_back(std::move(*losses));
        }
    } else {
        found.push_back(At(input, loaded.reading.headerLines.at(name).front(), name, Severity::kError,
                           WhyNoSymbol(lines)));
    }
    Append(found, DuplicatePatterns(input, loaded, name));
}

} // namespace

std::optional<Diagnostic> StrictLosses(const Input& input, const LoadedPatterns& loaded,
                                       const std::string& name,
                                       const std::vector<pattern::PatternLine>& families,
                                       TylModel::SymbolDefinition& symbol) {
    const PatternMeasure measure = MeasurePattern(families, symbol);
    const std::vector<std::size_t>& lines = loaded.reading.familyLines.at(name);
    const FamilyMeasure& worst = measure.worst;
    const bool isOutOfPlace = !(worst.Share() < kWarningShare);
    std::string cause = isOutOfPlace ? CauseText(worst, families[worst.family]) : std::string();
    if (!measure.lost.empty()) {
        if (isOutOfPlace) {
            cause = ", and others drawn up to " + ShareText(worst) + " out of place" + cause;
        }
        return At(input, lines[measure.lost.front()], name, Severity::kError, Code::kLostFamilies,
                  {std::to_string(measure.lost.size()), std::to_string(families.size()), cause});
    }
    if (!isOutOfPlace) {
        return std::nullopt;
    }
    return At(input, lines[worst.family], name,
              worst.Share() < kErrorShare ? Severity::kWarning : Severity::kError, Code::kOutOfPlace,
              {ShareText(worst), cause});
}

Diagnostics DuplicatePatterns(const Input& input, const LoadedPatterns& loaded, const std::string& name) {
    const std::vector<std::size_t>& headers = loaded.reading.headerLines.at(name);
    Diagnostics found;
    for (std::size_t i = 1; i < headers.size(); ++i) {
        found.push_back(At(input, headers[i], name, Severity::kWarning, Code::kDuplicatePattern,
                           {std::to_string(headers.front())}));
    }
    return found;
}

Diagnostics CheckPatterns(const Input& input) {
    LoadedPatterns loaded;
    pattern::ParsePatternFile(input.bytes, loaded.file, &loaded.reading, pattern::kTolerantPatternPolicy);
    Diagnostics found = CheckedPatterns(input, loaded);
    for (auto& [name, lines] : loaded.file.patterns) {
        AddPattern(input, loaded, name, lines, found);
    }
    diagnostics::SortByLine(found);
    if (loaded.file.patterns.empty()) {
        found.push_back(EmptyFile(input, Code::kNoPatterns));
    }
    return found;
}

} // namespace conversions
