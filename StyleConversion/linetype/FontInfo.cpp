// What a text style says about its fonts.
#include "StyleConversion/linetype/FontInfo.h"

namespace LineConverter {

FontInfo::FontInfo() = default;
FontInfo::~FontInfo() = default;
FontInfo::FontInfo(const FontInfo& other) = default;
FontInfo& FontInfo::operator=(const FontInfo& other) = default;

} // namespace LineConverter
