// Colour and line weight of an entity: outright, or as a parameter where a layer or an insert decides.
#include "StyleConversion/block/BlockConverter.h"
#include "StyleConversion/block/BlockSymbol.h"
#include "StyleConversion/block/Opened.h"

#include <string>
#include <string_view>

namespace {

// Line weights that are not widths.
constexpr int kWeightByLayer = -1;
constexpr int kWeightByBlock = -2;

// The fixed parts of a parameter that is named after a layer or a block.
struct IndirectParameter {
    std::wstring_view identifier;
    std::wstring_view displayName;
    int dataType;
};
constexpr IndirectParameter kColorByBlock{L"COLORBYBLOCK", L"Color Defined ByBlock ", block::kLineColorType};
constexpr IndirectParameter kColorByLayer{L"COLORBYLAYER", L"Color Defined ByLayer ", block::kLineColorType};
constexpr IndirectParameter kWeightOfBlock{L"LWBYBLOCK", L"Lineweight Defined ByBlock ",
                                           block::kLineWeightType};
constexpr IndirectParameter kWeightOfLayer{L"LWBYLAYER", L"Lineweight Defined ByLayer ",
                                           block::kLineWeightType};

// "%identifierNAME%".
std::wstring Reference(const IndirectParameter& kind, std::wstring_view name) {
    std::wstring reference;
    reference.reserve(kind.identifier.size() + name.size() + 2);
    reference += L'%';
    reference += kind.identifier;
    reference += name;
    reference += L'%';
    return reference;
}

// The same. Adds the parameter to the symbol where it has none of that identifier; one that it has keeps the
// default that it was given first.
std::wstring ReferToParameter(block::BlockSymbol& symbol, const IndirectParameter& kind,
                              std::wstring_view name, const std::wstring& defaultValue) {
    std::wstring reference = Reference(kind, name);
    const std::wstring_view identifier = std::wstring_view(reference).substr(1, reference.size() - 2);
    if (!symbol.HasParameter(identifier)) {
        const std::wstring displayName = std::wstring(kind.displayName).append(name);
        auto parameter = std::make_unique<TylModel::Parameter>();
        parameter->SetIdentifier(std::wstring(identifier));
        parameter->SetDisplayName(displayName);
        parameter->SetDescription(displayName);
        parameter->SetDefaultValue(defaultValue);
        block::SetDataType(*parameter, kind.dataType);
        symbol.Adopt(std::move(parameter));
    }
    return reference;
}

// The layer of that name, opened for reading; null when it is not found.
OxDbLayerTableRecord* OpenLayer(OxDbDatabase& database, const wchar_t* name) {
    block::Opened<OxDbLayerTable> table;
    OxDbLayerTableRecord* layer = nullptr;
    if (name == nullptr || !table.Accept(database.getSymbolTable(table.Receive(), host::kForRead)) ||
        table->getAt(name, layer, host::kForRead, false) != Oxsys::eOk) {
        return nullptr;
    }
    return layer;
}

// The entity's layer, looked up or known from an entity before; null when it is not found.
block::NamedLayer* ReadEntityLayer(OxDbDatabase& database, OxDbEntity& entity, block::BlockSymbol& symbol) {
    const block::LayerName name(entity);
    if (name.Get() == nullptr) {
        return nullptr;
    }
    block::NamedLayer& layer = symbol.LayerNamed(name.Get());
    if (!layer.isKnown) {
        block::Opened<OxDbLayerTableRecord> record;
        record.Receive() = OpenLayer(database, name.Get());
        if (record.Get() == nullptr) {
            return nullptr;
        }
        layer.color = record->color();
        layer.lineWeight = static_cast<int>(record->lineWeight());
        const wchar_t* spelling = nullptr;
        layer.isKnown = record->getName(spelling) == Oxsys::eOk && spelling != nullptr;
        if (layer.isKnown) {
            layer.record = spelling;
        }
    }
    return &layer;
}

// The name of the block; null when it cannot be read.
const wchar_t* NameOf(OxDbBlockTableRecord& record) {
    const wchar_t* name = nullptr;
    return record.getName(name) == Oxsys::eOk ? name : nullptr;
}

} // namespace

void BlockConverter::FindEntityLayer(OxDbEntity& entity, OxDbLayerTableRecord*& layer) const {
    const block::LayerName name(entity);
    layer = OpenLayer(*database_, name.Get());
}

std::wstring BlockConverter::GetEntityColor(OxDbBlockTableRecord& record, OxDbEntity& entity,
                                            const OxCmColor& color, block::BlockSymbol& symbol) const {
    OxCmColor resolved = color;
    if (resolved.isByBlock()) {
        resolved.setRGB(0, 0, 0);
        block::Opened<OxDbBlockReference> reference;
        if (block::OpenFirstReference(record, reference)) {
            resolved = reference->color();
            if (resolved.isByLayer()) {
                block::Opened<OxDbLayerTableRecord> layer;
                FindEntityLayer(*reference, layer.Receive());
                if (layer.Get() != nullptr) {
                    resolved = layer->color();
                }
            }
            reference.Close();
            if (const wchar_t* const name = NameOf(record)) {
                return ReferToParameter(symbol, kColorByBlock, name, Color2TylString(resolved));
            }
        }
    }
    // Required: R6
    if (resolved.isByLayer()) {
        resolved.setRGB(0, 0, 0);
        if (block::NamedLayer* const layer = ReadEntityLayer(*database_, entity, symbol)) {
            if (layer->hasColorParameter) {
                return Reference(kColorByLayer, layer->record);
            }
            resolved = *layer->color;
            if (layer->isKnown) {
                layer->hasColorParameter = true;
                return ReferToParameter(symbol, kColorByLayer, layer->record, Color2TylString(resolved));
            }
        }
    }
    return Color2TylString(resolved);
}

std::wstring BlockConverter::GetEntityLineweight(OxDbBlockTableRecord& record, OxDbEntity& entity,
                                                 block::BlockSymbol& symbol) const {
    int weight = static_cast<int>(entity.lineWeight());
    if (weight == kWeightByBlock) {
        block::Opened<OxDbBlockReference> reference;
        if (!block::OpenFirstReference(record, reference)) {
            // Required: R6
            return Lineweight2TylString(0);
        }
        weight = static_cast<int>(reference->lineWeight());
        if (weight == kWeightByLayer) {
            block::Opened<OxDbLayerTableRecord> layer;
            FindEntityLayer(*reference, layer.Receive());
            if (layer.Get() != nullptr) {
                weight = static_cast<int>(layer->lineWeight());
            }
        }
        reference.Close();
        if (const wchar_t* const name = NameOf(record)) {
            return ReferToParameter(symbol, kWeightOfBlock, name, Lineweight2TylString(weight));
        }
    }
    if (weight != kWeightByLayer) {
        return Lineweight2TylString(weight);
    }
    block::NamedLayer* const layer = ReadEntityLayer(*database_, entity, symbol);
    if (layer == nullptr) {
        return Lineweight2TylString(0);
    }
    if (layer->hasLineweightParameter) {
        return Reference(kWeightOfLayer, layer->record);
    }
    std::wstring text = Lineweight2TylString(layer->lineWeight);
    if (!layer->isKnown) {
        return text;
    }
    layer->hasLineweightParameter = true;
    return ReferToParameter(symbol, kWeightOfLayer, layer->record, text);
}
