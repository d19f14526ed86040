// Magic, kind word, and version text.
#include "StyleConversion/shx/ShapeHeaderReader.h"

#include "StyleConversion/shx/Limits.h"

#include <cstddef>
#include <string_view>

namespace ShxUtility {
namespace {

// Of the signature of any maker.
constexpr std::string_view kSignatureEnd = "-86 ";
constexpr std::uint8_t kVersionEnd = 0x1a;

ShxResult ReadMagic(ShapeReading& reading) {
    const std::string_view magic = reading.cursor.Take(kSignature.size());
    if (magic.size() < kSignature.size()) {
        return reading.FailHere(ShapeFileError::MagicCutShort);
    }
    if (magic != kSignature) {
        if (!reading.policy.anyMaker || !magic.ends_with(kSignatureEnd)) {
            return reading.Fail(ShapeFileError::MagicWrong, 0);
        }
        reading.report.otherMaker = true;
    }
    return kSuccess;
}

ShxResult ReadKind(ShapeReading& reading, ShapesInFile& out) {
    const std::uint64_t start = reading.cursor.Offset();
    char word[kLongestKindWord];
    std::size_t length = 0;
    do {
        if (length == kLongestKindWord) {
            return reading.Fail(ShapeFileError::KindTooLong, start);
        }
        std::uint8_t byte = 0;
        if (!reading.cursor.Read(byte)) {
            return reading.FailHere(ShapeFileError::KindCutShort);
        }
        word[length++] = static_cast<char>(byte);
    } while (word[length - 1] != ' ');

    const std::string_view kind(word, length);
    if (kind == "shapes ") {
        out.kind = kShapes;
    } else if (kind == "unifont ") {
        out.kind = kUnifont;
    } else if (kind == "bigfont ") {
        // Required: R29
        out.kind = kBigfont;
        return reading.Fail(ShapeFileError::KindBigfont, start);
    } else {
        return reading.Fail(ShapeFileError::KindUnknown, start);
    }
    return kSuccess;
}

bool IsAccepted(ShapeFileKind kind, std::uint32_t acceptedKinds) {
    // Whether a "shapes " file is a font shows only from its entries, so who wants fonts gets all of them.
    const auto bits = static_cast<std::uint32_t>(kind == kShapes ? kShapes | kFont : kind);
    return (acceptedKinds & bits) != 0;
}

ShxResult ReadVersion(ShapeReading& reading, ShapesInFile& out) {
    const std::uint64_t start = reading.cursor.Offset();
    char text[kShortestVersion] = {};
    std::size_t length = 0;
    std::uint8_t byte = 0;
    while (byte != kVersionEnd) {
        if (length == kLongestVersion) {
            return reading.Fail(ShapeFileError::VersionTooLong, start);
        }
        if (!reading.cursor.Read(byte)) {
            return reading.FailHere(ShapeFileError::VersionCutShort);
        }
        if (length < kShortestVersion) {
            text[length] = static_cast<char>(byte);
        }
        ++length;
    }
    const bool known =
        length >= kShortestVersion && text[0] == '1' && text[1] == '.' && (text[2] == '0' || text[2] == '1');
    if (!known) {
        return reading.Fail(ShapeFileError::VersionUnknown, start);
    }
    out.isVersion10 = text[2] == '0';
    return kSuccess;
}

} // namespace

ShxResult ReadFileHeader(ShapeReading& reading, ShapesInFile& out, std::uint32_t acceptedKinds) {
    ShxResult result = ReadMagic(reading);
    if (result != kSuccess) {
        return result;
    }
    const std::uint64_t kindOffset = reading.cursor.Offset();
    result = ReadKind(reading, out);
    if (result != kSuccess) {
        return result;
    }
    if (!IsAccepted(out.kind, acceptedKinds)) {
        return reading.Fail(ShapeFileError::KindNotAccepted, kindOffset);
    }
    return ReadVersion(reading, out);
}

} // namespace ShxUtility
