// The tables of a DXF file.
#include "exchange/DxfTables.h"

#include "StyleConversion/platform/Characters.h"
#include "diagnostics/ShownText.h"
#include "exchange/DxfAngles.h"
#include "exchange/DxfEntities.h"

#include <algorithm>

namespace exchange {
namespace {

// Group code 70 of a style: it stands for a file of shapes, and has no name; its texts run downwards.
constexpr std::int32_t kShapeFile = 1;
constexpr std::int32_t kVertical = 4;
// Group code 74 of a dash: what it carries.
constexpr std::int32_t kText = 2;
constexpr std::int32_t kShape = 4;
// Group code 1071 of a style's extended data.
constexpr std::int32_t kItalic = 0x01000000;
constexpr std::int32_t kBold = 0x02000000;

// Group code 70 of a layer.
constexpr std::int32_t kFrozen = 1;

constexpr std::uint8_t kColorOfLayers = 7; // colour of a layer that has none

} // namespace

std::string FoldedName(std::string_view name) {
    std::string folded(name);
    std::transform(folded.begin(), folded.end(), folded.begin(),
                   [](char c) { return platform::AsciiLower(c); });
    return folded;
}

void DxfTableReader::Take(const DxfRecord& record) {
    if (record.type == "LAYER") {
        TakeLayer(record);
    } else if (record.type == "STYLE") {
        TakeStyle(record);
    } else if (record.type == "LTYPE") {
        linetypes_.emplace_back(record);
    } else if (record.type == "BLOCK_RECORD") {
        TakeBlockRecord(record);
    }
    notes_.RepairInvalid({record.place, {}}, record);
}

void DxfTableReader::TakeLayer(const DxfRecord& record) {
    OxCmColor white;
    white.setColorIndex(kColorOfLayers);
    const std::wstring name = texts_.Decode(record.Word(2));
    const auto weight =
        static_cast<OxDb::LineWeight>(record.Integer(370, OxDb::kLnWtByLwDefault, kLineWeights));
    drawing::LayerRecord* const layer = database_.AddLayer(name, ReadColor(record, white), weight);
    if (layer != nullptr) {
        const std::string_view linetype = record.Word(6);
        if (!linetype.empty() && FoldedName(linetype) != "continuous") {
            layer->SetLinetype(texts_.Decode(linetype));
        }
        const bool isFrozen = (record.Integer(70, 0) & kFrozen) != 0;
        const bool isOff = record.Integer(62, 0) < 0;
        layer->SetState(isFrozen ? drawing::LayerState::kFrozen
                        : isOff  ? drawing::LayerState::kOff
                                 : drawing::LayerState::kShown);
    } else {
        notes_.Repair({record.place, {}}, diagnostics::Code::kDuplicateEntry,
                      {"layer", diagnostics::ShownText(name)});
    }
}

void DxfTableReader::TakeStyle(const DxfRecord& record) {
    const std::int32_t flags = record.Integer(70, 0);
    drawing::TextStyleData style;
    style.fileName = texts_.Decode(record.Word(3));
    style.bigFontFileName = texts_.Decode(record.Word(4));
    style.isShapeFile = (flags & kShapeFile) != 0;
    style.isVertical = (flags & kVertical) != 0;
    style.textSize = record.Number(40, 0.0);
    style.xScale = record.Number(41, 1.0);
    style.obliquingAngle = Radians(record.Number(50, 0.0));
    style.flagBits = record.Integer(71, 0);
    style.typeface = texts_.Decode(record.Word(1000));
    const std::int32_t font = record.Integer(1071, 0);
    style.italic = (font & kItalic) != 0;
    style.bold = (font & kBold) != 0;
    std::wstring name = texts_.Decode(record.Word(2));
    if (name.empty()) { // linetypes refer to it by its handle
        name = style.fileName;
    }
    if (const DxfPair* const handle = record.Find(5)) {
        styles_[handle->Handle()] = name;
    }
    if (database_.AddTextStyle(name, std::move(style)) == nullptr) {
        notes_.Repair({record.place, {}}, diagnostics::Code::kDuplicateEntry,
                      {"text style", diagnostics::ShownText(name)});
    }
}

void DxfTableReader::TakeBlockRecord(const DxfRecord& record) {
    const DxfPair* const handle = record.Find(5);
    DxfBlockProperties properties;
    properties.handle = handle != nullptr ? handle->Handle() : 0;
    properties.units = static_cast<OxDb::UnitsValue>(record.Integer(70, 0, {0}));
    blocks_.emplace(FoldedName(record.Word(2)), properties);
}

std::wstring DxfTableReader::StyleOf(const DxfPair& handle) const {
    const auto style = styles_.find(handle.Handle());
    return style != styles_.end() ? style->second : std::wstring();
}

void DxfTableReader::Finish() {
    for (const DxfKeptRecord& record : linetypes_) {
        AddLinetype(record.Get());
    }
    linetypes_.clear();
}

void DxfTableReader::AddLinetype(const DxfRecord& record) {
    std::vector<drawing::Dash> dashes;
    bool carriesText = false;
    for (const DxfPair& pair : record.pairs) {
        if (pair.code == 49) {
            dashes.emplace_back();
            dashes.back().length = record.NumberOf(pair, 0.0);
            carriesText = false;
            continue;
        }
        if (dashes.empty()) {
            continue;
        }
        drawing::Dash& dash = dashes.back();
        switch (pair.code) {
        case 74:
            carriesText = (record.IntegerOf(pair, 0) & (kText | kShape)) == kText;
            break;
        case 75:
            dash.shapeNumber = carriesText ? 0 : record.IntegerOf(pair, 0);
            break;
        case 340:
            dash.shapeStyle = StyleOf(pair);
            break;
        case 46:
            dash.scale = record.NumberOf(pair, 1.0);
            break;
        case 50:
            dash.rotation = Radians(record.NumberOf(pair, 0.0));
            break;
        case 44:
            dash.offset.x = record.NumberOf(pair, 0.0);
            break;
        case 45:
            dash.offset.y = record.NumberOf(pair, 0.0);
            break;
        case 9:
            dash.text = texts_.Decode(pair.value);
            break;
        default:
            break;
        }
    }
    const std::wstring name = texts_.Decode(record.Word(2));
    const DxfPair* const length = record.Find(40);
    const std::optional<double> patternLength =
        length != nullptr ? std::optional(record.NumberOf(*length, 0.0)) : std::nullopt;
    if (notes_.LoseInvalid({record.place, {}}, record)) {
        return;
    }
    if (database_.AddLinetype(name, std::move(dashes), patternLength) == nullptr) {
        notes_.Repair({record.place, {}}, diagnostics::Code::kDuplicateEntry,
                      {"linetype", diagnostics::ShownText(name)});
    }
}

} // namespace exchange
