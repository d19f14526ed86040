#include "conversions/reading/Patterns.h"

#include "StyleConversion/pattern/PatternLimits.h"
#include "StyleConversion/platform/Characters.h"
#include "conversions/reading/Shown.h"

#include <algorithm>
#include <utility>

namespace conversions {
namespace {

using diagnostics::Code;
using diagnostics::Diagnostic;
using diagnostics::Diagnostics;
using diagnostics::Outcome;
using diagnostics::Severity;
using pattern::PatternError;

Code CodeOf(PatternError::Kind kind) {
    switch (kind) {
    case PatternError::Kind::kByteOrderMark:
        return Code::kByteOrderMark;
    case PatternError::Kind::kLongLine:
        return Code::kLongPatternLine;
    case PatternError::Kind::kBlankLine:
        return Code::kBlankLine;
    case PatternError::Kind::kIndentedRemark:
        return Code::kIndentedComment;
    case PatternError::Kind::kIndentedHeader:
        return Code::kIndentedPattern;
    case PatternError::Kind::kRemarkBehind:
        return Code::kCommentBehind;
    case PatternError::Kind::kEmptyNumber:
        return Code::kEmptyNumber;
    case PatternError::Kind::kNotANumber:
        return Code::kInvalidNumber;
    case PatternError::Kind::kTextBehindNumber:
        return Code::kTextAfterNumber;
    case PatternError::Kind::kTooFewNumbers:
        return Code::kTooFewNumbers;
    case PatternError::Kind::kFamilyWithoutHeader:
        return Code::kFamilyWithoutHeader;
    case PatternError::Kind::kScaled:
        break;
    }
    return Code::kScaledUnits;
}

std::vector<std::string> SubjectsOf(const PatternError& error) {
    if (error.kind == PatternError::Kind::kLongLine) {
        return {std::to_string(pattern::kLongestLine)};
    }
    return error.subject.empty() ? std::vector<std::string>()
                                 : std::vector<std::string>{ShownLine(error.subject)};
}

Severity CheckedSeverity(const PatternError& error) {
    return error.changes || error.kind == PatternError::Kind::kNotANumber ? Severity::kError
                                                                          : Severity::kWarning;
}

bool HasTile(const std::vector<pattern::PatternLine>& lines) {
    return std::any_of(lines.begin(), lines.end(), [](const auto& line) { return line.rowCount >= 0; });
}

// Collects what is said of one file.
class PatternDiagnostics {
public:
    PatternDiagnostics(const Input& input, const LoadedPatterns& loaded) : input_(input), loaded_(loaded) {}

    void Add(std::size_t line, const std::string& pattern, Severity severity, Code code,
             std::vector<std::string> subjects = {}, Outcome outcome = Outcome::kNone) {
        diagnostics::Place place;
        place.file = input_.name;
        place.line = line;
        place.item = pattern.empty() ? "" : PatternItem(pattern);
        found_.push_back({severity, code, std::move(place), std::move(subjects), outcome});
    }

    // What a faithful symbol of the pattern does not draw as it is.
    void AddLosses(const std::string& name, const pattern::FaithfulTiles& tiles) {
        const std::vector<std::size_t>& lines = loaded_.reading.familyLines.at(name);
        for (const std::size_t family : tiles.unplaced) {
            Add(lines[family], name, Severity::kWarning, Code::kUnplacedFamily, {}, Outcome::kSkipped);
        }
        pattern::TiledFamily worst;
        for (const pattern::FaithfulTile& tile : tiles.tiles) {
            for (const pattern::TiledFamily& family : tile.families) {
                worst = family.fit.share > worst.fit.share ? family : worst;
            }
        }
        if (worst.fit.share > pattern::kRoundedMiss) {
            Add(lines[worst.family], name, Severity::kWarning, Code::kMissedTile,
                {RoundedText(worst.fit.length, 1e6), RoundedText(worst.fit.share * 100.0, 10.0)});
        }
    }

    diagnostics::Diagnostics Take() {
        diagnostics::SortByLine(found_);
        return std::move(found_);
    }

private:
    const Input& input_;
    const LoadedPatterns& loaded_;
    diagnostics::Diagnostics found_;
};

} // namespace

bool ReadPatterns(const Input& input, const pattern::PatternPolicy& policy, LoadedPatterns& loaded,
                  diagnostics::Diagnostics& diagnostics) {
    pattern::ParsePatternFile(input.bytes, loaded.file, &loaded.reading, policy);
    if (loaded.reading.end == pattern::PatternReading::End::kLineTooLong) {
        diagnostics::Place place;
        place.file = input.name;
        place.line = loaded.reading.endLine;
        diagnostics.push_back({Severity::kError,
                               Code::kLongPatternLine,
                               std::move(place),
                               {std::to_string(pattern::kLongestLine)}});
        return false;
    }
    if (loaded.file.patterns.empty()) {
        diagnostics.push_back(EmptyFile(input, Code::kNoPatterns));
        return false;
    }
    return true;
}

diagnostics::Diagnostics CheckedPatterns(const Input& input, const LoadedPatterns& loaded) {
    PatternDiagnostics found(input, loaded);
    for (const PatternError& error : loaded.reading.errors) {
        found.Add(error.line, error.pattern, CheckedSeverity(error), CodeOf(error.kind), SubjectsOf(error));
    }
    if (loaded.reading.unit != pattern::Unit::kNone) {
        const bool isInch = loaded.reading.unit == pattern::Unit::kInch;
        found.Add(loaded.reading.unitLine, "", Severity::kWarning, Code::kIgnoredUnits,
                  {isInch ? "inches" : "millimetres", isInch ? "mm" : "inch"});
    }
    return found.Take();
}

diagnostics::Diagnostics ToleratedPatterns(const Input& input, const LoadedPatterns& loaded) {
    PatternDiagnostics found(input, loaded);
    for (const PatternError& error : loaded.reading.errors) {
        found.Add(error.line, error.pattern, Severity::kWarning, CodeOf(error.kind), SubjectsOf(error),
                  Outcome::kRepaired);
    }
    return found.Take();
}

void TellMissingUnit(const Input& input, const LoadedPatterns& loaded, pattern::Unit wanted,
                     Diagnostics& diagnostics) {
    if (wanted != pattern::Unit::kNone && loaded.reading.unit == pattern::Unit::kNone) {
        diagnostics.push_back({Severity::kWarning, Code::kNoFileUnit, {input.name}, {}});
    }
}

Diagnostics FaithfulLosses(const Input& input, const LoadedPatterns& loaded, const std::string& name,
                           const pattern::FaithfulTiles& tiles) {
    PatternDiagnostics found(input, loaded);
    found.AddLosses(name, tiles);
    return found.Take();
}

Code WhyNoSymbol(const std::vector<pattern::PatternLine>& lines) {
    if (lines.empty()) {
        return Code::kEmptyPattern;
    }
    return HasTile(lines) ? Code::kTinyTile : Code::kPatternWithoutTile;
}

std::string PatternItem(const std::string& name) {
    return "pattern " + ShownName(name);
}

Diagnostic EmptyFile(const Input& input, Code code) {
    Diagnostic diagnostic;
    diagnostic.code = code;
    diagnostic.place.file = input.name;
    if (platform::StartsWithByteOrderMark(input.bytes)) {
        diagnostic.code = Code::kByteOrderMark;
        diagnostic.place.line = 1;
    }
    return diagnostic;
}

} // namespace conversions
