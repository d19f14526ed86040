// What the parts of the file reader share: the bytes, and the report on where reading stopped.
#pragma once

#include "StyleConversion/encoding/ByteCursor.h"
#include "StyleConversion/shx/ShapeFilePolicy.h"
#include "StyleConversion/shx/ShapeFileReport.h"
#include "StyleConversion/shx/ShapesInFile.h"
#include "StyleConversion/shx/ShxResult.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>

namespace ShxUtility {

/// The result that an error gives.
constexpr ShxResult ResultOf(ShapeFileError error) {
    switch (error) {
    case ShapeFileError::None:
        return kSuccess;
    case ShapeFileError::OutOfMemory:
        return kOutOfMemory;
    case ShapeFileError::KindBigfont:
        return kUnsupported;
    case ShapeFileError::KindNotAccepted:
        return kKindNotAccepted;
    default:
        return kMalformed;
    }
}

/// Two bytes, the low one first.
inline std::uint16_t LittleEndian(std::string_view bytes) {
    return static_cast<std::uint16_t>(static_cast<std::uint8_t>(bytes[0]) |
                                      static_cast<std::uint8_t>(bytes[1]) << 8);
}

struct ShapeReading {
    ShapeReading(std::string_view bytes, ShapesInFile& out, ShapeFileReport& fileReport,
                 const ShapeFilePolicy& readingPolicy = {})
        : cursor(bytes), report(fileReport), policy(readingPolicy), nameHint(out.nameIndex.end()) {
        report = ShapeFileReport{};
    }

    /// Reports `error` at `offset` and returns its result.
    ShxResult Fail(ShapeFileError error, std::uint64_t offset) {
        report.error = error;
        report.offset = offset;
        return ResultOf(error);
    }

    /// The same where reading stands.
    ShxResult FailHere(ShapeFileError error) { return Fail(error, cursor.Offset()); }

    encoding::ByteCursor cursor;
    ShapeFileReport& report;
    ShapeFilePolicy policy;
    /// Where the next name is looked for first: behind the last one, as names often come in order.
    std::map<std::string, std::size_t>::iterator nameHint;
};

} // namespace ShxUtility
