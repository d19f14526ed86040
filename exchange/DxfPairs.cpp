// The pairs of a DXF file.
#include "exchange/DxfPairs.h"

#include "StyleConversion/encoding/NumberReader.h"
#include "StyleConversion/platform/Characters.h"
#include "StyleConversion/platform/Utf8.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>
#include <string>
#include <utility>

namespace exchange {
namespace {

// A binary file starts with the name of a program, of seven letters, and this.
constexpr std::size_t kProgramNameLength = 7;
constexpr std::string_view kBinaryMark("\x20"
                                       "Binary DXF\r\n\x1a\0",
                                       15);
constexpr std::size_t kBinaryHeadLength = kProgramNameLength + kBinaryMark.size();

// In files with group codes of one byte, this one says that two more hold the code.
constexpr std::uint8_t kLongCode = 255;

enum class Kind { kText, kDouble, kByte, kInteger16, kInteger32, kInteger64, kChunk };

struct Range {
    int last;
    Kind kind;
};

// How binary files hold the value of a group code: up to and with each `last`.
constexpr Range kRanges[] = {
    {9, Kind::kText},        {59, Kind::kDouble},     {79, Kind::kInteger16},   {89, Kind::kText},
    {99, Kind::kInteger32},  {109, Kind::kText},      {149, Kind::kDouble},     {159, Kind::kText},
    {169, Kind::kInteger64}, {179, Kind::kInteger16}, {209, Kind::kText},       {239, Kind::kDouble},
    {269, Kind::kText},      {289, Kind::kInteger16}, {299, Kind::kByte},       {309, Kind::kText},
    {319, Kind::kChunk},     {369, Kind::kText},      {389, Kind::kInteger16},  {399, Kind::kText},
    {409, Kind::kInteger16}, {419, Kind::kText},      {429, Kind::kInteger32},  {439, Kind::kText},
    {459, Kind::kInteger32}, {469, Kind::kDouble},    {1003, Kind::kText},      {1004, Kind::kChunk},
    {1009, Kind::kText},     {1059, Kind::kDouble},   {1070, Kind::kInteger16}, {1071, Kind::kInteger32},
};

Kind KindOf(int code) {
    for (const Range& range : kRanges) {
        if (code <= range.last) {
            return range.kind;
        }
    }
    return Kind::kText;
}

std::size_t SizeOf(Kind kind) {
    switch (kind) {
    case Kind::kByte:
        return 1;
    case Kind::kInteger16:
        return 2;
    case Kind::kInteger32:
        return 4;
    case Kind::kDouble:
    case Kind::kInteger64:
        return 8;
    default:
        return 0;
    }
}

// The lowest byte stands first.
std::uint64_t Assemble(std::string_view bytes) {
    std::uint64_t bits = 0;
    for (std::size_t i = bytes.size(); i > 0; --i) {
        bits = bits << 8U | static_cast<std::uint8_t>(bytes[i - 1]);
    }
    return bits;
}

std::int64_t AssembleSigned(std::string_view bytes) {
    const std::size_t unused = 64 - 8 * bytes.size();
    return static_cast<std::int64_t>(Assemble(bytes) << unused) >> unused;
}

std::optional<double> Whole(std::string_view text) {
    const encoding::NumberReading reading = encoding::ReadNumber(text);
    if (reading.used == 0 || reading.used != text.size() || !std::isfinite(reading.value)) {
        return std::nullopt;
    }
    return reading.value;
}

std::optional<int> ReadCode(std::string_view word) {
    bool isNegative = false;
    if (!word.empty() && word.front() == '-') {
        isNegative = true;
        word.remove_prefix(1);
    }
    constexpr std::size_t kMostDigits = 5;
    if (word.empty() || word.size() > kMostDigits) {
        return std::nullopt;
    }
    int code = 0;
    for (const char c : word) {
        if (c < '0' || c > '9') {
            return std::nullopt;
        }
        code = code * 10 + (c - '0');
    }
    return isNegative ? -code : code;
}

bool IsAscii(std::string_view bytes) {
    return std::all_of(bytes.begin(), bytes.end(),
                       [](char c) { return static_cast<std::uint8_t>(c) < 0x80; });
}

} // namespace

bool DxfPair::IsText() const {
    return !isBinary || KindOf(code) == Kind::kText;
}

std::string_view DxfPair::Word() const {
    return platform::WithoutBlanks(value);
}

std::optional<double> DxfPair::Number() const {
    const Kind kind = isBinary ? KindOf(code) : Kind::kText;
    if (kind == Kind::kDouble) {
        const auto number = std::bit_cast<double>(Assemble(value));
        return std::isfinite(number) ? std::optional(number) : std::nullopt;
    }
    if (SizeOf(kind) > 0) {
        return static_cast<double>(AssembleSigned(value));
    }
    const std::string_view word = Word();
    if (const std::optional<double> number = Whole(word)) {
        return number;
    }
    // Some programs write blanks inside: "1.0E 05".
    std::string packed;
    for (const char c : word) {
        if (!platform::IsBlank(c)) {
            packed += c;
        }
    }
    return packed.size() < word.size() ? Whole(packed) : std::nullopt;
}

std::optional<std::int32_t> DxfPair::Integer() const {
    const std::optional<double> number = Number();
    if (!number || *number != std::floor(*number) || *number < std::numeric_limits<std::int32_t>::min() ||
        *number > std::numeric_limits<std::int32_t>::max()) {
        return std::nullopt;
    }
    return static_cast<std::int32_t>(*number);
}

std::uint64_t DxfPair::Handle() const {
    constexpr std::size_t kMostDigits = 16;
    const std::string_view word = Word();
    std::uint64_t handle = 0;
    for (const char c : word) {
        const int digit = platform::HexDigitValue(c);
        if (digit < 0 || word.size() > kMostDigits) {
            return 0;
        }
        handle = handle << 4U | static_cast<std::uint64_t>(digit);
    }
    return handle;
}

DxfPairCursor::DxfPairCursor(DxfPieces pieces) : pieces_(std::move(pieces)) {
    pieces_.Require(kBinaryHeadLength + 2);
    const std::string_view start = pieces_.Rest();
    if (start.size() >= kBinaryHeadLength &&
        start.substr(kProgramNameLength, kBinaryMark.size()) == kBinaryMark) {
        isBinary_ = true;
        // The first group code is 0, and its value is a text that is not empty.
        hasShortCodes_ = start.size() > kBinaryHeadLength + 1 && start[kBinaryHeadLength + 1] != '\0';
        pieces_.Skip(kBinaryHeadLength);
        return;
    }
    if (platform::StartsWithByteOrderMark(start)) {
        pieces_.Skip(platform::kUtf8ByteOrderMark.size());
    }
    FindLineEnd();
}

// Lines end with "\n", before which any number of "\r" may stand, or, as in very old files, with "\r" alone:
// the end of the first line tells.
void DxfPairCursor::FindLineEnd() {
    std::size_t at = 0;
    bool hasReturn = false;
    while (pieces_.Require(at + 1)) {
        const char c = pieces_.Rest()[at];
        if (c == '\n') {
            return;
        }
        if (hasReturn && c != '\r') {
            break;
        }
        hasReturn = hasReturn || c == '\r';
        ++at;
    }
    if (hasReturn) {
        lineEnd_ = '\r';
    }
}

// The bytes before the next `end`, which is taken away too. Without one: false, and all that is left.
bool DxfPairCursor::TakeUpTo(char end, std::string_view& taken) {
    std::size_t searched = 0;
    std::size_t found = 0;
    while ((found = pieces_.Rest().find(end, searched)) == std::string_view::npos) {
        searched = pieces_.Rest().size();
        if (!pieces_.Extend()) {
            taken = pieces_.Rest();
            pieces_.Skip(taken.size());
            return false;
        }
    }
    taken = pieces_.Rest().substr(0, found);
    pieces_.Skip(found + 1);
    return true;
}

bool DxfPairCursor::TakeLine(std::string_view& line) {
    if (!TakeUpTo(lineEnd_, line) && line.empty()) {
        return false;
    }
    if (!line.empty() && line.back() == '\r') {
        line.remove_suffix(1);
    }
    ++line_;
    return true;
}

DxfPairCursor::Outcome DxfPairCursor::Next(DxfPair& pair) {
    pair.isBinary = isBinary_;
    const Outcome outcome = isBinary_ ? NextOfBinary(pair) : NextOfText(pair);
    if (outcome == Outcome::kPair) {
        NoteEncoding(pair);
    }
    return outcome;
}

void DxfPairCursor::NoteEncoding(const DxfPair& pair) {
    if (encoding_ >= DxfEncoding::kOther || IsAscii(pair.value) || !pair.IsText()) {
        return;
    }
    if (platform::IsUtf8(pair.value)) {
        encoding_ = DxfEncoding::kUtf8;
    } else {
        encoding_ = encoding_ == DxfEncoding::kAscii ? DxfEncoding::kOther : DxfEncoding::kOtherThanUtf8;
    }
}

DxfPairCursor::Outcome DxfPairCursor::NextOfText(DxfPair& pair) {
    std::string_view word;
    do { // blank lines between pairs do no harm
        std::string_view line;
        if (!TakeLine(line)) {
            pair.place = line_;
            return Outcome::kEnd;
        }
        word = platform::WithoutBlanks(line);
    } while (word.empty());
    pair.place = line_;
    pair.value = word;
    const std::optional<int> code = ReadCode(word);
    if (!code) {
        return Outcome::kNoCode;
    }
    pair.code = *code;
    return TakeLine(pair.value) ? Outcome::kPair : Outcome::kCut;
}

bool DxfPairCursor::Take(std::size_t count, std::string_view& taken) {
    if (!pieces_.Require(count)) {
        return false;
    }
    taken = pieces_.Rest().substr(0, count);
    pieces_.Skip(count);
    return true;
}

DxfPairCursor::Outcome DxfPairCursor::NextOfBinary(DxfPair& pair) {
    pair.place = pieces_.Offset();
    if (!pieces_.Require(1)) {
        return Outcome::kEnd;
    }
    std::string_view code;
    if (!Take(hasShortCodes_ ? 1 : 2, code)) {
        return Outcome::kCut;
    }
    if (hasShortCodes_ && static_cast<std::uint8_t>(code.front()) == kLongCode && !Take(2, code)) {
        return Outcome::kCut;
    }
    pair.code = static_cast<int>(code.size() == 1 ? Assemble(code)
                                                  : static_cast<std::uint64_t>(AssembleSigned(code)));
    const Kind kind = KindOf(pair.code);
    if (kind == Kind::kText) {
        return TakeUpTo('\0', pair.value) ? Outcome::kPair : Outcome::kCut;
    }
    std::size_t size = SizeOf(kind);
    std::string_view length;
    if (kind == Kind::kChunk) {
        if (!Take(1, length)) {
            return Outcome::kCut;
        }
        size = static_cast<std::uint8_t>(length.front());
    }
    return Take(size, pair.value) ? Outcome::kPair : Outcome::kCut;
}

} // namespace exchange
