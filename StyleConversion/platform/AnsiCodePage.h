// The code page that bytes of files are read by, for hosts on systems that have none of their own.
#pragma once

#include "StyleConversion/Export.h"

#include <string>

namespace platform {

/// Chooses the code page of the process, by a name that iconv knows ("UTF-8", "WINDOWS-1252", "SHIFT_JIS").
/// False, and no change, for an unknown name. UTF-8 is in force until a page is chosen; where the system
/// itself has an ANSI code page, that one is, and names of the system's own pages choose another. Not to be
/// called while another thread converts. Not exported on Windows, where the library goes by the system's.
#if !defined(_WIN32)
STYLECONVERSION_API
#endif
bool SetAnsiCodePage(const std::string& name);

} // namespace platform
