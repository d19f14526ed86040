// Conversions by whichever pair of libraries this is compiled with, and their symbols as text.
#pragma once

#include "StyleConversion/block/BlockConverter.h"
#include "StyleConversion/linetype/LineConverter.h"
#include "StyleConversion/pattern/PatternConverter.h"

#include <cstddef>
#include <filesystem>
#include <iosfwd>
#include <string>

/// Writes the path of the shape file of that name in the folder; false when there is none.
bool FindShape(const std::filesystem::path& folder, const wchar_t* name, wchar_t* path, std::size_t room);

/// All blocks of a drawing, by name and by record, and once more without the entities of a layer.
void ConvertBlocks(OxDbDatabase& database, const std::wstring& ignoredLayer, std::ostream& out);
/// The linetype files of a folder by each of the three entry points, and the pattern files of another.
void ConvertLinetypes(const std::filesystem::path& folder, const std::filesystem::path& shapes,
                      OxDbHostApplicationServices* services, std::ostream& out);
void ConvertPatterns(const std::filesystem::path& folder, std::ostream& out);
