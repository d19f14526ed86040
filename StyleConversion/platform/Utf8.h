// UTF-8 to wide text and back, on every system alike.
#pragma once

#include <string>
#include <string_view>

namespace platform {

/// Whether `bytes` are UTF-8 throughout: no overlong forms, no surrogates, nothing above U+10FFFF.
bool IsUtf8(std::string_view bytes);

/// Decodes UTF-8. Each byte that belongs to no valid sequence becomes the lone surrogate U+DC00 + byte, which
/// WideToUtf8Bytes turns back into that byte: any bytes survive the round trip.
std::wstring Utf8ToWide(std::string_view bytes);
/// The same into a string whose storage is used again.
void Utf8ToWide(std::string_view bytes, std::wstring& wide);

/// Encodes as UTF-8, with U+DC80 to U+DCFF standing for single bytes as above.
std::string WideToUtf8Bytes(std::wstring_view wide);

/// Encodes as valid UTF-8 whatever the text: a lone surrogate and what is no character become U+FFFD.
std::string WideToValidUtf8(std::wstring_view wide);

/// Appends what WideToValidUtf8 returns.
void AppendValidUtf8(std::string& bytes, std::wstring_view wide);

} // namespace platform
