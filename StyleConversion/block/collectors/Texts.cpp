// Texts of one line, attribute definitions, which become parameters as well, and texts of paragraphs.
#include "StyleConversion/block/Angles.h"
#include "StyleConversion/block/BlockConverter.h"
#include "StyleConversion/block/BlockSymbol.h"
#include "StyleConversion/block/Opened.h"
#include "StyleConversion/encoding/IntegerConversion.h"
#include "StyleConversion/encoding/ValueForms.h"

#include <memory>

namespace {

// What a text's modes answer.
constexpr int kLeft = 0;
constexpr int kRight = 2;
constexpr int kBase = 0;
constexpr int kBottom = 1;
constexpr int kTop = 3;

// The font name, and bold and italic where the style is so. Nothing is set when the style is null or cannot
// be read; the font name is empty for a style that uses a shape file.
void ApplyTextStyle(TylModel::Text& element, OxDbObjectId styleId) {
    block::Opened<OxDbTextStyleTableRecord> style;
    if (host::IsNull(styleId) || !style.Open(styleId)) {
        return;
    }
    block::HandedOutText typeface;
    bool bold = false;
    bool italic = false;
    if (host::ReadFont(*style, typeface.Receive(), bold, italic) != Oxsys::eOk || typeface.Get() == nullptr) {
        return;
    }
    element.SetFontName(std::wstring(typeface.Get()));
    if (bold) {
        element.SetBold(encoding::BooleanString(true));
    }
    if (italic) {
        element.SetItalic(encoding::BooleanString(true));
    }
}

int WholeDegrees(double radians) {
    // Required: R18
    return encoding::ToInt32(radians * 180.0 / block::kPi + 0.5);
}

// Modes without an entry leave the alignment unset.
void SetAlignment(TylModel::Text& element, OxDbText& text) {
    const auto horizontal = static_cast<int>(text.horizontalMode());
    if (horizontal == kLeft) {
        element.SetHorizontalAlignment(std::wstring(L"'Left'"));
    } else if (horizontal == kRight) {
        element.SetHorizontalAlignment(std::wstring(L"'Right'"));
    }
    switch (static_cast<int>(text.verticalMode())) {
    case kBase:
        element.SetVerticalAlignment(std::wstring(L"'Baseline'"));
        break;
    case kBottom:
        element.SetVerticalAlignment(std::wstring(L"'Bottom'"));
        break;
    case kTop:
        element.SetVerticalAlignment(std::wstring(L"'Top'"));
        break;
    default:
        break;
    }
}

std::unique_ptr<TylModel::Parameter> AttributeParameter(OxDbAttributeDefinition& attribute) {
    auto parameter = std::make_unique<TylModel::Parameter>();
    parameter->SetIdentifier(host::TextOf(attribute.tagConst()));
    parameter->SetDisplayName(host::TextOf(attribute.promptConst()));
    parameter->SetDescription(host::TextOf(attribute.promptConst()));
    parameter->SetDefaultValue(encoding::Quoted(host::TextOf(attribute.textStringConst())));
    block::SetDataType(*parameter, block::kTextType);
    return parameter;
}

} // namespace

void BlockConverter::CollectGeometryFromText(OxDbBlockTableRecord& record, OxDbText& text,
                                             block::BlockSymbol& symbol) const {
    auto element = std::make_unique<TylModel::Text>();
    ApplyTextStyle(*element, text.textStyle());
    element->SetHeight(Double2TylString(text.height()));
    element->SetAngle(Int2TylString(WholeDegrees(text.rotation())));
    const OxGePoint3d position = text.position();
    element->SetPositionX(Double2TylString(position.x));
    element->SetPositionY(Double2TylString(position.y));
    SetAlignment(*element, text);
    if (text.isKindOf(OxDbAttributeDefinition::desc())) {
        auto& attribute = host::As<OxDbAttributeDefinition>(text);
        // Required: R19
        symbol.Adopt(AttributeParameter(attribute));
        element->SetContent(encoding::ParameterReference(host::TextOf(attribute.tagConst())));
    } else {
        // Required: R21
        element->SetContent(encoding::Quoted(host::TextOf(text.textStringConst())));
    }
    element->SetTextColor(GetEntityColor(record, text, text.color(), symbol));
    symbol.Adopt(std::move(element));
}

void BlockConverter::CollectGeometryFromMText(OxDbBlockTableRecord& record, OxDbMText& text,
                                              block::BlockSymbol& symbol) const {
    auto element = std::make_unique<TylModel::Text>();
    ApplyTextStyle(*element, text.textStyle());
    element->SetHeight(Double2TylString(text.textHeight()));
    element->SetAngle(Int2TylString(WholeDegrees(text.rotation())));
    // From the top left corner to the middle of the extent.
    const OxGePoint3d location = text.location();
    element->SetPositionX(Double2TylString(location.x + text.actualWidth() * 0.5));
    element->SetPositionY(Double2TylString(location.y - text.actualHeight() * 0.5));
    // With its formatting codes, as it stands.
    // Required: R21
    element->SetContent(encoding::Quoted(host::TextOf(text.contents())));
    element->SetTextColor(GetEntityColor(record, text, text.color(), symbol));
    symbol.Adopt(std::move(element));
}
