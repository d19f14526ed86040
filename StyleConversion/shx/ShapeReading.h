// What the parts of the file reader share: the stream, and the report on where it stopped.
#pragma once

#include "StyleConversion/shx/ShapeFileFault.h"
#include "StyleConversion/shx/ShapeStream.h"
#include "StyleConversion/shx/ShapesInFile.h"
#include "StyleConversion/shx/ShxResult.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <map>
#include <string>

namespace ShxUtility {

/// The result that a fault gives.
constexpr ShxResult ResultOf(ShapeFileFault fault) {
    switch (fault) {
    case ShapeFileFault::None:
        return kSuccess;
    case ShapeFileFault::NoStream:
        return kNoStream;
    case ShapeFileFault::OutOfMemory:
        return kOutOfMemory;
    case ShapeFileFault::KindBigfont:
        return kUnsupported;
    case ShapeFileFault::KindNotAccepted:
        return kKindNotAccepted;
    default:
        return kMalformed;
    }
}

/// Two bytes, the low one first.
inline std::uint16_t LittleEndian(const std::uint8_t* bytes) {
    return static_cast<std::uint16_t>(bytes[0] | bytes[1] << 8);
}

struct ShapeReading {
    ShapeReading(std::FILE* file, ShapesInFile& out, ShapeFileFaultReport& faultReport,
                 const ShapeFilePolicy& readingPolicy = {})
        : stream(file), report(faultReport), policy(readingPolicy), nameHint(out.nameIndex.end()) {
        report = ShapeFileFaultReport{};
    }

    /// Reports `fault` at `offset` and returns its result.
    ShxResult Fail(ShapeFileFault fault, std::uint64_t offset) {
        report.fault = fault;
        report.offset = offset;
        return ResultOf(fault);
    }

    /// The same where reading stands.
    ShxResult FailHere(ShapeFileFault fault) { return Fail(fault, stream.Offset()); }

    ShapeStream stream;
    ShapeFileFaultReport& report;
    ShapeFilePolicy policy;
    /// Where the next name is looked for first: behind the last one, as names often come in order.
    std::map<std::string, std::size_t>::iterator nameHint;
};

} // namespace ShxUtility
