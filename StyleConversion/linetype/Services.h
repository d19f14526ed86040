// What linetype conversion asks of its host: SHX files and text styles.
#pragma once

#include "StyleConversion/Export.h"
#include "StyleConversion/linetype/FontInfo.h"

#include <cstdio>

namespace LineConverter {

/// Finds and opens SHX files.
class STYLECONVERSION_API IGetFile {
public:
    /// Holds nothing: copies are alike.
    IGetFile();
    IGetFile(const IGetFile& other);
    IGetFile& operator=(const IGetFile& other);

    /// Opens the file `name` for reading in binary mode; `extension` (".shx") is the one to try where the
    /// name lacks it. Null when there is none. The caller closes the stream. This implementation has no
    /// files.
    ///
    /// Names come in upper case, with the ending that the linetype file has: "MARKS.SHX". To find "marks.shx"
    /// is the host's duty. Each file is asked for once in a conversion.
    virtual std::FILE* GetFile(const wchar_t* name, const wchar_t* extension);

    virtual ~IGetFile();
};

/// Describes text styles.
class STYLECONVERSION_API IGetFontInfo {
public:
    /// Holds nothing: copies are alike.
    IGetFontInfo();
    IGetFontInfo(const IGetFontInfo& other);
    IGetFontInfo& operator=(const IGetFontInfo& other);

    /// Fills `info` with the text style of that name, or returns false where there is none. Linetype files'
    /// style names come in upper case. This implementation has no styles.
    ///
    /// What counts: `typeface`, and where there is one `bold`, `italic` and `textSize`; else `fileName`,
    /// `isVertical` and `textSize`. The other fields are not used.
    virtual bool GetFontInfoFromStyle(const wchar_t* styleName, FontInfo& info);

    virtual ~IGetFontInfo();
};

} // namespace LineConverter
