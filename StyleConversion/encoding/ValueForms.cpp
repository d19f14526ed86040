#include "StyleConversion/encoding/ValueForms.h"

#include "StyleConversion/encoding/TrimmedNumber.h"
#include "StyleConversion/encoding/Widening.h"
#include "StyleConversion/platform/Characters.h"

#include <charconv>

namespace encoding {
namespace {

// The heaviest standard line weight, 2.11 mm.
constexpr std::uint32_t kHeaviestLineweight = 211;

std::wstring Enclosed(wchar_t mark, std::wstring_view text) {
    std::wstring enclosed;
    enclosed.reserve(text.size() + 2);
    enclosed += mark;
    enclosed += text;
    enclosed += mark;
    return enclosed;
}

} // namespace

std::wstring ColorString(std::uint32_t trueColor) {
    std::wstring color = L"ff";
    for (const int shift : {16, 8, 0}) {
        platform::AppendHexByte(color, static_cast<std::uint8_t>(trueColor >> shift));
    }
    return color;
}

std::wstring LineweightString(std::int32_t code) {
    // A negative code is a large number here and so falls out of the range.
    const bool inRange = static_cast<std::uint32_t>(code) <= kHeaviestLineweight;
    return Double2TrimmedString(inRange ? code * 0.01 * 2.0 : 0.0);
}

std::wstring IntegerString(std::int32_t value) {
    char digits[16];
    const char* const end = std::to_chars(digits, digits + sizeof digits, value).ptr;
    std::wstring text;
    AppendAscii(text, digits, static_cast<std::size_t>(end - digits));
    return text;
}

std::wstring BooleanString(bool value) {
    return value ? L"true" : L"false";
}

std::wstring Quoted(std::wstring_view text) {
    return Enclosed(L'\'', text);
}

std::wstring QuotedSafely(std::wstring_view text) {
    std::wstring content = L"'";
    for (const wchar_t c : text) {
        content.append(c == L'\'' ? 2 : 1, c);
    }
    return content + L"'";
}

std::wstring ParameterReference(std::wstring_view identifier) {
    return Enclosed(L'%', identifier);
}

} // namespace encoding
