// The records of a DXF file.
#include "exchange/DxfRecords.h"

#include <algorithm>
#include <utility>

namespace exchange {
namespace {

constexpr int kStart = 0;
constexpr int kClassMark = 100;
constexpr int kEmbeddedObject = 101;
constexpr int kGroup = 102; // "{NAME" begins a group of another program, "}" ends it
constexpr int kComment = 999;
constexpr std::size_t kShownBytes = 40;

// The first one stays.
void Keep(std::optional<DxfPair>& kept, const DxfPair& pair) {
    if (!kept) {
        kept = pair;
    }
}

} // namespace

std::string ShownValue(std::string_view bytes) {
    std::string shown;
    for (const char c : bytes.substr(0, kShownBytes)) {
        shown += c >= ' ' && c <= '~' ? c : '?';
    }
    return '"' + shown + (bytes.size() > kShownBytes ? "..." : "") + '"';
}

const DxfPair* DxfRecord::Find(int code) const {
    for (const DxfPair& pair : pairs) {
        if (pair.code == code) {
            return &pair;
        }
    }
    return nullptr;
}

double DxfRecord::Number(int code, double fallback) const {
    const DxfPair* const pair = Find(code);
    return pair != nullptr ? NumberOf(*pair, fallback) : fallback;
}

std::int32_t DxfRecord::Integer(int code, std::int32_t fallback, DxfRange range) const {
    const DxfPair* const pair = Find(code);
    return pair != nullptr ? IntegerOf(*pair, fallback, range) : fallback;
}

double DxfRecord::NumberOf(const DxfPair& pair, double fallback) const {
    const std::optional<double> number = pair.Number();
    if (!number) {
        Keep(invalid, pair);
    }
    return number.value_or(fallback);
}

std::int32_t DxfRecord::IntegerOf(const DxfPair& pair, std::int32_t fallback, DxfRange range) const {
    const std::optional<std::int32_t> number = pair.Integer();
    if (!number || *number < range.first || *number > range.last) {
        Keep(invalid, pair);
        return fallback;
    }
    return *number;
}

std::string_view DxfRecord::Word(int code, std::string_view fallback) const {
    const DxfPair* const pair = Find(code);
    return pair != nullptr ? pair->Word() : fallback;
}

DxfKeptRecord::DxfKeptRecord(const DxfRecord& record) : record_(record) {
    std::size_t size = record.type.size();
    for (const DxfPair& pair : record.pairs) {
        size += pair.value.size();
    }
    size += record.invalid ? record.invalid->value.size() : 0;
    bytes_ = std::make_unique<char[]>(size);
    char* end = bytes_.get();
    const auto keep = [&end](std::string_view& bytes) {
        char* const start = end;
        end = std::copy(bytes.begin(), bytes.end(), start);
        bytes = {start, bytes.size()};
    };
    keep(record_.type);
    for (DxfPair& pair : record_.pairs) {
        keep(pair.value);
    }
    if (record_.invalid) {
        keep(record_.invalid->value);
    }
}

DxfRecordCursor::DxfRecordCursor(DxfPieces pieces) : cursor_(std::move(pieces)) {
    do { // comments may stand before the first record
        hasStart_ = Take(start_);
    } while (hasStart_ && start_.code == kComment);
    if (hasStart_ && start_.code != kStart) {
        hasStart_ = false;
        isBroken_ = true;
        fault_ = {
            start_.place, diagnostics::Code::kNoSection, {"the group code " + std::to_string(start_.code)}};
    }
}

bool DxfRecordCursor::Take(DxfPair& pair) {
    const DxfPairCursor::Outcome outcome = cursor_.Next(pair);
    if (outcome == DxfPairCursor::Outcome::kNoCode) {
        fault_ = {pair.place, diagnostics::Code::kInvalidGroupCode, {ShownValue(pair.value)}};
        isBroken_ = true;
    } else if (outcome == DxfPairCursor::Outcome::kCut) {
        fault_ = {pair.place, diagnostics::Code::kTruncatedPair, {}};
        isBroken_ = true;
    }
    return outcome == DxfPairCursor::Outcome::kPair;
}

bool DxfRecordCursor::Next(DxfRecord& record) {
    if (!hasStart_) {
        return false;
    }
    cursor_.Release();
    record.type = start_.Word();
    record.place = start_.place;
    record.pairs.clear();
    record.invalid.reset();
    bool isInGroup = false;
    bool isEmbedded = false;
    DxfPair pair;
    while ((hasStart_ = Take(pair)) && pair.code != kStart) {
        if (pair.code == kGroup) {
            isInGroup = pair.Word().substr(0, 1) == "{";
        } else if (pair.code == kEmbeddedObject) {
            isEmbedded = true;
        } else if (pair.code != kClassMark && pair.code != kComment && !isInGroup && !isEmbedded) {
            record.pairs.push_back(pair);
        }
    }
    start_ = pair;
    return true;
}

} // namespace exchange
