// Narrow text to wide text and back, through the system's ANSI code page.
#pragma once

#include <string>
#include <string_view>

namespace platform {

/// Chooses the code page of the process, by a name that iconv knows ("UTF-8", "WINDOWS-1252", "SHIFT_JIS").
/// False, and no change, for an unknown name. UTF-8 is in force until a page is chosen; where the system
/// itself has an ANSI code page, that one is, and names of the system's own pages choose another. Not to be
/// called while another thread converts.
bool SetAnsiCodePage(const std::string& name);

/// Converts bytes of the code page in force. Bytes that it does not define are kept so that WideToAnsi gives
/// them back where the system allows it: as U+DC80 to U+DCFF under UTF-8, as the character of the byte's own
/// number under every other page.
std::wstring AnsiToWide(std::string_view narrow);
/// The same into a string whose storage is used again.
void AnsiToWide(std::string_view narrow, std::wstring& wide);

/// Converts to bytes of the code page in force; "?" stands for a character that it cannot express.
std::string WideToAnsi(std::wstring_view wide);

/// The first `sought` (an ASCII character) in the zero-terminated `text` that is a character of its own and
/// not the second byte of a double-byte character of the code page in force; null when there is none.
const char* FindInMultiByte(const char* text, char sought);

} // namespace platform
