// A linetype file in memory: its linetypes, and the text styles and shape files that they name.
#pragma once

#include "StyleConversion/linetype/FontInfo.h"
#include "StyleConversion/linetype/LinNames.h"
#include "StyleConversion/linetype/LinetypeRecord.h"
#include "StyleConversion/shx/ShapesInFile.h"

#include <map>
#include <string>
#include <vector>

namespace LineConverter {

/// By name in upper case.
using FontInfoMap = std::map<std::wstring, FontInfo, Utf16Less>;
using ShapeFileMap = std::map<std::wstring, ShxUtility::ShapesInFile, Utf16Less>;

struct LinetypeFile {
    /// In file order, those with the same name, too.
    std::vector<LinetypeRecord> linetypes;
    FontInfoMap fontInfos;
    ShapeFileMap shapeFiles;
};

} // namespace LineConverter
