// The hatch patterns of a pattern file as area symbols.
#pragma once

#include "StyleConversion/Export.h"
#include "TylModel/TylModel.h"

#include <map>
#include <string>
#include <vector>

namespace pattern {
struct PatternLine;
}

/// Converts the hatch patterns of one pattern file (.pat).
///
/// The file is read by the first operation that needs it and kept; later changes of the file are not seen.
/// As long as a reading finds no pattern, the next operation reads again. A file that cannot be opened has no
/// patterns, and the reading ends behind the first 127 characters of a line that is longer.
///
/// Symbols are simple symbols with an area usage, or compounds of such where the families of lines of a
/// pattern need different tiles. Their geometry is in the units of the file, angles are degrees
/// counter-clockwise; the parameters HATCHCOLOR and HATCHANGLE restyle and turn them. Converting a pattern
/// again from the same converter turns the origins of its lines again, and so gives other geometry, unless
/// all its lines run at 0 degrees or lie in upright tiles.
///
/// The default of HATCHCOLOR is the one colour with "0x" before its digits: "0xff000000".
///
/// Bytes of the file become wide by the ANSI code page: the system's on Windows, elsewhere that of
/// platform::SetAnsiCodePage. File names are wide on Windows and UTF-8 on other systems.
///
/// No operation throws but std::bad_alloc. A converter is used by one thread at a time; converters on
/// two threads do not disturb each other.
class PatternConverter {
public:
    /// Keeps the name and touches no file.
    STYLECONVERSION_API explicit PatternConverter(const std::wstring& fileName);
    /// Symbols handed out before live on.
    STYLECONVERSION_API ~PatternConverter();
    PatternConverter(const PatternConverter&) = delete;
    PatternConverter& operator=(const PatternConverter&) = delete;

    /// Replaces `names` by the names of the file's patterns, in the order of their bytes in the file.
    STYLECONVERSION_API void GetPatternNames(std::vector<std::wstring>& names);

    /// Converts the pattern of just this name. The caller owns the result. Null when the file has no such
    /// pattern, or when none of its families of lines can be repeated by a rectangular tile.
    STYLECONVERSION_API TylModel::SymbolDefinition* Convert(const std::wstring& name);

    /// Replaces `symbols` by the symbols of all patterns in the order of GetPatternNames, without those that
    /// Convert would give null for. The pointers that it held are not deleted. The caller owns the results,
    /// those also that are there when std::bad_alloc is thrown.
    STYLECONVERSION_API void ConvertAll(std::vector<TylModel::SymbolDefinition*>& symbols);

private:
    void LoadFile();

    std::wstring fileName_;
    // By the bytes of the pattern's name.
    std::map<std::string, std::string> descriptions_;
    std::map<std::string, std::vector<pattern::PatternLine>> patterns_;
};
