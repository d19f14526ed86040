// The colour of an entity: outright, or as a parameter where a layer or an insert decides.
#include "StyleConversion/block/BlockConverter.h"

#include "OxDb/OxCmColor.h"
#include "OxDb/OxDbBlockTable.h"
#include "OxDb/OxDbLayerTable.h"
#include "StyleConversion/block/FirstReference.h"
#include "StyleConversion/block/IndirectParameter.h"
#include "StyleConversion/block/Opened.h"

namespace {

constexpr block::IndirectParameter kColorByBlock{L"COLORBYBLOCK", L"Color Defined ByBlock ",
                                                 TylModel::Parameter::kLineColor};
constexpr block::IndirectParameter kColorByLayer{L"COLORBYLAYER", L"Color Defined ByLayer ",
                                                 TylModel::Parameter::kLineColor};

} // namespace

std::wstring BlockConverter::GetEntityColor(const OxDbBlockTableRecord& record, const OxDbEntity& entity,
                                            const OxCmColor& color, block::BlockSymbol& symbol) const {
    OxCmColor resolved = color;
    const auto text = [&] { return Color2TylString(resolved); };

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
            const wchar_t* blockName = nullptr;
            if (record.getName(blockName) == Oxsys::eOk && blockName != nullptr) {
                return block::ReferToParameter(symbol, kColorByBlock, blockName, text);
            }
        }
    }
    // A by-block colour that could not be settled is tested here once more: the output is wanted so.
    if (resolved.isByLayer()) {
        resolved.setRGB(0, 0, 0);
        if (block::NamedLayer* const layer = ReadEntityLayer(entity, symbol)) {
            if (layer->hasColorParameter) {
                return block::Reference(kColorByLayer, layer->record);
            }
            resolved = layer->color;
            if (layer->isKnown) {
                layer->hasColorParameter = true;
                return block::ReferToParameter(symbol, kColorByLayer, layer->record, text);
            }
        }
    }
    return text();
}
