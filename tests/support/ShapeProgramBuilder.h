// Writes shape programs code by code.
#pragma once

#include "tests/support/ShapeFileBuilder.h"

#include <cstdint>
#include <vector>

namespace test_support {

/// Each call appends one code with its operands. Lengths are in shape units.
class ShapeProgramBuilder {
public:
    struct Displacement {
        int dx;
        int dy;
    };

    struct Bulged {
        int dx;
        int dy;
        int bulge;
    };

    /// `length` 0 to 15, `direction` 0 to 15; a vector of length 0 needs direction 15.
    ShapeProgramBuilder& Vector(int length, int direction) { return Put(length << 4 | direction); }
    ShapeProgramBuilder& PenDown() { return Put(1); }
    ShapeProgramBuilder& PenUp() { return Put(2); }
    ShapeProgramBuilder& Divide(int factor) { return Put(3).Put(factor); }
    ShapeProgramBuilder& Multiply(int factor) { return Put(4).Put(factor); }
    ShapeProgramBuilder& Push() { return Put(5); }
    ShapeProgramBuilder& Pop() { return Put(6); }
    ShapeProgramBuilder& Subshape(int number) { return Put(7).Put(number); }
    /// The top level of a "unifont " file.
    ShapeProgramBuilder& WideSubshape(int number) { return Put(7).Put(number >> 8).Put(number); }
    ShapeProgramBuilder& Move(int dx, int dy) { return Put(8).Put(dx).Put(dy); }
    ShapeProgramBuilder& Moves(const std::vector<Displacement>& moves);
    ShapeProgramBuilder& OctantArc(int radius, int octants) { return Put(10).Put(radius).Put(octants); }
    ShapeProgramBuilder& FractionalArc(int startOffset, int endOffset, int radius, int octants);
    ShapeProgramBuilder& BulgeArc(int dx, int dy, int bulge) { return Put(12).Put(dx).Put(dy).Put(bulge); }
    ShapeProgramBuilder& BulgeArcs(const std::vector<Bulged>& arcs);
    /// The next code is for vertical drawing only.
    ShapeProgramBuilder& VerticalOnly() { return Put(14); }
    /// The zero that ends every well-formed program.
    Bytes End() { return Put(0).bytes_; }
    /// Without it.
    Bytes Open() const { return bytes_; }

    /// The low eight bits of `byte`.
    ShapeProgramBuilder& Put(int byte) {
        bytes_.push_back(static_cast<std::uint8_t>(byte & 0xff));
        return *this;
    }

private:
    Bytes bytes_;
};

} // namespace test_support
