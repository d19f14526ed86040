// Reads text styles from the host's working database.
#include "StyleConversion/linetype/CLineConverterDep.h"

#include "StyleConversion/interfaces/HostNames.h"

#include <memory>

namespace LineConverter {
namespace {

struct CloseObject {
    template <class T>
    void operator()(T* object) const {
        static_cast<void>(object->close());
    }
};
template <class T>
using Opened = std::unique_ptr<T, CloseObject>;

constexpr double kPi = 3.141592653589793;
constexpr double kDegreesPerTurn = 360.0;
// Angles above this one are a turn less: those of styles that slant backward.
constexpr double kLargestSlant = 86.0;

double SlantInDegrees(double radians) {
    const double degrees = radians * 180.0 / kPi;
    return degrees > kLargestSlant ? degrees - kDegreesPerTurn : degrees;
}

Opened<OxDbTextStyleTableRecord> OpenStyle(OxDbDatabase& database, const wchar_t* styleName) {
    OxDbTextStyleTable* openedTable = nullptr;
    if (database.getSymbolTable(openedTable, host::kForRead) != Oxsys::eOk || openedTable == nullptr) {
        return nullptr;
    }
    const Opened<OxDbTextStyleTable> table(openedTable);
    OxDbTextStyleTableRecord* record = nullptr;
    if (table->getAt(styleName, record, host::kForRead, false) != Oxsys::eOk) {
        return nullptr;
    }
    return Opened<OxDbTextStyleTableRecord>(record);
}

// Takes over the text that `read` hands out. False when the read fails.
template <class Read>
bool ReadText(std::wstring& text, Read read) {
    wchar_t* buffer = nullptr;
    if (read(buffer) != Oxsys::eOk) {
        return false;
    }
    const std::unique_ptr<wchar_t[]> owned(buffer);
    text = buffer != nullptr ? buffer : L"";
    return true;
}

bool ReadFonts(OxDbTextStyleTableRecord& record, FontInfo& info) {
    return ReadText(info.bigFontFileName, [&](wchar_t*& text) { return record.bigFontFileName(text); }) &&
           ReadText(info.typeface,
                    [&](wchar_t*& text) { return host::ReadFont(record, text, info.bold, info.italic); }) &&
           ReadText(info.fileName, [&](wchar_t*& text) { return record.fileName(text); });
}

} // namespace

bool CLineConverterDep::GetFontInfoFromStyle(const wchar_t* styleName, FontInfo& info) {
    OxDbDatabase* const database = services_ != nullptr ? host::WorkingDatabase(*services_) : nullptr;
    if (database == nullptr) {
        return false;
    }
    const Opened<OxDbTextStyleTableRecord> record = OpenStyle(*database, styleName);
    if (!record) {
        return false;
    }
    FontInfo read;
    read.flagBits = static_cast<std::int32_t>(record->flagBits());
    read.isShapeFile = record->isShapeFile();
    read.isVertical = record->isVertical();
    read.obliquingAngle = SlantInDegrees(record->obliquingAngle());
    read.textSize = record->textSize();
    read.xScale = record->xScale();
    if (!ReadFonts(*record, read)) {
        return false;
    }
    info = read;
    return true;
}

} // namespace LineConverter
