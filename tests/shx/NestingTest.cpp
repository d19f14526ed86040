// Subshapes nest as deep as their numbers allow, and the deepest drawing fits a small stack.
#include "StyleConversion/shx/Limits.h"
#include "tests/shx/Drawing.h"
#include "tests/support/SmallStack.h"

#include <gtest/gtest.h>

namespace {

using namespace ShxUtility;
using test_support::ShapeFileBuilder;

constexpr std::size_t kMebibyte = std::size_t{1} << 20;

// Shape 300 draws shape 1, that draws shape 2, and so on to shape 255, which draws an arc.
ShapesInFile DeepestFile(std::uint8_t lastFactor) {
    ShapeFileBuilder builder = ShapeFileBuilder::Unifont();
    builder.Shape(300, "", {7, 1, 0});
    for (std::uint8_t number = 1; number < 255; ++number) {
        builder.Shape(number, "", {0x10, 7, static_cast<std::uint8_t>(number + 1), 0});
    }
    builder.Shape(255, "", {10, 7, 0x00, 4, lastFactor, 0});
    return Loaded(builder);
}

// The shape itself is the caller's instruction list, 300 its first subshape.
int DrawDeepest(Drawing& drawing, const ShapesInFile& file) {
    return drawing.DrawProgram({7, 0x01, 0x2c, 0}, file, kUnifont);
}

TEST(Nesting, GoesThroughEveryNumberThatASubshapeCanHave) {
    Drawing drawing;
    EXPECT_EQ(DrawDeepest(drawing, DeepestFile(3)), 0);
    EXPECT_EQ(drawing.x, 254);
    EXPECT_EQ(drawing.scale, 3);
    EXPECT_TRUE(drawing.active.empty());
}

TEST(Nesting, OneShapeDeeperIsARecursion) {
    ShapesInFile file = DeepestFile(3);
    file.shapes.back().data.Resize(2);
    file.shapes.back().data.data()[0] = 7;
    file.shapes.back().data.data()[1] = 128;
    Drawing drawing;
    EXPECT_EQ(DrawDeepest(drawing, file), 7);
    // The call for the whole drawing is one level, every active subshape another.
    EXPECT_EQ(drawing.active.size() + 1, kDeepestNesting);
}

TEST(Nesting, TheDeepestDrawingFitsAMebibyteOfStack) {
    const ShapesInFile file = DeepestFile(3);
    Drawing drawing;
    int result = -1;
    const std::size_t used =
        test_support::RunOnStack(kMebibyte, [&] { result = DrawDeepest(drawing, file); });
    EXPECT_EQ(result, 0);
    EXPECT_EQ(drawing.x, 254);
    EXPECT_GT(used, 0U);
    EXPECT_LT(used, kMebibyte / 2);
    RecordProperty("stackBytes", static_cast<int>(used));
}

} // namespace
