#include "styleconv/Finding.h"

#include "styleconv/Messages.h"

#include <algorithm>

namespace styleconv {

std::string FindingText(const Finding& finding) {
    std::string text = Shown(finding.file);
    if (finding.line > 0) {
        text += ":" + std::to_string(finding.line);
    }
    text += ": " + std::string(documents::SeverityName(finding.severity)) + ": ";
    if (finding.byte) {
        text += "byte " + std::to_string(*finding.byte) + ": ";
    }
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
