// Texts of one line, attribute definitions, which become parameters as well, and texts of paragraphs.
#include "StyleConversion/block/Angles.h"
#include "StyleConversion/block/BlockConverter.h"
#include "StyleConversion/block/BlockSymbol.h"
#include "StyleConversion/block/Faithful.h"
#include "StyleConversion/block/Opened.h"
#include "StyleConversion/block/ParagraphText.h"
#include "StyleConversion/block/TextPlaces.h"
#include "StyleConversion/encoding/ControlCodes.h"
#include "StyleConversion/encoding/IntegerConversion.h"
#include "StyleConversion/encoding/TrimmedNumber.h"
#include "StyleConversion/encoding/ValueForms.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <vector>

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

// In degrees.
std::wstring TextAngle(double radians) {
    return block::IsFaithful() ? encoding::Double2TrimmedString(radians * 180.0 / block::kPi)
                               : encoding::IntegerString(WholeDegrees(radians));
}

// Left, the middle (which is what is meant where nothing is set) or right, on the base line.
void AlignLine(TylModel::Text& element, int column) {
    if (column == kLeft) {
        element.SetHorizontalAlignment(std::wstring(L"'Left'"));
    } else if (column == kRight) {
        element.SetHorizontalAlignment(std::wstring(L"'Right'"));
    }
    element.SetVerticalAlignment(std::wstring(L"'Baseline'"));
}

// At the point that the text is aligned to; where that is not known, or the text is fitted between two, at
// the left end of its base line. Returns where it stands.
OxGePoint3d AlignExactly(TylModel::Text& element, OxDbText& text) {
    constexpr int kMiddle = 4;
    const auto horizontal = static_cast<int>(text.horizontalMode());
    const auto vertical = static_cast<int>(text.verticalMode());
    const bool isPlain = horizontal == kLeft && vertical == kBase;
    bool isKnown = false;
    const OxGePoint3d point = block::AlignmentPointOf(text, isKnown);
    const bool isAligned = horizontal <= kRight || horizontal == kMiddle;
    if (!isKnown || isPlain || !isAligned) {
        AlignLine(element, kLeft);
        return text.position();
    }
    AlignLine(element, horizontal);
    if (horizontal == kMiddle) {
        element.SetVerticalAlignment(std::wstring());
    } else if (vertical != kBase) {
        element.SetVerticalAlignment(vertical == kTop      ? std::wstring(L"'Top'")
                                     : vertical == kBottom ? std::wstring(L"'Bottom'")
                                                           : std::wstring());
    }
    return point;
}

// The characters of a text without its control codes, over- and underlined where all of them are.
void SetDecoded(TylModel::Text& element, const std::wstring& text) {
    const encoding::DecodedText decoded = encoding::DecodeControlCodes(text, true);
    element.SetContent(encoding::QuotedSafely(decoded.characters));
    if (!decoded.characters.empty() && decoded.underlined) {
        element.SetUnderlined(encoding::BooleanString(true));
    }
    if (!decoded.characters.empty() && decoded.overlined) {
        element.SetOverlined(encoding::BooleanString(true));
    }
}

std::unique_ptr<TylModel::Parameter> AttributeParameter(OxDbAttributeDefinition& attribute) {
    auto parameter = std::make_unique<TylModel::Parameter>();
    parameter->SetIdentifier(host::TextOf(attribute.tagConst()));
    parameter->SetDisplayName(host::TextOf(attribute.promptConst()));
    parameter->SetDescription(host::TextOf(attribute.promptConst()));
    const std::wstring value = host::TextOf(attribute.textStringConst());
    parameter->SetDefaultValue(
        block::IsFaithful() ? encoding::QuotedSafely(encoding::DecodeControlCodes(value, true).characters)
                            : encoding::Quoted(value));
    block::SetDataType(*parameter, block::kTextType);
    return parameter;
}

} // namespace

void BlockConverter::CollectGeometryFromText(OxDbBlockTableRecord& record, OxDbText& text,
                                             block::BlockSymbol& symbol) const {
    auto element = std::make_unique<TylModel::Text>();
    ApplyTextStyle(*element, text.textStyle());
    element->SetHeight(Double2TylString(text.height()));
    element->SetAngle(TextAngle(text.rotation()));
    const OxGePoint3d position = block::IsFaithful() ? AlignExactly(*element, text) : text.position();
    element->SetPositionX(Double2TylString(position.x));
    element->SetPositionY(Double2TylString(position.y));
    if (!block::IsFaithful()) {
        SetAlignment(*element, text);
    }
    if (text.isKindOf(OxDbAttributeDefinition::desc())) {
        auto& attribute = host::As<OxDbAttributeDefinition>(text);
        // Required: R19
        symbol.Adopt(AttributeParameter(attribute));
        element->SetContent(encoding::ParameterReference(host::TextOf(attribute.tagConst())));
    } else if (block::IsFaithful()) {
        SetDecoded(*element, host::TextOf(text.textStringConst()));
    } else {
        // Required: R21
        element->SetContent(encoding::Quoted(host::TextOf(text.textStringConst())));
    }
    element->SetTextColor(GetEntityColor(record, text, text.color(), symbol));
    symbol.Adopt(std::move(element));
}

void BlockConverter::CollectGeometryFromMText(OxDbBlockTableRecord& record, OxDbMText& text,
                                              block::BlockSymbol& symbol) const {
    if (block::IsFaithful()) {
        CollectLinesFromMText(record, text, symbol);
        return;
    }
    auto element = std::make_unique<TylModel::Text>();
    ApplyTextStyle(*element, text.textStyle());
    element->SetHeight(Double2TylString(text.textHeight()));
    element->SetAngle(TextAngle(text.rotation()));
    // From the top left corner to the middle of the extent.
    // Required: R39
    const OxGePoint3d location = text.location();
    element->SetPositionX(Double2TylString(location.x + text.actualWidth() * 0.5));
    element->SetPositionY(Double2TylString(location.y - text.actualHeight() * 0.5));
    // With its formatting codes, as it stands.
    // Required: R21
    element->SetContent(encoding::Quoted(host::TextOf(text.contents())));
    element->SetTextColor(GetEntityColor(record, text, text.color(), symbol));
    symbol.Adopt(std::move(element));
}

// A text for each line, on a base line of its own, at the left, the middle or the right of the location.
void BlockConverter::CollectLinesFromMText(OxDbBlockTableRecord& record, OxDbMText& text,
                                           block::BlockSymbol& symbol) const {
    constexpr double kLineSpacing = 5.0 / 3.0; // of single-spaced lines, in heights
    const std::vector<std::wstring> lines = block::LinesOf(host::TextOf(text.contents()));
    const double height = text.textHeight();
    const double extent = height * (1.0 + kLineSpacing * (static_cast<double>(lines.size()) - 1.0));
    const int attachment = std::clamp(block::AttachmentOf(text), 1, 9) - 1;
    const int column = attachment % 3;
    const int row = attachment / 3;
    const OxGePoint3d location = text.location();
    const double cosine = std::cos(text.rotation());
    const double sine = std::sin(text.rotation());
    const std::wstring color = GetEntityColor(record, text, text.color(), symbol);
    double above = extent * row * 0.5 - height;
    for (const std::wstring& line : lines) {
        auto element = std::make_unique<TylModel::Text>();
        ApplyTextStyle(*element, text.textStyle());
        element->SetHeight(Double2TylString(height));
        element->SetAngle(TextAngle(text.rotation()));
        element->SetPositionX(Double2TylString(location.x - sine * above));
        element->SetPositionY(Double2TylString(location.y + cosine * above));
        AlignLine(*element, column);
        element->SetContent(encoding::QuotedSafely(line));
        element->SetTextColor(color);
        if (!line.empty()) {
            symbol.Adopt(std::move(element));
        }
        above -= height * kLineSpacing;
    }
}
