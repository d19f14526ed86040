// One shape of a file, by its number, to path text and to a sink.
#include "StyleConversion/shx/GlyphDrawing.h"

#include "tests/shx/Drawing.h"

#include <gtest/gtest.h>
#include <new>
#include <string>

namespace {

using namespace ShxUtility;
using test_support::ShapeFileBuilder;

// Writes down what it is told, in whole numbers.
struct Recorder {
    std::string calls;

    void MoveTo(double x, double y) { Add("move", x, y); }
    void LineBy(double dx, double dy) { Add("line", dx, dy); }
    void ArcTo(double radius, int largeArc, int sweep, double x, double y) {
        Add("arc", radius, largeArc);
        Add("", sweep, x);
        Add("", y, 0);
    }

private:
    void Add(const char* name, double first, double second) {
        calls += std::string(name) + " " + std::to_string(static_cast<int>(first)) + " " +
                 std::to_string(static_cast<int>(second)) + ";";
    }
};

TEST(DrawGlyph, TellsTheSinkAndMovesThePen) {
    const ShapesInFile file = Loaded(ShapeFileBuilder::Shapes().Shape(5, "", {0x24, 0x10, 0}));
    GlyphPen pen;
    pen.x = 10;
    pen.scale = 3;
    Recorder sink;
    EXPECT_EQ(DrawGlyph(file, 5, kShapes, pen, sink), kSuccess);
    EXPECT_EQ(sink.calls, "move 10 0;line 0 6;move 10 6;line 3 0;");
    EXPECT_EQ(pen.x, 13);
    EXPECT_EQ(pen.y, 6);
}

TEST(DrawGlyph, AppendsToAPath) {
    const ShapesInFile file = Loaded(ShapeFileBuilder::Shapes().Shape(5, "", {0x14, 0}));
    GlyphPen pen;
    std::wstring path = L"M 7,7 ";
    EXPECT_EQ(DrawGlyph(file, 5, kShapes, pen, path), kSuccess);
    EXPECT_EQ(path, L"M 7,7 M 0,0 l 0,1 ");
}

TEST(DrawGlyph, LeavesTheScaleThatTheProgramMade) {
    const ShapesInFile file = Loaded(ShapeFileBuilder::Shapes().Shape(5, "", {4, 6, 3, 2, 0}));
    GlyphPen pen;
    pen.scale = 5;
    std::wstring path;
    EXPECT_EQ(DrawGlyph(file, 5, kShapes, pen, path), kSuccess);
    EXPECT_EQ(pen.scale, 15);
}

TEST(DrawGlyph, TurnsAndDrawsForVerticalTextWhereAsked) {
    const ShapesInFile file = Loaded(ShapeFileBuilder::Shapes().Shape(5, "", {14, 0x10, 0x20, 0}));
    GlyphPen pen;
    pen.rotation = 180;
    Recorder sink;
    EXPECT_EQ(DrawGlyph(file, 5, kShapes, pen, sink), kSuccess);
    EXPECT_EQ(sink.calls, "move 0 0;line -2 0;");
    pen = {};
    pen.vertical = true;
    sink = {};
    EXPECT_EQ(DrawGlyph(file, 5, kShapes, pen, sink), kSuccess);
    EXPECT_EQ(sink.calls, "move 0 0;line 1 0;move 1 0;line 2 0;");
}

TEST(DrawGlyph, NumberThatIsNotThereIsEight) {
    const ShapesInFile file = Loaded(ShapeFileBuilder::Shapes().FontInfo("F", {6, 2, 0}).Shape(5, "", {0}));
    GlyphPen pen;
    std::wstring path;
    EXPECT_EQ(DrawGlyph(file, 6, kShapes, pen, path), kSubshapeNotFound);
    EXPECT_EQ(DrawGlyph(file, 0, kShapes, pen, path), kSubshapeNotFound)
        << "the font information is no shape";
    EXPECT_EQ(path, L"");
}

TEST(DrawGlyph, SubshapeNumbersHaveTheFormThatIsAskedFor) {
    // Number 1 in one byte, and then an end; or number 256 in two.
    const ShapesInFile file = Loaded(ShapeFileBuilder::Unifont()
                                         .Shape(5, "", {7, 1, 0, 0x10, 0})
                                         .Shape(1, "", {0x14, 0})
                                         .Shape(256, "", {0x18, 0}));
    GlyphPen pen;
    std::wstring path;
    EXPECT_EQ(DrawGlyph(file, 5, kShapes, pen, path), kSuccess);
    EXPECT_EQ(path, L"M 0,0 l 0,1 ");
    pen = {};
    path.clear();
    EXPECT_EQ(DrawGlyph(file, 5, kUnifont, pen, path), kSuccess);
    EXPECT_EQ(path, L"M 0,0 l -1,0 M -1,0 l 1,0 ");
    EXPECT_EQ(DrawGlyph(file, 5, kBigfont, pen, path), kUnsupported);
}

TEST(DrawGlyph, FailureLeavesWhatWasDrawnBefore) {
    const ShapesInFile file = Loaded(ShapeFileBuilder::Shapes().Shape(5, "", {0x14, 6, 0}));
    GlyphPen pen;
    std::wstring path;
    EXPECT_EQ(DrawGlyph(file, 5, kShapes, pen, path), kPositionStackEmpty);
    EXPECT_EQ(path, L"M 0,0 l 0,1 ");
    EXPECT_EQ(pen.y, 1);
}

struct FullSink : Recorder {
    static void LineBy(double /*dx*/, double /*dy*/) { throw std::bad_alloc(); }
};

TEST(DrawGlyph, SinkWithoutMemoryIsFour) {
    const ShapesInFile file = Loaded(ShapeFileBuilder::Shapes().Shape(5, "", {0x14, 0}));
    GlyphPen pen;
    FullSink sink;
    EXPECT_EQ(DrawGlyph(file, 5, kShapes, pen, sink), kOutOfMemory);
}

} // namespace
