#include "styleconv/LinetypeFindings.h"

#include "StyleConversion/encoding/NumberReader.h"
#include "StyleConversion/linetype/LinLimits.h"
#include "styleconv/Messages.h"

#include <cstddef>
#include <string_view>

namespace styleconv {
namespace {

using LineConverter::LinFault;
using LineConverter::LinFaultKind;

// What is wrong, and what a reading that forgives makes of it.
struct Words {
    std::string fault;
    std::string consequence;
};

Words SlipWords(const LinFault& fault) {
    const std::string atByte = " at byte " + std::to_string(fault.column);
    switch (fault.kind) {
    case LinFaultKind::kByteOrderMark:
        return {"a UTF-8 byte-order mark hides the header behind it", "; skipped"};
    case LinFaultKind::kLineTooLong:
        return {"the line has more than " + std::to_string(LineConverter::kLineBufferSize - 1) + " bytes",
                "; read as one line"};
    case LinFaultKind::kHeaderWithoutName:
        return {"a header without a name", "; skipped"};
    case LinFaultKind::kHeaderIndented:
        return {"a header must begin in the first column", "; skipped"};
    case LinFaultKind::kPatternWithoutHeader:
        return {"a pattern without a header before it", "; left out"};
    case LinFaultKind::kLineSkipped:
        return {"neither a header nor a pattern: a pattern begins with \"A,\"", "; skipped"};
    case LinFaultKind::kAlignmentLowerCase:
        return {"the alignment letter must be in upper case", "; read so"};
    case LinFaultKind::kBlank:
        return {"a blank that may not stand there" + atByte, "; skipped"};
    case LinFaultKind::kCommaBeforeBracket:
        return {"a comma before \"]\"" + atByte, "; dropped"};
    case LinFaultKind::kStyleLeftOut:
        return {"a text without a text style" + atByte, "; read as STANDARD"};
    case LinFaultKind::kUprightRotation:
        return {"U= is not a known placement key", "; read as R= throughout the file"};
    case LinFaultKind::kSemicolonInText:
        return {"a \";\" in a text begins a comment", "; read as part of the text"};
    case LinFaultKind::kCharacterCodeInText:
        return {"\\U+ and a number is not a character in the texts of linetypes", "; read as one"};
    case LinFaultKind::kTextBehindPattern:
        return {"the pattern ends at byte " + std::to_string(fault.column) +
                    ", for no comma is there; not read: " + ShownLine(fault.lineText),
                ""};
    case LinFaultKind::kShapeFileOfOtherMaker:
        return {"shape file " + Shown(fault.subject) + " has the signature of another maker",
                "; read all the same"};
    case LinFaultKind::kShapeFileWithoutTrailer:
        return {"shape file " + Shown(fault.subject) + " lacks \"EOF\" at its end", "; read all the same"};
    default:
        return {};
    }
}

Words FaultWords(const LinFault& fault, const LinetypeSources& sources) {
    Words words = SlipWords(fault);
    if (words.fault.empty()) {
        words.fault = FaultSentence(fault, sources);
        words.consequence = fault.forgiven ? "; STANDARD stands in for it" : "; left out";
    }
    return words;
}

// A remark behind a pattern is no loss; more of the pattern is.
bool LooksLikeElements(std::string_view text) {
    return text.find(',') != std::string_view::npos || text.starts_with('[') ||
           encoding::ReadNumber(text).used != 0;
}

Severity SeverityOf(const LinFault& fault) {
    switch (fault.kind) {
    case LinFaultKind::kHeaderWithoutName:
    case LinFaultKind::kHeaderIndented:
        // The pattern behind it, if there is one, is an error of its own.
        return Severity::kWarning;
    case LinFaultKind::kTextBehindPattern:
        return LooksLikeElements(fault.lineText) ? Severity::kError : Severity::kWarning;
    default:
        return Severity::kError;
    }
}

Finding Begin(const std::string& file, const LinFault& fault) {
    Finding finding;
    finding.file = file;
    finding.line = fault.line;
    if (!fault.linetype.empty()) {
        finding.item = LinetypeItem(fault.linetype);
    }
    return finding;
}

} // namespace

std::vector<Finding> CheckedLinetypeFaults(const std::string& file, const std::vector<LinFault>& faults,
                                           const LinetypeSources& sources) {
    std::vector<Finding> findings;
    for (const LinFault& fault : faults) {
        Finding finding = Begin(file, fault);
        finding.severity = SeverityOf(fault);
        finding.message = FaultWords(fault, sources).fault;
        findings.push_back(std::move(finding));
    }
    SortByLine(findings);
    return findings;
}

std::vector<Finding> ForgivenLinetypeFaults(const std::string& file, const std::vector<LinFault>& faults,
                                            const LinetypeSources& sources) {
    std::vector<Finding> findings;
    bool toldOfUpright = false;
    for (const LinFault& fault : faults) {
        const bool isUpright = fault.kind == LinFaultKind::kUprightRotation;
        if (isUpright && toldOfUpright) {
            continue;
        }
        toldOfUpright = toldOfUpright || isUpright;
        Finding finding = Begin(file, fault);
        finding.severity = Severity::kWarning;
        const Words words = FaultWords(fault, sources);
        finding.message = words.fault + words.consequence;
        findings.push_back(std::move(finding));
    }
    SortByLine(findings);
    return findings;
}

std::string LinetypeItem(const std::string& name) {
    return "linetype " + ShownName(name);
}

} // namespace styleconv
