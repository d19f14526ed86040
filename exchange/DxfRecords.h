// The records of a DXF file: the pairs from one group code 0 to the next.
#pragma once

#include "diagnostics/Code.h"
#include "exchange/DxfPairs.h"

#include <cstddef>
#include <cstdint>
#include <limits>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace exchange {

/// The whole numbers that a value may have.
struct DxfRange {
    std::int32_t first = std::numeric_limits<std::int32_t>::min();
    std::int32_t last = std::numeric_limits<std::int32_t>::max();
};

/// An entity, an entry of a table, or a mark such as the start of a section.
struct DxfRecord {
    std::string_view type; ///< the value of group code 0
    std::size_t place = 0;
    /// Without comments, marks of classes, groups of other programs, and embedded objects.
    std::vector<DxfPair> pairs;

    /// The first pair of that code; null when there is none.
    const DxfPair* Find(int code) const;
    /// The value of the first pair of that code, or `fallback` where there is none.
    double Number(int code, double fallback) const;
    std::int32_t Integer(int code, std::int32_t fallback, DxfRange range = {}) const;
    std::string_view Word(int code, std::string_view fallback = {}) const;

    /// The value of a pair of this record. A value that is no number, or not within the range, is read as
    /// `fallback`, and kept in `invalid`.
    double NumberOf(const DxfPair& pair, double fallback) const;
    std::int32_t IntegerOf(const DxfPair& pair, std::int32_t fallback, DxfRange range = {}) const;

    /// The first pair whose value was asked for as what it is not, until that is told of. What a reading has
    /// met is no part of the record.
    mutable std::optional<DxfPair> invalid;
};

/// A record with bytes of its own, which stays when the file is read on.
class DxfKeptRecord {
public:
    explicit DxfKeptRecord(const DxfRecord& record);
    const DxfRecord& Get() const { return record_; }

private:
    std::unique_ptr<char[]> bytes_;
    DxfRecord record_;
};

/// Why a file is refused.
struct DxfFault {
    std::size_t place = 0; ///< line from 1, or in binary files byte from 0
    diagnostics::Code code = diagnostics::Code::kNoSection;
    std::vector<std::string> subjects;
};

/// Bytes of the file as messages show them, in quotes.
std::string ShownValue(std::string_view bytes);

/// Hands out the records of a file from the first to the last.
class DxfRecordCursor {
public:
    explicit DxfRecordCursor(DxfPieces pieces);

    /// The next record, which is valid until the next call. False behind the last record and where the file
    /// breaks off; `fault` is set in the latter case.
    bool Next(DxfRecord& record);
    bool IsBroken() const { return isBroken_; }
    const DxfFault& Fault() const { return fault_; }
    bool IsBinary() const { return cursor_.IsBinary(); }
    DxfEncoding Encoding() const { return cursor_.Encoding(); }

private:
    bool Take(DxfPair& pair);

    DxfPairCursor cursor_;
    DxfPair start_; // of the next record: the pair with group code 0
    bool hasStart_ = false;
    bool isBroken_ = false;
    DxfFault fault_;
};

} // namespace exchange
