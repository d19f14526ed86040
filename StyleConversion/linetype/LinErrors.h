// Which rules a linetype file broke, and where. The library itself never reads it.
#pragma once

#include "StyleConversion/linetype/LinResult.h"
#include "StyleConversion/linetype/LinetypeRecord.h"
#include "StyleConversion/shx/ShapeFileReport.h"
#include "StyleConversion/shx/ShxResult.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace LineConverter {

enum class LinErrorKind : std::uint8_t {
    // The file.
    kFileNotOpened,
    kFileNotClosed,
    // Syntax: the place is where the text stops to be what it should.
    kPatternMissing,
    kAlignmentMissing,
    kPatternNotContinued,
    kDashNotANumber,
    kElementNotClosed,
    kTextWithoutStyle,
    kTextNotClosed,
    kTextNotFollowedByStyle,
    kStyleNameNotClosed,
    kStyleNameEmpty,
    kShapeNameNotClosed,
    kShapeFileNotClosed,
    kShapeFileEmpty,
    kFieldUnknown,
    kFieldWithoutEqualsSign,
    kFieldNotANumber,
    kFieldTakesNoUnit,
    // Names that the file uses; the subject is the style or file.
    kStyleNameNotConvertible,
    kShapeFileNotConvertible,
    kNobodyKnowsStyles,
    kStyleUnknown,
    kNobodyFindsFiles,
    kShapeFileNotFound,
    kShapeFileNotLoaded,
    // Linetypes and elements; the subject is the shape, file, style or character.
    kNameNotConvertible,
    kNotAShapeFile,
    kShapeNotInFile,
    kShapeNotDrawn,
    kTextNotConvertible,
    kFontNotLoaded,
    kNotAFont,
    kFontWithoutInformation,
    kFontHeightZero,
    kCharacterNotDrawn,
    // What only a tolerant policy comes upon; a strict reading fails there, or skips it in silence.
    kByteOrderMark,
    kLineTooLong,
    kHeaderWithoutName,
    kHeaderIndented,
    kPatternWithoutHeader,
    kLineSkipped,
    kAlignmentLowerCase,
    kBlank,
    kCommaBeforeBracket,
    kStyleLeftOut,
    kEscapedQuote,
    kUprightRotation,
    kSemicolonInText,
    kCharacterCodeInText,
    kTextBehindPattern,
    kShapeFileOfOtherMaker,
    kShapeFileWithoutTrailer,
};

struct LinError {
    LinErrorKind kind = LinErrorKind::kFileNotOpened;
    LinResult result = kSuccess;
    /// Whether the reading went on as if all were well.
    bool tolerated = false;
    /// The line's number, from 1; 0 when the error is not at a line.
    std::uint64_t line = 0;
    /// For syntax: the byte of the line, from 1, and the line's text.
    std::uint64_t column = 0;
    std::string lineText;
    /// The linetype's name, cut where it is very long, and the element's number, from 1; empty and 0 when the
    /// error is in neither.
    std::string linetype;
    std::size_t element = 0;
    /// What the kind speaks of: a shape, a character, a text style or a file.
    std::wstring subject;
    /// The shape file or text style of the element.
    std::wstring shapeFile;
    std::wstring styleName;
    /// For what could not be drawn or loaded.
    ShxUtility::ShxResult shxResult = ShxUtility::kSuccess;
    /// For what could not be loaded: where and why.
    ShxUtility::ShapeFileReport shapeFileReport;
};

/// An element of a linetype file, or, with number 0, a linetype.
struct LinPlace {
    std::uint64_t line = 0;
    const LinetypeRecord* linetype = nullptr;
    std::size_t element = 0;
};

/// Collects errors. What finds an error says which; the place was set by who went there.
class LinErrorLog {
public:
    void Clear();

    /// What follows happens at `place`, whose linetype is borrowed.
    void EnterPlace(const LinPlace& place) { place_ = place; }

    /// Adds an error of that kind at the current place. The reference is good until the next one is added.
    LinError& Add(LinResult result, LinErrorKind kind);

    /// Adds something that was tolerated at a line.
    LinError& AddTolerated(LinErrorKind kind, std::uint64_t line);

    /// Whether that kind was tolerated at that line, of which the latest errors are.
    bool HasTolerated(LinErrorKind kind, std::uint64_t line) const;

    /// Adds what happened to `error` as well, at the current place.
    void AddLike(const LinError& error);

    /// The error added last, which must be there, is tolerated.
    void TolerateLast() { errors_.back().tolerated = true; }
    /// Takes it out.
    LinError TakeLast();

    const std::vector<LinError>& errors() const { return errors_; }

private:
    LinPlace place_;
    std::vector<LinError> errors_;
};

} // namespace LineConverter
