// Hatches and multi-polygons.
#pragma once

#include "OxDb/OxDbHatch.h"
#include "OxDb/OxDbMPolygon.h"
#include "drawing/database/Resident.h"
#include "drawing/geometry/Hatch.h"

#include <optional>
#include <vector>

namespace drawing {

using geometry::BulgeVertex;
using geometry::HatchEdge;
using geometry::HatchFamily;
using geometry::HatchLine;
using geometry::HatchLoop;
using geometry::PolylineLoop;

/// What a hatch is made of.
struct HatchData {
    bool solid = false;
    std::vector<HatchLoop> loops;
    std::optional<std::vector<HatchFamily>> pattern;
    /// When set, what an evaluation gives, instead of the pattern.
    std::optional<std::vector<HatchLine>> lines;
};

/// A hatch: solid, or with a pattern's lines.
class OXDB_API Hatch : public ResidentEntity<OxDbHatch> {
public:
    /// Nothing is checked; an evaluation refuses what has no lines.
    Hatch(Core& core, const EntityProperties& properties, HatchData data);
    ~Hatch() override;

    bool isSolidFill() const override { return data_.solid; }
    int numLoops() const override { return static_cast<int>(data_.loops.size()); }
    Oxsys::ErrorStatus getLoopAt(int index, int& loopType, OxArray<const OxGeCurve2d*>& edges,
                                 OxArray<int>& edgeTypes) const override;
    Oxsys::ErrorStatus getLoopAt(int index, int& loopType, OxGePoint2dArray& vertices,
                                 OxGeDoubleArray& bulges) const override;
    /// Succeeds when the hatch has lines of its own, or a pattern that gives no more lines than the database
    /// allows.
    Oxsys::ErrorStatus evaluateHatch(bool underestimateLines) override;
    int numHatchLines() const override;
    Oxsys::ErrorStatus getHatchLineDataAt(int index, OxGePoint2d& start, OxGePoint2d& end) const override;

    /// What it was made with.
    const HatchData& Data() const { return data_; }

private:
    HatchData data_;
    std::vector<HatchLine> evaluated_;
    bool isEvaluated_ = false;
};

/// A multi-polygon: closed polylines, filled by the even-odd rule.
class OXDB_API MPolygon : public ResidentEntity<OxDbMPolygon> {
public:
    /// Nothing is checked.
    MPolygon(Core& core, const EntityProperties& properties, std::vector<PolylineLoop> loops,
             const OxCmColor& fillColor);
    ~MPolygon() override;

    int numMPolygonLoops() const override { return static_cast<int>(loops_.size()); }
    Oxsys::ErrorStatus getMPolygonLoopAt(int index, OxGePoint2dArray& vertices,
                                         OxGeDoubleArray& bulges) const override;
    OxCmColor fillColor() const override { return fillColor_; }

    /// All loops in order.
    const std::vector<PolylineLoop>& Loops() const { return loops_; }
    /// Before the drawing is converted.
    void RecolorFill(const OxCmColor& color) { fillColor_ = color; }

private:
    std::vector<PolylineLoop> loops_;
    OxCmColor fillColor_;
};

} // namespace drawing
