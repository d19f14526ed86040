// Every single allocation fails in turn: the result says so, and nothing leaks.
#include "StyleConversion/shx/ShapeHeaderReader.h"
#include "StyleConversion/shx/ShxUtility.h"
#include "tests/shx/Drawing.h"
#include "tests/support/Allocations.h"
#include "tests/support/ShapeProgramBuilder.h"

#include <functional>
#include <gtest/gtest.h>

namespace {

using namespace ShxUtility;
using test_support::AllocationWatch;
using test_support::Bytes;
using test_support::File;
using test_support::FileOf;
using test_support::ShapeFileBuilder;
using test_support::ShapeProgramBuilder;

// Runs `operation` with its first, its second, its third... allocation failing, until none fails any more.
// Returns how many there are.
std::size_t FailEach(const std::function<int()>& operation) {
    for (std::size_t failing = 1;; ++failing) {
        int result = 0;
        bool failed = false;
        std::ptrdiff_t live = 0;
        {
            const AllocationWatch watch(failing);
            result = operation();
            failed = watch.HasFailed();
            live = watch.Live();
        }
        EXPECT_EQ(live, 0) << "allocation " << failing;
        if (!failed) {
            EXPECT_EQ(result, 0);
            return failing - 1;
        }
        EXPECT_EQ(result, 4) << "allocation " << failing;
    }
}

const std::string kLongName = "A NAME THAT TAKES AN ALLOCATION OF ITS OWN";

// Whatever a failure leaves of a file can be drawn from without reading where nothing is.
void DrawEverything(const ShapesInFile& file) {
    for (const auto& [number, position] : file.numberIndex) {
        Drawing drawing;
        drawing.Draw({{static_cast<double>(number), 0, 0, false, ShapeOp::Subshape}}, file);
    }
}

std::size_t FailEachAllocationOfLoading(const std::string& bytes) {
    const File stream = FileOf(bytes);
    return FailEach([&] {
        std::rewind(stream.get());
        ShapesInFile file;
        const int result = LoadShapeFile(stream.get(), file, kAllKinds);
        return result;
    });
}

TEST(AllocationFailure, WhileAFontLoads) {
    const auto font = ShapeFileBuilder::Shapes()
                          .FontInfo(kLongName, {21, 7, 0, 0})
                          .Shape(1, kLongName, {0x10, 0x14, 0})
                          .Shape(2, "", {0x10, 0})
                          .Shape(3, "SHORT", Bytes(500, 0x14));
    // The file's bytes, the shapes, two long names and the copy of one as a key, the font information, three
    // numbers, two names, three programs.
    EXPECT_GE(FailEachAllocationOfLoading(font.Text()), 14U);
}

TEST(AllocationFailure, WhileAUnifontLoads) {
    const auto font = ShapeFileBuilder::Unifont()
                          .FontInfo("F", {21, 7, 0, 0})
                          .Shape(300, kLongName, {0x10, 0x14, 0})
                          .Shape(301, "B", {0x10, 0});
    EXPECT_GE(FailEachAllocationOfLoading(font.Text()), 9U);
}

TEST(AllocationFailure, ReadingAHeaderAllocatesNothing) {
    const std::string bytes = ShapeFileBuilder::Unifont().Text();
    EXPECT_EQ(FailEach([&] {
                  ShapesInFile file;
                  ShapeFileReport report;
                  ShapeReading reading(bytes, file, report);
                  return static_cast<int>(ReadFileHeader(reading, file, kAllKinds));
              }),
              0U);
}

TEST(AllocationFailure, LeavesAFileThatCanBeDrawnFrom) {
    const File stream = FileOf(ShapeFileBuilder::Shapes()
                                   .Shape(1, kLongName, {0x10, 7, 2, 0})
                                   .Shape(2, "B", {0x14, 7, 3, 0})
                                   .Shape(3, "C", {0x14, 0})
                                   .Text());
    for (std::size_t failing = 1;; ++failing) {
        std::rewind(stream.get());
        ShapesInFile file;
        bool failed = false;
        {
            const AllocationWatch watch(failing);
            LoadShapeFile(stream.get(), file, kAllKinds);
            failed = watch.HasFailed();
        }
        DrawEverything(file);
        const ShapesInFile copy = file;
        DrawEverything(copy);
        if (!failed) {
            break;
        }
    }
}

TEST(AllocationFailure, WhileAProgramIsDecoded) {
    ShapeProgramBuilder builder;
    for (int i = 0; i < 20; ++i) {
        builder.Vector(1, 4).PenUp().PenDown().Divide(2).Push().Pop().Subshape(1).Move(1, 2);
        builder.Moves({{1, 2}, {3, 4}}).OctantArc(1, 2).FractionalArc(1, 2, 3, 4).BulgeArc(1, 2, 3);
        builder.BulgeArcs({{1, 2, 3}, {4, 5, 6}});
    }
    const Bytes program = builder.End();
    // 340 instructions: the list grows more than once.
    EXPECT_GE(FailEach([&] {
                  ShapeInstructions out;
                  return static_cast<int>(
                      DecodeShape(out, program.data(), static_cast<std::uint16_t>(program.size()), kShapes));
              }),
              3U);
}

TEST(AllocationFailure, WhileAShapeAndItsSubshapesAreDrawn) {
    const ShapesInFile file = Loaded(ShapeFileBuilder::Shapes()
                                         .Shape(2, "", {0x14, 10, 1, 0x02, 7, 3, 7, 4, 0})
                                         .Shape(3, "", Bytes(100, 0x10))
                                         .Shape(4, "", {12, 1, 2, 3, 0}));
    const Bytes program = {0x10, 7, 2, 7, 3, 0x14, 0};
    EXPECT_GE(FailEach([&] {
                  Drawing drawing;
                  return drawing.DrawProgram(program, file);
              }),
              10U);
}

TEST(AllocationFailure, WhileDrawingIsAResultOfDrawing) {
    const ShapeInstructions move = {{1, 0, 0, false, ShapeOp::Move}};
    // The path itself is what needs memory here: longer than a string holds within itself.
    EXPECT_GE(FailEach([&] {
                  std::wstring path;
                  double x = 0;
                  double y = 0;
                  double scale = 1;
                  PositionStack stack;
                  std::vector<std::uint16_t> active;
                  bool pen = true;
                  const ShapesInFile none;
                  return static_cast<int>(
                      DrawShape(path, x, y, scale, stack, active, pen, move, none, 30, false));
              }),
              1U);
}

TEST(AllocationFailure, OfACharArrayLeavesItsSizeWithoutBytes) {
    CharArray array;
    array.Resize(5);
    bool thrown = false;
    {
        const AllocationWatch watch(1);
        try {
            array.Resize(7);
        } catch (const std::bad_alloc&) {
            thrown = true;
        }
    }
    EXPECT_TRUE(thrown);
    EXPECT_EQ(array.data(), nullptr);
    EXPECT_EQ(array.size(), 7U);
    // A copy of it is the same.
    const CharArray copy(array);
    EXPECT_EQ(copy.data(), nullptr);
    EXPECT_EQ(copy.size(), 7U);
}

} // namespace
