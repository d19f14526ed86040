// Blocks of a drawing document, and the document as a whole.
#pragma once

#include "documents/DrawingEntity.h"
#include "documents/DrawingTables.h"

namespace documents {

/// A unit code: beyond those that are known, any, which scales nothing.
class UnitsNode : public IntegerNode {
public:
    UnitsNode() : IntegerNode(0, 0) {}
};

class BlockNode : public ObjectNode {
public:
    BlockNode();
    bool BeginObject(ReadState& state) override;
    std::string_view Part() const override { return "block"; }
    std::string Item() const override { return ItemText("block", name_.Value()); }
    void Abandon(ReadState& state) override;

protected:
    bool Finish(ReadState& state) override;

private:
    bool SetDrawOrder(ReadState& state);

    BlockInReading block_;
    TextNode name_;
    BooleanNode layout_;
    BooleanNode anonymous_;
    UnitsNode units_;
    PointNode basePoint_;
    ListNode<EntityNode> entities_{block_};
    WordsNode drawOrder_;
};

class DrawingNode : public ObjectNode {
public:
    DrawingNode();
    /// Ends a document that was cut short; false when it is not known to be a drawing.
    bool EndCut(ReadState& state);

protected:
    bool Finish(ReadState& state) override;

private:
    FixedTextNode format_{"styleconversion/drawing"};
    IntegerNode version_{1, 1, 1};
    UnitsNode insunits_;
    ScaleNode linetypeScale_;
    BooleanNode metric_;
    ListNode<LayerNode> layers_;
    ListNode<LinetypeNode> linetypes_;
    ListNode<TextStyleNode> textStyles_;
    ListNode<BlockNode> blocks_;
};

} // namespace documents
