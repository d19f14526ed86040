// A linetype's pattern that runs on over the vertices of a polyline.
#pragma once

#include "StyleConversion/block/BlockConverter.h"
#include "StyleConversion/block/BlockSymbol.h"
#include "StyleConversion/block/DashFit.h"
#include "StyleConversion/block/PolylineSegment.h"

#include <cstdint>

/// Is shown the segments of one polyline in order and appends their dashes to a path: one subpath that begins
/// at the first segment, with moves for the gaps.
///
/// The pattern is a row of entries. The first is the lead-in, which stands in the place of dash 0; when all
/// repetitions have been emitted, the lead-out follows as one more entry, and should anything be left of the
/// polyline then, the pattern runs on behind it. Without any whole repetition there is no lead-out.
class BlockConverter::PolylineWalk {
public:
    /// `length` is the sum over the polyline's segments, `segments` their number; the linetype has dashes.
    PolylineWalk(const BlockConverter& converter, const OxDbLinetypeTableRecord& linetype, double length,
                 unsigned int segments, block::EntityPath& geometry);

    void Add(const block::PolylineSegment& segment);

private:
    void ReservePath(double length, unsigned int segments);
    void Start(const OxGePoint2d& point);
    void EmitEntry(const block::PolylineSegment& segment, const block::Direction& direction, double angle);
    void DrawShape(const block::PolylineSegment& segment, double angle);
    void NextEntry();
    void NoteProgress(bool progressed, bool wasLead);
    void CutAtEnd(const block::PolylineSegment& segment, double left);
    void LineTo(const OxGePoint2d& point);
    void ArcTo(const block::PolylineSegment& segment, double angle, const OxGePoint2d& point);

    const BlockConverter& converter_;
    const OxDbLinetypeTableRecord& linetype_;
    block::EntityPath& geometry_;
    double lead_;
    /// Still to go of the current entry, in drawing units: above 0 drawn, 0 a dot, below 0 a gap.
    double remaining_;
    /// The dash of the linetype that the current entry is, or stands in for.
    int index_ = 0;
    bool isLead_ = true;
    /// Counts down to the lead-out, and wraps.
    std::uint32_t entriesLeft_;
    /// Entries of the pattern in a row that were too short to count.
    int idleEntries_ = 0;
    /// The pattern does not get on: everything from here is drawn.
    bool isSolid_ = false;
    bool started_ = false;
    OxGePoint2d current_;
};
