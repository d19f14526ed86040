#include "StyleConversion/platform/Utf8.h"

#include "StyleConversion/platform/Characters.h"

#include <cstddef>
#include <cstdint>

namespace platform {
namespace {

constexpr std::uint32_t kReplacement = 0xfffd;
// Where undecodable bytes are kept: the byte's number above this, all of them lone low surrogates.
constexpr std::uint32_t kEscapedByte = 0xdc00;

struct Decoded {
    std::uint32_t codePoint = 0;
    std::size_t length = 0; // 0: no valid sequence begins here
};

bool IsContinuation(std::uint8_t byte) {
    return (byte & 0xc0) == 0x80;
}

Decoded DecodeAt(std::string_view bytes, std::size_t position) {
    const auto at = [&](std::size_t i) { return static_cast<std::uint8_t>(bytes[position + i]); };
    const std::uint8_t lead = at(0);
    if (lead < 0x80) {
        return {lead, 1};
    }
    std::size_t length = 0;
    std::uint32_t smallest = 0;
    if (lead >= 0xc2 && lead < 0xe0) {
        length = 2;
        smallest = 0x80;
    } else if (lead >= 0xe0 && lead < 0xf0) {
        length = 3;
        smallest = 0x800;
    } else if (lead >= 0xf0 && lead < 0xf5) {
        length = 4;
        smallest = kFirstSupplementary;
    } else {
        return {};
    }
    if (bytes.size() - position < length) {
        return {};
    }
    std::uint32_t codePoint = lead & (0x7fU >> length);
    for (std::size_t i = 1; i < length; ++i) {
        if (!IsContinuation(at(i))) {
            return {};
        }
        codePoint = (codePoint << 6) | (at(i) & 0x3fU);
    }
    if (codePoint < smallest || codePoint > kLastCodePoint || IsSurrogate(codePoint)) {
        return {};
    }
    return {codePoint, length};
}

// Writes the one or two units of a character, and returns where the next one goes.
wchar_t* WriteCodePoint(wchar_t* target, std::uint32_t codePoint) {
    if constexpr (sizeof(wchar_t) == 2) {
        if (codePoint >= kFirstSupplementary) {
            *target++ = static_cast<wchar_t>(HighSurrogateOf(codePoint));
            *target++ = static_cast<wchar_t>(LowSurrogateOf(codePoint));
            return target;
        }
    }
    *target++ = static_cast<wchar_t>(codePoint);
    return target;
}

void AppendUtf8(std::string& bytes, std::uint32_t codePoint) {
    const auto append = [&](std::uint32_t byte) { bytes += static_cast<char>(byte); };
    if (codePoint < 0x80) {
        append(codePoint);
    } else if (codePoint < 0x800) {
        append(0xc0 | (codePoint >> 6));
        append(0x80 | (codePoint & 0x3f));
    } else if (codePoint < kFirstSupplementary) {
        append(0xe0 | (codePoint >> 12));
        append(0x80 | ((codePoint >> 6) & 0x3f));
        append(0x80 | (codePoint & 0x3f));
    } else {
        append(0xf0 | (codePoint >> 18));
        append(0x80 | ((codePoint >> 12) & 0x3f));
        append(0x80 | ((codePoint >> 6) & 0x3f));
        append(0x80 | (codePoint & 0x3f));
    }
}

// The code point at `position`, which moves past it; surrogate pairs are joined whatever the width of
// wchar_t.
std::uint32_t NextCodePoint(std::wstring_view wide, std::size_t& position) {
    const auto unit = static_cast<std::uint32_t>(wide[position++]);
    if (IsHighSurrogate(unit) && position < wide.size()) {
        const auto next = static_cast<std::uint32_t>(wide[position]);
        if (IsLowSurrogate(next)) {
            ++position;
            return JoinSurrogates(unit, next);
        }
    }
    return unit;
}

void Encode(std::string& bytes, std::wstring_view wide, bool keepBytes) {
    for (std::size_t position = 0; position < wide.size();) {
        const std::uint32_t codePoint = NextCodePoint(wide, position);
        if (keepBytes && codePoint >= kEscapedByte + 0x80 && codePoint <= kEscapedByte + 0xff) {
            bytes += static_cast<char>(codePoint - kEscapedByte);
        } else if (IsSurrogate(codePoint) || codePoint > kLastCodePoint) {
            AppendUtf8(bytes, kReplacement);
        } else {
            AppendUtf8(bytes, codePoint);
        }
    }
}

std::string Encoded(std::wstring_view wide, bool keepBytes) {
    std::string bytes;
    bytes.reserve(wide.size());
    Encode(bytes, wide, keepBytes);
    return bytes;
}

} // namespace

bool IsUtf8(std::string_view bytes) {
    for (std::size_t position = 0; position < bytes.size();) {
        const std::size_t length = DecodeAt(bytes, position).length;
        if (length == 0) {
            return false;
        }
        position += length;
    }
    return true;
}

std::wstring Utf8ToWide(std::string_view bytes) {
    std::wstring wide;
    Utf8ToWide(bytes, wide);
    return wide;
}

void Utf8ToWide(std::string_view bytes, std::wstring& wide) {
    wide.resize(bytes.size()); // No character has more units than bytes.
    wchar_t* target = wide.data();
    for (std::size_t position = 0; position < bytes.size();) {
        const auto byte = static_cast<std::uint8_t>(bytes[position]);
        const Decoded decoded = byte < 0x80 ? Decoded{byte, 1} : DecodeAt(bytes, position);
        if (decoded.length == 0) {
            *target++ = static_cast<wchar_t>(kEscapedByte + byte);
            ++position;
        } else {
            target = WriteCodePoint(target, decoded.codePoint);
            position += decoded.length;
        }
    }
    wide.resize(static_cast<std::size_t>(target - wide.data()));
}

std::string WideToUtf8Bytes(std::wstring_view wide) {
    return Encoded(wide, true);
}

std::string WideToValidUtf8(std::wstring_view wide) {
    return Encoded(wide, false);
}

void AppendValidUtf8(std::string& bytes, std::wstring_view wide) {
    Encode(bytes, wide, false);
}

} // namespace platform
