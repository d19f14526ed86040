#include "StyleConversion/block/PolylineWalk.h"

#include "StyleConversion/block/Limits.h"
#include "StyleConversion/encoding/ScaledPath.h"

#include <cmath>
#include <cstddef>

BlockConverter::PolylineWalk::PolylineWalk(const BlockConverter& converter,
                                           const OxDbLinetypeTableRecord& linetype, double length,
                                           unsigned int segments, block::EntityPath& geometry)
    : converter_(converter), linetype_(linetype), geometry_(geometry) {
    const block::DashFit fit = block::FitDashes(linetype, length);
    lead_ = fit.lead;
    remaining_ = fit.lead;
    entriesLeft_ =
        static_cast<std::uint32_t>(fit.repetitions) * static_cast<std::uint32_t>(linetype.numDashes());
    ReservePath(length, segments);
}

// Paths of very many dashes grow in one piece. What the dashes themselves add up to tells how many there will
// be; the pattern length need not have to do with them.
void BlockConverter::PolylineWalk::ReservePath(double length, unsigned int segments) {
    double dashSum = 0.0;
    for (int i = 0; i < linetype_.numDashes(); ++i) {
        dashSum += std::fabs(linetype_.dashLengthAt(i));
    }
    const double pieces = length / dashSum * linetype_.numDashes() + segments;
    const double characters = pieces * block::kUsualPieceLength;
    if (characters > block::kUsualPieceLength && characters < block::kLongestReservation) {
        geometry_.path.reserve(static_cast<std::size_t>(characters));
    }
}

void BlockConverter::PolylineWalk::Add(const block::PolylineSegment& segment) {
    if (!started_) {
        Start(segment.start);
    }
    double left = segment.length;
    if (!isSolid_ && left >= std::fabs(remaining_)) {
        const double angle = segment.isArc ? 0.0 : block::CalcLineAngle(segment.start, segment.end);
        const block::Direction direction(angle);
        while (!isSolid_ && left >= std::fabs(remaining_)) {
            const double before = left;
            left -= std::fabs(remaining_);
            EmitEntry(segment, direction, angle);
            const bool wasLead = isLead_;
            NextEntry();
            NoteProgress(left != before, wasLead);
        }
    }
    // At exactly nothing left, the point that was computed is carried over the vertex, not snapped to it.
    if (left > 0.0) {
        CutAtEnd(segment, left);
        current_ = segment.end;
    }
}

void BlockConverter::PolylineWalk::Start(const OxGePoint2d& point) {
    started_ = true;
    current_ = point;
    std::wstring& path = geometry_.path;
    converter_.AppendPoint(path, path.empty() ? encoding::kFirstMove : encoding::kMove, point);
}

void BlockConverter::PolylineWalk::EmitEntry(const block::PolylineSegment& segment,
                                             const block::Direction& direction, double angle) {
    const double length = std::fabs(remaining_);
    const double step = length / segment.travel.radius;
    current_ = segment.isArc ? segment.travel.From(current_, step) : direction.From(current_, length);
    if (segment.isArc && remaining_ > 0.0) {
        ArcTo(segment, step, current_);
    } else {
        converter_.AppendPoint(geometry_.path, remaining_ >= 0.0 ? encoding::kLine : encoding::kMove,
                               current_);
    }
    DrawShape(segment, angle);
}

void BlockConverter::PolylineWalk::DrawShape(const block::PolylineSegment& segment, double angle) {
    if (linetype_.shapeStyleAt(index_).isNull()) {
        return;
    }
    if (segment.isArc) {
        // With the sense of travel, unlike the dashes of single arcs: the output is wanted so.
        const double polar = block::CalcLineAngle(segment.travel.center, current_);
        angle = segment.travel.clockwise ? polar - block::kHalfPi : polar + block::kHalfPi;
    }
    converter_.DrawDashShape(linetype_, index_, current_, angle, 1.0, geometry_.shapes);
}

void BlockConverter::PolylineWalk::NextEntry() {
    --entriesLeft_;
    isLead_ = entriesLeft_ == 0;
    if (isLead_) {
        remaining_ = lead_; // The index stays: the last dash's shape is drawn behind the lead-out once more.
        return;
    }
    ++index_;
    if (index_ >= linetype_.numDashes()) {
        index_ = 0;
    }
    remaining_ = linetype_.dashLengthAt(index_);
}

// A whole round of dots, or of dashes that are lost in the rounding of the length left, would go on for ever.
void BlockConverter::PolylineWalk::NoteProgress(bool progressed, bool wasLead) {
    if (progressed) {
        idleEntries_ = 0;
    } else if (!wasLead) {
        ++idleEntries_;
        isSolid_ = idleEntries_ >= linetype_.numDashes();
    }
}

void BlockConverter::PolylineWalk::CutAtEnd(const block::PolylineSegment& segment, double left) {
    if (isSolid_) {
        if (segment.isArc) {
            ArcTo(segment, left / segment.travel.radius, segment.end);
        } else {
            LineTo(segment.end);
        }
    } else if (remaining_ < 0.0) {
        converter_.AppendPoint(geometry_.path, encoding::kMove, segment.end);
        remaining_ += left;
    } else if (segment.isArc) {
        // Judged from the whole entry, which starts again at full length behind the arc: the output is wanted
        // so.
        ArcTo(segment, remaining_ / segment.travel.radius, segment.end);
    } else {
        LineTo(segment.end);
        remaining_ -= left;
    }
}

void BlockConverter::PolylineWalk::LineTo(const OxGePoint2d& point) {
    converter_.AppendPoint(geometry_.path, encoding::kLine, point);
}

void BlockConverter::PolylineWalk::ArcTo(const block::PolylineSegment& segment, double angle,
                                         const OxGePoint2d& point) {
    const double radius = segment.travel.radius;
    converter_.AppendArcString(&geometry_.path, radius, radius, 0.0, angle >= block::kPi,
                               segment.travel.clockwise, point);
}
