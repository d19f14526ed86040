// Texts of one line, and attribute definitions, which become parameters as well.
#include "OxDb/OxDbText.h"
#include "StyleConversion/block/BlockConverter.h"
#include "StyleConversion/block/BlockSymbol.h"
#include "StyleConversion/block/TextStyle.h"
#include "StyleConversion/encoding/ValueForms.h"

#include <memory>

namespace {

// Modes without an entry leave the alignment unset.
void SetAlignment(TylModel::Text& element, const OxDbText& text) {
    if (text.horizontalMode() == OxDb::kTextLeft) {
        element.SetHorizontalAlignment(L"'Left'");
    } else if (text.horizontalMode() == OxDb::kTextRight) {
        element.SetHorizontalAlignment(L"'Right'");
    }
    switch (text.verticalMode()) {
    case OxDb::kTextBase:
        element.SetVerticalAlignment(L"'Baseline'");
        break;
    case OxDb::kTextBottom:
        element.SetVerticalAlignment(L"'Bottom'");
        break;
    case OxDb::kTextTop:
        element.SetVerticalAlignment(L"'Top'");
        break;
    default:
        break;
    }
}

std::unique_ptr<TylModel::Parameter> AttributeParameter(const OxDbAttributeDefinition& attribute) {
    auto parameter = std::make_unique<TylModel::Parameter>();
    parameter->SetIdentifier(attribute.tagConst());
    parameter->SetDisplayName(attribute.promptConst());
    parameter->SetDescription(attribute.promptConst());
    parameter->SetDefaultValue(encoding::Quoted(attribute.textStringConst()));
    parameter->SetDataType(TylModel::Parameter::kText);
    return parameter;
}

} // namespace

void BlockConverter::CollectGeometryFromText(const OxDbBlockTableRecord& record, const OxDbText& text,
                                             block::BlockSymbol& symbol) const {
    auto element = std::make_unique<TylModel::Text>();
    block::ApplyTextStyle(*element, text.textStyle());
    element->SetHeight(Double2TylString(text.height()));
    element->SetAngle(Int2TylString(block::WholeDegrees(text.rotation())));
    const OxGePoint3d position = text.position();
    element->SetPositionX(Double2TylString(position.x));
    element->SetPositionY(Double2TylString(position.y));
    SetAlignment(*element, text);
    if (text.isKindOf(OxDbAttributeDefinition::desc())) {
        const auto& attribute = static_cast<const OxDbAttributeDefinition&>(text);
        // Two attributes of one tag give two parameters: that is wanted so.
        symbol.Adopt(AttributeParameter(attribute));
        element->SetContent(encoding::ParameterReference(attribute.tagConst()));
    } else {
        element->SetContent(encoding::Quoted(text.textStringConst()));
    }
    element->SetTextColor(GetEntityColor(record, text, text.color(), symbol));
    symbol.Adopt(std::move(element));
}
