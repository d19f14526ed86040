// Reads the texts and shapes of complex linetypes.
#include "StyleConversion/encoding/NumberReader.h"
#include "StyleConversion/linetype/ControlCodes.h"
#include "StyleConversion/linetype/LinParser.h"
#include "StyleConversion/platform/CodePage.h"

#include <algorithm>

namespace LineConverter {
namespace {

constexpr double kDegreesPerGrad = 0.9;
constexpr double kRadiansPerDegree = 0.017453292519943295;

bool IsUnit(char c) {
    return c == 'd' || c == 'g' || c == 'r';
}

double ToDegrees(double value, char unit) {
    switch (unit) {
    case 'g':
        return value * kDegreesPerGrad;
    case 'r':
        // A value in radians is multiplied by π/180, not divided: the output is wanted so.
        return value * kRadiansPerDegree;
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

constexpr const wchar_t* kStandardStyle = L"STANDARD";

} // namespace

LinResult LinParser::ParseTextElement(const char*& cursor, ComplexElement& element) {
    const char* const quote = platform::FindInMultiByte(cursor, '"');
    if (quote == nullptr) {
        return SyntaxError(LinFaultKind::kTextNotClosed, cursor);
    }
    element.text.assign(cursor, quote);
    NoteCharacterCodes(element.text, cursor);
    cursor = quote + 1;
    SkipBlanks(cursor);
    if (*cursor == ']') {
        // The "]" is used up here, and the caller wants another: a text without a style is refused, unless it
        // is written with "]]". The outcome is wanted so.
        element.styleName = kStandardStyle;
        if (policy_.looseForm && cursor[1] != ']') {
            Forgive(LinFaultKind::kStyleLeftOut, cursor);
            return kSuccess;
        }
        ++cursor;
        return kSuccess;
    }
    if (*cursor != ',') {
        return SyntaxError(LinFaultKind::kTextNotFollowedByStyle, cursor);
    }
    if (StyleIsLeftOut(cursor)) {
        element.styleName = kStandardStyle;
    } else if (const LinResult result = ParseStyle(cursor, element); result != kSuccess) {
        return result;
    }
    return ParseTransform(cursor, element.transform);
}

// From the comma before the style to the mark behind it.
LinResult LinParser::ParseStyle(const char*& cursor, ComplexElement& element) {
    const char* const styleStart = ++cursor;
    for (; *cursor != ',' && *cursor != ']'; ++cursor) {
        if (*cursor == 0 || *cursor == '=') {
            return SyntaxError(LinFaultKind::kStyleNameNotClosed, cursor);
        }
    }
    if (cursor == styleStart) {
        return SyntaxError(LinFaultKind::kStyleNameEmpty, cursor);
    }
    const std::string_view styleName = WithoutBlanks(styleStart, cursor);
    if (const LinResult result = AnsiToWide(styleName, element.styleName); result != kSuccess) {
        return Fault(result, LinFaultKind::kStyleNameNotConvertible);
    }
    MakeUpperCase(element.styleName);
    return kSuccess;
}

// Whether nothing, or at once a field, stands behind the comma at `cursor`. Moves to the mark behind it, or
// stays at the comma before the field.
bool LinParser::StyleIsLeftOut(const char*& cursor) {
    if (!policy_.looseForm) {
        return false;
    }
    const char* const start = LinLineReader::PastBlanks(cursor + 1);
    const bool isEmpty = *start == ',' || *start == ']';
    const bool isField = *start != 0 && *LinLineReader::PastBlanks(start + 1) == '=';
    if (isEmpty || isField) {
        Forgive(LinFaultKind::kStyleLeftOut, start);
        cursor = isEmpty ? start : cursor;
    }
    return isEmpty || isField;
}

LinResult LinParser::ParseShapeElement(const char*& cursor, ComplexElement& element) {
    const char* const nameStart = cursor;
    for (; *cursor != ','; ++cursor) {
        if (*cursor == 0 || *cursor == ']') {
            return SyntaxError(LinFaultKind::kShapeNameNotClosed, cursor);
        }
    }
    element.shapeName = WithoutBlanks(nameStart, cursor);
    std::transform(element.shapeName.begin(), element.shapeName.end(), element.shapeName.begin(),
                   [](char c) { return UpperCase(c); });
    const char* const fileStart = ++cursor;
    for (; *cursor != ',' && *cursor != ']'; ++cursor) {
        if (*cursor == 0) {
            return SyntaxError(LinFaultKind::kShapeFileNotClosed, cursor);
        }
    }
    if (cursor == fileStart) {
        return SyntaxError(LinFaultKind::kShapeFileEmpty, cursor);
    }
    const std::string_view fileName = WithoutBlanks(fileStart, cursor);
    if (fileName.empty()) {
        return SyntaxError(LinFaultKind::kShapeFileEmpty, cursor);
    }
    if (const LinResult result = AnsiToWide(fileName, element.shapeFile); result != kSuccess) {
        return Fault(result, LinFaultKind::kShapeFileNotConvertible);
    }
    MakeUpperCase(element.shapeFile);
    return ParseTransform(cursor, element.transform);
}

void LinParser::NoteCharacterCodes(const std::string& text, const char* at) {
    if (!policy_.looseForm || text.find("\\U+") == std::string::npos) {
        return;
    }
    const std::wstring wide = platform::AnsiToWide(text);
    for (std::size_t mark = wide.find(L'\\'); mark != std::wstring::npos; mark = wide.find(L'\\', mark + 1)) {
        if (StartsWithUnicodeCode(std::wstring_view(wide).substr(mark))) {
            Forgive(LinFaultKind::kCharacterCodeInText, at);
            return;
        }
    }
}

LinResult LinParser::ParseTransform(const char*& cursor, ElementTransform& transform) {
    while (*cursor == ',') {
        ++cursor;
        SkipBlanks(cursor);
        if (policy_.looseForm && *cursor == ']') {
            Forgive(LinFaultKind::kCommaBeforeBracket, cursor);
            break;
        }
        if (const LinResult result = ParseTransformField(cursor, transform); result != kSuccess) {
            return result;
        }
        SkipBlanks(cursor);
    }
    return kSuccess;
}

LinResult LinParser::ParseTransformField(const char*& cursor, ElementTransform& transform) {
    char letter = UpperCase(*cursor);
    if (letter == 'U' && policy_.looseForm) {
        // "Upright": the angle to the line, kept readable. The last of it and "R" counts.
        Forgive(LinFaultKind::kUprightRotation, cursor);
        letter = 'R';
    }
    double* const field = FieldOf(transform, letter);
    if (field == nullptr) {
        return SyntaxError(LinFaultKind::kFieldUnknown, cursor);
    }
    if (letter == 'A') {
        // Not the other way round: a rotation "R" behind an "A" leaves both set.
        transform.relativeRotation = 0.0;
    }
    ++cursor;
    SkipBlanks(cursor);
    if (*cursor != '=') {
        return SyntaxError(LinFaultKind::kFieldWithoutEqualsSign, cursor);
    }
    ++cursor;
    const encoding::NumberReading number = encoding::ReadNumber(cursor);
    if (number.used == 0) {
        return SyntaxError(LinFaultKind::kFieldNotANumber, cursor);
    }
    *field = number.value;
    cursor += number.used;
    if (IsUnit(*cursor)) {
        if (letter != 'A' && letter != 'R') {
            return SyntaxError(LinFaultKind::kFieldTakesNoUnit, cursor);
        }
        *field = ToDegrees(*field, *cursor);
        ++cursor;
    }
    return kSuccess;
}

} // namespace LineConverter
