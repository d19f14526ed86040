// Headers and family lines of a pattern file.
#include "StyleConversion/pattern/PatternFile.h"

#include "StyleConversion/encoding/NumberReader.h"
#include "StyleConversion/pattern/FamilyNumbers.h"
#include "StyleConversion/pattern/LineCursor.h"
#include "StyleConversion/pattern/PatternLimits.h"
#include "StyleConversion/platform/Files.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <memory>

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
            letters += static_cast<char>(c >= 'a' && c <= 'z' ? c - 'a' + 'A' : c);
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
           MakePatternLine(FamilyNumbers(first)).dashes == MakePatternLine(FamilyNumbers(second)).dashes;
}

constexpr std::string_view kByteOrderMark = "\xef\xbb\xbf";

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

    void AddSlip(PatternSlip::Kind kind, std::size_t number, bool changes, std::string text = {}) {
        if (reading_ != nullptr) {
            const std::string name = current_ != nullptr ? current_->first.substr(0, kLongestLine) : "";
            reading_->slips.push_back({kind, number, name, std::move(text), changes});
        }
    }

private:
    // A name that stands there already keeps its first description, and its families go on.
    void TakeHeader(std::string_view text, std::size_t number) {
        Header header = ParseHeader(text.substr(0, policy_.looseForm ? text.find(';') : text.npos));
        const bool hasRemark = policy_.looseForm && text.find(';') != text.npos;
        current_ = &*file_.patterns.try_emplace(header.name).first;
        file_.descriptions.try_emplace(std::move(header.name), std::move(header.description));
        if (reading_ != nullptr) {
            reading_->headerLines[current_->first].push_back(number);
        }
        if (hasRemark) {
            AddSlip(PatternSlip::Kind::kRemarkBehind, number, ParseHeader(text).name != current_->first);
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
        current_->second.push_back(MakePatternLine(NumbersOf(line, number)));
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
            AddSlip(PatternSlip::Kind::kIndentedHeader, number, true);
        } else if (!rest.empty() && rest.front() != ';') {
            return line; // blanks before a number count for nothing anyway
        } else if (isFamily) {
            AddSlip(rest.empty() ? PatternSlip::Kind::kBlankLine : PatternSlip::Kind::kIndentedRemark, number,
                    true);
        }
        return rest;
    }

    FamilyNumbers NumbersOf(std::string_view line, std::size_t number) {
        FamilyNumbers numbers;
        if (policy_.looseForm) {
            std::vector<PatternSlip> slips;
            numbers = ReadNumbersLoosely(line, slips);
            const bool changes = !slips.empty() && !GiveTheSame(numbers, ReadNumbers(line));
            for (PatternSlip& slip : slips) {
                AddSlip(slip.kind, number, changes, std::move(slip.text));
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
            AddSlip(PatternSlip::Kind::kFamilyWithoutHeader, number, true);
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
            AddSlip(PatternSlip::Kind::kScaled, number, true);
        }
    }

    PatternFile& file_;
    PatternReading* reading_;
    PatternPolicy policy_;
    double factor_ = 1.0;                     // on lengths
    Patterns::value_type* current_ = nullptr; // null before the first header
};

struct CloseFile {
    void operator()(std::FILE* file) const { static_cast<void>(std::fclose(file)); }
};

// False when an error of the device ends the reading; what came before it is there.
bool ReadBytes(std::FILE* file, std::string& bytes) {
    std::array<char, 65536> block; // not initialised: filled by the reading
    while (const std::size_t count = std::fread(block.data(), 1, block.size(), file)) {
        bytes.append(block.data(), count);
    }
    return std::ferror(file) == 0;
}

} // namespace

void ParsePatternFile(std::string_view bytes, PatternFile& file, PatternReading* reading,
                      const PatternPolicy& policy) {
    file = {};
    if (reading != nullptr) {
        *reading = {};
    }
    PatternFileParser parser(file, reading, policy);
    const bool hasMark = policy.looseForm && bytes.starts_with(kByteOrderMark);
    LineCursor cursor(bytes.substr(hasMark ? kByteOrderMark.size() : 0));
    const std::size_t longest = policy.linesOfAnyLength ? bytes.size() : kLongestLine;
    std::string_view line;
    LineCursor::Step step = cursor.Next(longest, line);
    if (hasMark && line.starts_with('*')) {
        parser.AddSlip(PatternSlip::Kind::kByteOrderMark, 1, true);
    }
    for (; step == LineCursor::Step::kLine; step = cursor.Next(longest, line)) {
        if (cursor.GetLineLength() > kLongestLine) {
            parser.AddSlip(PatternSlip::Kind::kLongLine, cursor.GetLineNumber(), true);
        }
        parser.TakeLine(line, cursor.GetLineNumber());
    }
    if (reading != nullptr && step == LineCursor::Step::kTooLong) {
        reading->end = PatternReading::End::kLineTooLong;
        reading->endLine = cursor.GetLineNumber();
    }
}

void ReadPatternFile(const std::wstring& fileName, PatternFile& file, PatternReading* reading) {
    const std::unique_ptr<std::FILE, CloseFile> stream(platform::OpenForReading(fileName.c_str()));
    std::string bytes;
    const bool complete = stream != nullptr && ReadBytes(stream.get(), bytes);
    ParsePatternFile(bytes, file, reading);
    if (reading != nullptr && !complete) {
        reading->end = stream == nullptr ? PatternReading::End::kNotOpened : PatternReading::End::kReadFailed;
    }
}

} // namespace pattern
