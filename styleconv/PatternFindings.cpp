#include "styleconv/PatternFindings.h"

#include "StyleConversion/pattern/PatternLimits.h"
#include "StyleConversion/pattern/RepeatTile.h"
#include "styleconv/Messages.h"

#include <algorithm>
#include <utility>

namespace styleconv {
namespace {

using pattern::PatternSlip;

std::string SlipText(const PatternSlip& slip) {
    switch (slip.kind) {
    case PatternSlip::Kind::kByteOrderMark:
        return "a UTF-8 byte-order mark hides the header behind it";
    case PatternSlip::Kind::kLongLine:
        return "the line has more than " + std::to_string(pattern::kLongestLine) +
               " characters; nothing from here on can be read";
    case PatternSlip::Kind::kBlankLine:
        return "a line of blanks is read as a family of zeros";
    case PatternSlip::Kind::kIndentedRemark:
        return "a blank before \";\": the remark is read as a family of zeros";
    case PatternSlip::Kind::kIndentedHeader:
        return "a blank before \"*\": the header is read as a family of zeros";
    case PatternSlip::Kind::kRemarkBehind:
        return "\";\" begins a remark only at the start of a line";
    case PatternSlip::Kind::kEmptyNumber:
        return "nothing stands where a number should, and reads as 0";
    case PatternSlip::Kind::kNotANumber:
        return "\"" + ShownLine(slip.text) + "\" is no number and reads as 0";
    case PatternSlip::Kind::kTextBehindNumber:
        return "\"" + ShownLine(slip.text) + "\" is read only as far as it is a number";
    case PatternSlip::Kind::kTooFewNumbers:
        return "a family has five numbers before its dashes; those that are missing read as 0";
    case PatternSlip::Kind::kFamilyWithoutHeader:
        return "a family before the first header belongs to no pattern";
    case PatternSlip::Kind::kScaled:
        return "the file is in another unit";
    }
    return {};
}

std::string ForgivenText(const PatternSlip& slip) {
    switch (slip.kind) {
    case PatternSlip::Kind::kByteOrderMark:
        return "a UTF-8 byte-order mark; skipped";
    case PatternSlip::Kind::kLongLine:
        return "the line has more than " + std::to_string(pattern::kLongestLine) + " characters; read whole";
    case PatternSlip::Kind::kBlankLine:
        return "a line of blanks; skipped";
    case PatternSlip::Kind::kIndentedRemark:
    case PatternSlip::Kind::kIndentedHeader:
        return "a blank at the start of the line; skipped";
    case PatternSlip::Kind::kRemarkBehind:
        return "a \";\" later in the line; read as the beginning of a remark";
    case PatternSlip::Kind::kEmptyNumber:
        return "nothing stands where a number should; among the dashes it ends them, before them it reads as "
               "0";
    case PatternSlip::Kind::kFamilyWithoutHeader:
        return SlipText(slip) + "; left out";
    case PatternSlip::Kind::kScaled:
        return "the file is in another unit; lengths from here on are scaled";
    default:
        return SlipText(slip);
    }
}

Severity SeverityOf(const PatternSlip& slip) {
    return slip.changes || slip.kind == PatternSlip::Kind::kNotANumber ? Severity::kError
                                                                       : Severity::kWarning;
}

// Collects the findings of one file.
class Findings {
public:
    Findings(const std::string& fileName, const pattern::PatternFile& file,
             const pattern::PatternReading& reading)
        : fileName_(fileName), file_(file), reading_(reading) {}

    void Add(std::size_t line, Severity severity, std::string message, const std::string& pattern) {
        findings_.push_back(
            {fileName_, line, severity, std::move(message), pattern.empty() ? "" : PatternItem(pattern)});
    }

    void AddTiles() {
        for (const auto& [name, lines] : file_.patterns) {
            const auto numbers = reading_.familyLines.find(name);
            for (std::size_t i = 0; i < lines.size(); ++i) {
                AddTile(lines[i], numbers->second[i], name);
            }
            AddNothing(name, lines);
        }
    }

    // Families that are left out of a pattern that is not.
    void AddLeftOut() {
        for (const auto& [name, lines] : file_.patterns) {
            if (!HasTile(lines)) {
                continue; // named as a whole where it is converted
            }
            for (std::size_t i = 0; i < lines.size(); ++i) {
                if (lines[i].rowCount < 0) {
                    Add(reading_.familyLines.at(name)[i], Severity::kWarning,
                        "the family has no repeat tile; left out", name);
                }
            }
        }
    }

    std::vector<Finding> Take() {
        SortByLine(findings_);
        return std::move(findings_);
    }

private:
    static bool HasTile(const std::vector<pattern::PatternLine>& lines) {
        return std::any_of(lines.begin(), lines.end(), [](const auto& line) { return line.rowCount >= 0; });
    }

    void AddTile(const pattern::PatternLine& family, std::size_t number, const std::string& name) {
        const double error = pattern::PhaseError(family);
        if (family.rowCount < 0) {
            Add(number, Severity::kError,
                "the family has no repeat tile and is left out: its dashes come back into phase after none "
                "of " +
                    std::to_string(pattern::kStackSearch) + " lines, and no upright rectangle repeats it",
                name);
        } else if (error < pattern::kPhaseTolerance) {
            Add(number, Severity::kNote, "the family has an exact tile", name);
        } else {
            Add(number, Severity::kWarning,
                "the tile nearly closes: after " + std::to_string(family.rowCount) +
                    " stacked lines the dashes are out of phase by " + RoundedText(error, 1e6) +
                    " drawing units, " + RoundedText(error / family.offset * 100.0, 10.0) + " % of the shift",
                name);
        }
    }

    void AddNothing(const std::string& name, const std::vector<pattern::PatternLine>& lines) {
        const std::size_t header = reading_.headerLines.at(name).front();
        if (lines.empty()) {
            Add(header, Severity::kError, "the pattern has no families and becomes nothing", name);
        } else if (!HasTile(lines)) {
            Add(header, Severity::kError, "no family of the pattern has a repeat tile; it becomes nothing",
                name);
        }
        const auto& headers = reading_.headerLines.at(name);
        for (std::size_t i = 1; i < headers.size(); ++i) {
            Add(headers[i], Severity::kWarning,
                "the name is used in line " + std::to_string(header) +
                    " already: the families of both make one pattern",
                name);
        }
    }

    const std::string& fileName_;
    const pattern::PatternFile& file_;
    const pattern::PatternReading& reading_;
    std::vector<Finding> findings_;
};

} // namespace

std::vector<Finding> CheckedPatterns(const std::string& fileName, const pattern::PatternFile& file,
                                     const pattern::PatternReading& reading) {
    Findings findings(fileName, file, reading);
    for (const PatternSlip& slip : reading.slips) {
        findings.Add(slip.line, SeverityOf(slip), SlipText(slip), slip.pattern);
    }
    findings.AddTiles();
    if (reading.unit != pattern::Unit::kNone) {
        const bool isInch = reading.unit == pattern::Unit::kInch;
        findings.Add(
            reading.unitLine, Severity::kWarning,
            std::string("the file says that its lengths are in ") + (isInch ? "inches" : "millimetres") +
                ", which a conversion does not look at; --units " + (isInch ? "mm" : "inch") + " scales them",
            "");
    }
    return findings.Take();
}

std::vector<Finding> ForgivenPatternSlips(const std::string& fileName, const pattern::PatternFile& file,
                                          const pattern::PatternReading& reading) {
    Findings findings(fileName, file, reading);
    for (const PatternSlip& slip : reading.slips) {
        findings.Add(slip.line, Severity::kWarning, ForgivenText(slip), slip.pattern);
    }
    findings.AddLeftOut();
    return findings.Take();
}

std::string PatternItem(const std::string& name) {
    return "pattern " + ShownName(name);
}

} // namespace styleconv
