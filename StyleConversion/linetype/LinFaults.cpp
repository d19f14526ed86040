// Collects the faults of a linetype file.
#include "StyleConversion/linetype/LinFaults.h"

namespace LineConverter {

void LinFaultLog::Clear() {
    place_ = {};
    faults_.clear();
}

LinFault& LinFaultLog::Add(LinResult result, LinFaultKind kind) {
    LinFault fault;
    fault.kind = kind;
    fault.result = result;
    fault.line = place_.line;
    fault.element = place_.element;
    if (place_.linetype != nullptr) {
        fault.linetype = place_.linetype->name;
        if (fault.element >= 1 && fault.element <= place_.linetype->elements.size()) {
            const LinElement& element = place_.linetype->elements[fault.element - 1];
            fault.shapeFile = element.shapeFile;
            fault.styleName = element.styleName;
        }
    }
    faults_.push_back(std::move(fault));
    return faults_.back();
}

} // namespace LineConverter
