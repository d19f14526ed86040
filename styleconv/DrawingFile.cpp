#include "styleconv/DrawingFile.h"

#include "styleconv/Messages.h"

#include <utility>

namespace styleconv {

std::unique_ptr<drawing::Database> ReadDrawingFile(const std::string& argument, bool tolerant) {
    InputFile input(argument);
    return input.Open() ? ReadDrawing(input, tolerant) : nullptr;
}

std::unique_ptr<drawing::Database> ReadDrawing(const InputFile& input, bool tolerant) {
    documents::DrawingFault fault;
    documents::DrawingSlips slips;
    std::unique_ptr<drawing::Database> drawing =
        documents::ReadDrawing(input.Stream(), fault, tolerant ? &slips : nullptr);
    if (!drawing) {
        Say(input.Name(), fault.Text());
        return nullptr;
    }
    std::vector<Finding> findings;
    AddDrawingSlips(input.Name(), slips, Severity::kWarning, findings);
    SayFindings(findings);
    return drawing;
}

void AddDrawingSlips(const std::string& file, const documents::DrawingSlips& slips, Severity severity,
                     std::vector<Finding>& findings) {
    for (const documents::DrawingSlip& slip : slips.All()) {
        std::string message = slip.fault.Text();
        if (severity == Severity::kWarning) {
            message += "; " + slip.consequence;
        }
        if (slip.count > 1) {
            const std::size_t more = slip.count - 1;
            message += "; the same in " + std::to_string(more) + " more place" + (more == 1 ? "" : "s");
        }
        findings.push_back({file, 0, severity, std::move(message), Shown(slip.item)});
    }
}

} // namespace styleconv
