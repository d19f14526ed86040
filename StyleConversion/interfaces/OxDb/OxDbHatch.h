// Hatches: areas that are filled, or covered with the lines of a pattern.
#pragma once

#include "OxDb/OxDbEntity.h"
#include "OxDb/OxGeCurve2d.h"

/// An area bounded by loops. A loop is either a list of edges or a polyline.
class OXDB_API OxDbHatch : public OxDbEntity {
public:
    ~OxDbHatch() override;
    static const OxRxClass* desc();

    /// Bits of a loop's type.
    enum LoopType {
        kDefault = 0,  ///< A loop of edges.
        kPolyline = 2, ///< A loop of vertices.
    };

    /// What an edge of a loop is.
    enum EdgeType {
        kLine = 1,   ///< A straight segment.
        kCirArc = 2, ///< An arc of a circle.
        kEllArc = 3, ///< An arc of an ellipse.
        kSpline = 4, ///< A spline.
    };

    /// Whether the area is filled, and has no lines.
    virtual bool isSolidFill() const = 0;

    /// Loop indices are below this number; eInvalidIndex for others.
    virtual int numLoops() const = 0;
    /// The edges of a loop in order, each of a class derived from OxGeCurve2d, and their types. The edges
    /// stay the hatch's own and may be used while it is open. eNotApplicable for a polyline loop.
    virtual Oxsys::ErrorStatus getLoopAt(int index, int& loopType, OxArray<const OxGeCurve2d*>& edges,
                                         OxArray<int>& edgeTypes) const = 0;
    /// The vertices of a loop, and a bulge for each, or no bulges at all when all segments are straight.
    /// eNotApplicable for a loop of edges.
    virtual Oxsys::ErrorStatus getLoopAt(int index, int& loopType, OxGePoint2dArray& vertices,
                                         OxGeDoubleArray& bulges) const = 0;

    /// Works out the lines of the pattern inside the boundary. `underestimateLines`: rather give fewer lines
    /// than take very long. Fails for a hatch without a pattern, and when there would be too many lines.
    virtual Oxsys::ErrorStatus evaluateHatch(bool underestimateLines) = 0;
    /// How many lines the evaluation gave; 0 before it.
    virtual int numHatchLines() const = 0;
    /// The ends of a line. eInvalidIndex when there is none of that index, as before the evaluation.
    virtual Oxsys::ErrorStatus getHatchLineDataAt(int index, OxGePoint2d& start, OxGePoint2d& end) const = 0;
};
