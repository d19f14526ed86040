// "unifont " files.
#include "tests/shx/Loading.h"
#include "tests/support/ShapeFileBuilder.h"

#include <gtest/gtest.h>
#include <string>

namespace {

using namespace ShxUtility;
using shx_tests::Load;
using test_support::Bytes;
using test_support::ShapeFileBuilder;

TEST(LoadUnifont, ReadsEntriesBehindTheirHeads) {
    // Count 2; shape 0 of 5 bytes ("F", 0, three bytes); shape 0x0141 of 4 bytes ("", 0, three bytes).
    const std::string bytes("Vorlanx-86 unifont 1.0\r\n\x1a"
                            "\x02\x00"
                            "\x00\x00\x05\x00"
                            "F\0\x15\x07\x00"
                            "\x41\x01\x04\x00"
                            "\0\x14\x10\x00",
                            25 + 2 + 4 + 5 + 4 + 4);
    ShapesInFile file;
    ASSERT_EQ(Load(bytes, file), 0);
    EXPECT_EQ(file.kind, kUnifont);
    EXPECT_EQ(file.fontInfo, (Bytes{0x15, 0x07, 0x00}));
    ASSERT_EQ(file.shapes.size(), 2U);
    EXPECT_EQ(file.shapes[1].number, 0x141);
    EXPECT_EQ(file.shapes[1].name, "");
    EXPECT_EQ(file.shapes[1].data.size(), 3U);
    EXPECT_EQ(file.numberIndex, (std::map<std::uint16_t, std::size_t>{{0x141, 1}}));
    EXPECT_TRUE(file.nameIndex.empty());
}

TEST(LoadUnifont, AnUpperHalfOfTheCountIsTheNumberOfTheFontInformation) {
    // The count as four bytes, 01 00 00 00, and then only the length of the first entry.
    const std::string bytes("Vorlanx-86 unifont 1.0\x1a"
                            "\x01\x00\x00\x00"
                            "\x04\x00"
                            "\0\x15\x07\x00",
                            23 + 4 + 2 + 4);
    ShapesInFile file;
    ASSERT_EQ(Load(bytes, file), 0);
    EXPECT_EQ(file.fontInfo, (Bytes{0x15, 0x07, 0x00}));
}

TEST(LoadUnifont, AFileWithoutEntriesLoads) {
    ShapesInFile file;
    EXPECT_EQ(Load(ShapeFileBuilder::Unifont().Text(), file), 0);
    EXPECT_TRUE(file.shapes.empty());
}

TEST(LoadUnifont, HasNoTrailer) {
    EXPECT_EQ(Load(ShapeFileBuilder::Unifont().Shape(300, "A", {0}).Text()), 0);
    EXPECT_EQ(Load(ShapeFileBuilder::Unifont().Shape(300, "A", {0}).Append("more").Text()), 0);
}

TEST(LoadUnifont, RefusesMoreEntriesInTheCountThanInTheFile) {
    ShapesInFile file;
    EXPECT_EQ(Load(ShapeFileBuilder::Unifont().Shape(300, "A", {0}).Count(2).Text(), file), 2);
    ASSERT_EQ(file.shapes.size(), 1U);
    EXPECT_EQ(file.numberIndex.count(300), 1U);
}

TEST(LoadUnifont, ReadsNoMoreEntriesThanTheCountSays) {
    ShapesInFile file;
    EXPECT_EQ(
        Load(ShapeFileBuilder::Unifont().Shape(300, "A", {0}).Shape(301, "B", {0}).Count(1).Text(), file), 0);
    EXPECT_EQ(file.shapes.size(), 1U);
}

TEST(LoadUnifont, EveryShorterFileIsRefused) {
    const auto builder =
        ShapeFileBuilder::Unifont().FontInfo("F", {1, 2, 3}).Shape(300, "AB", {1, 2, 0}).Shape(1, "", {0});
    for (std::size_t cut = 0; cut < builder.Text().size(); ++cut) {
        EXPECT_EQ(Load(builder.TextCutTo(cut)), 2) << cut;
    }
    EXPECT_EQ(Load(builder.Text()), 0);
}

TEST(LoadUnifont, StaysAUnifontWithFontInformation) {
    ShapesInFile file;
    ASSERT_EQ(Load(ShapeFileBuilder::Unifont().FontInfo("F", {1, 2, 3}).Text(), file), 0);
    EXPECT_EQ(file.kind, kUnifont);
}

TEST(LoadUnifont, RefusesTwoShapesOfOneNumberAndASecondFontInformation) {
    EXPECT_EQ(Load(ShapeFileBuilder::Unifont().Shape(300, "A", {0}).Shape(300, "B", {0}).Text()), 2);
    EXPECT_EQ(Load(ShapeFileBuilder::Unifont().FontInfo("A", {1, 2, 3}).FontInfo("", {1, 2, 3}).Text()), 2);
}

TEST(LoadUnifont, IsAcceptedByItsOwnBitOnly) {
    const std::string bytes = ShapeFileBuilder::Unifont().Shape(300, "A", {0}).Text();
    ShapesInFile file;
    EXPECT_EQ(Load(bytes, file, kShapes), 3);
    EXPECT_EQ(Load(bytes, file, kFont), 3);
    EXPECT_EQ(Load(bytes, file, kFont | kUnifont), 0);
}

TEST(LoadUnifont, TakesTheLongestEntry) {
    // 65535 bytes: an empty name, its terminator, 65534 bytes of program.
    ShapesInFile file;
    ASSERT_EQ(Load(ShapeFileBuilder::Unifont().Shape(1, "", Bytes(65534, 0x10)).Text(), file), 0);
    EXPECT_EQ(file.shapes[0].data.size(), 65534U);
}

TEST(LoadUnifont, TakesEveryNumber) {
    ShapeFileBuilder builder = ShapeFileBuilder::Unifont();
    for (int number = 65535; number > 0; --number) {
        builder.Shape(static_cast<std::uint16_t>(number), "", {0});
    }
    ShapesInFile file;
    ASSERT_EQ(Load(builder.Text(), file), 0);
    EXPECT_EQ(file.shapes.size(), 65535U);
    EXPECT_EQ(file.numberIndex.size(), 65535U);
    EXPECT_EQ(file.numberIndex.at(65535), 0U);
    EXPECT_EQ(file.numberIndex.at(1), 65534U);
}

} // namespace
