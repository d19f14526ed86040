// Collects the errors of a linetype file.
#include "StyleConversion/linetype/LinErrors.h"

#include "StyleConversion/linetype/LinLimits.h"

#include <utility>

namespace LineConverter {

void LinErrorLog::Clear() {
    place_ = {};
    errors_.clear();
}

LinError& LinErrorLog::Add(LinResult result, LinErrorKind kind) {
    LinError error;
    error.kind = kind;
    error.result = result;
    error.line = place_.line;
    error.element = place_.element;
    if (place_.linetype != nullptr) {
        error.linetype = place_.linetype->name.substr(0, kLongestNameInError);
        if (error.element >= 1 && error.element <= place_.linetype->elements.size()) {
            if (const auto& complex = place_.linetype->elements[error.element - 1].complex) {
                error.shapeFile = complex->shapeFile;
                error.styleName = complex->styleName;
            }
        }
    }
    errors_.push_back(std::move(error));
    return errors_.back();
}

LinError& LinErrorLog::AddTolerated(LinErrorKind kind, std::uint64_t line) {
    LinError& error = Add(kSuccess, kind);
    error.tolerated = true;
    error.line = line;
    return error;
}

bool LinErrorLog::HasTolerated(LinErrorKind kind, std::uint64_t line) const {
    for (auto error = errors_.rbegin(); error != errors_.rend() && error->line == line; ++error) {
        if (error->kind == kind && error->tolerated) {
            return true;
        }
    }
    return false;
}

void LinErrorLog::AddLike(const LinError& error) {
    LinError& added = Add(error.result, error.kind);
    added.subject = error.subject;
    added.shxResult = error.shxResult;
    added.shapeFileReport = error.shapeFileReport;
}

LinError LinErrorLog::TakeLast() {
    LinError last = std::move(errors_.back());
    errors_.pop_back();
    return last;
}

} // namespace LineConverter
