// Entities of a drawing document.
#pragma once

#include "documents/DrawingLoops.h"
#include "documents/DrawingSplines.h"
#include "drawing/database/Blocks.h"

#include <string>
#include <unordered_map>

namespace documents {

/// The block that is being read.
struct BlockInReading {
    std::unique_ptr<drawing::BlockRecord> record;
    std::unordered_map<std::string, OxDbObjectId> ids; // of the entities that have one
};

/// One entity of any type; added to a block.
class EntityNode : public ObjectNode {
public:
    explicit EntityNode(BlockInReading& block);
    std::string_view Part() const override { return "entity"; }

protected:
    bool Finish(ReadState& state) override;

private:
    void BindGeometry();
    void BindAreasAndTexts();
    void AddTypes();

    drawing::EntityProperties Properties() const;
    template <class T, class... Args>
    bool Add(ReadState& state, Args&&... args);
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
    TextNode className_;
};

} // namespace documents
