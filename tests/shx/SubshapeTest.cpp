// Shapes that draw other shapes of their file.
#include "tests/shx/Decoding.h"
#include "tests/shx/Drawing.h"

#include <gtest/gtest.h>

namespace {

using namespace ShxUtility;
using test_support::Bytes;
using test_support::ShapeFileBuilder;
using Numbers = std::vector<std::uint16_t>;

// Draws shape `number` of the file by itself, as the file's kind has it.
int DrawNumber(Drawing& drawing, const ShapesInFile& file, std::uint16_t number) {
    const CharArray& data = file.shapes[file.numberIndex.at(number)].data;
    return drawing.DrawProgram(Bytes(data.data(), data.data() + data.size()), file, file.kind);
}

TEST(Subshape, IsDrawnFromTheCurrentPointAndGoesOnFromItsEnd) {
    const ShapesInFile file =
        Loaded(ShapeFileBuilder::Shapes().Shape(1, "", {0x10, 7, 2, 0x10, 0}).Shape(2, "", {0x14, 0}));
    Drawing drawing;
    EXPECT_EQ(DrawNumber(drawing, file, 1), 0);
    EXPECT_EQ(drawing.Text(), "M 0,0 l 1,0 M 1,0 l 0,1 M 1,1 l 1,0 ");
    EXPECT_TRUE(drawing.active.empty());
}

TEST(Subshape, TakesTheRotation) {
    const ShapesInFile file =
        Loaded(ShapeFileBuilder::Shapes().Shape(1, "", {7, 2, 0}).Shape(2, "", {0x14, 0}));
    Drawing drawing;
    drawing.rotation = 90;
    EXPECT_EQ(DrawNumber(drawing, file, 1), 0);
    EXPECT_EQ(drawing.Text(), "M 0,0 l -1,6.12323399573677e-17 ");
}

TEST(Subshape, StartsWithThePenDownAndLeavesItsOwn) {
    const ShapesInFile file = Loaded(ShapeFileBuilder::Shapes()
                                         .Shape(1, "", {2, 7, 2, 0x10, 0})
                                         .Shape(2, "", {0x14, 0})
                                         .Shape(3, "", {7, 4, 0x10, 0})
                                         .Shape(4, "", {2, 0}));
    Drawing up;
    EXPECT_EQ(DrawNumber(up, file, 1), 0);
    EXPECT_EQ(up.Text(), "M 0,0 l 0,1 M 0,1 l 1,0 ");
    Drawing down;
    EXPECT_EQ(DrawNumber(down, file, 3), 0);
    EXPECT_EQ(down.Text(), "");
    EXPECT_FALSE(down.penDown);
    EXPECT_EQ(down.x, 1);
}

TEST(Subshape, LeavesItsScale) {
    const ShapesInFile file =
        Loaded(ShapeFileBuilder::Shapes().Shape(1, "", {7, 2, 0x10, 0}).Shape(2, "", {4, 5, 0}));
    Drawing drawing;
    EXPECT_EQ(DrawNumber(drawing, file, 1), 0);
    EXPECT_EQ(drawing.Text(), "M 0,0 l 5,0 ");
    EXPECT_EQ(drawing.scale, 5);
}

TEST(Subshape, SharesSavedPositions) {
    const ShapesInFile file = Loaded(ShapeFileBuilder::Shapes()
                                         .Shape(1, "", {7, 2, 2, 0x20, 6, 0})
                                         .Shape(2, "", {2, 0x10, 5, 0})
                                         .Shape(3, "", {5, 5, 5, 7, 2, 0}));
    Drawing popped;
    EXPECT_EQ(DrawNumber(popped, file, 1), 0);
    EXPECT_EQ(popped.x, 1);
    Drawing full;
    EXPECT_EQ(DrawNumber(full, file, 3), 5);
}

TEST(Subshape, AShapeThatNamesItselfIsDrawnOnceMoreAndThenRefused) {
    const ShapesInFile file = Loaded(ShapeFileBuilder::Shapes().Shape(1, "", {0x10, 7, 1, 0}));
    Drawing drawing;
    EXPECT_EQ(DrawNumber(drawing, file, 1), 7);
    EXPECT_EQ(drawing.Text(), "M 0,0 l 1,0 M 1,0 l 1,0 ");
    EXPECT_EQ(drawing.active, Numbers{1});
}

TEST(Subshape, ACircleOfShapesIsRefused) {
    const ShapesInFile file = Loaded(
        ShapeFileBuilder::Shapes().Shape(1, "", {7, 2, 0}).Shape(2, "", {7, 3, 0}).Shape(3, "", {7, 2, 0}));
    Drawing drawing;
    EXPECT_EQ(DrawNumber(drawing, file, 1), 7);
    EXPECT_EQ(drawing.active, (Numbers{2, 3}));
}

TEST(Subshape, MayBeDrawnAgainWhenItIsDone) {
    const ShapesInFile file =
        Loaded(ShapeFileBuilder::Shapes().Shape(1, "", {7, 2, 7, 2, 0}).Shape(2, "", {0x10, 0}));
    Drawing drawing;
    EXPECT_EQ(DrawNumber(drawing, file, 1), 0);
    EXPECT_EQ(drawing.Text(), "M 0,0 l 1,0 M 1,0 l 1,0 ");
}

TEST(Subshape, WhatTheCallerHasActiveIsRefused) {
    const ShapesInFile file =
        Loaded(ShapeFileBuilder::Shapes().Shape(1, "", {7, 2, 0}).Shape(2, "", {0x10, 0}));
    Drawing drawing;
    drawing.active = {2};
    EXPECT_EQ(DrawNumber(drawing, file, 1), 7);
}

TEST(Subshape, ThatIsMissingIsNotFound) {
    const ShapesInFile file =
        Loaded(ShapeFileBuilder::Shapes().FontInfo("", {1, 2, 3}).Shape(1, "", {0x10, 7, 9, 0}));
    Drawing drawing;
    EXPECT_EQ(DrawNumber(drawing, file, 1), 8);
    EXPECT_EQ(drawing.Text(), "M 0,0 l 1,0 ");
    EXPECT_EQ(drawing.active, Numbers{9});
}

TEST(Subshape, TheFontInformationIsNone) {
    const ShapesInFile file =
        Loaded(ShapeFileBuilder::Shapes().FontInfo("", {1, 2, 3}).Shape(1, "", {7, 0, 0}));
    Drawing drawing;
    EXPECT_EQ(DrawNumber(drawing, file, 1), 8);
}

TEST(Subshape, ThatDoesNotDecodeDrawsNothingOfItself) {
    const ShapesInFile file =
        Loaded(ShapeFileBuilder::Shapes().Shape(1, "", {0x10, 7, 2, 0}).Shape(2, "", {0x14, 3, 0}));
    Drawing drawing;
    EXPECT_EQ(DrawNumber(drawing, file, 1), 2);
    EXPECT_EQ(drawing.Text(), "M 0,0 l 1,0 ");
    EXPECT_EQ(drawing.active, Numbers{2});
}

TEST(Subshape, WhoseDrawingFailsEndsTheDrawing) {
    const ShapesInFile file =
        Loaded(ShapeFileBuilder::Shapes().Shape(1, "", {7, 2, 0x10, 0}).Shape(2, "", {0x14, 6, 0}));
    Drawing drawing;
    EXPECT_EQ(DrawNumber(drawing, file, 1), 6);
    EXPECT_EQ(drawing.Text(), "M 0,0 l 0,1 ");
}

TEST(Subshape, IsNeverDrawnVertically) {
    const ShapesInFile file = Loaded(ShapeFileBuilder::Shapes()
                                         .Shape(1, "", {14, 0x10, 7, 2, 14, 0x20, 0})
                                         .Shape(2, "", {14, 0x14, 0x18, 0}));
    Drawing drawing;
    drawing.vertical = true;
    EXPECT_EQ(DrawNumber(drawing, file, 1), 0);
    EXPECT_EQ(drawing.Text(), "M 0,0 l 1,0 M 1,0 l -1,0 M 0,0 l 2,0 ");
}

TEST(Subshape, OfAUnifontHasATwoByteNumberAtTheTopAndAOneByteNumberBelow) {
    const ShapesInFile file = Loaded(ShapeFileBuilder::Unifont()
                                         .Shape(300, "", {7, 0x01, 0x2d, 0}) // 301
                                         .Shape(301, "", {7, 2, 0x10, 0})
                                         .Shape(2, "", {0x14, 0}));
    Drawing drawing;
    EXPECT_EQ(DrawNumber(drawing, file, 300), 0);
    EXPECT_EQ(drawing.Text(), "M 0,0 l 0,1 M 0,1 l 1,0 ");
}

TEST(Subshape, OfAFontIsDecodedLikeThatOfALibrary) {
    const ShapesInFile file = Loaded(ShapeFileBuilder::Shapes()
                                         .FontInfo("", {1, 2, 3})
                                         .Shape(1, "", {7, 2, 0})
                                         .Shape(2, "", {7, 3, 0})
                                         .Shape(3, "", {0x10, 0}));
    ASSERT_EQ(file.kind, kFont);
    Drawing drawing;
    EXPECT_EQ(DrawNumber(drawing, file, 1), 0);
    EXPECT_EQ(drawing.Text(), "M 0,0 l 1,0 ");
}

TEST(Subshape, WithoutBytesDrawsNothing) {
    // What a file is left with where the memory for a program could not be had.
    ShapesInFile file =
        Loaded(ShapeFileBuilder::Shapes().Shape(1, "", {7, 2, 0x10, 0}).Shape(2, "", {0x14, 0}));
    file.shapes[1].data = CharArray();
    Drawing drawing;
    EXPECT_EQ(DrawNumber(drawing, file, 1), 0);
    EXPECT_EQ(drawing.Text(), "M 0,0 l 1,0 ");
}

} // namespace
