// The example shape files: they are what their generator makes, and every shape of them draws.
#include "examples/generators/HersheyFile.h"
#include "examples/generators/MarkLibrary.h"
#include "examples/generators/StrokeFont.h"
#include "tests/shx/Drawing.h"

#include <cmath>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <set>
#include <string>

namespace {

using namespace ShxUtility;

const std::string kFolder = EXAMPLE_SHAPES_FOLDER;

std::string TextOf(const std::string& name) {
    std::ifstream file(kFolder + "/" + name, std::ios::binary);
    EXPECT_TRUE(file) << name;
    return {std::istreambuf_iterator<char>(file), {}};
}

ShapesInFile LoadedExample(const std::string& name) {
    ShapesInFile shapes;
    EXPECT_EQ(LoadShapeFile(TextOf(name), shapes, kAllKinds), 0) << name;
    return shapes;
}

int DrawPosition(Drawing& drawing, const ShapesInFile& file, std::size_t position) {
    const CharArray& data = file.shapes[position].data;
    return drawing.DrawProgram({data.data(), data.data() + data.size()}, file, file.kind);
}

TEST(ExampleShapes, AreWhatTheGeneratorMakes) {
    EXPECT_EQ(TextOf("marks.shx"), example_shapes::MarkLibrary().Text());
    const auto glyphs = example_shapes::ReadHershey(TextOf("source/rowmans.jhf"));
    ASSERT_TRUE(glyphs);
    EXPECT_EQ(TextOf("single-stroke.shx"), example_shapes::StrokeFont(*glyphs).Text());
}

TEST(ExampleShapes, TheLibraryHasItsMarks) {
    const ShapesInFile marks = LoadedExample("marks.shx");
    EXPECT_EQ(marks.kind, kShapes);
    for (const char* const name : {"ARROW", "TREE", "BOLT", "TRACKTIE", "WAVE", "CIRC", "SQUARE"}) {
        EXPECT_EQ(marks.nameIndex.count(name), 1U) << name;
    }
}

TEST(ExampleShapes, EveryMarkDrawsWithinAUnitAndKeepsTheScale) {
    const ShapesInFile marks = LoadedExample("marks.shx");
    for (std::size_t i = 0; i < marks.shapes.size(); ++i) {
        Drawing drawing;
        EXPECT_EQ(DrawPosition(drawing, marks, i), 0) << marks.shapes[i].name;
        EXPECT_FALSE(drawing.path.empty()) << marks.shapes[i].name;
        EXPECT_NEAR(drawing.scale, 1, 1e-15) << marks.shapes[i].name;
        EXPECT_LE(std::fabs(drawing.x), 1) << marks.shapes[i].name;
        EXPECT_LE(std::fabs(drawing.y), 1) << marks.shapes[i].name;
    }
}

TEST(ExampleShapes, TheMarksUseEveryCodeThatIsNotForText) {
    const ShapesInFile marks = LoadedExample("marks.shx");
    std::set<ShapeOp> ops;
    for (const Shape& shape : marks.shapes) {
        ShapeInstructions instructions;
        ASSERT_EQ(DecodeShape(instructions, shape.data.data(), static_cast<std::uint16_t>(shape.data.size()),
                              kShapes),
                  0);
        for (const ShapeInstruction& instruction : instructions) {
            ops.insert(instruction.op);
        }
    }
    EXPECT_EQ(ops.size(), 9U);
}

TEST(ExampleShapes, TheFontHasThePrintableAsciiCharacters) {
    const ShapesInFile font = LoadedExample("single-stroke.shx");
    EXPECT_EQ(font.kind, kFont);
    // Above and below the baseline, both orientations.
    EXPECT_EQ(font.fontInfo, (test_support::Bytes{21, 7, 2, 0}));
    EXPECT_EQ(font.numberIndex.size(), 95U);
    EXPECT_EQ(font.nameIndex.size(), 95U);
    for (std::uint16_t character = 32; character <= 126; ++character) {
        EXPECT_EQ(font.numberIndex.count(character), 1U) << character;
    }
    EXPECT_EQ(font.nameIndex.at("UCA"), font.numberIndex.at('A'));
    EXPECT_EQ(font.nameIndex.at("LCZ"), font.numberIndex.at('z'));
    EXPECT_EQ(font.nameIndex.at("N7"), font.numberIndex.at('7'));
    EXPECT_EQ(font.nameIndex.at("TILDE"), font.numberIndex.at('~'));
}

TEST(ExampleShapes, EveryCharacterAdvancesAlongTheBaseline) {
    const ShapesInFile font = LoadedExample("single-stroke.shx");
    for (const auto& [number, position] : font.numberIndex) {
        Drawing drawing;
        EXPECT_EQ(DrawPosition(drawing, font, position), 0) << number;
        EXPECT_EQ(drawing.path.empty(), number == ' ') << number;
        EXPECT_GT(drawing.x, 0) << number;
        EXPECT_EQ(drawing.y, 0) << number;
        EXPECT_FALSE(drawing.penDown) << number;
    }
}

TEST(ExampleShapes, VerticallyEveryCharacterEndsOneLineBelowItsStart) {
    const ShapesInFile font = LoadedExample("single-stroke.shx");
    for (const auto& [number, position] : font.numberIndex) {
        Drawing drawing;
        drawing.vertical = true;
        EXPECT_EQ(DrawPosition(drawing, font, position), 0) << number;
        EXPECT_EQ(drawing.x, 0) << number;
        EXPECT_EQ(drawing.y, -28) << number;
    }
}

TEST(ExampleShapes, TheLetterIIsOneStrokeFromTheCapitalHeightToTheBaseline) {
    // In the source: cell from -4 to 4, a line from (0, -12) to (0, 9), and the baseline at 9.
    const ShapesInFile font = LoadedExample("single-stroke.shx");
    Drawing drawing;
    ASSERT_EQ(DrawPosition(drawing, font, font.numberIndex.at('I')), 0);
    EXPECT_EQ(drawing.Text(), "M 4,21 l 0,-21 ");
    EXPECT_EQ(drawing.x, 8);
}

TEST(HersheyFile, OtherLinesAreRefused) {
    EXPECT_TRUE(example_shapes::ReadHershey("  509  3NVRFR["));
    EXPECT_TRUE(example_shapes::ReadHershey("  699  1JZ\r\n  509  3NVRFR[\r\n"));
    for (const char* const text : {"  509  3NVRFR", "  509  4NVRFR[", "  509   NVRFR[", "  509 3 NVRFR[",
                                   "509", "\n", "  509  0", "  509 -3NVRFR["}) {
        EXPECT_FALSE(example_shapes::ReadHershey(text)) << text;
    }
}

} // namespace
