// Headers, and the elements of their patterns one after another.
#include "StyleConversion/linetype/LinetypeReader.h"

#include "StyleConversion/linetype/LinElements.h"
#include "StyleConversion/linetype/LinReading.h"

#include <algorithm>
#include <optional>

namespace LineConverter {
namespace {

using encoding::TextCursor;

// The first line of a pattern; where the form is loose, lines of another kind may stand before it.
std::optional<std::string_view> ReadPatternLine(LinReading& reading) {
    std::optional<std::string_view> line = reading.lines.ReadContentLine();
    while (reading.policy.looseForm && line && !LooksLikePattern(*line)) {
        reading.Tolerate(LinErrorKind::kLineSkipped, *line);
        line = reading.lines.ReadContentLine();
    }
    return line;
}

LinResult ReadAlignment(LinReading& reading, TextCursor& cursor) {
    const std::string_view letter = cursor.Rest();
    const char alignment = cursor.Peek();
    const bool isLowerCase = reading.policy.looseForm && (alignment == 'a' || alignment == 's');
    if (alignment != 'A' && alignment != 'S' && !isLowerCase) {
        return reading.SyntaxError(LinErrorKind::kAlignmentMissing, letter);
    }
    cursor.Skip();
    reading.SkipBlanks(cursor);
    if (cursor.Peek() != ',') {
        return reading.SyntaxError(LinErrorKind::kAlignmentMissing, letter);
    }
    cursor.Skip();
    if (isLowerCase) {
        reading.Tolerate(LinErrorKind::kAlignmentLowerCase, letter);
    }
    return kSuccess;
}

// Moves behind the comma. Whatever else stands behind an element ends the pattern and is not looked at.
bool MoreElementsFollow(LinReading& reading, TextCursor& cursor) {
    if (reading.policy.looseForm && !cursor.AtEnd() && cursor.Peek() != ',') {
        const std::string_view next = PastBlanks(cursor.Rest());
        if (!next.starts_with(',')) {
            reading.Tolerate(LinErrorKind::kTextBehindPattern, next);
            return false;
        }
        reading.SkipBlanks(cursor);
    }
    const bool more = cursor.Peek() == ',';
    cursor.Skip();
    return more;
}

LinResult ReadPattern(LinReading& reading, LinetypeRecord& record) {
    const std::optional<std::string_view> line = ReadPatternLine(reading);
    if (!line) {
        return reading.Error(kSyntaxError, LinErrorKind::kPatternMissing);
    }
    TextCursor cursor(*line);
    if (const LinResult result = ReadAlignment(reading, cursor); result != kSuccess) {
        return result;
    }
    const std::string_view elements = cursor.Rest();
    record.elements.reserve(1 + static_cast<std::size_t>(std::count(elements.begin(), elements.end(), ',')));
    do {
        LinElement& element = record.elements.emplace_back();
        reading.errors.EnterPlace({reading.lines.LineNumber(), &record, record.elements.size()});
        if (cursor.AtEnd()) {
            const std::optional<std::string_view> next = reading.lines.ReadContentLine();
            if (!next) {
                return reading.Error(kSyntaxError, LinErrorKind::kPatternNotContinued);
            }
            cursor = TextCursor(*next);
            reading.errors.EnterPlace({reading.lines.LineNumber(), &record, record.elements.size()});
        }
        element.line = reading.lines.LineNumber();
        if (const LinResult result = ReadElement(reading, cursor, element); result != kSuccess) {
            return result;
        }
    } while (MoreElementsFollow(reading, cursor));
    return kSuccess;
}

LinResult ReadLinetype(LinReading& reading, std::string_view header, LinetypeRecord& record) {
    const std::size_t comma = header.find(',');
    record.name = header.substr(0, comma);
    if (comma != std::string_view::npos) {
        record.description = header.substr(comma + 1);
    }
    record.line = reading.lines.LineNumber();
    reading.errors.EnterPlace({record.line, &record, 0});
    return ReadPattern(reading, record);
}

} // namespace

LinResult ReadLinetypes(std::string_view bytes, const LinPolicy& policy, LinetypeFile& file,
                        LinErrorLog& errors) {
    try {
        LinReading reading(bytes, policy, errors);
        while (const std::optional<std::string_view> header = reading.lines.ReadHeaderLine()) {
            LinetypeRecord& record = file.linetypes.emplace_back();
            const LinResult result = ReadLinetype(reading, *header, record);
            if (EndsReading(policy, result)) {
                return result;
            }
            if (result != kSuccess) {
                file.linetypes.pop_back();
            }
            errors.EnterPlace({});
        }
        return kSuccess;
    } catch (...) {
        return kOutOfMemory;
    }
}

} // namespace LineConverter
