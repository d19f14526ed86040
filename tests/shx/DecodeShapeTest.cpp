// Shape programs as instructions: every code but the arcs, and every truncation.
#include "StyleConversion/shx/ShxUtility.h"
#include "tests/shx/Decoding.h"

#include <cmath>
#include <gtest/gtest.h>

namespace {

using namespace ShxUtility;
using test_support::Bytes;

TEST(DecodeShape, NoBytesAreNoInstructions) {
    EXPECT_EQ(Decode({}), (Decoded{0, {}}));
    ShapeInstructions out;
    EXPECT_EQ(DecodeShape(out, nullptr, 0, kShapes), 0);
}

TEST(DecodeShape, ReadsNoMoreThanItsLength) {
    const std::uint8_t bytes[] = {1, 2, 8, 5, 6};
    ShapeInstructions out;
    EXPECT_EQ(DecodeShape(out, bytes, 2, kShapes), 0);
    EXPECT_EQ(out.size(), 2U);
    EXPECT_EQ(DecodeShape(out, bytes, 4, kShapes), 2);
}

TEST(DecodeShape, AppendsToItsOutput) {
    ShapeInstructions out(1);
    const Bytes bytes = {1};
    EXPECT_EQ(DecodeShape(out, bytes.data(), 1, kShapes), 0);
    EXPECT_EQ(out.size(), 2U);
}

TEST(DecodeShape, ZeroEndsTheProgram) {
    EXPECT_EQ(Decode({1, 0, 3}), (Decoded{0, {Op(ShapeOp::PenDown)}}));
    // Also where the next code would be refused.
    EXPECT_EQ(Decode({0, 3, 0}), (Decoded{0, {}}));
}

TEST(DecodeShape, AProgramMayEndWithoutAZero) {
    EXPECT_EQ(Decode({2}), (Decoded{0, {Op(ShapeOp::PenUp)}}));
}

TEST(DecodeShape, CodesWithoutOperands) {
    EXPECT_EQ(Decode({1, 2, 5, 6}), (Decoded{0,
                                             {Op(ShapeOp::PenDown), Op(ShapeOp::PenUp),
                                              Op(ShapeOp::PushPosition), Op(ShapeOp::PopPosition)}}));
}

TEST(DecodeShape, EveryByteFrom0FUpIsAVector) {
    // Sixteen directions, counter-clockwise round the square from (1, 0) in steps of a half.
    const double xs[] = {1, 1, 1, .5, 0, -.5, -1, -1, -1, -1, -1, -.5, 0, .5, 1, 1};
    const double ys[] = {0, .5, 1, 1, 1, 1, 1, .5, 0, -.5, -1, -1, -1, -1, -1, -.5};
    for (int byte = 0x0f; byte <= 0xff; ++byte) {
        const int length = byte / 16;
        const int direction = byte % 16;
        EXPECT_EQ(Decode({byte}), (Decoded{0, {Move(length * xs[direction], length * ys[direction])}}))
            << byte;
    }
}

TEST(DecodeShape, FactorsAreUnsignedAndNotZero) {
    EXPECT_EQ(Decode({3, 2, 4, 255}),
              (Decoded{0, {Op(ShapeOp::DivideScale, 2), Op(ShapeOp::MultiplyScale, 255)}}));
    EXPECT_EQ(Decode({3, 0}), (Decoded{2, {}}));
    EXPECT_EQ(Decode({4, 0}), (Decoded{2, {}}));
    EXPECT_EQ(Decode({3}), (Decoded{2, {}}));
    EXPECT_EQ(Decode({1, 4}), (Decoded{2, {Op(ShapeOp::PenDown)}}));
}

TEST(DecodeShape, SubshapeNumbersHaveOneByteInShapesAndFonts) {
    for (const int kind : {kShapes, kFont}) {
        EXPECT_EQ(Decode({7, 200, 1}, kind),
                  (Decoded{0, {Op(ShapeOp::Subshape, 200), Op(ShapeOp::PenDown)}}));
        EXPECT_EQ(Decode({7}, kind), (Decoded{2, {}}));
    }
}

TEST(DecodeShape, SubshapeNumbersHaveTwoBytesInUnifonts) {
    EXPECT_EQ(Decode({7, 0x12, 0xff, 1}, kUnifont),
              (Decoded{0, {Op(ShapeOp::Subshape, 0x12ff), Op(ShapeOp::PenDown)}}));
    EXPECT_EQ(Decode({7, 0xff, 0xff}, kUnifont), (Decoded{0, {Op(ShapeOp::Subshape, 65535)}}));
    EXPECT_EQ(Decode({7}, kUnifont), (Decoded{2, {}}));
    EXPECT_EQ(Decode({7, 0x12}, kUnifont), (Decoded{2, {}}));
}

TEST(DecodeShape, SubshapesOfAnyOtherKindAreUnsupported) {
    for (const int kind : {kBigfont + 0, 0, -1, 3, 5, 6, 7, 9, 256, INT32_MIN, INT32_MAX}) {
        EXPECT_EQ(Decode({7, 1, 1}, kind), (Decoded{11, {}})) << kind;
        // Also where the number is missing.
        EXPECT_EQ(Decode({7}, kind), (Decoded{11, {}})) << kind;
        // The rest of a program is the same in every kind.
        EXPECT_EQ(Decode({8, 1, 2}, kind), (Decoded{0, {Move(1, 2)}})) << kind;
    }
}

TEST(DecodeShape, Code8IsASignedDisplacement) {
    EXPECT_EQ(Decode({8, 127, 128}), (Decoded{0, {Move(127, -128)}}));
    EXPECT_EQ(Decode({8, 0, 0}), (Decoded{0, {Move(0, 0)}}));
    EXPECT_EQ(Decode({8}), (Decoded{2, {}}));
    EXPECT_EQ(Decode({8, 1}), (Decoded{2, {}}));
}

TEST(DecodeShape, Code9IsDisplacementsUpToAPairOfZeros) {
    EXPECT_EQ(Decode({9, 1, 2, 0, 255, 254, 0, 0, 0, 1}),
              (Decoded{0, {Move(1, 2), Move(0, -1), Move(-2, 0), Op(ShapeOp::PenDown)}}));
    EXPECT_EQ(Decode({9, 0, 0}), (Decoded{0, {}}));
}

TEST(DecodeShape, Code9KeepsWhatCameBeforeItsMissingEnd) {
    EXPECT_EQ(Decode({9}), (Decoded{2, {}}));
    EXPECT_EQ(Decode({9, 1}), (Decoded{2, {}}));
    EXPECT_EQ(Decode({9, 1, 2}), (Decoded{2, {Move(1, 2)}}));
    EXPECT_EQ(Decode({9, 1, 2, 0}), (Decoded{2, {Move(1, 2)}}));
}

TEST(DecodeShape, Code14MarksTheNextInstruction) {
    EXPECT_EQ(Decode({14, 0x14, 0x14}), (Decoded{0, {Vertical(Move(0, 1)), Move(0, 1)}}));
    EXPECT_EQ(Decode({14, 2, 1}), (Decoded{0, {Vertical(Op(ShapeOp::PenUp)), Op(ShapeOp::PenDown)}}));
    EXPECT_EQ(Decode({14, 14, 5, 6}),
              (Decoded{0, {Vertical(Op(ShapeOp::PushPosition)), Op(ShapeOp::PopPosition)}}));
}

TEST(DecodeShape, Code14MarksAllInstructionsOfACodeWithMany) {
    EXPECT_EQ(Decode({14, 9, 1, 2, 3, 4, 0, 0, 1}),
              (Decoded{0, {Vertical(Move(1, 2)), Vertical(Move(3, 4)), Op(ShapeOp::PenDown)}}));
    EXPECT_EQ(Decode({14, 13, 1, 2, 0, 3, 4, 0, 0, 0, 1}),
              (Decoded{0, {Vertical(Move(1, 2)), Vertical(Move(3, 4)), Op(ShapeOp::PenDown)}}));
}

TEST(DecodeShape, Code14IsUsedUpByACodeThatEmitsNothing) {
    EXPECT_EQ(Decode({14, 9, 0, 0, 1}), (Decoded{0, {Op(ShapeOp::PenDown)}}));
}

TEST(DecodeShape, Code14AtTheEndIsNothing) {
    EXPECT_EQ(Decode({14}), (Decoded{0, {}}));
    EXPECT_EQ(Decode({14, 0}), (Decoded{0, {}}));
}

TEST(DecodeShape, TheLongestProgramDecodes) {
    const Bytes bytes(65535, 0x14);
    ShapeInstructions out;
    EXPECT_EQ(DecodeShape(out, bytes.data(), 65535, kShapes), 0);
    EXPECT_EQ(out.size(), 65535U);
}

} // namespace
