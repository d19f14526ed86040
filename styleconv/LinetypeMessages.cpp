#include "styleconv/LinetypeMessages.h"

#include "StyleConversion/platform/CodePage.h"
#include "StyleConversion/platform/Files.h"
#include "StyleConversion/shx/ShxResult.h"
#include "styleconv/Messages.h"
#include "styleconv/ShapeFileMessages.h"

namespace styleconv {
namespace {

using LineConverter::LinFault;
using LineConverter::LinFaultKind;

// What was expected where the text stops to be a linetype; null when the fault is not of that kind.
const char* ExpectedSyntax(LinFaultKind kind) {
    switch (kind) {
    case LinFaultKind::kAlignmentMissing:
        return R"(expected "A," or "S," at the start of the pattern)";
    case LinFaultKind::kDashNotANumber:
        return "expected the length of a dash, or \"[\"";
    case LinFaultKind::kElementNotClosed:
        return R"(expected "," or "]")";
    case LinFaultKind::kTextWithoutStyle:
        return R"(expected another "]": a text needs a style, as in ["TEXT",STANDARD])";
    case LinFaultKind::kTextNotClosed:
        return "expected a closing quote";
    case LinFaultKind::kTextNotFollowedByStyle:
        return "expected \",\" and a text style behind the text";
    case LinFaultKind::kStyleNameNotClosed:
        return R"(expected "," or "]" behind the text style)";
    case LinFaultKind::kStyleNameEmpty:
        return "expected the name of a text style";
    case LinFaultKind::kShapeNameNotClosed:
        return "expected \",\" and a shape file behind the shape's name";
    case LinFaultKind::kShapeFileNotClosed:
        return R"(expected "," or "]" behind the shape file)";
    case LinFaultKind::kShapeFileEmpty:
        return "expected the name of a shape file";
    case LinFaultKind::kFieldUnknown:
        return "expected A=, R=, S=, X= or Y=";
    case LinFaultKind::kFieldWithoutEqualsSign:
        return "expected \"=\"";
    case LinFaultKind::kFieldNotANumber:
        return "expected a number";
    case LinFaultKind::kFieldTakesNoUnit:
        return "units (d, g, r) go with A= and R= only";
    default:
        return nullptr;
    }
}

// "linetype GAS, element 3"
std::string Place(const LinFault& fault) {
    return "linetype " + Shown(platform::AnsiToWide(fault.linetype)) +
           (fault.element > 0 ? ", element " + std::to_string(fault.element) : "");
}

// A file that a shape element names, or the font of a style.
std::string ShapeFileOf(const LinFault& fault) {
    return fault.shapeFile.empty()
               ? "font file " + Shown(fault.subject) + " of text style " + Shown(fault.styleName)
               : "shape file " + Shown(fault.subject);
}

// What is wrong with a style or file that the linetypes name.
std::string SourceSentence(const LinFault& fault, const LinetypeSources& sources) {
    switch (fault.kind) {
    case LinFaultKind::kStyleNameNotConvertible:
        return "the name of a text style has characters that are not of the file's encoding";
    case LinFaultKind::kShapeFileNotConvertible:
        return "the name of a shape file has characters that are not of the file's encoding";
    case LinFaultKind::kNobodyKnowsStyles:
    case LinFaultKind::kStyleUnknown:
        return "text style " + Shown(fault.subject) + " not found " + sources.styles;
    case LinFaultKind::kNobodyFindsFiles:
    case LinFaultKind::kShapeFileNotFound:
        return ShapeFileOf(fault) + " not found in " + FoldersSearched(fault.subject, sources);
    case LinFaultKind::kShapeFileNotLoaded:
        return ShapeFileOf(fault) + " cannot be read: at its byte " +
               std::to_string(fault.shapeFileFault.offset) + ": " + Sentence(fault.shapeFileFault);
    case LinFaultKind::kPatternMissing:
        return "syntax error: the file ends before the pattern of linetype " +
               Shown(platform::AnsiToWide(fault.linetype));
    case LinFaultKind::kPatternNotContinued:
        return "syntax error: the file ends behind a comma, within the pattern of linetype " +
               Shown(platform::AnsiToWide(fault.linetype));
    case LinFaultKind::kFileNotOpened:
        return "cannot be opened";
    case LinFaultKind::kFileNotClosed:
        return "cannot be closed";
    default:
        return "cannot be converted";
    }
}

// What is wrong with an element; empty when the fault is of another kind.
std::string ElementSentence(const LinFault& fault) {
    const std::string subject = Shown(fault.subject);
    const std::string font = "font " + subject + " of text style " + Shown(fault.styleName);
    switch (fault.kind) {
    case LinFaultKind::kNameNotConvertible:
        return "its name or description has characters that are not of the file's encoding";
    case LinFaultKind::kNotAShapeFile:
        return "shape file " + subject + " is a font; shapes come from files without font information";
    case LinFaultKind::kShapeNotInFile:
        return "shape file " + Shown(fault.shapeFile) + " has no shape " + subject;
    case LinFaultKind::kShapeNotDrawn:
        return "shape " + subject + " of " + Shown(fault.shapeFile) +
               " cannot be drawn: " + DrawingFault(fault.shxResult);
    case LinFaultKind::kTextNotConvertible:
        return "the text has characters that are not of the file's encoding";
    case LinFaultKind::kFontNotLoaded:
        return font + " was not loaded";
    case LinFaultKind::kNotAFont:
        return font + " is no font: the file has no font information";
    case LinFaultKind::kFontWithoutInformation:
        return font + " has no font information";
    case LinFaultKind::kFontHeightZero:
        return font + " has height 0";
    case LinFaultKind::kCharacterNotDrawn:
        return "character " + subject + " of text style " + Shown(fault.styleName) +
               " cannot be drawn: " + DrawingFault(fault.shxResult);
    default:
        return {};
    }
}

// As a strict conversion says it: with the place, and with the text of the line.
std::string PlacedSentence(const LinFault& fault, const LinetypeSources& sources) {
    if (const char* const expected = ExpectedSyntax(fault.kind)) {
        return "syntax error in " + Place(fault) + ": " + expected + " at byte " +
               std::to_string(fault.column) + ": " + Shown(platform::AnsiToWide(fault.lineText));
    }
    const std::string sentence = ElementSentence(fault);
    return sentence.empty() ? SourceSentence(fault, sources) : Place(fault) + ": " + sentence;
}

} // namespace

std::string FaultSentence(const LinFault& fault, const LinetypeSources& sources) {
    if (fault.kind == LinFaultKind::kPatternMissing) {
        return "a header without a pattern";
    }
    if (fault.kind == LinFaultKind::kPatternNotContinued) {
        return "the pattern ends with a comma";
    }
    if (const char* const expected = ExpectedSyntax(fault.kind)) {
        return std::string(expected) + " at byte " + std::to_string(fault.column) + ": " +
               ShownLine(fault.lineText);
    }
    const std::string sentence = ElementSentence(fault);
    return sentence.empty() ? SourceSentence(fault, sources) : sentence;
}

std::string FoldersSearched(const std::wstring& shapeFile, const LinetypeSources& sources) {
    const platform::PathParts parts = platform::SplitPath(shapeFile);
    const std::wstring ownFolder = parts.drive + parts.directory;
    std::string folders = ownFolder.empty() ? "." : Shown(ownFolder);
    if (ownFolder.empty() && !sources.linetypeFolder.empty()) {
        folders += ", " + Shown(sources.linetypeFolder);
    }
    for (const std::string& folder : sources.searchPath) {
        folders += ", " + Shown(folder);
    }
    return folders;
}

void SayLinetypeFaults(const std::string& file, const std::vector<LinFault>& faults,
                       const LinetypeSources& sources) {
    if (faults.empty()) {
        Say(file, "there is not enough memory");
    }
    for (const LinFault& fault : faults) {
        const std::string sentence = PlacedSentence(fault, sources);
        if (fault.line > 0) {
            SayAtLine(file, static_cast<std::size_t>(fault.line), sentence);
        } else {
            Say(file, sentence);
        }
    }
}

} // namespace styleconv
