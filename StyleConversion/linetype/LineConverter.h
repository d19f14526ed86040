// Linetype files to line symbols.
#pragma once

#include "StyleConversion/Export.h"
#include "StyleConversion/linetype/FontInfo.h"
#include "StyleConversion/linetype/Services.h"

#include "TylModel/TylModel.h"

#include <vector>

class OxDbHostApplicationServices;

namespace LineConverter {

/// Each converts every linetype of a file, in file order, and returns one symbol for each: a
/// SimpleSymbolDefinition for a linetype of dashes, else a CompoundSymbolDefinition. The vector and the
/// symbols are the caller's, who deletes them. Null when anything at all could not be read, found or drawn.
/// Nothing is thrown.
///
/// `scale` multiplies all lengths. Not to be called on two threads at once.

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
