// Dashes along a polyline.
#include "StyleConversion/block/Dashes.h"

#include "StyleConversion/block/Faithful.h"

#include <cmath>

BlockConverter::PolylineDashes::PolylineDashes(Dashes& dashes, const block::DashFit& fit)
    : dashes_(dashes), lead_(fit.lead), remaining_(fit.lead), index_(dashes.FirstBehindLead() - 1),
      entriesLeft_(static_cast<std::uint32_t>(fit.repetitions) * static_cast<std::uint32_t>(dashes.Count()) -
                   static_cast<std::uint32_t>(index_)),
      isSolid_(block::IsFaithful() && fit.repetitions < 1) {}

void BlockConverter::PolylineDashes::Add(const block::PolylineSegment& segment) {
    if (!started_) {
        started_ = true;
        current_ = segment.start;
        dashes_.StartAt(current_);
    }
    double left = segment.length;
    if (!isSolid_ && left >= std::fabs(remaining_)) {
        const double angle = segment.isArc ? 0.0 : block::CalcLineAngle(segment.start, segment.end);
        const block::Direction direction(angle);
        while (!isSolid_ && left >= std::fabs(remaining_)) {
            const double before = left;
            left -= std::fabs(remaining_);
            WriteEntry(segment, direction, angle);
            const bool isWhole = !isLead_ && !isRest_;
            NextEntry();
            NoteProgress(left != before, isWhole);
        }
    }
    // At exactly nothing left, the point that was computed is carried over the vertex, not snapped to it.
    if (left > 0.0) {
        CutAtEnd(segment, left);
        current_ = segment.end;
    }
}

void BlockConverter::PolylineDashes::WriteEntry(const block::PolylineSegment& segment,
                                                const block::Direction& direction, double angle) {
    const double length = std::fabs(remaining_);
    const double step = length / segment.travel.radius;
    current_ = segment.isArc ? segment.travel.From(current_, step) : direction.From(current_, length);
    if (segment.isArc && remaining_ > 0.0) {
        ArcTo(segment, step, current_);
    } else if (remaining_ >= 0.0) {
        dashes_.LineTo(current_);
    } else {
        dashes_.MoveTo(current_);
    }
    DrawShape(segment, angle);
}

void BlockConverter::PolylineDashes::DrawShape(const block::PolylineSegment& segment, double angle) {
    // Required: R13
    const bool isLeadOut = isLead_ && entriesLeft_ == 0;
    if (index_ < 0 || !dashes_.HasShape(index_) || (isLeadOut && block::IsFaithful())) {
        return;
    }
    if (segment.isArc) {
        // Required: R11
        const double polar = block::CalcLineAngle(segment.travel.center, current_);
        angle = segment.travel.clockwise ? polar - block::kHalfPi : polar + block::kHalfPi;
    }
    dashes_.DrawShape(index_, current_, angle);
}

void BlockConverter::PolylineDashes::NextEntry() {
    isRest_ = false;
    isSolid_ = entriesLeft_ == 0 && block::IsFaithful();
    --entriesLeft_;
    isLead_ = entriesLeft_ == 0;
    if (isLead_) {
        remaining_ = lead_;
        return;
    }
    ++index_;
    if (index_ >= dashes_.Count()) {
        index_ = 0;
    }
    remaining_ = dashes_.LengthAt(index_);
}

// A whole round of dots, or of dashes that are lost in the rounding of the length left, would go on for ever.
// What is left of a cut entry may be as short as the rounding and says nothing of the round.
void BlockConverter::PolylineDashes::NoteProgress(bool progressed, bool isWhole) {
    if (progressed) {
        idleEntries_ = 0;
    } else if (isWhole) {
        ++idleEntries_;
        isSolid_ = idleEntries_ >= dashes_.Count();
    }
}

void BlockConverter::PolylineDashes::CutAtEnd(const block::PolylineSegment& segment, double left) {
    isRest_ = true;
    idleEntries_ = 0;
    if (isSolid_) {
        if (segment.isArc) {
            ArcTo(segment, left / segment.travel.radius, segment.end);
        } else {
            dashes_.LineTo(segment.end);
        }
    } else if (remaining_ < 0.0) {
        dashes_.MoveTo(segment.end);
        remaining_ += left;
    } else if (segment.isArc) {
        // Required: R12
        const bool isWhole = !block::IsFaithful();
        ArcTo(segment, (isWhole ? remaining_ : left) / segment.travel.radius, segment.end);
        remaining_ -= isWhole ? 0.0 : left;
    } else {
        dashes_.LineTo(segment.end);
        remaining_ -= left;
    }
}

void BlockConverter::PolylineDashes::ArcTo(const block::PolylineSegment& segment, double angle,
                                           const OxGePoint2d& point) {
    dashes_.ArcTo(point, segment.travel.radius, angle, segment.travel.clockwise);
}
