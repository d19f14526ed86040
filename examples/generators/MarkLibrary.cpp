// Arrow, tree, bolt, track tie, wave, circle, square and target as shape programs.
#include "examples/generators/MarkLibrary.h"

#include "tests/support/ShapeProgramBuilder.h"

namespace example_shapes {
namespace {

using test_support::Bytes;
using test_support::ShapeFileBuilder;
using test_support::ShapeProgramBuilder;

constexpr int kCircle = 135;
constexpr int kSquare = 136;

// Each leaves the scale as it found it, so that it can be a subshape of another.

// From (-0.5, 0) to (0.5, 0): vectors, and a saved position for the second barb.
Bytes Arrow() {
    return ShapeProgramBuilder()
        .Divide(10)
        .PenUp()
        .Vector(5, 8)
        .PenDown()
        .Vector(10, 0)
        .Push()
        .Vector(4, 7)
        .Pop()
        .Vector(4, 9)
        .Multiply(10)
        .End();
}

// A trunk of two lines and a crown: a fractional arc from 280 degrees all but round to 260.
Bytes Tree() {
    return ShapeProgramBuilder()
        .Divide(100)
        .PenUp()
        .Move(5, -50)
        .PenDown()
        .Move(0, 40)
        .FractionalArc(57, 199, 30, 0x60)
        .Move(0, -40)
        .Multiply(100)
        .End();
}

// A closed outline of displacements.
Bytes Bolt() {
    return ShapeProgramBuilder()
        .Divide(10)
        .PenUp()
        .Move(1, 5)
        .PenDown()
        .Moves({{-4, -5}, {3, 0}, {-2, -5}, {5, 6}, {-3, 0}, {1, 4}})
        .Multiply(10)
        .End();
}

// A line across, from (0, -0.5) to (0, 0.5): scale and pen.
Bytes TrackTie() {
    return ShapeProgramBuilder().Divide(4).PenUp().Vector(2, 12).PenDown().Vector(4, 4).Multiply(4).End();
}

// From (0, 0) to (1, 0), up and then down: bulge arcs, and one more small one back up.
Bytes Wave() {
    return ShapeProgramBuilder()
        .Divide(20)
        .BulgeArcs({{8, 0, -80}, {8, 0, 80}})
        .BulgeArc(4, 0, -80)
        .Multiply(20)
        .End();
}

// Of radius 0.5 round the origin: all octants of an octant arc.
Bytes Circle() {
    return ShapeProgramBuilder()
        .Divide(10)
        .PenUp()
        .Vector(5, 0)
        .PenDown()
        .OctantArc(5, 0x00)
        .Multiply(10)
        .End();
}

// Of side 1 round the origin.
Bytes Square() {
    return ShapeProgramBuilder()
        .Divide(10)
        .PenUp()
        .Vector(5, 10)
        .PenDown()
        .Vector(10, 0)
        .Vector(10, 4)
        .Vector(10, 8)
        .Vector(10, 12)
        .Multiply(10)
        .End();
}

// The square, the circle and a circle of half its size, all as subshapes.
Bytes Target() {
    return ShapeProgramBuilder()
        .Push()
        .Subshape(kSquare)
        .Pop()
        .Push()
        .Subshape(kCircle)
        .Pop()
        .Divide(2)
        .Subshape(kCircle)
        .Multiply(2)
        .End();
}

} // namespace

ShapeFileBuilder MarkLibrary() {
    ShapeFileBuilder builder = ShapeFileBuilder::Shapes();
    builder.Shape(130, "ARROW", Arrow())
        .Shape(131, "TREE", Tree())
        .Shape(132, "BOLT", Bolt())
        .Shape(133, "TRACKTIE", TrackTie())
        .Shape(134, "WAVE", Wave())
        .Shape(kCircle, "CIRC", Circle())
        .Shape(kSquare, "SQUARE", Square())
        .Shape(137, "TARGET", Target());
    return builder;
}

} // namespace example_shapes
