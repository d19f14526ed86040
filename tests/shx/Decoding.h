// Decoded programs that can be compared and printed.
#pragma once

#include "StyleConversion/shx/ShxUtility.h"
#include "tests/support/ShapeFileBuilder.h"

#include <ostream>
#include <vector>

namespace ShxUtility {

inline bool operator==(const ShapeInstruction& a, const ShapeInstruction& b) {
    return a.x == b.x && a.y == b.y && a.radius == b.radius && a.verticalOnly == b.verticalOnly &&
           a.op == b.op;
}

inline std::ostream& operator<<(std::ostream& out, const ShapeInstruction& instruction) {
    return out << "{op " << static_cast<int>(instruction.op) << ", " << instruction.x << ", " << instruction.y
               << ", radius " << instruction.radius << (instruction.verticalOnly ? ", vertical}" : "}");
}

} // namespace ShxUtility

namespace {

struct Decoded {
    int result;
    ShxUtility::ShapeInstructions instructions;

    bool operator==(const Decoded& other) const {
        return result == other.result && instructions == other.instructions;
    }
};

inline std::ostream& operator<<(std::ostream& out, const Decoded& decoded) {
    out << "result " << decoded.result;
    for (const ShxUtility::ShapeInstruction& instruction : decoded.instructions) {
        out << ' ' << instruction;
    }
    return out;
}

inline Decoded Decode(const std::vector<int>& program, int kind = ShxUtility::kShapes) {
    const test_support::Bytes bytes(program.begin(), program.end());
    Decoded decoded{};
    decoded.result = ShxUtility::DecodeShape(decoded.instructions, bytes.data(),
                                             static_cast<std::uint16_t>(bytes.size()), kind);
    return decoded;
}

inline ShxUtility::ShapeInstruction Op(ShxUtility::ShapeOp op, double x = 0) {
    return {x, 0, 0, false, op};
}

inline ShxUtility::ShapeInstruction Move(double dx, double dy) {
    return {dx, dy, 0, false, ShxUtility::ShapeOp::Move};
}

inline ShxUtility::ShapeInstruction Arc(double start, double end, double radius) {
    return {start, end, radius, false, ShxUtility::ShapeOp::Arc};
}

inline ShxUtility::ShapeInstruction Vertical(ShxUtility::ShapeInstruction instruction) {
    instruction.verticalOnly = true;
    return instruction;
}

} // namespace
