// Why a drawing document was refused.
#pragma once

#include "diagnostics/Sentences.h"

#include <string>
#include <utility>
#include <vector>

namespace documents {

struct DrawingError {
    DrawingError() = default;
    DrawingError(diagnostics::Code itsCode, std::vector<std::string> itsSubjects)
        : code(itsCode), subjects(std::move(itsSubjects)) {}

    std::string path; // of the invalid value: "blocks[2].entities[0].radius"; empty for the whole document
    diagnostics::Code code = diagnostics::Code::kInvalidJson;
    std::vector<std::string> subjects;

    /// Path and sentence, as they stand in a message behind the file's name. Empty where nothing was refused.
    std::string Text() const {
        if (path.empty() && subjects.empty()) {
            return {};
        }
        return (path.empty() ? "" : path + ": ") + diagnostics::SentenceOf(code, subjects);
    }
};

} // namespace documents
