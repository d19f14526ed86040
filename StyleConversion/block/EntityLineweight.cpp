// The line weight of an entity: outright, or as a parameter where a layer or an insert decides.
#include "StyleConversion/block/BlockConverter.h"

#include "OxDb/OxDbBlockTable.h"
#include "OxDb/OxDbLayerTable.h"
#include "StyleConversion/block/FirstReference.h"
#include "StyleConversion/block/IndirectParameter.h"
#include "StyleConversion/block/Opened.h"

namespace {

constexpr block::IndirectParameter kLineweightByBlock{L"LWBYBLOCK", L"Lineweight Defined ByBlock ",
                                                      TylModel::Parameter::kLineWeight};
constexpr block::IndirectParameter kLineweightByLayer{L"LWBYLAYER", L"Lineweight Defined ByLayer ",
                                                      TylModel::Parameter::kLineWeight};

} // namespace

std::wstring BlockConverter::GetEntityLineweight(const OxDbBlockTableRecord& record, const OxDbEntity& entity,
                                                 block::BlockSymbol& symbol) const {
    OxDb::LineWeight weight = entity.lineWeight();
    const auto text = [&] { return Lineweight2TylString(weight); };

    if (weight == OxDb::kLnWtByBlock) {
        block::Opened<OxDbBlockReference> reference;
        // Unlike a colour, a line weight by block is not tried by layer without a reference.
        if (!block::OpenFirstReference(record, reference)) {
            return Lineweight2TylString(OxDb::kLnWt000);
        }
        weight = reference->lineWeight();
        if (weight == OxDb::kLnWtByLayer) {
            block::Opened<OxDbLayerTableRecord> layer;
            FindEntityLayer(*reference, layer.Receive());
            if (layer.Get() != nullptr) {
                weight = layer->lineWeight();
            }
        }
        reference.Close();
        const wchar_t* blockName = nullptr;
        if (record.getName(blockName) == Oxsys::eOk && blockName != nullptr) {
            return block::ReferToParameter(symbol, kLineweightByBlock, blockName, text);
        }
    }
    if (weight != OxDb::kLnWtByLayer) {
        return text();
    }
    block::NamedLayer* const layer = ReadEntityLayer(entity, symbol);
    if (layer == nullptr) {
        return Lineweight2TylString(OxDb::kLnWt000);
    }
    if (layer->hasLineweightParameter) {
        return block::Reference(kLineweightByLayer, layer->record);
    }
    weight = layer->lineWeight;
    if (!layer->isKnown) {
        return text();
    }
    layer->hasLineweightParameter = true;
    return block::ReferToParameter(symbol, kLineweightByLayer, layer->record, text);
}
