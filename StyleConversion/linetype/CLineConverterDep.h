// Finds SHX files and text styles through the host's services.
#pragma once

#include "StyleConversion/linetype/Services.h"

#include "StyleConversion/interfaces/HostNames.h"

#include <string>
#include <string_view>

namespace LineConverter {

class CLineConverterDep final : public IGetFontInfo, public IGetFile {
public:
    /// Both are borrowed and may be null. `searchDirectory` ends in its separator.
    CLineConverterDep(OxDbHostApplicationServices* services, const wchar_t* searchDirectory);

    /// Looks the style up in the services' working database. Leaves `info` alone where it returns false.
    bool GetFontInfoFromStyle(const wchar_t* styleName, FontInfo& info) override;

    /// Tries the name as given, then in the search directory where the name has no directory of its own, each
    /// also with `extension` and without one of two extensions, and then asks the services.
    std::FILE* GetFile(const wchar_t* name, const wchar_t* extension) override;

private:
    std::FILE* SearchHost(const wchar_t* name) const;

    OxDbHostApplicationServices* services_;
    const wchar_t* searchDirectory_;
};

} // namespace LineConverter
