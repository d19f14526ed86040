// Where and why reading or walking a linetype file failed, for a program that explains it to its user.
#pragma once

#include "StyleConversion/linetype/LinResult.h"
#include "StyleConversion/linetype/LinetypeRecord.h"
#include "StyleConversion/shx/ShapeFileFault.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace LineConverter {

enum class LinFaultKind : std::uint8_t {
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
    // What only a policy that forgives comes upon; a strict reading fails there, or passes over it in
    // silence.
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
    kUprightRotation,
    kSemicolonInText,
    kCharacterCodeInText,
    kTextBehindPattern,
    kShapeFileOfOtherMaker,
    kShapeFileWithoutTrailer,
};

struct LinFault {
    LinFaultKind kind = LinFaultKind::kFileNotOpened;
    LinResult result = kSuccess;
    /// Whether the reading went on as if all were well.
    bool forgiven = false;
    /// The line's number, from 1; 0 when the fault is not at a line.
    std::uint64_t line = 0;
    /// For syntax: the byte of the line, from 1, and the line's text.
    std::uint64_t column = 0;
    std::string lineText;
    /// The linetype's name, cut where it is very long, and the element's number, from 1; empty and 0 when the
    /// fault is in neither.
    std::string linetype;
    std::size_t element = 0;
    /// What the kind speaks of: a shape, a character, a text style or a file.
    std::wstring subject;
    /// The shape file or text style of the element.
    std::wstring shapeFile;
    std::wstring styleName;
    /// For what could not be drawn: the SHX result code.
    std::int32_t shxResult = 0;
    /// For what could not be loaded: where and why.
    ShxUtility::ShapeFileFaultReport shapeFileFault;
};

/// An element of a linetype file, or, with number 0, a linetype.
struct LinPlace {
    std::uint64_t line = 0;
    const LinetypeRecord* linetype = nullptr;
    std::size_t element = 0;
};

/// Collects faults. What finds a fault says which; the place was set by who went there.
class LinFaultLog {
public:
    void Clear();

    /// What follows happens at `place`, whose linetype is borrowed.
    void EnterPlace(const LinPlace& place) { place_ = place; }

    /// Adds a fault of that kind at the current place. The reference is good until the next one is added.
    LinFault& Add(LinResult result, LinFaultKind kind);

    /// Adds something that was forgiven at a line.
    LinFault& Forgive(LinFaultKind kind, std::uint64_t line);

    /// Adds what happened to `fault` as well, at the current place.
    void AddLike(const LinFault& fault);

    /// The fault added last, which must be there, is forgiven.
    void ForgiveLast() { faults_.back().forgiven = true; }
    /// Takes it out.
    LinFault TakeLast();

    const std::vector<LinFault>& faults() const { return faults_; }

private:
    LinPlace place_;
    std::vector<LinFault> faults_;
};

} // namespace LineConverter
