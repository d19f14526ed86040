#include "conversions/reading/ShapeFile.h"

#include "StyleConversion/platform/CodePage.h"
#include "StyleConversion/platform/Files.h"
#include "StyleConversion/shx/Limits.h"
#include "StyleConversion/shx/ShapeFileReader.h"
#include "StyleConversion/shx/ShapeHeaderReader.h"
#include "StyleConversion/shx/ShxUtility.h"
#include "conversions/BuiltInFontBytes.h"
#include "conversions/reading/Shown.h"

#include <vector>

namespace conversions {
namespace {

using diagnostics::Code;
using diagnostics::Diagnostic;
using diagnostics::Severity;
using ShxUtility::ShapeFileError;

// What is wrong, and with what.
struct ShapeFileFinding {
    Code code;
    std::vector<std::string> subjects;
};

ShapeFileFinding CutShort(const std::string& part) {
    return {Code::kTruncatedShapeFile, {part}};
}

std::string Entry(std::uint16_t number) {
    return number == 0 ? "the font information (shape 0)" : "shape " + std::to_string(number);
}

ShapeFileFinding HeaderFinding(ShapeFileError error) {
    switch (error) {
    case ShapeFileError::MagicCutShort:
        return CutShort("its signature");
    case ShapeFileError::MagicWrong:
        return {Code::kNotAShapeFile, {}};
    case ShapeFileError::KindCutShort:
        return CutShort("its kind");
    case ShapeFileError::KindBigfont:
        return {Code::kBigfont, {}};
    case ShapeFileError::KindTooLong:
    case ShapeFileError::KindUnknown:
    case ShapeFileError::KindNotAccepted:
        return {Code::kUnknownShapeFileKind, {}};
    case ShapeFileError::VersionCutShort:
        return CutShort("its version");
    case ShapeFileError::VersionTooLong:
        return {Code::kUnendedVersion, {std::to_string(ShxUtility::kLongestVersion)}};
    case ShapeFileError::VersionUnknown:
        return {Code::kUnknownVersion, {}};
    case ShapeFileError::CountCutShort:
        return CutShort("its count of shapes");
    case ShapeFileError::IndexCutShort:
        return CutShort("the index of its shapes");
    default:
        return {Code::kOutOfMemory, {}};
    }
}

ShapeFileFinding FindingOf(const ShxUtility::ShapeFileReport& report) {
    switch (report.error) {
    case ShapeFileError::EntryHeadCutShort:
        return CutShort("its list of shapes: there are fewer than it counts");
    case ShapeFileError::NameCutShort:
        return CutShort("the name of " + Entry(report.shapeNumber));
    case ShapeFileError::NameFillsEntry:
        return {Code::kShapeWithoutProgram, {Entry(report.shapeNumber)}};
    case ShapeFileError::NumberTwice:
    case ShapeFileError::FontInfoTwice:
        return {Code::kDuplicateShape, {Entry(report.shapeNumber)}};
    case ShapeFileError::ProgramCutShort:
        return CutShort("the program of " + Entry(report.shapeNumber));
    case ShapeFileError::FontInfoTooShort:
    case ShapeFileError::FontInfoTooLong:
        return {
            Code::kFontInfoSize,
            {std::to_string(ShxUtility::kShortestFontInfo), std::to_string(ShxUtility::kLongestFontInfo)}};
    case ShapeFileError::FontInfoCutShort:
        return CutShort(Entry(0));
    case ShapeFileError::TrailerCutShort:
    case ShapeFileError::TrailerWrong:
        return {Code::kMissingTrailer, {}};
    default:
        return HeaderFinding(report.error);
    }
}

// Where shapes are drawn to see whether they can be.
struct Nowhere {
    void MoveTo(double /*x*/, double /*y*/) {}
    void LineBy(double /*dx*/, double /*dy*/) {}
    void ArcTo(double /*radius*/, int /*largeArc*/, int /*sweep*/, double /*x*/, double /*y*/) {}
};

} // namespace

bool ReadShapeFile(std::string_view bytes, bool tolerant, ShxUtility::ShapesInFile& shapes,
                   ShxUtility::ShapeFileReport& report) {
    const ShxUtility::ShapeFilePolicy policy =
        tolerant ? ShxUtility::kTolerantShapeFilePolicy : ShxUtility::ShapeFilePolicy();
    return ShxUtility::LoadShapeFile(bytes, shapes, ShxUtility::kAllKinds, report, policy) ==
           ShxUtility::kSuccess;
}

Diagnostic RefusalOf(const std::string& file, const ShxUtility::ShapeFileReport& report) {
    ShapeFileFinding finding = FindingOf(report);
    Diagnostic diagnostic;
    diagnostic.code = finding.code;
    diagnostic.place.file = file;
    diagnostic.place.byte = report.offset;
    diagnostic.subjects = std::move(finding.subjects);
    return diagnostic;
}

Diagnostic RefusalOf(const std::string& file, std::string_view bytes,
                     const ShxUtility::ShapeFileReport& report) {
    Diagnostic refusal = RefusalOf(file, report);
    constexpr std::string_view kEndOfSignature = "-86 ";
    const std::string_view signature = bytes.substr(0, ShxUtility::kSignature.size());
    if (refusal.code == Code::kNotAShapeFile && signature.ends_with(kEndOfSignature)) {
        refusal.code = Code::kForeignSignature;
    }
    return refusal;
}

diagnostics::Diagnostics ToleratedIn(const std::string& file, const ShxUtility::ShapeFileReport& report,
                                     Severity severity, diagnostics::Outcome outcome) {
    diagnostics::Diagnostics tolerated;
    const auto add = [&](Code code, std::uint64_t byte) {
        diagnostics::Place place;
        place.file = file;
        place.byte = byte;
        tolerated.push_back({severity, code, std::move(place), {}, outcome});
    };
    if (report.otherMaker) {
        add(Code::kForeignSignature, 0);
    }
    if (report.trailerMissing) {
        add(Code::kMissingTrailer, report.trailer);
    }
    return tolerated;
}

ShxUtility::ShxResult ResultOfDrawing(const ShxUtility::ShapesInFile& file, const ShxUtility::Shape& shape,
                                      bool vertical) {
    ShxUtility::GlyphPen pen;
    pen.vertical = vertical;
    Nowhere nowhere;
    return ShxUtility::DrawGlyph(file, shape.number, file.kind, pen, nowhere);
}

Code CodeOfDrawing(std::int32_t shxResult) {
    switch (shxResult) {
    case ShxUtility::kOutOfMemory:
        return Code::kUndrawnShape;
    case ShxUtility::kPositionStackFull:
        return Code::kTooManySaves;
    case ShxUtility::kPositionStackEmpty:
        return Code::kMissingSave;
    case ShxUtility::kRecursiveSubshape:
        return Code::kRecursiveShape;
    case ShxUtility::kSubshapeNotFound:
        return Code::kMissingSubshape;
    default:
        return Code::kMalformedShape;
    }
}

std::string ShapeItem(const ShxUtility::Shape& shape) {
    return "shape " + std::to_string(shape.number) +
           (shape.name.empty() ? "" : " " + ShownText(platform::AnsiToWide(shape.name)));
}

std::string_view BuiltInFont() {
    return {reinterpret_cast<const char*>(kBuiltInFont), sizeof kBuiltInFont};
}

bool IsDefaultFont(const std::wstring& name) {
    return platform::CompareIgnoringCase(name.c_str(), L"txt.shx") == 0 ||
           platform::CompareIgnoringCase(name.c_str(), L"txt") == 0;
}

} // namespace conversions
