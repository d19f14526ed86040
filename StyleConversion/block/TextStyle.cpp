#include "StyleConversion/block/TextStyle.h"

#include "OxDb/OxDbDatabase.h"
#include "StyleConversion/block/Angles.h"
#include "StyleConversion/block/Opened.h"
#include "StyleConversion/encoding/IntegerConversion.h"
#include "StyleConversion/encoding/ValueForms.h"
#include "TylModel/TylModel.h"

#include <memory>

namespace block {

void ApplyTextStyle(TylModel::Text& text, OxDbObjectId styleId) {
    Opened<OxDbTextStyleTableRecord> style;
    if (styleId.isNull() || !style.Accept(oxdbOpenOxDbObject(style.Receive(), styleId, OxDb::kForRead))) {
        return;
    }
    wchar_t* typeface = nullptr;
    bool bold = false;
    bool italic = false;
    std::int32_t characterSet = 0;
    std::int32_t pitchAndFamily = 0;
    const Oxsys::ErrorStatus status = style->font(typeface, bold, italic, characterSet, pitchAndFamily);
    const std::unique_ptr<wchar_t[]> owned(typeface);
    if (status != Oxsys::eOk || typeface == nullptr) {
        return;
    }
    text.SetFontName(typeface);
    if (bold) {
        text.SetBold(encoding::BooleanString(true));
    }
    if (italic) {
        text.SetItalic(encoding::BooleanString(true));
    }
}

int WholeDegrees(double radians) {
    return encoding::ToInt32(radians * 180.0 / kPi + 0.5);
}

} // namespace block
