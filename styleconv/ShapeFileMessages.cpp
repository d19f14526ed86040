#include "styleconv/ShapeFileMessages.h"

#include "StyleConversion/shx/Limits.h"
#include "StyleConversion/shx/ShxResult.h"

namespace styleconv {
namespace {

using ShxUtility::ShapeFileFault;

const char* const kExpectedKind = R"(expected the kind "shapes " or "unifont ")";

std::string Entry(std::uint16_t number) {
    return number == 0 ? "the font information (shape 0)" : "shape " + std::to_string(number);
}

std::string HeaderSentence(ShapeFileFault fault) {
    switch (fault) {
    case ShapeFileFault::MagicCutShort:
        return "the file ends within the words \"Vorlanx-86 \" that every shape file begins with";
    case ShapeFileFault::MagicWrong:
        return "this is no shape file: expected the words \"Vorlanx-86 \"";
    case ShapeFileFault::KindCutShort:
        return std::string("the file ends within its kind: ") + kExpectedKind;
    case ShapeFileFault::KindTooLong:
        return std::string(kExpectedKind) + ", found no space within " +
               std::to_string(ShxUtility::kLongestKindWord) + " bytes";
    case ShapeFileFault::KindUnknown:
        return std::string(kExpectedKind) + ", found another word";
    case ShapeFileFault::KindBigfont:
        return std::string("big fonts cannot be read: ") + kExpectedKind;
    case ShapeFileFault::KindNotAccepted:
        return "a file of this kind is not accepted here";
    case ShapeFileFault::VersionCutShort:
        return "the file ends within its version: expected the byte 1A (hexadecimal) at the version's end";
    case ShapeFileFault::VersionTooLong:
        return "the version does not end: expected the byte 1A (hexadecimal) within " +
               std::to_string(ShxUtility::kLongestVersion) + " bytes";
    case ShapeFileFault::VersionUnknown:
        return "expected the version 1.0 or 1.1";
    default:
        return "the file cannot be read";
    }
}

std::string EntrySentence(ShapeFileFault fault, std::uint16_t number) {
    switch (fault) {
    case ShapeFileFault::EntryHeadCutShort:
        return "the file ends where the number and length of a shape were expected: it has fewer shapes than "
               "it counts";
    case ShapeFileFault::NameCutShort:
        return "the file ends within the name of " + Entry(number) + ": expected a zero byte at its end";
    case ShapeFileFault::NameFillsEntry:
        return Entry(number) + " has no bytes behind its name: expected at least one within its length";
    case ShapeFileFault::NumberTwice:
        return Entry(number) + " is defined twice";
    case ShapeFileFault::ProgramCutShort:
        return "the file ends within the program of " + Entry(number);
    case ShapeFileFault::FontInfoTwice:
        return "the font information (shape 0) is defined twice";
    case ShapeFileFault::FontInfoTooShort:
        return "the font information (shape 0) is too short: expected at least " +
               std::to_string(ShxUtility::kShortestFontInfo) + " bytes behind its name (above, below, modes)";
    case ShapeFileFault::FontInfoTooLong:
        return "the font information (shape 0) is too long: expected at most " +
               std::to_string(ShxUtility::kLongestFontInfo) + " bytes behind its name";
    case ShapeFileFault::FontInfoCutShort:
        return "the file ends within the font information (shape 0)";
    default:
        return HeaderSentence(fault);
    }
}

} // namespace

std::string Sentence(const ShxUtility::ShapeFileFaultReport& report) {
    switch (report.fault) {
    case ShapeFileFault::NoStream:
        return "the file is not open";
    case ShapeFileFault::OutOfMemory:
        return "there is not enough memory for the shapes";
    case ShapeFileFault::CountCutShort:
        return "the file ends before its count of shapes";
    case ShapeFileFault::IndexCutShort:
        return "the file ends within the index of its shapes";
    case ShapeFileFault::TrailerCutShort:
        return "the file ends where \"EOF\" was expected";
    case ShapeFileFault::TrailerWrong:
        return "expected \"EOF\" behind the last shape";
    case ShapeFileFault::EndOfFileIndicator:
        return "the file met its end before it was read";
    default:
        return EntrySentence(report.fault, report.shapeNumber);
    }
}

const char* DrawingFault(std::int32_t shxResult) {
    switch (shxResult) {
    case ShxUtility::kMalformed:
        return "its program is malformed or cut short";
    case ShxUtility::kOutOfMemory:
        return "there is not enough memory";
    case ShxUtility::kPositionStackFull:
        return "it saves more than three positions";
    case ShxUtility::kPositionStackEmpty:
        return "it goes back to a position that it has not saved";
    case ShxUtility::kRecursiveSubshape:
        return "it draws itself as a subshape";
    case ShxUtility::kSubshapeNotFound:
        return "a subshape of it is missing";
    default:
        return "its program cannot be carried out";
    }
}

} // namespace styleconv
