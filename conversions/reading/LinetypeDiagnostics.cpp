#include "conversions/reading/LinetypeDiagnostics.h"

#include "StyleConversion/encoding/NumberReader.h"
#include "StyleConversion/linetype/LinLimits.h"
#include "conversions/reading/ShapeFile.h"
#include "conversions/reading/Shown.h"
#include "diagnostics/Sentences.h"

#include <string_view>
#include <utility>

namespace conversions {
namespace {

using diagnostics::Code;
using diagnostics::Diagnostic;
using diagnostics::Outcome;
using diagnostics::Severity;
using LineConverter::LinError;
using LineConverter::LinErrorKind;

// What is wrong, and with what.
struct Finding {
    Code code = Code::kOutOfMemory;
    std::vector<std::string> subjects;
    bool isRepaired = false; // by a tolerant reading; else it leaves the linetype out
};

Finding Syntax(const LinError& error, Code code) {
    return {code, {ShownLine(error.lineText)}};
}

Finding SyntaxFinding(const LinError& error) {
    switch (error.kind) {
    case LinErrorKind::kPatternMissing:
        return {Code::kHeaderWithoutPattern, {}};
    case LinErrorKind::kPatternNotContinued:
        return {Code::kIncompletePattern, {}};
    case LinErrorKind::kAlignmentMissing:
        return Syntax(error, Code::kMissingAlignment);
    case LinErrorKind::kDashNotANumber:
        return Syntax(error, Code::kInvalidDash);
    case LinErrorKind::kElementNotClosed:
        return Syntax(error, Code::kUnclosedElement);
    case LinErrorKind::kTextWithoutStyle:
    case LinErrorKind::kTextNotFollowedByStyle:
        return Syntax(error, Code::kTextWithoutStyle);
    case LinErrorKind::kTextNotClosed:
        return Syntax(error, Code::kUnclosedText);
    case LinErrorKind::kStyleNameNotClosed:
        return Syntax(error, Code::kUnclosedStyle);
    case LinErrorKind::kStyleNameEmpty:
        return Syntax(error, Code::kEmptyStyle);
    case LinErrorKind::kShapeNameNotClosed:
        return Syntax(error, Code::kMissingShapeFileName);
    case LinErrorKind::kShapeFileNotClosed:
        return Syntax(error, Code::kUnclosedShapeFile);
    case LinErrorKind::kShapeFileEmpty:
        return Syntax(error, Code::kEmptyShapeFile);
    case LinErrorKind::kFieldUnknown:
        return Syntax(error, Code::kUnknownField);
    case LinErrorKind::kFieldWithoutEqualsSign:
        return Syntax(error, Code::kMissingEqualsSign);
    case LinErrorKind::kFieldNotANumber:
        return Syntax(error, Code::kInvalidField);
    case LinErrorKind::kFieldTakesNoUnit:
        return Syntax(error, Code::kUnitNotAllowed);
    default:
        return {};
    }
}

// Forms that only a tolerant reading comes upon.
Finding FormFinding(const LinError& error) {
    switch (error.kind) {
    case LinErrorKind::kByteOrderMark:
        return {Code::kByteOrderMark, {}, true};
    case LinErrorKind::kLineTooLong:
        return {Code::kLongLinetypeLine, {std::to_string(LineConverter::kLineBufferSize - 1)}, true};
    case LinErrorKind::kHeaderWithoutName:
        return {Code::kHeaderWithoutName, {}, true};
    case LinErrorKind::kHeaderIndented:
        return {Code::kIndentedHeader, {}, true};
    case LinErrorKind::kPatternWithoutHeader:
        return {Code::kPatternWithoutHeader, {}, true};
    case LinErrorKind::kLineSkipped:
        return {Code::kUnexpectedLine, {}, true};
    case LinErrorKind::kAlignmentLowerCase:
        return {Code::kLowerCaseAlignment, {}, true};
    case LinErrorKind::kBlank:
        return {Code::kUnexpectedBlank, {}, true};
    case LinErrorKind::kCommaBeforeBracket:
        return {Code::kUnexpectedComma, {}, true};
    case LinErrorKind::kStyleLeftOut:
        return {Code::kTextWithoutStyle, {ShownLine(error.lineText)}, true};
    case LinErrorKind::kEscapedQuote:
        return {Code::kEscapedQuote, {}, true};
    case LinErrorKind::kUprightRotation:
        return {Code::kUprightKey, {}, true};
    case LinErrorKind::kSemicolonInText:
        return {Code::kSemicolonInText, {}, true};
    case LinErrorKind::kCharacterCodeInText:
        return {Code::kCharacterCode, {}, true};
    case LinErrorKind::kTextBehindPattern:
        return {Code::kTextAfterPattern, {ShownLine(error.lineText)}, true};
    case LinErrorKind::kShapeFileOfOtherMaker:
        return {Code::kForeignSignature, {}, true};
    case LinErrorKind::kShapeFileWithoutTrailer:
        return {Code::kMissingTrailer, {}, true};
    default:
        return SyntaxFinding(error);
    }
}

// Names, styles and files that linetypes use.
class Names {
public:
    Names(const LinError& error, const LinetypeSources& sources)
        : error_(error), sources_(sources), subject_(sources.AsSpelled(error.subject)),
          style_(sources.AsSpelled(error.styleName)), shapeFile_(sources.AsSpelled(error.shapeFile)) {}

    Finding Find() const {
        switch (error_.kind) {
        case LinErrorKind::kStyleNameNotConvertible:
            return {Code::kInvalidEncoding, {"the name of a text style"}};
        case LinErrorKind::kShapeFileNotConvertible:
            return {Code::kInvalidEncoding, {"the name of a shape file"}};
        case LinErrorKind::kNameNotConvertible:
            return {Code::kInvalidEncoding, {"the name or description"}};
        case LinErrorKind::kTextNotConvertible:
            return {Code::kInvalidEncoding, {"the text"}};
        case LinErrorKind::kNobodyKnowsStyles:
        case LinErrorKind::kStyleUnknown:
            return Style();
        case LinErrorKind::kNobodyFindsFiles:
        case LinErrorKind::kShapeFileNotFound:
            return MissingFile();
        case LinErrorKind::kShapeFileNotLoaded:
            return InvalidFile();
        default:
            return Element();
        }
    }

private:
    Finding Style() const {
        if (sources_.DrawingName().empty()) {
            return {Code::kUnknownTextStyle,
                    {Shown(subject_), sources_.StylesWithoutDrawing()},
                    error_.tolerated};
        }
        return {Code::kMissingTextStyle, {Shown(subject_), sources_.DrawingName()}, error_.tolerated};
    }

    Finding MissingFile() const {
        const std::string places = sources_.PlacesSearched(subject_);
        if (IsFontOfStyle()) {
            return {Code::kMissingFontFile, {Shown(subject_), Shown(style_), places}};
        }
        return {Code::kMissingShapeFile, {Shown(subject_), places}};
    }

    Finding InvalidFile() const {
        const Diagnostic refusal = RefusalOf("", error_.shapeFileReport);
        const std::string file = IsFontOfStyle()
                                     ? "font file " + Shown(subject_) + " of text style " + Shown(style_)
                                     : "shape file " + Shown(subject_);
        return {Code::kInvalidShapeFile,
                {file, "byte " + std::to_string(error_.shapeFileReport.offset) + ": " +
                           diagnostics::SentenceOf(refusal)}};
    }

    Finding Element() const {
        switch (error_.kind) {
        case LinErrorKind::kNotAShapeFile:
            return {Code::kShapeFileIsFont, {Shown(subject_)}};
        case LinErrorKind::kShapeNotInFile:
            return {Code::kMissingShape, {Shown(shapeFile_), Shown(error_.subject)}};
        case LinErrorKind::kShapeNotDrawn:
            return {CodeOfDrawing(error_.shxResult),
                    {"shape " + Shown(error_.subject) + " of " + Shown(shapeFile_)}};
        case LinErrorKind::kFontNotLoaded:
            return {Code::kFontNotLoaded, {Shown(subject_), Shown(style_)}};
        case LinErrorKind::kNotAFont:
        case LinErrorKind::kFontWithoutInformation:
            return {Code::kNotAFont, {Shown(subject_), Shown(style_)}};
        case LinErrorKind::kFontHeightZero:
            return {Code::kFontHeightZero, {Shown(subject_), Shown(style_)}};
        case LinErrorKind::kCharacterNotDrawn:
            return {CodeOfDrawing(error_.shxResult),
                    {"character " + Shown(error_.subject) + " of text style " + Shown(style_)}};
        case LinErrorKind::kFileNotOpened:
        case LinErrorKind::kFileNotClosed:
            return {Code::kUnreadableFile, {}};
        default:
            return FormFinding(error_);
        }
    }

    // Not a file that a shape element names.
    bool IsFontOfStyle() const { return error_.shapeFile.empty(); }

    static std::string Shown(const std::wstring& name) { return ShownText(name); }

    const LinError& error_;
    const LinetypeSources& sources_;
    std::wstring subject_;
    std::wstring style_;
    std::wstring shapeFile_;
};

// A remark behind a pattern is no loss; more of the pattern is.
bool LooksLikeElements(std::string_view text) {
    return text.find(',') != std::string_view::npos || text.starts_with('[') ||
           encoding::ReadNumber(text).used != 0;
}

Severity CheckedSeverity(const LinError& error) {
    switch (error.kind) {
    case LinErrorKind::kHeaderWithoutName:
    case LinErrorKind::kHeaderIndented:
        // The pattern behind it, if there is one, is an error of its own.
        return Severity::kWarning;
    case LinErrorKind::kTextBehindPattern:
        return LooksLikeElements(error.lineText) ? Severity::kError : Severity::kWarning;
    default:
        return Severity::kError;
    }
}

bool IsAboutAShapeFile(LinErrorKind kind) {
    return kind == LinErrorKind::kShapeFileOfOtherMaker || kind == LinErrorKind::kShapeFileWithoutTrailer;
}

Diagnostic DiagnosticOf(const std::string& file, const LinError& error, Manner manner,
                        const LinetypeSources& sources) {
    Finding finding = Names(error, sources).Find();
    Diagnostic diagnostic;
    diagnostic.code = finding.code;
    diagnostic.subjects = std::move(finding.subjects);
    if (IsAboutAShapeFile(error.kind)) {
        diagnostic.place.file = sources.NameOfFound(error.subject);
    } else {
        diagnostic.place.file = file;
        diagnostic.place.line = error.line;
        diagnostic.place.column = error.column;
        diagnostic.place.item = error.linetype.empty() ? "" : LinetypeItem(error.linetype);
    }
    if (manner == Manner::kTolerant) {
        diagnostic.severity = Severity::kWarning;
        diagnostic.outcome = finding.isRepaired ? Outcome::kRepaired : Outcome::kSkipped;
    } else {
        diagnostic.severity = manner == Manner::kStrict ? Severity::kError : CheckedSeverity(error);
    }
    return diagnostic;
}

} // namespace

diagnostics::Diagnostics DiagnosticsOf(const std::string& file, const std::vector<LinError>& errors,
                                       Manner manner, const LinetypeSources& sources) {
    diagnostics::Diagnostics found;
    for (const LinError& error : errors) {
        found.push_back(DiagnosticOf(file, error, manner, sources));
    }
    return found;
}

std::string LinetypeItem(const std::string& name) {
    return "linetype " + ShownName(name);
}

} // namespace conversions
