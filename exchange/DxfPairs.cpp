// The pairs of a DXF file.
#include "exchange/DxfPairs.h"

#include "StyleConversion/encoding/NumberReader.h"
#include "StyleConversion/platform/Characters.h"

#include <bit>
#include <cmath>
#include <limits>
#include <string>

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

DxfPairCursor::DxfPairCursor(std::string_view bytes) : bytes_(bytes) {
    if (bytes.size() >= kBinaryHeadLength &&
        bytes.substr(kProgramNameLength, kBinaryMark.size()) == kBinaryMark) {
        isBinary_ = true;
        position_ = kBinaryHeadLength;
        // The first group code is 0, and its value is a text that is not empty.
        hasShortCodes_ = bytes.size() > position_ + 1 && bytes[position_ + 1] != '\0';
        return;
    }
    if (platform::StartsWithByteOrderMark(bytes)) {
        position_ = platform::kUtf8ByteOrderMark.size();
    }
    if (bytes.find('\n') == std::string_view::npos) {
        lineEnd_ = '\r';
    }
}

bool DxfPairCursor::TakeLine(std::string_view& line) {
    if (position_ >= bytes_.size()) {
        return false;
    }
    const std::size_t end = std::min(bytes_.find(lineEnd_, position_), bytes_.size());
    line = bytes_.substr(position_, end - position_);
    if (!line.empty() && line.back() == '\r') {
        line.remove_suffix(1);
    }
    position_ = end + 1;
    ++line_;
    return true;
}

DxfPairCursor::Outcome DxfPairCursor::Next(DxfPair& pair) {
    pair.isBinary = isBinary_;
    return isBinary_ ? NextOfBinary(pair) : NextOfText(pair);
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

DxfPairCursor::Outcome DxfPairCursor::NextOfBinary(DxfPair& pair) {
    pair.place = position_;
    std::string_view rest = bytes_.substr(std::min(position_, bytes_.size()));
    if (rest.empty()) {
        return Outcome::kEnd;
    }
    const auto take = [&](std::size_t count, std::string_view& taken) {
        taken = rest.substr(0, count);
        rest.remove_prefix(taken.size());
        return taken.size() == count;
    };
    std::string_view code;
    if (!take(hasShortCodes_ ? 1 : 2, code)) {
        return Outcome::kCut;
    }
    if (hasShortCodes_ && static_cast<std::uint8_t>(code.front()) == kLongCode && !take(2, code)) {
        return Outcome::kCut;
    }
    pair.code = static_cast<int>(code.size() == 1 ? Assemble(code)
                                                  : static_cast<std::uint64_t>(AssembleSigned(code)));
    const Kind kind = KindOf(pair.code);
    if (kind == Kind::kText) {
        const std::size_t end = rest.find('\0');
        if (end == std::string_view::npos) {
            return Outcome::kCut;
        }
        take(end, pair.value);
        rest.remove_prefix(1);
    } else {
        std::size_t size = SizeOf(kind);
        std::string_view length;
        if (kind == Kind::kChunk) {
            if (!take(1, length)) {
                return Outcome::kCut;
            }
            size = static_cast<std::uint8_t>(length.front());
        }
        if (!take(size, pair.value)) {
            return Outcome::kCut;
        }
    }
    position_ = bytes_.size() - rest.size();
    return Outcome::kPair;
}

} // namespace exchange
