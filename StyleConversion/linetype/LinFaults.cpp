// Collects the faults of a linetype file.
#include "StyleConversion/linetype/LinFaults.h"

#include "StyleConversion/linetype/LinLimits.h"

#include <utility>

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
        fault.linetype = place_.linetype->name.substr(0, kLongestNameInFault);
        if (fault.element >= 1 && fault.element <= place_.linetype->elements.size()) {
            if (const auto& complex = place_.linetype->elements[fault.element - 1].complex) {
                fault.shapeFile = complex->shapeFile;
                fault.styleName = complex->styleName;
            }
        }
    }
    faults_.push_back(std::move(fault));
    return faults_.back();
}

LinFault& LinFaultLog::Forgive(LinFaultKind kind, std::uint64_t line) {
    LinFault& fault = Add(kSuccess, kind);
    fault.forgiven = true;
    fault.line = line;
    return fault;
}

void LinFaultLog::AddLike(const LinFault& fault) {
    LinFault& added = Add(fault.result, fault.kind);
    added.subject = fault.subject;
    added.shxResult = fault.shxResult;
    added.shapeFileFault = fault.shapeFileFault;
}

LinFault LinFaultLog::TakeLast() {
    LinFault last = std::move(faults_.back());
    faults_.pop_back();
    return last;
}

} // namespace LineConverter
