// The codes that have lists of operands.
#include "tests/support/ShapeProgramBuilder.h"

namespace test_support {

ShapeProgramBuilder& ShapeProgramBuilder::Moves(const std::vector<Displacement>& moves) {
    Put(9);
    for (const Displacement& move : moves) {
        Put(move.dx).Put(move.dy);
    }
    return Put(0).Put(0);
}

ShapeProgramBuilder& ShapeProgramBuilder::FractionalArc(int startOffset, int endOffset, int radius,
                                                        int octants) {
    return Put(11).Put(startOffset).Put(endOffset).Put(radius >> 8).Put(radius).Put(octants);
}

ShapeProgramBuilder& ShapeProgramBuilder::BulgeArcs(const std::vector<Bulged>& arcs) {
    Put(13);
    for (const Bulged& arc : arcs) {
        Put(arc.dx).Put(arc.dy).Put(arc.bulge);
    }
    return Put(0).Put(0);
}

} // namespace test_support
