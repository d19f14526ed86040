// One entry of a shape file, and what a failure leaves behind.
#include "StyleConversion/shx/ShapeEntryReader.h"

#include <gtest/gtest.h>
#include <string>

namespace {

using namespace ShxUtility;
using Bytes = std::vector<std::uint8_t>;
using namespace std::string_literals;

ShxResult Read(const std::string& bytes, ShapesInFile& file, std::uint16_t number, std::uint16_t length,
               ShapeFileKind kind = kShapes) {
    ShapeFileReport report;
    ShapeReading reading(bytes, file, report);
    return ReadShapeEntry(reading, file, number, length, kind, 0);
}

TEST(ReadShapeEntry, ReadsNameAndProgramAndIndexesThem) {
    ShapesInFile file;
    ASSERT_EQ(Read("AB\0\x01\x02rest"s, file, 7, 5), 0);
    ASSERT_EQ(file.shapes.size(), 1U);
    EXPECT_EQ(file.shapes[0].name, "AB");
    EXPECT_EQ(file.shapes[0].data.size(), 2U);
    EXPECT_EQ(file.shapes[0].data.data()[1], 2);
    EXPECT_EQ(file.numberIndex.at(7), 0U);
    EXPECT_EQ(file.nameIndex.at("AB"), 0U);
}

TEST(ReadShapeEntry, AnEndWithinTheNameLeavesItsBytes) {
    ShapesInFile file;
    EXPECT_EQ(Read("AB", file, 7, 9), 2);
    ASSERT_EQ(file.shapes.size(), 1U);
    EXPECT_EQ(file.shapes[0].number, 7);
    EXPECT_EQ(file.shapes[0].name, "AB");
    EXPECT_EQ(file.shapes[0].data.size(), 0U);
    EXPECT_TRUE(file.numberIndex.empty());
    EXPECT_TRUE(file.nameIndex.empty());
}

TEST(ReadShapeEntry, ANameIsReadToItsEndBeyondTheLength) {
    ShapesInFile file;
    const std::string bytes = "LONGER\0\x01\x00"s;
    ShapeFileReport report;
    ShapeReading reading(bytes, file, report);
    EXPECT_EQ(ReadShapeEntry(reading, file, 7, 3, kShapes, 0), 2);
    EXPECT_EQ(file.shapes[0].name, "LONGER");
    EXPECT_TRUE(file.numberIndex.empty());
    EXPECT_EQ(reading.cursor.Offset(), 7U);
}

TEST(ReadShapeEntry, ANameOfMoreThan65535BytesDoesNotWrapRound) {
    ShapesInFile file;
    EXPECT_EQ(Read(std::string(65536, 'N') + "\0\x01\x02\x03"s, file, 7, 4), 2);
    EXPECT_EQ(file.shapes[0].name.size(), 65536U);
}

TEST(ReadShapeEntry, AnEntryNeedsAByteBehindItsName) {
    ShapesInFile file;
    EXPECT_EQ(Read("AB\0\x00"s, file, 7, 3), 2);
    EXPECT_EQ(Read("AB\0\x00"s, file, 7, 4), 0);
    EXPECT_EQ(Read("\0\x00"s, file, 8, 1), 2);
    EXPECT_EQ(Read("\0\x00"s, file, 8, 2), 0);
    EXPECT_EQ(Read("\0\x00"s, file, 9, 0), 2);
}

TEST(ReadShapeEntry, ASecondShapeOfANumberStaysAsARecordWithoutAProgram) {
    ShapesInFile file;
    ASSERT_EQ(Read("A\0\x01"s, file, 7, 3), 0);
    EXPECT_EQ(Read("B\0\x01"s, file, 7, 3), 2);
    ASSERT_EQ(file.shapes.size(), 2U);
    EXPECT_EQ(file.shapes[1].number, 7);
    EXPECT_EQ(file.shapes[1].name, "B");
    EXPECT_EQ(file.shapes[1].data.data(), nullptr);
    EXPECT_EQ(file.numberIndex.at(7), 0U);
    EXPECT_EQ(file.nameIndex.count("B"), 0U);
}

TEST(ReadShapeEntry, AnEndWithinTheProgramLeavesItIndexedAtItsFullSize) {
    ShapesInFile file;
    EXPECT_EQ(Read("A\0\x01\x02"s, file, 7, 6), 2);
    ASSERT_EQ(file.shapes.size(), 1U);
    EXPECT_EQ(file.shapes[0].data.size(), 4U);
    EXPECT_EQ(file.shapes[0].data.data()[0], 1);
    EXPECT_EQ(file.shapes[0].data.data()[1], 2);
    EXPECT_EQ(file.numberIndex.at(7), 0U);
    EXPECT_EQ(file.nameIndex.at("A"), 0U);
}

TEST(ReadShapeEntry, FontInformationMakesAFontOfShapesOnly) {
    ShapesInFile shapes;
    shapes.kind = kShapes;
    ASSERT_EQ(Read("F\0\x01\x02\x03"s, shapes, 0, 5, kShapes), 0);
    EXPECT_EQ(shapes.kind, kFont);
    EXPECT_EQ(shapes.fontInfo, (Bytes{1, 2, 3}));

    ShapesInFile unifont;
    unifont.kind = kUnifont;
    ASSERT_EQ(Read("F\0\x01\x02\x03"s, unifont, 0, 5, kUnifont), 0);
    EXPECT_EQ(unifont.kind, kUnifont);

    // The kind that counts is the one passed.
    ShapesInFile other;
    other.kind = kUnifont;
    ASSERT_EQ(Read("F\0\x01\x02\x03"s, other, 0, 5, kShapes), 0);
    EXPECT_EQ(other.kind, kFont);
}

TEST(ReadShapeEntry, FontInformationThatIsCutShortLeavesAFontWithoutIt) {
    ShapesInFile file;
    file.kind = kShapes;
    EXPECT_EQ(Read("F\0\x01\x02\x03"s, file, 0, 6, kShapes), 2);
    EXPECT_EQ(file.kind, kFont);
    EXPECT_TRUE(file.fontInfo.empty());
    ASSERT_EQ(file.shapes.size(), 1U);
    EXPECT_EQ(file.shapes[0].name, "F");
}

TEST(ReadShapeEntry, FontInformationThatIsTooShortLeavesTheKind) {
    ShapesInFile file;
    file.kind = kShapes;
    EXPECT_EQ(Read("F\0\x01\x02"s, file, 0, 4, kShapes), 2);
    EXPECT_EQ(file.kind, kShapes);
    EXPECT_TRUE(file.fontInfo.empty());
}

TEST(ReadShapeEntry, FontInformationThatIsTooLongIsReadToTheLimit) {
    ShapesInFile file;
    file.kind = kShapes;
    const std::string bytes = "\0"s + std::string(1025, 'x');
    ShapeFileReport report;
    ShapeReading reading(bytes, file, report);
    EXPECT_EQ(ReadShapeEntry(reading, file, 0, 1026, kShapes, 0), 2);
    EXPECT_EQ(file.kind, kFont);
    EXPECT_TRUE(file.fontInfo.empty());
    EXPECT_EQ(reading.cursor.Offset(), 1U + 1024U);
}

TEST(ReadShapeEntry, ASecondFontInformationLeavesTheFirst) {
    ShapesInFile file;
    file.kind = kShapes;
    ASSERT_EQ(Read("F\0\x01\x02\x03"s, file, 0, 5, kShapes), 0);
    file.kind = kShapes;
    EXPECT_EQ(Read("G\0\x04\x05\x06"s, file, 0, 5, kShapes), 2);
    EXPECT_EQ(file.kind, kShapes);
    EXPECT_EQ(file.fontInfo, (Bytes{1, 2, 3}));
    ASSERT_EQ(file.shapes.size(), 2U);
    EXPECT_EQ(file.shapes[1].name, "G");
    EXPECT_TRUE(file.numberIndex.empty());
}

} // namespace
