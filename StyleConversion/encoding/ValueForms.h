// The other forms of values in the symbol model: colours, line weights, integers, quotes and references.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace encoding {

/// "ff", then red, green and blue as two lower-case hexadecimal digits each. `trueColor` holds red in bits 16
/// to 23, green in bits 8 to 15 and blue in bits 0 to 7; other bits are not looked at.
std::wstring ColorString(std::uint32_t trueColor);

/// A line weight code (hundredths of a millimetre) as twice its millimetres: 25 is "0.5". Codes below 0 (by
/// layer, by block, default) and above 211 are "0.0".
/// Required: R2
std::wstring LineweightString(std::int32_t code);

/// "%d" of `value`.
std::wstring IntegerString(std::int32_t value);

/// "true" or "false".
std::wstring BooleanString(bool value);

/// `text` between single quotes, without escaping.
std::wstring Quoted(std::wstring_view text);

/// The same with each single quote in it doubled, so that it is one text to whoever reads it.
std::wstring QuotedSafely(std::wstring_view text);

/// "%identifier%".
std::wstring ParameterReference(std::wstring_view identifier);

} // namespace encoding
