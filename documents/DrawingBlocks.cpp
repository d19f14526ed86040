// Blocks of a drawing document, and the document as a whole.
#include "documents/DrawingBlocks.h"

#include "drawing/database/Database.h"

namespace documents {

BlockNode::BlockNode() {
    Bind("name", name_, kRequired);
    Bind("layout", layout_);
    Bind("anonymous", anonymous_);
    Bind("units", units_);
    Bind("basePoint", basePoint_);
    Bind("entities", entities_, kRequired);
    Bind("drawOrder", drawOrder_);
}

bool BlockNode::BeginObject(ReadState& state) {
    // The name may come behind the entities.
    block_.record = state.Target().MakeBlock();
    block_.ids.clear();
    if (state.Tolerated() != nullptr) {
        state.Tolerated()->BeginBlock();
    }
    return ObjectNode::BeginObject(state);
}

void BlockNode::Abandon(ReadState& state) {
    state.Target().Discard(std::move(block_.record));
    state.Tolerated()->EndBlock(Item());
}

bool BlockNode::Finish(ReadState& state) {
    if (Has(drawOrder_) && !SetDrawOrder(state)) {
        return false;
    }
    const drawing::BlockData data = {layout_.Value(), anonymous_.Value(),
                                     static_cast<OxDb::UnitsValue>(units_.Value()), basePoint_.Point3d()};
    if (state.Target().AddBlock(name_.Value(), data, std::move(block_.record)) == nullptr) {
        return RefuseName(state, "block", name_.Value());
    }
    if (state.Tolerated() != nullptr) {
        state.Tolerated()->EndBlock(Item());
    }
    return true;
}

bool BlockNode::SetDrawOrder(ReadState& state) {
    std::vector<OxDbObjectId> order;
    const std::vector<std::string>& ids = drawOrder_.Values();
    order.reserve(ids.size());
    for (std::size_t i = 0; i < ids.size(); ++i) {
        if (const auto entity = block_.ids.find(ids[i]); entity != block_.ids.end()) {
            order.push_back(entity->second);
        } else if (!state.RefuseSpare(diagnostics::Code::kInvalidValue,
                                      {"the id of an entity of the block", Shown(ids[i])},
                                      ".drawOrder[" + std::to_string(i) + "]", "the id")) {
            return false;
        }
    }
    block_.record->SetDrawOrder(std::move(order));
    return true;
}

DrawingNode::DrawingNode() {
    Bind("format", format_, kRequired);
    Bind("version", version_, kRequired);
    Bind("insunits", insunits_);
    Bind("linetypeScale", linetypeScale_);
    Bind("metric", metric_);
    Bind("layers", layers_);
    Bind("linetypes", linetypes_);
    Bind("textStyles", textStyles_);
    Bind("blocks", blocks_);
}

bool DrawingNode::EndCut(ReadState& state) {
    return Has(format_) && Has(version_) && Finish(state);
}

bool DrawingNode::Finish(ReadState& state) {
    state.Target().SetInsunits(static_cast<OxDb::UnitsValue>(insunits_.Value()));
    state.Target().SetLinetypeScale(linetypeScale_.Value());
    if (Has(metric_)) {
        state.Target().SetMetric(metric_.Value());
    }
    return true;
}

} // namespace documents
