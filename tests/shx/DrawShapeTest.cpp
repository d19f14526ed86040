// Pen, displacements, scale, saved positions, vertical drawing.
#include "tests/shx/Decoding.h"
#include "tests/shx/Drawing.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace {

using namespace ShxUtility;

TEST(DrawShape, AnEmptyListDrawsNothingAndPutsThePenDown) {
    Drawing drawing;
    drawing.penDown = false;
    EXPECT_EQ(drawing.Draw({}), 0);
    EXPECT_EQ(drawing.Text(), "");
    EXPECT_TRUE(drawing.penDown);
}

TEST(DrawShape, AVectorIsAMoveAndARelativeLine) {
    Drawing drawing;
    EXPECT_EQ(drawing.DrawProgram({0x14, 0x00}), 0);
    EXPECT_EQ(drawing.Text(), "M 0,0 l 0,1 ");
    EXPECT_EQ(drawing.x, 0);
    EXPECT_EQ(drawing.y, 1);
}

TEST(DrawShape, RotationDoesNotRoundTheCosine) {
    Drawing drawing;
    drawing.rotation = 90;
    EXPECT_EQ(drawing.DrawProgram({0x14, 0x00}), 0);
    EXPECT_EQ(drawing.Text(), "M 0,0 l -1,6.12323399573677e-17 ");
}

TEST(DrawShape, EverySegmentIsASubpathOfItsOwn) {
    Drawing drawing;
    EXPECT_EQ(drawing.DrawProgram({0x10, 0x14, 0x18}), 0);
    EXPECT_EQ(drawing.Text(), "M 0,0 l 1,0 M 1,0 l 0,1 M 1,1 l -1,0 ");
}

TEST(DrawShape, AppendsToThePathFromTheCurrentPoint) {
    Drawing drawing;
    drawing.path = L"before ";
    drawing.x = 2.5;
    drawing.y = -1;
    EXPECT_EQ(drawing.DrawProgram({8, 1, 2}), 0);
    EXPECT_EQ(drawing.Text(), "before M 2.5,-1 l 1,2 ");
    EXPECT_EQ(drawing.x, 3.5);
    EXPECT_EQ(drawing.y, 1);
}

TEST(DrawShape, WithThePenUpOnlyThePointMoves) {
    Drawing drawing;
    EXPECT_EQ(drawing.DrawProgram({2, 0x20}), 0);
    EXPECT_EQ(drawing.Text(), "");
    EXPECT_EQ(drawing.x, 2);
    EXPECT_FALSE(drawing.penDown);
}

TEST(DrawShape, ThePenIsDownAtTheStartOfEveryCall) {
    Drawing drawing;
    drawing.penDown = false;
    EXPECT_EQ(drawing.DrawProgram({0x10, 2, 0x10, 1, 0x10}), 0);
    EXPECT_EQ(drawing.Text(), "M 0,0 l 1,0 M 2,0 l 1,0 ");
}

TEST(DrawShape, AZeroLengthIsDrawnAndKeepsItsSign) {
    // Direction 15 is (1, -0.5): 0 times it is (0, -0).
    Drawing drawing;
    EXPECT_EQ(drawing.DrawProgram({0x0f}), 0);
    // x = (1 * 0 - 0 * -0) = 0, y = (0 * 0 + 1 * -0) = 0 + -0 = 0.
    EXPECT_EQ(drawing.Text(), "M 0,0 l 0,0 ");
}

TEST(DrawShape, ScaleMultipliesAfterRotation) {
    Drawing drawing;
    drawing.scale = 0.5;
    drawing.rotation = 30;
    EXPECT_EQ(drawing.DrawProgram({8, 4, 2}), 0);
    const double theta = 30 * 3.141592653589793 / 180;
    EXPECT_EQ(drawing.x, (std::cos(theta) * 4 - std::sin(theta) * 2) * 0.5);
    EXPECT_EQ(drawing.y, (std::sin(theta) * 4 + std::cos(theta) * 2) * 0.5);
    // (4 cos 30 - 2 sin 30) / 2 = 1.7320508 - 0.5, (4 sin 30 + 2 cos 30) / 2 = 1 + 0.8660254
    EXPECT_NEAR(drawing.x, 1.2320508075688772, 1e-14);
    EXPECT_NEAR(drawing.y, 1.8660254037844386, 1e-14);
}

TEST(DrawShape, ProgramsChangeTheScaleForGood) {
    Drawing drawing;
    drawing.scale = 6;
    EXPECT_EQ(drawing.DrawProgram({3, 4, 0x10, 4, 10, 0x10}), 0);
    EXPECT_EQ(drawing.Text(), "M 0,0 l 1.5,0 M 1.5,0 l 15,0 ");
    EXPECT_EQ(drawing.scale, 15);
}

TEST(DrawShape, AScaleThatOverflowsIsDrawnAsItIs) {
    std::vector<std::uint8_t> program;
    for (int i = 0; i < 200; ++i) {
        program.insert(program.end(), {4, 255});
    }
    program.push_back(0x10);
    Drawing drawing;
    EXPECT_EQ(drawing.DrawProgram(program), 0);
    // 255^200 is beyond the largest double; (0 * 1 + 1 * 0) * inf is no number, negative as the machine makes
    // it.
    EXPECT_EQ(drawing.Text().substr(0, 12), "M 0,0 l inf,");
    EXPECT_TRUE(std::isinf(drawing.x));
    EXPECT_TRUE(std::isnan(drawing.y));
}

TEST(DrawShape, PoppingMovesBackWithoutDrawing) {
    Drawing drawing;
    EXPECT_EQ(drawing.DrawProgram({5, 0x10, 6, 0x14}), 0);
    EXPECT_EQ(drawing.Text(), "M 0,0 l 1,0 M 0,0 l 0,1 ");
    EXPECT_EQ(drawing.stack.count, 0U);
}

TEST(DrawShape, PositionsComeBackInTheOrderOfAStack) {
    Drawing drawing;
    EXPECT_EQ(drawing.DrawProgram({2, 5, 0x10, 5, 0x10, 5, 0x10, 6}), 0);
    EXPECT_EQ(drawing.x, 2);
    EXPECT_EQ(drawing.DrawProgram({6}), 0);
    EXPECT_EQ(drawing.x, 1);
    EXPECT_EQ(drawing.DrawProgram({6}), 0);
    EXPECT_EQ(drawing.x, 0);
}

TEST(DrawShape, AFourthPushIsRefused) {
    Drawing three;
    EXPECT_EQ(three.DrawProgram({5, 5, 5}), 0);
    EXPECT_EQ(three.stack.count, 3U);
    Drawing four;
    EXPECT_EQ(four.DrawProgram({5, 5, 5, 5}), 5);
    EXPECT_EQ(four.stack.count, 3U);
}

TEST(DrawShape, APopOfAnEmptyStackIsRefused) {
    Drawing drawing;
    EXPECT_EQ(drawing.DrawProgram({6}), 6);
    EXPECT_EQ(drawing.DrawProgram({5, 6, 6}), 6);
}

TEST(DrawShape, AStackWithAnInvalidCountIsRefused) {
    for (const std::uint32_t count : {4U, 5U, 0x7fffffffU, 0xffffffffU}) {
        Drawing pop;
        pop.stack.count = count;
        EXPECT_EQ(pop.DrawProgram({6}), 6) << count;
        Drawing push;
        push.stack.count = count;
        EXPECT_EQ(push.DrawProgram({5}), 5) << count;
    }
    Drawing full;
    full.stack.count = 3;
    full.stack.x[2] = 9;
    EXPECT_EQ(full.DrawProgram({6}), 0);
    EXPECT_EQ(full.x, 9);
}

TEST(DrawShape, InstructionsOfUnknownKindAreRefused) {
    for (int op = -3; op <= 25; ++op) {
        const bool known = (op >= 1 && op <= 7) || op == 18 || op == 19;
        if (!known) {
            Drawing drawing;
            EXPECT_EQ(drawing.Draw({Op(static_cast<ShapeOp>(op))}), 9) << op;
        }
    }
    for (const int op : {INT32_MIN, INT32_MAX, 256 + 1}) {
        Drawing drawing;
        EXPECT_EQ(drawing.Draw({Op(static_cast<ShapeOp>(op))}), 9) << op;
    }
}

TEST(DrawShape, AnUnknownInstructionForVerticalDrawingIsSkippedFirst) {
    Drawing horizontal;
    EXPECT_EQ(horizontal.Draw({Vertical(Op(static_cast<ShapeOp>(8)))}), 0);
    Drawing vertical;
    vertical.vertical = true;
    EXPECT_EQ(vertical.Draw({Vertical(Op(static_cast<ShapeOp>(8)))}), 9);
}

TEST(DrawShape, ASubshapeNumberThatIsNoneIsNotFound) {
    for (const double number : {-1.0, 65536.0 + 3, 1e300, std::numeric_limits<double>::infinity(),
                                std::numeric_limits<double>::quiet_NaN()}) {
        Drawing drawing;
        EXPECT_EQ(drawing.Draw({Op(ShapeOp::Subshape, number)}), 8) << number;
    }
}

TEST(DrawShape, VerticalOnlyIsSkippedUnlessDrawingIsVertical) {
    const test_support::Bytes program = {14, 0x14, 0x10};
    Drawing horizontal;
    EXPECT_EQ(horizontal.DrawProgram(program), 0);
    EXPECT_EQ(horizontal.Text(), "M 0,0 l 1,0 ");
    Drawing vertical;
    vertical.vertical = true;
    EXPECT_EQ(vertical.DrawProgram(program), 0);
    EXPECT_EQ(vertical.Text(), "M 0,0 l 0,1 M 0,1 l 1,0 ");
}

TEST(DrawShape, EveryKindOfInstructionCanBeForVerticalDrawingOnly) {
    // Each of these would show in the path of the vector behind it, or be refused.
    const std::vector<test_support::Bytes> codes = {
        {2},       {3, 2},          {4, 2},     {5, 5, 5, 14, 5},    {6},          {7, 1}, {0x10},
        {8, 1, 1}, {9, 1, 1, 0, 0}, {10, 1, 2}, {11, 0, 0, 0, 1, 2}, {12, 1, 1, 1}};
    for (const test_support::Bytes& code : codes) {
        test_support::Bytes program = {14};
        program.insert(program.end(), code.begin(), code.end());
        program.push_back(0x14);
        Drawing drawing;
        EXPECT_EQ(drawing.DrawProgram(program), 0) << static_cast<int>(code[0]);
        EXPECT_EQ(drawing.Text(), "M 0,0 l 0,1 ") << static_cast<int>(code[0]);
    }
}

TEST(DrawShape, AFailureKeepsWhatWasDrawnBefore) {
    Drawing drawing;
    EXPECT_EQ(drawing.DrawProgram({0x10, 6, 0x14}), 6);
    EXPECT_EQ(drawing.Text(), "M 0,0 l 1,0 ");
    EXPECT_EQ(drawing.x, 1);
}

} // namespace
