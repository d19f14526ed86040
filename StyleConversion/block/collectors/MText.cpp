// Texts of paragraphs.
#include "OxDb/OxDbText.h"
#include "StyleConversion/block/BlockConverter.h"
#include "StyleConversion/block/BlockSymbol.h"
#include "StyleConversion/block/TextStyle.h"
#include "StyleConversion/encoding/ValueForms.h"

#include <memory>

void BlockConverter::CollectGeometryFromMText(const OxDbBlockTableRecord& record, const OxDbMText& text,
                                              block::BlockSymbol& symbol) const {
    auto element = std::make_unique<TylModel::Text>();
    block::ApplyTextStyle(*element, text.textStyle());
    element->SetHeight(Double2TylString(text.textHeight()));
    element->SetAngle(Int2TylString(block::WholeDegrees(text.rotation())));
    // From the top left corner to the middle of the extent.
    const OxGePoint3d location = text.location();
    element->SetPositionX(Double2TylString(location.x + text.actualWidth() * 0.5));
    element->SetPositionY(Double2TylString(location.y - text.actualHeight() * 0.5));
    // With its formatting codes, as it stands.
    element->SetContent(encoding::Quoted(text.contents()));
    element->SetTextColor(GetEntityColor(record, text, text.color(), symbol));
    symbol.Adopt(std::move(element));
}
