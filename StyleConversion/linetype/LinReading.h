// What the parts of a linetype file's reading share: its lines, how loose its form may be, and its errors.
#pragma once

#include "StyleConversion/encoding/TextCursor.h"
#include "StyleConversion/linetype/LinErrors.h"
#include "StyleConversion/linetype/LinLineReader.h"
#include "StyleConversion/linetype/LinPolicy.h"
#include "StyleConversion/linetype/LinResult.h"

#include <string_view>

namespace LineConverter {

struct LinReading {
    LinReading(std::string_view bytes, const LinPolicy& readingPolicy, LinErrorLog& log)
        : policy(readingPolicy), errors(log), lines(bytes, readingPolicy, log) {}

    /// Logs a syntax error in the line that was read last, where `at` begins.
    LinResult SyntaxError(LinErrorKind kind, std::string_view at);

    /// Logs an error at the current place and returns `result`.
    LinResult Error(LinResult result, LinErrorKind kind);

    /// Logs that a loose form was tolerated where `at`, the rest of the line, begins; once for a kind and
    /// line.
    void Tolerate(LinErrorKind kind, std::string_view at);

    /// Skips blanks where the form is loose.
    void SkipBlanks(encoding::TextCursor& cursor);

    const LinPolicy& policy;
    LinErrorLog& errors;
    LinLineReader lines;
};

} // namespace LineConverter
