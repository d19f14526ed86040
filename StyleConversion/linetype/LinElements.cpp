// Dashes, the texts and shapes of complex linetypes, and how these are placed.
#include "StyleConversion/linetype/LinElements.h"

#include "StyleConversion/encoding/ControlCodes.h"
#include "StyleConversion/encoding/Degrees.h"
#include "StyleConversion/encoding/NumberReader.h"
#include "StyleConversion/linetype/LinNames.h"
#include "StyleConversion/platform/Characters.h"
#include "StyleConversion/platform/CodePage.h"

#include <algorithm>
#include <memory>
#include <string>

namespace LineConverter {
namespace {

using encoding::TextCursor;

constexpr double kDegreesPerGrad = 0.9;

bool IsUnit(char c) {
    return c == 'd' || c == 'g' || c == 'r';
}

double ToDegrees(double value, char unit, bool faithful) {
    switch (unit) {
    case 'g':
        return value * kDegreesPerGrad;
    case 'r':
        // Required: R32
        return value * (faithful ? encoding::kDegreesPerRadian : encoding::kRadiansPerDegree);
    default:
        return value;
    }
}

// The field of a transform that a letter names, or null.
double* FieldOf(ElementTransform& transform, char upperCaseLetter) {
    switch (upperCaseLetter) {
    case 'A':
        return &transform.absoluteRotation;
    case 'R':
        return &transform.relativeRotation;
    case 'S':
        return &transform.scale;
    case 'X':
        return &transform.offsetX;
    case 'Y':
        return &transform.offsetY;
    default:
        return nullptr;
    }
}

// A name without the blanks around it, where the form is loose. `rest` is the line from the name on.
std::string_view NameIn(LinReading& reading, std::string_view name, std::string_view rest) {
    if (!reading.policy.looseForm) {
        return name;
    }
    const std::string_view start = PastBlanks(name);
    const std::string_view trimmed = WithoutTrailingBlanks(start);
    if (trimmed.size() != name.size()) {
        reading.Tolerate(LinErrorKind::kBlank,
                         start.size() != name.size() ? rest : rest.substr(trimmed.size()));
    }
    return trimmed;
}

// Logs "\U+" codes, which only a loose form reads.
void NoteCharacterCodes(LinReading& reading, std::string_view text, std::string_view rest) {
    if (!reading.policy.looseForm || text.find("\\U+") == std::string_view::npos) {
        return;
    }
    const std::wstring wide = platform::AnsiToWide(text);
    for (std::size_t mark = wide.find(L'\\'); mark != std::wstring::npos; mark = wide.find(L'\\', mark + 1)) {
        if (encoding::StartsWithUnicodeCode(std::wstring_view(wide).substr(mark))) {
            reading.Tolerate(LinErrorKind::kCharacterCodeInText, rest);
            return;
        }
    }
}

// From the letter of a field to behind its value and unit.
LinResult ReadTransformField(LinReading& reading, TextCursor& cursor, ElementTransform& transform) {
    char letter = platform::AsciiUpper(cursor.Peek());
    if (letter == 'U' && reading.policy.looseForm) {
        // "Upright": the angle to the line, kept readable. The last of it and "R" counts.
        reading.Tolerate(LinErrorKind::kUprightRotation, cursor.Rest());
        letter = 'R';
    }
    double* const field = FieldOf(transform, letter);
    if (field == nullptr) {
        return reading.SyntaxError(LinErrorKind::kFieldUnknown, cursor.Rest());
    }
    if (letter == 'A') {
        // Not the other way round: a rotation "R" behind an "A" leaves both set.
        transform.relativeRotation = 0.0;
    }
    cursor.Skip();
    reading.SkipBlanks(cursor);
    if (cursor.Peek() != '=') {
        return reading.SyntaxError(LinErrorKind::kFieldWithoutEqualsSign, cursor.Rest());
    }
    cursor.Skip();
    const encoding::NumberReading number = encoding::ScanNumber(cursor.Rest());
    if (number.used == 0) {
        return reading.SyntaxError(LinErrorKind::kFieldNotANumber, cursor.Rest());
    }
    *field = number.value;
    cursor.Skip(number.used);
    if (IsUnit(cursor.Peek())) {
        if (letter != 'A' && letter != 'R') {
            return reading.SyntaxError(LinErrorKind::kFieldTakesNoUnit, cursor.Rest());
        }
        *field = ToDegrees(*field, cursor.Peek(), reading.policy.faithful);
        cursor.Skip();
    }
    return kSuccess;
}

// From behind a style or shape file to the "]".
LinResult ReadTransform(LinReading& reading, TextCursor& cursor, ElementTransform& transform) {
    while (cursor.Peek() == ',') {
        cursor.Skip();
        reading.SkipBlanks(cursor);
        if (reading.policy.looseForm && cursor.Peek() == ']') {
            reading.Tolerate(LinErrorKind::kCommaBeforeBracket, cursor.Rest());
            break;
        }
        if (const LinResult result = ReadTransformField(reading, cursor, transform); result != kSuccess) {
            return result;
        }
        reading.SkipBlanks(cursor);
    }
    return kSuccess;
}

// Whether nothing, or at once a field, stands behind the comma at the cursor. Moves to the mark behind it, or
// stays at the comma before the field.
bool IsStyleLeftOut(LinReading& reading, TextCursor& cursor) {
    if (!reading.policy.looseForm) {
        return false;
    }
    const std::string_view start = PastBlanks(cursor.Rest().substr(1));
    const bool isEmpty = start.starts_with(',') || start.starts_with(']');
    const bool isField = !start.empty() && PastBlanks(start.substr(1)).starts_with('=');
    if (isEmpty || isField) {
        reading.Tolerate(LinErrorKind::kStyleLeftOut, start);
    }
    if (isEmpty) {
        cursor.Skip(cursor.Rest().size() - start.size());
    }
    return isEmpty || isField;
}

// From the comma before the style to the mark behind it.
LinResult ReadStyle(LinReading& reading, TextCursor& cursor, ComplexElement& element) {
    cursor.Skip();
    const std::string_view rest = cursor.Rest();
    const std::string_view name = cursor.TakeUpTo(",]=");
    if (cursor.AtEnd() || cursor.Peek() == '=') {
        return reading.SyntaxError(LinErrorKind::kStyleNameNotClosed, cursor.Rest());
    }
    if (name.empty()) {
        return reading.SyntaxError(LinErrorKind::kStyleNameEmpty, cursor.Rest());
    }
    if (const LinResult result = AnsiToWide(NameIn(reading, name, rest), element.styleName);
        result != kSuccess) {
        return reading.Error(result, LinErrorKind::kStyleNameNotConvertible);
    }
    MakeUpperCase(element.styleName);
    return kSuccess;
}

// Whether the form is loose and a "\"" stands at the start of `text`.
bool IsEscapedQuote(const LinReading& reading, std::string_view text) {
    return reading.policy.looseForm && text.starts_with("\\\"");
}

// Whether what stands behind a text's closing quote begins here.
bool IsBehindText(std::string_view text) {
    const std::string_view start = PastBlanks(text);
    return start.starts_with(',') || start.starts_with(']');
}

// Takes a text and its closing quote, which a loose form may escape as it may quotes in the text. False where
// there is none.
bool TakeText(LinReading& reading, TextCursor& cursor, bool opensEscaped, std::string& text) {
    for (;;) {
        const std::string_view rest = cursor.Rest();
        const std::size_t quote = platform::FindInMultiByte(rest, '"');
        if (quote == std::string_view::npos) {
            return false;
        }
        text.append(rest.substr(0, quote));
        cursor.Skip(quote + 1);
        const bool isEscaped = quote > 0 && IsEscapedQuote(reading, rest.substr(quote - 1));
        const bool isEnd = !isEscaped || IsBehindText(cursor.Rest());
        if (isEscaped && (opensEscaped || !isEnd)) {
            reading.Tolerate(LinErrorKind::kEscapedQuote, rest.substr(quote - 1));
            text.pop_back();
        }
        if (isEnd) {
            return true;
        }
        text += '"';
    }
}

// From the opening quote to the "]".
LinResult ReadText(LinReading& reading, TextCursor& cursor, ComplexElement& element) {
    const bool opensEscaped = IsEscapedQuote(reading, cursor.Rest());
    if (opensEscaped) {
        reading.Tolerate(LinErrorKind::kEscapedQuote, cursor.Rest());
        cursor.Skip();
    }
    cursor.Skip();
    const std::string_view rest = cursor.Rest();
    if (!TakeText(reading, cursor, opensEscaped, element.text)) {
        return reading.SyntaxError(LinErrorKind::kTextNotClosed, rest);
    }
    NoteCharacterCodes(reading, element.text, rest);
    reading.SkipBlanks(cursor);
    if (cursor.Peek() == ']') {
        // Required: R34
        element.styleName = kStandardStyle;
        if (reading.policy.looseForm && !cursor.Rest().substr(1).starts_with(']')) {
            reading.Tolerate(LinErrorKind::kStyleLeftOut, cursor.Rest());
            return kSuccess;
        }
        cursor.Skip();
        return kSuccess;
    }
    if (cursor.Peek() != ',') {
        return reading.SyntaxError(LinErrorKind::kTextNotFollowedByStyle, cursor.Rest());
    }
    if (IsStyleLeftOut(reading, cursor)) {
        element.styleName = kStandardStyle;
    } else if (const LinResult result = ReadStyle(reading, cursor, element); result != kSuccess) {
        return result;
    }
    return ReadTransform(reading, cursor, element.transform);
}

// From behind the "[" to the "]".
LinResult ReadShape(LinReading& reading, TextCursor& cursor, ComplexElement& element) {
    std::string_view rest = cursor.Rest();
    const std::string_view shapeName = cursor.TakeUpTo(",]");
    if (cursor.Peek() != ',') {
        return reading.SyntaxError(LinErrorKind::kShapeNameNotClosed, cursor.Rest());
    }
    element.shapeName = NameIn(reading, shapeName, rest);
    std::transform(element.shapeName.begin(), element.shapeName.end(), element.shapeName.begin(),
                   [](char c) { return platform::AsciiUpper(c); });
    cursor.Skip();
    rest = cursor.Rest();
    const std::string_view fileName = cursor.TakeUpTo(",]");
    if (cursor.AtEnd()) {
        return reading.SyntaxError(LinErrorKind::kShapeFileNotClosed, cursor.Rest());
    }
    if (fileName.empty()) {
        return reading.SyntaxError(LinErrorKind::kShapeFileEmpty, cursor.Rest());
    }
    const std::string_view trimmed = NameIn(reading, fileName, rest);
    if (trimmed.empty()) {
        return reading.SyntaxError(LinErrorKind::kShapeFileEmpty, cursor.Rest());
    }
    if (const LinResult result = AnsiToWide(trimmed, element.shapeFile); result != kSuccess) {
        return reading.Error(result, LinErrorKind::kShapeFileNotConvertible);
    }
    MakeUpperCase(element.shapeFile);
    return ReadTransform(reading, cursor, element.transform);
}

// From the "[" to behind the "]".
LinResult ReadComplexElement(LinReading& reading, TextCursor& cursor, LinElement& element) {
    element.complex = std::make_unique<ComplexElement>();
    cursor.Skip();
    reading.SkipBlanks(cursor);
    const bool isText = cursor.Peek() == '"' || IsEscapedQuote(reading, cursor.Rest());
    const LinResult result =
        isText ? ReadText(reading, cursor, *element.complex) : ReadShape(reading, cursor, *element.complex);
    if (result != kSuccess) {
        return result;
    }
    element.kind = isText ? kText : kShape;
    if (cursor.Peek() != ']') {
        // Behind a "]" already, a text went without a style.
        return reading.SyntaxError(cursor.Previous() == ']' ? LinErrorKind::kTextWithoutStyle
                                                            : LinErrorKind::kElementNotClosed,
                                   cursor.Rest());
    }
    cursor.Skip();
    return kSuccess;
}

} // namespace

LinResult ReadElement(LinReading& reading, TextCursor& cursor, LinElement& element) {
    if (PastBlanks(cursor.Rest()).starts_with('[')) {
        reading.SkipBlanks(cursor);
    }
    if (cursor.Peek() == '[') {
        return ReadComplexElement(reading, cursor, element);
    }
    const encoding::NumberReading number = encoding::ScanNumber(cursor.Rest());
    if (number.used == 0) {
        return reading.SyntaxError(LinErrorKind::kDashNotANumber, cursor.Rest());
    }
    element.kind = kDash;
    element.length = number.value;
    cursor.Skip(number.used);
    return kSuccess;
}

} // namespace LineConverter
