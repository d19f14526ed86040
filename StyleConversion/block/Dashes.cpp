// Dashes of single lines, arcs and circles.
#include "StyleConversion/block/Dashes.h"

#include "StyleConversion/block/Faithful.h"
#include "StyleConversion/block/PathPoints.h"

#include <cmath>

bool block::HasPattern(OxDbLinetypeTableRecord* linetype) {
    return linetype != nullptr && linetype->patternLength() != 0.0 && CountDashes(*linetype) >= 1;
}

void BlockConverter::Dashes::StartAt(const OxGePoint2d& point) {
    block::StartAt(path_, point, converter_.scale_);
}

void BlockConverter::Dashes::MoveTo(const OxGePoint2d& point) {
    block::MoveTo(path_, point, converter_.scale_);
}

void BlockConverter::Dashes::LineTo(const OxGePoint2d& point) {
    block::LineTo(path_, point, converter_.scale_);
}

int BlockConverter::Dashes::FirstBehindLead() const {
    // Required: R10
    return block::IsFaithful() && !(LengthAt(0) > 0.0) ? 0 : 1;
}

void BlockConverter::Dashes::ArcTo(const OxGePoint2d& point, double radius, double angle, bool clockwise) {
    converter_.AppendArcString(&path_, radius, radius, 0.0, angle >= block::kPi, clockwise, point);
}

void BlockConverter::ParseDashLine(OxDbLinetypeTableRecord* linetype, const OxGePoint2d& start,
                                   const OxGePoint2d& end, std::wstring& path,
                                   std::wstring& shapePath) const {
    block::StartAt(path, start, scale_);
    if (!block::HasPattern(linetype)) {
        block::LineTo(path, end, scale_);
        return;
    }
    Dashes dashes(*this, *linetype, path, shapePath);
    const block::DashFit fit = block::FitDashes(*linetype, block::Distance(start, end));
    const double angle = block::CalcLineAngle(start, end);
    const block::Direction direction(angle);
    OxGePoint2d current = direction.From(start, fit.lead);
    dashes.LineTo(current);
    int first = dashes.FirstBehindLead();
    for (std::int32_t repetition = 0; repetition < fit.repetitions; ++repetition) {
        for (int i = first; i < dashes.Count(); ++i) {
            const double length = dashes.LengthAt(i);
            const bool isGap = length < 0.0;
            current = direction.From(current, isGap ? -length : length);
            if (isGap) {
                dashes.MoveTo(current);
            } else {
                dashes.LineTo(current);
            }
            dashes.DrawShape(i, current, angle);
        }
        first = 0;
    }
    dashes.LineTo(block::IsFaithful() ? end : direction.From(current, fit.lead));
}

void BlockConverter::ParseDashArc(OxDbLinetypeTableRecord* linetype, const OxGePoint2d& start,
                                  const OxGePoint2d& end, const OxGePoint2d& center, double radius,
                                  double sweep, bool clockwise, std::wstring& path,
                                  std::wstring& shapePath) const {
    block::StartAt(path, start, scale_);
    if (!block::HasPattern(linetype)) {
        AppendArcString(&path, radius, radius, 0.0, sweep >= block::kPi, clockwise, end);
        return;
    }
    Dashes dashes(*this, *linetype, path, shapePath);
    const block::DashFit fit = block::FitDashes(*linetype, radius * sweep);
    const block::ArcTravel travel{center, radius, clockwise};
    const double lead = fit.lead / radius;
    OxGePoint2d current = travel.From(start, lead);
    dashes.ArcTo(current, radius, lead, clockwise);
    int first = dashes.FirstBehindLead();
    for (std::int32_t repetition = 0; repetition < fit.repetitions; ++repetition) {
        for (int i = first; i < dashes.Count(); ++i) {
            const double length = dashes.LengthAt(i);
            const double step = std::fabs(length) / radius;
            current = travel.From(current, step);
            if (length < 0.0) {
                dashes.MoveTo(current);
            } else if (length == 0.0) {
                dashes.LineTo(current);
            } else {
                dashes.ArcTo(current, radius, step, clockwise);
            }
            if (dashes.HasShape(i)) {
                // Required: R11
                const bool isTurned = clockwise && block::IsFaithful();
                dashes.DrawShape(i, current,
                                 block::CalcLineAngle(center, current) +
                                     (isTurned ? -block::kHalfPi : block::kHalfPi));
            }
        }
        first = 0;
    }
    dashes.ArcTo(block::IsFaithful() ? end : travel.From(current, lead), radius, lead, clockwise);
}

void BlockConverter::Dashes::GoRound(const OxGePoint2d& center, double radius) {
    const double circumference = radius * 2.0 * block::kPi;
    const double patternLength = linetype_.patternLength();
    // Without a pattern length the conversion gives the lowest integer, that is no repetition at all.
    const std::int32_t repetitions = encoding::ToInt32(circumference / patternLength + 0.5);
    const double stretch = circumference / repetitions / patternLength;
    const block::ArcTravel travel{center, radius, false};
    OxGePoint2d current = host::Point(center.x + radius, center.y);
    for (std::int32_t repetition = 0; repetition < repetitions; ++repetition) {
        for (int i = 0; i < Count(); ++i) {
            const double length = LengthAt(i) * stretch;
            const double step = (length > 0.0 ? length : -length) / radius;
            current = travel.From(current, step);
            if (length > 0.0) {
                // Required: R9
                ArcTo(current, radius, step, false);
            } else if (length < 0.0) {
                MoveTo(current);
            } else {
                LineTo(current);
            }
            if (HasShape(i)) {
                DrawShape(i, current, block::CalcLineAngle(center, current) + block::kHalfPi, stretch);
            }
        }
    }
}
