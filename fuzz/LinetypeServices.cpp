#include "fuzz/LinetypeServices.h"

#include "fuzz/Inputs.h"

namespace fuzzing {

std::FILE* LinetypeServices::GetFile(const wchar_t* /*name*/, const wchar_t* /*extension*/) {
    return shapeFile_.empty() ? nullptr : OpenBytes(shapeFile_).release();
}

bool LinetypeServices::GetFontInfoFromStyle(const wchar_t* styleName, LineConverter::FontInfo& info) {
    info.fileName = L"font.shx";
    info.xScale = 1.0;
    if (styleName[0] == L'T') {
        info.typeface = L"Face";
    }
    info.bold = styleName[1] == L'B';
    info.isVertical = styleName[1] == L'V';
    info.textSize = styleName[1] == L'F' ? 0.25 : 0.0;
    return styleName[0] != L'N';
}

} // namespace fuzzing
