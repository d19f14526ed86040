// The records of a DXF file: the pairs from one group code 0 to the next.
#pragma once

#include "diagnostics/Code.h"
#include "exchange/DxfPairs.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace exchange {

/// An entity, an entry of a table, or a mark such as the start of a section.
struct DxfRecord {
    std::string_view type; ///< the value of group code 0
    std::size_t place = 0;
    /// Without comments, marks of classes, groups of other programs, and embedded objects.
    std::vector<DxfPair> pairs;

    /// The first pair of that code; null when there is none.
    const DxfPair* Find(int code) const;
    /// The value of the first pair of that code, or `fallback`, also where the value is not of that kind.
    double Number(int code, double fallback) const;
    std::int32_t Integer(int code, std::int32_t fallback) const;
    std::string_view Word(int code, std::string_view fallback = {}) const;
};

/// Why a file is refused.
struct DxfFault {
    std::size_t place = 0; ///< line from 1, or in binary files byte from 0
    diagnostics::Code code = diagnostics::Code::kNoSection;
    std::vector<std::string> subjects;
};

/// Hands out the records of a file from the first to the last.
class DxfRecordCursor {
public:
    explicit DxfRecordCursor(std::string_view bytes);

    /// False behind the last record and where the file breaks off; `fault` is set in the latter case.
    bool Next(DxfRecord& record);
    bool IsBroken() const { return isBroken_; }
    const DxfFault& Fault() const { return fault_; }
    bool IsBinary() const { return cursor_.IsBinary(); }

private:
    bool Take(DxfPair& pair);

    DxfPairCursor cursor_;
    DxfPair start_; // of the next record: the pair with group code 0
    bool hasStart_ = false;
    bool isBroken_ = false;
    DxfFault fault_;
};

} // namespace exchange
