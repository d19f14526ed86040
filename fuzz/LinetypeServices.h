// The files and text styles that linetypes of an input find.
#pragma once

#include "StyleConversion/linetype/LineConverter.h"

#include <cstdio>
#include <string_view>

namespace fuzzing {

/// Every name finds the same shape file. The name of a style chooses what it is: one that begins with "T" has
/// a typeface, one with "N" is not there, and all others have that shape file. The second letter makes it
/// bold ("B"), vertical ("V") or of a fixed height ("F").
class LinetypeServices : public LineConverter::IGetFile, public LineConverter::IGetFontInfo {
public:
    /// `shapeFile` must outlive the services; where it is empty, no name finds a file.
    explicit LinetypeServices(std::string_view shapeFile) : shapeFile_(shapeFile) {}

    std::FILE* GetFile(const wchar_t* name, const wchar_t* extension) override;
    bool GetFontInfoFromStyle(const wchar_t* styleName, LineConverter::FontInfo& info) override;

private:
    std::string_view shapeFile_;
};

} // namespace fuzzing
