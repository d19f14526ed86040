#include "preview/PathData.h"

#include "preview/NumberTexts.h"

namespace preview {
namespace {

void AppendPair(std::string& text, long long x, long long y) {
    AppendHundredths(text, x);
    if (y >= 0) {
        text += ' ';
    }
    AppendHundredths(text, y);
}

} // namespace

PathData::Hundredths PathData::Rounded(Point point) {
    return {ToHundredths(point.x), ToHundredths(point.y)};
}

void PathData::EndPart() {
    if (moved_ && dotted_) {
        dots_ += 'M';
        AppendPair(dots_, current_.x, current_.y);
        dots_ += "h0";
    }
    moved_ = false;
    dotted_ = false;
}

void PathData::StartStroke() {
    if (moved_) {
        strokes_ += 'M';
        AppendPair(strokes_, current_.x, current_.y);
        moved_ = false;
    }
}

void PathData::AppendDifference(Hundredths from, Hundredths to) {
    AppendPair(strokes_, to.x - from.x, to.y - from.y);
}

void PathData::MoveTo(Point point) {
    EndPart();
    current_ = Rounded(point);
    moved_ = true;
}

void PathData::LineTo(Point point) {
    ++size_;
    const Hundredths to = Rounded(point);
    if (to == current_) {
        dotted_ = true;
        return;
    }
    StartStroke();
    if (to.y == current_.y) {
        strokes_ += 'h';
        AppendHundredths(strokes_, to.x - current_.x);
    } else if (to.x == current_.x) {
        strokes_ += 'v';
        AppendHundredths(strokes_, to.y - current_.y);
    } else {
        strokes_ += 'l';
        AppendDifference(current_, to);
    }
    current_ = to;
}

void PathData::CurveTo(Point control1, Point control2, Point point) {
    const Hundredths first = Rounded(control1);
    const Hundredths second = Rounded(control2);
    const Hundredths to = Rounded(point);
    if (first == current_ && second == current_ && to == current_) {
        LineTo(point);
        return;
    }
    ++size_;
    StartStroke();
    strokes_ += 'c';
    AppendDifference(current_, first);
    strokes_ += ' ';
    AppendDifference(current_, second);
    strokes_ += ' ';
    AppendDifference(current_, to);
    current_ = to;
}

void AppendOutline(PathData& data, const Outline& outline, const Placement& placement) {
    ForEachPiece(
        outline,
        [&](Point from, Point to, bool startsHere) {
            if (startsHere) {
                data.MoveTo(placement(from));
            }
            data.LineTo(placement(to));
        },
        [&](Point from, Point control1, Point control2, Point to, bool startsHere) {
            if (startsHere) {
                data.MoveTo(placement(from));
            }
            data.CurveTo(placement(control1), placement(control2), placement(to));
        });
}

} // namespace preview
