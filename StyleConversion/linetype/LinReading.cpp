// Logs what is wrong with the line that was read last.
#include "StyleConversion/linetype/LinReading.h"

#include "StyleConversion/linetype/LinLimits.h"

namespace LineConverter {

LinResult LinReading::SyntaxError(LinErrorKind kind, std::string_view at) {
    LinError& error = errors.Add(kSyntaxError, kind);
    error.line = lines.LineNumber();
    error.column = lines.ColumnOf(at.data());
    error.lineText = lines.ContentText().substr(0, kLongestTextInError);
    return kSyntaxError;
}

LinResult LinReading::Error(LinResult result, LinErrorKind kind) {
    errors.Add(result, kind);
    return result;
}

void LinReading::Tolerate(LinErrorKind kind, std::string_view at) {
    if (!errors.HasTolerated(kind, lines.LineNumber())) {
        LinError& error = errors.AddTolerated(kind, lines.LineNumber());
        error.column = lines.ColumnOf(at.data());
        error.lineText = at.substr(0, kLongestTextInError);
    }
}

void LinReading::SkipBlanks(encoding::TextCursor& cursor) {
    const std::string_view rest = PastBlanks(cursor.Rest());
    const std::size_t blanks = cursor.Rest().size() - rest.size();
    if (policy.looseForm && blanks > 0) {
        Tolerate(LinErrorKind::kBlank, cursor.Rest());
        cursor.Skip(blanks);
    }
}

} // namespace LineConverter
