// Linetype files to line symbols.
#pragma once

#include "OxDb/OxDb.h"
#include "StyleConversion/Export.h"
#include "StyleConversion/linetype/FontInfo.h"
#include "StyleConversion/linetype/Services.h"
#include "TylModel/TylModel.h"

#include <vector>

namespace LineConverter {

/// Each converts every linetype of a file, in file order, and returns one symbol for each: a
/// SimpleSymbolDefinition for a linetype of dashes, else a CompoundSymbolDefinition. The vector and the
/// symbols are the caller's, who deletes them. Null when anything at all could not be read, found or drawn,
/// when memory has run out, and when a callback has thrown. Nothing is thrown. A null or empty file name is a
/// file that cannot be read.
///
/// Texts of the file become wide by the ANSI code page: the system's on Windows, also for a file in UTF-8
/// ("90°" gives "90Â°"), elsewhere that of platform::SetAnsiCodePage. File names are wide on Windows and
/// UTF-8 on other systems. Apostrophes in texts are doubled.
///
/// `scale` multiplies all lengths. Calls on two threads do not disturb each other; what each is given is used
/// by its thread alone.

/// `fontInfo` knows the text styles that the file names, `files` finds its SHX files. Either is borrowed, and
/// may be null for files that need none.
STYLECONVERSION_API std::vector<TylModel::SymbolDefinition*>*
Convert(const wchar_t* fileName, IGetFontInfo* fontInfo, IGetFile* files, double scale);

/// Text styles are those of the services' working database. SHX files are looked for under their name, beside
/// the linetype file, and by the services' file search. `services` is borrowed and may be null: then there
/// are no styles and no file search.
STYLECONVERSION_API std::vector<TylModel::SymbolDefinition*>*
Convert(const wchar_t* fileName, OxDbHostApplicationServices* const services, double scale);

/// For files that name neither text styles nor shape files.
STYLECONVERSION_API std::vector<TylModel::SymbolDefinition*>* Convert(const wchar_t* fileName, double scale);

} // namespace LineConverter
