// What linetype conversion asks of its host, where the host does not answer.
#include "StyleConversion/linetype/Services.h"

namespace LineConverter {

IGetFile::IGetFile() = default;
IGetFile::IGetFile(const IGetFile&) = default;
IGetFile& IGetFile::operator=(const IGetFile&) = default;
IGetFile::~IGetFile() = default;

std::FILE* IGetFile::GetFile(const wchar_t* /*name*/, const wchar_t* /*extension*/) {
    return nullptr;
}

IGetFontInfo::IGetFontInfo() = default;
IGetFontInfo::IGetFontInfo(const IGetFontInfo&) = default;
IGetFontInfo& IGetFontInfo::operator=(const IGetFontInfo&) = default;
IGetFontInfo::~IGetFontInfo() = default;

bool IGetFontInfo::GetFontInfoFromStyle(const wchar_t* /*styleName*/, FontInfo& /*info*/) {
    return false;
}

} // namespace LineConverter
