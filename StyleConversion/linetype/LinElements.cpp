// Reads the texts and shapes of complex linetypes.
#include "StyleConversion/encoding/NumberReader.h"
#include "StyleConversion/linetype/LinParser.h"
#include "StyleConversion/platform/CodePage.h"

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

} // namespace

LinResult LinParser::ParseTextElement(const char*& cursor, LinElement& element) {
    const char* const quote = platform::FindInMultiByte(cursor, '"');
    if (quote == nullptr) {
        return SyntaxError(LinFaultKind::kTextNotClosed, cursor);
    }
    element.text.assign(cursor, quote);
    cursor = quote + 1;
    if (*cursor == ']') {
        // The "]" is used up here, and the caller wants another: a text without a style is refused, unless it
        // is written with "]]". The outcome is wanted so.
        element.styleName = L"STANDARD";
        ++cursor;
        return kSuccess;
    }
    if (*cursor != ',') {
        return SyntaxError(LinFaultKind::kTextNotFollowedByStyle, cursor);
    }
    const char* const styleStart = ++cursor;
    for (; *cursor != ',' && *cursor != ']'; ++cursor) {
        if (*cursor == 0 || *cursor == '=') {
            return SyntaxError(LinFaultKind::kStyleNameNotClosed, cursor);
        }
    }
    if (cursor == styleStart) {
        return SyntaxError(LinFaultKind::kStyleNameEmpty, cursor);
    }
    const std::string_view styleName(styleStart, static_cast<std::size_t>(cursor - styleStart));
    if (const LinResult result = AnsiToWide(styleName, element.styleName); result != kSuccess) {
        return Fault(result, LinFaultKind::kStyleNameNotConvertible);
    }
    MakeUpperCase(element.styleName);
    return ParseTransform(cursor, element.transform);
}

LinResult LinParser::ParseShapeElement(const char*& cursor, LinElement& element) {
    for (; *cursor != ','; ++cursor) {
        if (*cursor == 0 || *cursor == ']') {
            return SyntaxError(LinFaultKind::kShapeNameNotClosed, cursor);
        }
        element.shapeName += UpperCase(*cursor);
    }
    const char* const fileStart = ++cursor;
    for (; *cursor != ',' && *cursor != ']'; ++cursor) {
        if (*cursor == 0) {
            return SyntaxError(LinFaultKind::kShapeFileNotClosed, cursor);
        }
    }
    if (cursor == fileStart) {
        return SyntaxError(LinFaultKind::kShapeFileEmpty, cursor);
    }
    const std::string_view fileName(fileStart, static_cast<std::size_t>(cursor - fileStart));
    if (const LinResult result = AnsiToWide(fileName, element.shapeFile); result != kSuccess) {
        return Fault(result, LinFaultKind::kShapeFileNotConvertible);
    }
    MakeUpperCase(element.shapeFile);
    return ParseTransform(cursor, element.transform);
}

LinResult LinParser::ParseTransform(const char*& cursor, ElementTransform& transform) {
    while (*cursor == ',') {
        ++cursor;
        if (const LinResult result = ParseTransformField(cursor, transform); result != kSuccess) {
            return result;
        }
    }
    return kSuccess;
}

LinResult LinParser::ParseTransformField(const char*& cursor, ElementTransform& transform) {
    const char letter = UpperCase(*cursor);
    double* const field = FieldOf(transform, letter);
    if (field == nullptr) {
        return SyntaxError(LinFaultKind::kFieldUnknown, cursor);
    }
    if (letter == 'A') {
        // Not the other way round: a rotation "R" behind an "A" leaves both set.
        transform.relativeRotation = 0.0;
    }
    ++cursor;
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
