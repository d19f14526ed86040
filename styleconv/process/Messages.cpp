#include "styleconv/process/Messages.h"

#include "diagnostics/Sentences.h"
#include "diagnostics/ShownText.h"
#include "styleconv/process/Progress.h"

#include <cstdio>
#include <utility>

namespace styleconv {

void SayLine(std::string line) {
    line += '\n';
    ClearProgress();
    // Nowhere is left to say that standard error cannot be written.
    std::fwrite(line.data(), 1, line.size(), stderr);
}

void SayError(std::string_view file, std::string_view what, std::string_view item) {
    std::string line(file);
    line.append(": error: ").append(what);
    if (!item.empty()) {
        line.append(" (").append(item).append(")");
    }
    SayLine(diagnostics::ShownText(line));
}

void SayAll(const diagnostics::Diagnostics& diagnostics) {
    for (const diagnostics::Diagnostic& diagnostic : diagnostics) {
        SayLine(diagnostics::MessageOf(diagnostic));
    }
}

} // namespace styleconv
