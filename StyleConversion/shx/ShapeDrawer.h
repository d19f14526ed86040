// Carries out a shape's instructions on a sink of path commands.
#pragma once

#include "StyleConversion/encoding/IntegerConversion.h"
#include "StyleConversion/shx/Limits.h"
#include "StyleConversion/shx/ShapeInterpreter.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <vector>

namespace ShxUtility {

/// What a shape and its subshapes change while they are drawn; each part is described at DrawShape.
struct DrawingState {
    double& x;
    double& y;
    double& scale;
    PositionStack& positionStack;
    std::vector<std::uint16_t>& activeSubshapes;
    bool& penDown;
};

/// A Sink takes absolute points and relative lines in path units:
///   MoveTo(x, y); LineBy(dx, dy); ArcTo(radius, largeArc, sweep, x, y), the flags 0 or 1.
/// May throw std::bad_alloc, and whatever the sink throws.
template <typename Sink>
class ShapeDrawer {
public:
    /// `rotation` in degrees, counter-clockwise.
    ShapeDrawer(Sink& sink, const DrawingState& state, const ShapesInFile& file, double rotation)
        : sink_(sink), state_(state), file_(file), rotation_(rotation), cosine_(std::cos(Radians(rotation))),
          sine_(std::sin(Radians(rotation))) {}

    ShxResult Draw(const ShapeInstructions& instructions, bool vertical);

private:
    static double Radians(double degrees) { return degrees * 3.141592653589793 / 180.0; }

    ShxResult CarryOut(const ShapeInstruction& instruction);
    ShxResult Push();
    ShxResult Pop();
    ShxResult DrawSubshape(std::uint16_t number);
    void Move(double dx, double dy);
    void Arc(double start, double end, double radius);
    void ArcPiece(double start, double end, double radius, int largeArc, int sweep);

    Sink& sink_;
    DrawingState state_;
    const ShapesInFile& file_;
    double rotation_;
    double cosine_;
    double sine_;
};

template <typename Sink>
ShxResult ShapeDrawer<Sink>::Draw(const ShapeInstructions& instructions, bool vertical) {
    state_.penDown = true;
    for (const ShapeInstruction& instruction : instructions) {
        if (instruction.verticalOnly && !vertical) {
            continue;
        }
        const ShxResult result = CarryOut(instruction);
        if (result != kSuccess) {
            return result;
        }
    }
    return kSuccess;
}

template <typename Sink>
ShxResult ShapeDrawer<Sink>::CarryOut(const ShapeInstruction& instruction) {
    switch (instruction.op) {
    case ShapeOp::PenDown:
        state_.penDown = true;
        return kSuccess;
    case ShapeOp::PenUp:
        state_.penDown = false;
        return kSuccess;
    case ShapeOp::DivideScale:
        state_.scale = state_.scale / instruction.x;
        return kSuccess;
    case ShapeOp::MultiplyScale:
        state_.scale = state_.scale * instruction.x;
        return kSuccess;
    case ShapeOp::PushPosition:
        return Push();
    case ShapeOp::PopPosition:
        return Pop();
    case ShapeOp::Subshape:
        return DrawSubshape(static_cast<std::uint16_t>(encoding::ToInt32(instruction.x)));
    case ShapeOp::Move:
        Move(instruction.x, instruction.y);
        return kSuccess;
    case ShapeOp::Arc:
        Arc(instruction.x, instruction.y, instruction.radius);
        return kSuccess;
    }
    return kUnknownInstruction;
}

template <typename Sink>
ShxResult ShapeDrawer<Sink>::Push() {
    PositionStack& stack = state_.positionStack;
    if (stack.count >= kUsablePositions) {
        return kPositionStackFull;
    }
    stack.x[stack.count] = state_.x;
    stack.y[stack.count] = state_.y;
    ++stack.count;
    return kSuccess;
}

template <typename Sink>
ShxResult ShapeDrawer<Sink>::Pop() {
    PositionStack& stack = state_.positionStack;
    if (stack.count == 0 || stack.count > kUsablePositions) {
        return kPositionStackEmpty;
    }
    --stack.count;
    state_.x = stack.x[stack.count];
    state_.y = stack.y[stack.count];
    return kSuccess;
}

// The list of active subshapes does not hold the shape that the caller draws.
// Required: R26
template <typename Sink>
ShxResult ShapeDrawer<Sink>::DrawSubshape(std::uint16_t number) {
    std::vector<std::uint16_t>& active = state_.activeSubshapes;
    if (std::find(active.begin(), active.end(), number) != active.end()) {
        return kRecursiveSubshape;
    }
    active.push_back(number);
    const auto found = file_.numberIndex.find(number);
    if (found == file_.numberIndex.end()) {
        return kSubshapeNotFound;
    }
    const CharArray& program = file_.shapes[found->second].data;
    ShapeInstructions instructions;
    // Required: R27
    ShxResult result =
        DecodeShape(instructions, program.data(), static_cast<std::uint16_t>(program.size()), kShapes);
    if (result == kSuccess) {
        result = Draw(instructions, false);
    }
    if (result == kSuccess) {
        active.pop_back();
    }
    return result;
}

template <typename Sink>
void ShapeDrawer<Sink>::Move(double dx, double dy) {
    const double x = (cosine_ * dx - sine_ * dy) * state_.scale;
    const double y = (sine_ * dx + cosine_ * dy) * state_.scale;
    if (state_.penDown) {
        sink_.MoveTo(state_.x, state_.y);
        sink_.LineBy(x, y);
    }
    state_.x += x;
    state_.y += y;
}

template <typename Sink>
void ShapeDrawer<Sink>::Arc(double start, double end, double radius) {
    start += rotation_;
    end += rotation_;
    const double scaled = radius * state_.scale;
    // At most one half circle is split off, so that a full circle is two halves.
    if (end - start >= 270.0) {
        const double middle = start + 180.0;
        ArcPiece(start, middle, scaled, 0, 0);
        start = middle;
    } else if (end - start <= -270.0) {
        const double middle = start - 180.0;
        ArcPiece(start, middle, scaled, 0, 1);
        start = middle;
    }
    const double sweep = end - start;
    ArcPiece(start, end, scaled, std::fabs(sweep) > 180.0 ? 1 : 0, sweep < 0.0 ? 1 : 0);
}

// Required: R28
template <typename Sink>
void ShapeDrawer<Sink>::ArcPiece(double start, double end, double radius, int largeArc, int sweep) {
    sink_.MoveTo(state_.x, state_.y);
    const double startRadians = Radians(start);
    const double endRadians = Radians(end);
    state_.x += radius * (std::cos(endRadians) - std::cos(startRadians));
    state_.y += radius * (std::sin(endRadians) - std::sin(startRadians));
    sink_.ArcTo(radius, largeArc, sweep, state_.x, state_.y);
}

} // namespace ShxUtility
