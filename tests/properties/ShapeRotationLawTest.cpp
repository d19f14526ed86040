// A shape that is turned once round is where it was.
#include "StyleConversion/shx/ShxUtility.h"
#include "tests/properties/PathNumbers.h"
#include "tests/support/ShapeProgramBuilder.h"

#include <algorithm>
#include <cmath>
#include <random>

namespace {

using namespace ShxUtility;
using test_support::Bytes;
using test_support::ShapeProgramBuilder;

class ShapeRotation : public ::testing::Test {
protected:
    int Between(int least, int most) { return std::uniform_int_distribution(least, most)(random_); }
    int NotZero(int most) { return Between(1, most) * (Between(0, 1) == 0 ? 1 : -1); }

    Bytes Program() {
        ShapeProgramBuilder builder;
        for (int i = Between(1, 30); i > 0; --i) {
            Append(builder);
        }
        return builder.End();
    }

    void Append(ShapeProgramBuilder& builder) {
        switch (Between(0, 6)) {
        case 0:
            builder.Vector(Between(1, 15), Between(0, 15));
            break;
        case 1:
            builder.Move(NotZero(127), NotZero(127));
            break;
        case 2:
            builder.OctantArc(Between(1, 255), Between(0, 255));
            break;
        case 3:
            builder.FractionalArc(Between(0, 255), Between(0, 255), Between(1, 255), Between(0, 255));
            break;
        case 4:
            builder.BulgeArc(NotZero(127), NotZero(127), NotZero(127));
            break;
        case 5:
            builder.PenUp().Vector(Between(1, 15), Between(0, 15)).PenDown();
            break;
        default:
            builder.Push().Vector(3, Between(0, 15)).Pop();
            break;
        }
    }

    static std::wstring Draw(const Bytes& program, double rotation, double& x, double& y) {
        ShapeInstructions instructions;
        EXPECT_EQ(
            DecodeShape(instructions, program.data(), static_cast<std::uint16_t>(program.size()), kShapes),
            kSuccess);
        std::wstring path;
        double scale = 0.125;
        PositionStack stack;
        std::vector<std::uint16_t> active;
        bool penDown = true;
        const ShapesInFile file;
        EXPECT_EQ(DrawShape(path, x, y, scale, stack, active, penDown, instructions, file, rotation, false),
                  kSuccess);
        return path;
    }

private:
    std::mt19937 random_{20240703};
};

// Bulge arcs of half a circle may fall on either side of the border to large arcs when their angles are
// rounded; those with whole degrees are exact.
bool HasArcOnTheBorder(const Bytes& program) {
    ShapeInstructions instructions;
    DecodeShape(instructions, program.data(), static_cast<std::uint16_t>(program.size()), kShapes);
    return std::any_of(instructions.begin(), instructions.end(), [](const ShapeInstruction& instruction) {
        const double sweep = std::fabs(instruction.y - instruction.x);
        const bool whole =
            instruction.x == std::floor(instruction.x) && instruction.y == std::floor(instruction.y);
        return instruction.op == ShapeOp::Arc && !whole && std::fabs(sweep - 180.0) < 1e-9;
    });
}

TEST_F(ShapeRotation, By360DegreesChangesNothing) {
    std::size_t compared = 0;
    for (int round = 0; round < 2000; ++round) {
        const Bytes program = Program();
        if (HasArcOnTheBorder(program)) {
            continue;
        }
        double x0 = 2.0;
        double y0 = -3.0;
        double x360 = x0;
        double y360 = y0;
        const auto straight = laws::Commands(Draw(program, 0.0, x0, y0));
        const auto turned = laws::Commands(Draw(program, 360.0, x360, y360));
        EXPECT_NEAR(x0, x360, 1e-9);
        EXPECT_NEAR(y0, y360, 1e-9);
        ASSERT_EQ(straight.size(), turned.size());
        for (std::size_t i = 0; i < straight.size(); ++i) {
            ASSERT_EQ(straight[i].letter, turned[i].letter);
            ASSERT_EQ(straight[i].numbers.size(), turned[i].numbers.size());
            for (std::size_t k = 0; k < straight[i].numbers.size(); ++k) {
                ASSERT_NEAR(straight[i].numbers[k], turned[i].numbers[k], 1e-9);
                ++compared;
            }
        }
    }
    EXPECT_GT(compared, 50000U);
}

} // namespace
