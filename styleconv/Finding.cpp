#include "styleconv/Finding.h"

#include "styleconv/Messages.h"

#include <algorithm>

namespace styleconv {

const char* SeverityName(Severity severity) {
    switch (severity) {
    case Severity::kError:
        return "error";
    case Severity::kWarning:
        return "warning";
    case Severity::kNote:
        break;
    }
    return "note";
}

std::string FindingText(const Finding& finding) {
    std::string text = Shown(finding.file);
    if (finding.line > 0) {
        text += ":" + std::to_string(finding.line);
    }
    text += ": " + std::string(SeverityName(finding.severity)) + ": ";
    text += finding.message;
    if (!finding.item.empty()) {
        text += " (" + finding.item + ")";
    }
    return text;
}

void SortByLine(std::vector<Finding>& findings) {
    std::stable_sort(findings.begin(), findings.end(),
                     [](const Finding& a, const Finding& b) { return a.line < b.line; });
}

void SayFindings(const std::vector<Finding>& findings) {
    for (const Finding& finding : findings) {
        SayLine(FindingText(finding));
    }
}

} // namespace styleconv
