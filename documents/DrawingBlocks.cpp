// Blocks of a drawing document, and the document as a whole.
#include "documents/DrawingBlocks.h"

#include "drawing/Database.h"

namespace documents {

BlockNode::BlockNode() {
    Bind("name", name_, kRequired);
    Bind("layout", layout_);
    Bind("anonymous", anonymous_);
    Bind("units", units_);
    Bind("entities", entities_, kRequired);
    Bind("drawOrder", drawOrder_);
}

bool BlockNode::BeginObject(ReadState& state) {
    // The name may come behind the entities.
    block_.record = state.Target().MakeBlock();
    block_.ids.clear();
    return ObjectNode::BeginObject(state);
}

bool BlockNode::Finish(ReadState& state) {
    if (Has(drawOrder_) && !SetDrawOrder(state)) {
        return false;
    }
    const drawing::BlockData data = {layout_.Value(), anonymous_.Value(),
                                     static_cast<OxDb::UnitsValue>(units_.Value())};
    return state.Target().AddBlock(name_.Value(), data, std::move(block_.record)) != nullptr ||
           RefuseName(state, "block", name_.Value());
}

bool BlockNode::SetDrawOrder(ReadState& state) {
    std::vector<OxDbObjectId> order;
    order.reserve(drawOrder_.Values().size());
    for (const std::string& id : drawOrder_.Values()) {
        const auto entity = block_.ids.find(id);
        if (entity == block_.ids.end()) {
            return state.Refuse("expected the id of an entity of the block, found " + Shown(id),
                                ".drawOrder[" + std::to_string(order.size()) + "]");
        }
        order.push_back(entity->second);
    }
    block_.record->SetDrawOrder(std::move(order));
    return true;
}

DrawingNode::DrawingNode() {
    Bind("format", format_, kRequired);
    Bind("version", version_, kRequired);
    Bind("insunits", insunits_);
    Bind("layers", layers_);
    Bind("linetypes", linetypes_);
    Bind("textStyles", textStyles_);
    Bind("blocks", blocks_);
}

bool DrawingNode::Finish(ReadState& state) {
    state.Target().SetInsunits(static_cast<OxDb::UnitsValue>(insunits_.Value()));
    return true;
}

} // namespace documents
