// Entities of a drawing document.
#pragma once

#include "documents/DrawingLoops.h"
#include "documents/DrawingSplines.h"
#include "drawing/database/BlockReference.h"
#include "drawing/database/Blocks.h"
#include "drawing/entities/Texts.h"
#include "drawing/entities/WideSegments.h"

#include <string>
#include <unordered_map>

namespace documents {

/// [start, end]...
class WidthsNode : public TuplesNode<drawing::SegmentWidth> {
public:
    WidthsNode() : TuplesNode(2, 2, "widths [start, end]") {}

protected:
    drawing::SegmentWidth Make(const TupleNode& tuple) override { return {tuple[0], tuple[1]}; }
};

/// The block that is being read.
struct BlockInReading {
    std::unique_ptr<drawing::BlockRecord> record;
    std::unordered_map<std::string, OxDbObjectId> ids; // of the entities that have one
};

/// An attribute of an insert: a text; added to a list.
class AttributeNode : public ObjectNode {
public:
    struct Attribute {
        drawing::EntityProperties properties;
        drawing::TextData data;
    };

    explicit AttributeNode(std::vector<Attribute>& attributes);

protected:
    bool Finish(ReadState& state) override;

private:
    std::vector<Attribute>& attributes_;
    TextNode layer_{L"0"};
    ColorNode color_{ByLayerColor()};
    IntegerNode lineWeight_{OxDb::kLnWtByLayer};
    TextNode linetype_{L"ByLayer"};
    BooleanNode hidden_;
    ScaleNode linetypeScale_;
    PointNode position_;
    NumberNode height_;
    TextNode text_;
    NumberNode rotation_;
    TextNode style_{L"STANDARD"};
    IntegerNode horizontalMode_;
    IntegerNode verticalMode_;
    PointNode alignmentPoint_;
};

/// One entity of any type; added to a block.
class EntityNode : public ObjectNode {
public:
    explicit EntityNode(BlockInReading& block);
    std::string_view Part() const override { return "entity"; }
    void Reset() override;

protected:
    bool Finish(ReadState& state) override;

private:
    void BindGeometry();
    void BindAreasAndTexts();
    void AddTypes();

    drawing::EntityProperties Properties() const;
    drawing::InsertPlace Place() const;
    template <class T, class... Args>
    bool Add(ReadState& state, Args&&... args);
    bool AddPolyline(ReadState& state);
    bool AddOther(ReadState& state);
    bool AddCurve(ReadState& state);
    bool AddText(ReadState& state);
    bool AddSpline(ReadState& state);
    bool AddHatch(ReadState& state);
    bool AddMPolygon(ReadState& state);

    BlockInReading& block_;

    WordNode id_;
    TextNode layer_{L"0"};
    ColorNode color_{ByLayerColor()};
    IntegerNode lineWeight_{OxDb::kLnWtByLayer};
    TextNode linetype_{L"ByLayer"};
    BooleanNode hidden_;
    ScaleNode linetypeScale_;

    PointNode position_;
    PointNode start_;
    PointNode end_;
    PointNode center_;
    NumberNode radius_;
    NumberNode startAngle_;
    NumberNode endAngle_;
    PointNode normal_{nullptr, {0.0, 0.0, 1.0}};
    PointNode majorAxis_;
    NumberNode radiusRatio_;

    SplineKeys spline_;
    VerticesNode vertices_;
    BooleanNode plinegen_;
    WidthsNode widths_;

    BooleanNode solid_;
    LoopsNode loops_;
    PatternNode pattern_;
    HatchLinesNode hatchLines_;
    ColorNode fillColor_{ByLayerColor()};

    NumberNode height_;
    NumberNode rotation_;
    TextNode text_;
    TextNode style_{L"STANDARD"};
    IntegerNode horizontalMode_;
    IntegerNode verticalMode_;
    PointNode alignmentPoint_;
    TextNode tag_;
    TextNode prompt_;
    PointNode location_;
    NumberNode textHeight_;
    TextNode contents_;
    NumberNode actualWidth_;
    NumberNode actualHeight_;
    IntegerNode attachment_{1, 1, 9};

    TextNode insertedBlock_;
    TupleNode scale_{2, 2, "factors [x, y]", nullptr, {1.0, 1.0}};
    BooleanNode mirrored_;
    IntegerNode columns_{1};
    IntegerNode rows_{1};
    NumberNode columnSpacing_;
    NumberNode rowSpacing_;
    std::vector<AttributeNode::Attribute> attributes_;
    ListNode<AttributeNode> attributesNode_{attributes_};
    TextNode className_;
    PointsNode corners_;
    PointsNode path_;
};

} // namespace documents
