// Headers and family lines of a pattern file.
#include "StyleConversion/pattern/PatternFile.h"

#include "StyleConversion/encoding/NumberReader.h"
#include "StyleConversion/pattern/FamilyNumbers.h"
#include "StyleConversion/pattern/PatternLimits.h"
#include "StyleConversion/pattern/TextModeLines.h"
#include "StyleConversion/platform/Characters.h"

#include <algorithm>

namespace pattern {
namespace {

// Only the space counts, not the tab.
std::string_view TrimSpaces(std::string_view text) {
    text.remove_prefix(std::min(text.size(), text.find_first_not_of(' ')));
    return text.substr(0, text.find_last_not_of(' ') + 1);
}

struct Header {
    std::string name;
    std::string description;
};

// `text` is what stands behind the asterisk. Without a comma the name describes itself.
Header ParseHeader(std::string_view text) {
    const std::size_t comma = text.find(',');
    const std::string_view name = TrimSpaces(text.substr(0, comma));
    const std::string_view description =
        comma == std::string_view::npos ? name : TrimSpaces(text.substr(comma + 1));
    return {std::string(name), std::string(description)};
}

std::string UpperCaseLetters(std::string_view text) {
    std::string letters;
    for (const char c : text) {
        if (c != ' ' && c != '\t') {
            letters += platform::AsciiUpper(c);
        }
    }
    return letters;
}

Unit UnitOf(std::string_view remark) {
    if (remark.find('%') == std::string_view::npos) {
        return Unit::kNone;
    }
    const std::string letters = UpperCaseLetters(remark);
    const auto names = [&](std::string_view mark) { return letters.find(mark) != std::string::npos; };
    if (names("%UNITS=MM")) {
        return Unit::kMillimetre;
    }
    return names("%UNITS=IN") ? Unit::kInch : Unit::kNone;
}

// An empty number behind a dash, say, is one more dot that the dash takes in.
bool GiveTheSame(const FamilyNumbers& first, const FamilyNumbers& second) {
    return first.leading == second.leading &&
           MakePatternLine(FamilyNumbers(first), encoding::Fidelity::kFaithful).dashes ==
               MakePatternLine(FamilyNumbers(second), encoding::Fidelity::kFaithful).dashes;
}

// Takes the lines of a file one after another.
class PatternFileParser {
public:
    PatternFileParser(PatternFile& file, PatternReading* reading, const PatternPolicy& policy)
        : file_(file), reading_(reading), policy_(policy) {}

    void TakeLine(std::string_view line, std::size_t number) {
        if (!line.empty() && line.front() == ';') {
            TakeUnit(line, number);
        } else if (policy_.looseForm) {
            line = Loosened(line, number);
        }
        if (line.empty() || line.front() == ';') {
            return;
        }
        if (line.front() == '*') {
            TakeHeader(line.substr(1), number);
        } else {
            TakeFamily(line, number);
        }
    }

    void AddError(PatternError::Kind kind, std::size_t number, bool changes, std::string text = {}) {
        if (reading_ != nullptr) {
            const std::string name = current_ != nullptr ? current_->first.substr(0, kLongestLine) : "";
            reading_->errors.push_back({kind, number, name, std::move(text), changes});
        }
    }

private:
    // A name that stands there already keeps its first description, and its families go on.
    // Required: R43
    void TakeHeader(std::string_view text, std::size_t number) {
        Header header = ParseHeader(text.substr(0, policy_.looseForm ? text.find(';') : text.npos));
        const bool hasRemark = policy_.looseForm && text.find(';') != text.npos;
        current_ = &*file_.patterns.try_emplace(header.name).first;
        file_.descriptions.try_emplace(std::move(header.name), std::move(header.description));
        if (reading_ != nullptr) {
            reading_->headerLines[current_->first].push_back(number);
        }
        if (hasRemark) {
            AddError(PatternError::Kind::kRemarkBehind, number, ParseHeader(text).name != current_->first);
        }
    }

    void TakeFamily(std::string_view line, std::size_t number) {
        if (current_ == nullptr) {
            if (reading_ != nullptr) {
                reading_->linesBeforeHeaders.push_back(number);
            }
            NoteFamilyWithoutHeader(line, number);
            return;
        }
        current_->second.push_back(MakePatternLine(NumbersOf(line, number), policy_.fidelity));
        if (reading_ != nullptr) {
            reading_->familyLines[current_->first].push_back(number);
        }
    }

    // A line that a strict reading takes for a family, in the form that is meant.
    std::string_view Loosened(std::string_view line, std::size_t number) {
        const std::string_view rest = line.substr(std::min(line.size(), line.find_first_not_of(" \t\v\f\r")));
        if (rest.size() == line.size()) {
            return line;
        }
        // Before the first header a family of zeros is no harm.
        const bool isFamily = current_ != nullptr;
        if (rest.starts_with('*')) {
            AddError(PatternError::Kind::kIndentedHeader, number, true);
        } else if (!rest.empty() && rest.front() != ';') {
            return line; // blanks before a number count for nothing anyway
        } else if (isFamily) {
            AddError(rest.empty() ? PatternError::Kind::kBlankLine : PatternError::Kind::kIndentedRemark,
                     number, true);
        }
        return rest;
    }

    FamilyNumbers NumbersOf(std::string_view line, std::size_t number) {
        FamilyNumbers numbers;
        if (policy_.looseForm) {
            std::vector<PatternError> errors;
            numbers = ReadNumbersLoosely(line, errors);
            const bool changes = !errors.empty() && !GiveTheSame(numbers, ReadNumbers(line));
            for (PatternError& error : errors) {
                AddError(error.kind, number, changes, std::move(error.subject));
            }
        } else {
            numbers = ReadNumbers(line);
        }
        if (factor_ != 1.0) {
            ScaleLengths(numbers, factor_);
        }
        return numbers;
    }

    // Prose before the first header is no harm.
    void NoteFamilyWithoutHeader(std::string_view line, std::size_t number) {
        if (policy_.looseForm && line.find(',') != line.npos && encoding::ReadNumber(line).used != 0) {
            AddError(PatternError::Kind::kFamilyWithoutHeader, number, true);
        }
    }

    // "%UNITS=MM", "%UNITS = INCH": of what follows.
    void TakeUnit(std::string_view remark, std::size_t number) {
        const Unit unit = UnitOf(remark);
        if (unit == Unit::kNone) {
            return;
        }
        if (reading_ != nullptr) {
            reading_->unit = unit;
            reading_->unitLine = number;
        }
        const bool differs = policy_.wantedUnit != Unit::kNone && policy_.wantedUnit != unit;
        factor_ = !differs ? 1.0 : unit == Unit::kInch ? kMillimetresPerInch : 1.0 / kMillimetresPerInch;
        if (differs) {
            AddError(PatternError::Kind::kScaled, number, true);
        }
    }

    PatternFile& file_;
    PatternReading* reading_;
    PatternPolicy policy_;
    double factor_ = 1.0;                     // on lengths
    Patterns::value_type* current_ = nullptr; // null before the first header
};

} // namespace

void ParsePatternFile(std::string_view bytes, PatternFile& file, PatternReading* reading,
                      const PatternPolicy& policy) {
    file = {};
    if (reading != nullptr) {
        *reading = {};
    }
    PatternFileParser parser(file, reading, policy);
    const bool hasMark = policy.looseForm && platform::StartsWithByteOrderMark(bytes);
    TextModeLines lines(hasMark ? platform::WithoutByteOrderMark(bytes) : bytes);
    const std::size_t longest = policy.linesOfAnyLength ? bytes.size() : kLongestLine;
    std::string_view line;
    TextModeLines::Step step = lines.Next(longest, line);
    if (hasMark && line.starts_with('*')) {
        parser.AddError(PatternError::Kind::kByteOrderMark, 1, true);
    }
    for (; step == TextModeLines::Step::kLine; step = lines.Next(longest, line)) {
        if (lines.GetLineLength() > kLongestLine) {
            parser.AddError(PatternError::Kind::kLongLine, lines.GetLineNumber(), true);
        }
        parser.TakeLine(line, lines.GetLineNumber());
    }
    if (step == TextModeLines::Step::kTooLong) {
        parser.TakeLine(line, lines.GetLineNumber());
    }
    if (reading != nullptr && step == TextModeLines::Step::kTooLong) {
        reading->end = PatternReading::End::kLineTooLong;
        reading->endLine = lines.GetLineNumber();
    }
}

} // namespace pattern
