// "shapes " files: libraries and fonts.
#include "tests/shx/Loading.h"
#include "tests/support/MemoryFile.h"
#include "tests/support/ShapeFileBuilder.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <string>

namespace {

using namespace ShxUtility;
using shx_tests::Load;
using test_support::Bytes;
using test_support::File;
using test_support::FileOf;
using test_support::ShapeFileBuilder;

Bytes BytesOf(const CharArray& data) {
    return {data.data(), data.data() + data.size()};
}

TEST(LoadShapes, WithoutAStreamIsOne) {
    ShapesInFile file;
    file.shapes.resize(1);
    file.numberIndex[3] = 0;
    EXPECT_EQ(LoadShapeFile(static_cast<std::FILE*>(nullptr), file, kAllKinds), 1);
    EXPECT_EQ(file.numberIndex.size(), 1U);
}

TEST(LoadShapes, AFileWithoutShapesLoads) {
    ShapesInFile file;
    // Header, first and last number, count, trailer, written out.
    EXPECT_EQ(Load(std::string("Vorlanx-86 shapes 1.0\r\n\x1a\0\0\0\0\0\0EOF", 33), file), 0);
    EXPECT_EQ(file.kind, kShapes);
    EXPECT_TRUE(file.isVersion10);
    EXPECT_TRUE(file.shapes.empty());
    EXPECT_TRUE(file.numberIndex.empty());
    EXPECT_TRUE(file.nameIndex.empty());
    EXPECT_TRUE(file.fontInfo.empty());
}

TEST(LoadShapes, ReadsEntriesInIndexOrder) {
    // Index: shape 0x0182 of 5 bytes, shape 3 of 2 bytes. Entries: "AB", 0, two bytes; "", 0, one byte.
    const std::string bytes("Vorlanx-86 shapes 1.1\x1a"
                            "\x03\x00\x82\x01\x02\x00"
                            "\x82\x01\x05\x00\x03\x00\x02\x00"
                            "AB\0\x14\x00"
                            "\0\x10"
                            "EOF",
                            22 + 6 + 8 + 5 + 2 + 3);
    ShapesInFile file;
    ASSERT_EQ(Load(bytes, file), 0);
    EXPECT_FALSE(file.isVersion10);
    ASSERT_EQ(file.shapes.size(), 2U);
    EXPECT_EQ(file.shapes[0].number, 0x182);
    EXPECT_EQ(file.shapes[0].name, "AB");
    EXPECT_EQ(BytesOf(file.shapes[0].data), (Bytes{0x14, 0x00}));
    EXPECT_EQ(file.shapes[1].number, 3);
    EXPECT_EQ(file.shapes[1].name, "");
    EXPECT_EQ(BytesOf(file.shapes[1].data), (Bytes{0x10}));
    EXPECT_EQ(file.numberIndex, (std::map<std::uint16_t, std::size_t>{{0x182, 0}, {3, 1}}));
    EXPECT_EQ(file.nameIndex, (std::map<std::string, std::size_t>{{"AB", 0}}));
}

TEST(LoadShapes, FirstAndLastNumberDoNotMatter) {
    std::string bytes = ShapeFileBuilder::Shapes().Shape(5, "A", {0}).Text();
    const std::size_t range = ShapeFileBuilder::Shapes().CountOffset() - 4;
    bytes.replace(range, 4, "\xff\xff\xfe\xfe");
    EXPECT_EQ(Load(bytes), 0);
}

TEST(LoadShapes, NamesAreBytes) {
    ShapesInFile file;
    ASSERT_EQ(Load(ShapeFileBuilder::Shapes().Shape(1, "\xe4\xff\x1a\n", {0}).Text(), file), 0);
    EXPECT_EQ(file.shapes[0].name, "\xe4\xff\x1a\n");
    EXPECT_EQ(file.nameIndex.count("\xe4\xff\x1a\n"), 1U);
}

TEST(LoadShapes, TheFirstShapeKeepsANameThatTwoHave) {
    ShapesInFile file;
    const auto builder = ShapeFileBuilder::Shapes().Shape(9, "SAME", {0}).Shape(2, "SAME", {0});
    ASSERT_EQ(Load(builder.Text(), file), 0);
    EXPECT_EQ(file.nameIndex, (std::map<std::string, std::size_t>{{"SAME", 0}}));
    EXPECT_EQ(file.numberIndex, (std::map<std::uint16_t, std::size_t>{{9, 0}, {2, 1}}));
}

TEST(LoadShapes, FontInformationMakesAFont) {
    ShapesInFile file;
    const auto builder =
        ShapeFileBuilder::Shapes().FontInfo("my font", {21, 7, 2, 0}).Shape(65, "UCA", {0x14, 0});
    ASSERT_EQ(Load(builder.Text(), file), 0);
    EXPECT_EQ(file.kind, kFont);
    EXPECT_EQ(file.fontInfo, (Bytes{21, 7, 2, 0}));
    // Its entry is among the shapes, without a program and in neither index.
    ASSERT_EQ(file.shapes.size(), 2U);
    EXPECT_EQ(file.shapes[0].number, 0);
    EXPECT_EQ(file.shapes[0].name, "my font");
    EXPECT_EQ(file.shapes[0].data.size(), 0U);
    EXPECT_EQ(file.shapes[0].data.data(), nullptr);
    EXPECT_EQ(file.numberIndex, (std::map<std::uint16_t, std::size_t>{{65, 1}}));
    EXPECT_EQ(file.nameIndex, (std::map<std::string, std::size_t>{{"UCA", 1}}));
}

TEST(LoadShapes, FontInformationMayComeLast) {
    ShapesInFile file;
    ASSERT_EQ(Load(ShapeFileBuilder::Shapes().Shape(65, "A", {0}).FontInfo("", {1, 2, 3}).Text(), file), 0);
    EXPECT_EQ(file.kind, kFont);
    EXPECT_EQ(file.shapes.size(), 2U);
}

TEST(LoadShapes, ALibraryIsAcceptedWhereFontsAreAndTheOtherWayRound) {
    const std::string library = ShapeFileBuilder::Shapes().Shape(1, "A", {0}).Text();
    const std::string font = ShapeFileBuilder::Shapes().FontInfo("", {1, 2, 3}).Text();
    ShapesInFile file;
    EXPECT_EQ(Load(library, file, kFont), 0);
    EXPECT_EQ(file.kind, kShapes);
    EXPECT_EQ(Load(font, file, kShapes), 0);
    EXPECT_EQ(file.kind, kFont);
    EXPECT_EQ(Load(font, file, kUnifont), 3);
}

TEST(LoadShapes, RefusesASecondFontInformation) {
    ShapesInFile file;
    const auto builder = ShapeFileBuilder::Shapes().FontInfo("", {1, 2, 3}).FontInfo("", {4, 5, 6});
    EXPECT_EQ(Load(builder.Text(), file), 2);
    EXPECT_EQ(file.fontInfo, (Bytes{1, 2, 3}));
    EXPECT_EQ(file.shapes.size(), 2U);
}

TEST(LoadShapes, RefusesFontInformationOfFewerThanThreeBytes) {
    for (const Bytes& info : {Bytes{1}, Bytes{1, 2}}) {
        ShapesInFile file;
        EXPECT_EQ(Load(ShapeFileBuilder::Shapes().FontInfo("F", info).Text(), file), 2);
        EXPECT_EQ(file.kind, kShapes);
    }
    EXPECT_EQ(Load(ShapeFileBuilder::Shapes().FontInfo("F", {1, 2, 3}).Text()), 0);
}

TEST(LoadShapes, FontInformationHasAtMost1024Bytes) {
    ShapesInFile file;
    EXPECT_EQ(Load(ShapeFileBuilder::Shapes().FontInfo("F", Bytes(1024, 7)).Text(), file), 0);
    EXPECT_EQ(file.fontInfo, Bytes(1024, 7));
    ShapesInFile tooLong;
    EXPECT_EQ(Load(ShapeFileBuilder::Shapes().FontInfo("F", Bytes(1025, 7)).Text(), tooLong), 2);
    EXPECT_TRUE(tooLong.fontInfo.empty());
    EXPECT_EQ(tooLong.kind, kFont);
}

TEST(LoadShapes, RefusesTwoShapesOfOneNumber) {
    ShapesInFile file;
    const auto builder = ShapeFileBuilder::Shapes().Shape(130, "A", {1, 0}).Shape(130, "B", {2, 0});
    EXPECT_EQ(Load(builder.Text(), file), 2);
    ASSERT_EQ(file.shapes.size(), 2U);
    EXPECT_EQ(file.shapes[1].name, "B");
    EXPECT_EQ(file.shapes[1].data.size(), 0U);
    EXPECT_EQ(file.numberIndex.at(130), 0U);
    EXPECT_EQ(file.nameIndex.count("B"), 0U);
}

TEST(LoadShapes, RefusesAnEntryWithoutAProgramByte) {
    EXPECT_EQ(Load(ShapeFileBuilder::Shapes().Shape(1, "NAME", {}).Text()), 2);
    EXPECT_EQ(Load(ShapeFileBuilder::Shapes().Shape(1, "", {}).Text()), 2);
    EXPECT_EQ(Load(ShapeFileBuilder::Shapes().Shape(1, "NAME", {0}).LastLength(5).Text()), 2);
    EXPECT_EQ(Load(ShapeFileBuilder::Shapes().Shape(1, "NAME", {0}).LastLength(3).Text()), 2);
    EXPECT_EQ(Load(ShapeFileBuilder::Shapes().Shape(1, "NAME", {0}).LastLength(0).Text()), 2);
    EXPECT_EQ(Load(ShapeFileBuilder::Shapes().Shape(1, "NAME", {0}).LastLength(6).Text()), 0);
}

TEST(LoadShapes, RefusesWhatIsNotTheTrailer) {
    for (const char* const trailer : {"", "E", "EO", "EOf", "eof", "XEOF", "FOE"}) {
        ShapesInFile file;
        EXPECT_EQ(Load(ShapeFileBuilder::Shapes().Shape(1, "A", {0}).Trailer(trailer).Text(), file), 2)
            << trailer;
        EXPECT_EQ(file.shapes.size(), 1U) << trailer;
    }
}

TEST(LoadShapes, BytesBehindTheTrailerDoNotMatter) {
    EXPECT_EQ(Load(ShapeFileBuilder::Shapes().Shape(1, "A", {0}).Append("\n").Text()), 0);
    EXPECT_EQ(Load(ShapeFileBuilder::Shapes().Append("and much more").Text()), 0);
}

TEST(LoadShapes, StopsBehindTheTrailer) {
    const File stream = FileOf(ShapeFileBuilder::Shapes().Shape(1, "A", {0}).Append("next").Text());
    ShapesInFile file;
    ASSERT_EQ(LoadShapeFile(stream.get(), file, kAllKinds), 0);
    EXPECT_EQ(std::fgetc(stream.get()), 'n');
}

TEST(LoadShapes, EveryShorterFileIsRefused) {
    const auto builder = ShapeFileBuilder::Shapes()
                             .FontInfo("FONT", {21, 7, 0})
                             .Shape(65, "UCA", {0x14, 0x10, 0})
                             .Shape(66, "", {0x14, 0});
    const std::size_t size = builder.Text().size();
    for (std::size_t cut = 0; cut < size; ++cut) {
        EXPECT_EQ(Load(builder.TextCutTo(cut)), 2) << cut;
    }
    EXPECT_EQ(Load(builder.Text()), 0);
}

TEST(LoadShapes, AnIndexThatIsCutShortLeavesNoShapes) {
    const auto builder = ShapeFileBuilder::Shapes().Shape(1, "A", {0}).Shape(2, "B", {0});
    ShapesInFile file;
    EXPECT_EQ(Load(builder.TextCutTo(builder.IndexOffset() + 7), file), 2);
    EXPECT_EQ(file.kind, kShapes);
    EXPECT_TRUE(file.shapes.empty());
}

TEST(LoadShapes, ACountWithNothingBehindItIsRefused) {
    const auto builder = ShapeFileBuilder::Shapes().Shape(1, "A", {0}).Count(0xffff);
    EXPECT_EQ(Load(builder.Text()), 2);
}

TEST(LoadShapes, FewerEntriesThanTheIndexHasAreRefused) {
    // The second entry of the index has no bytes: the trailer is taken for its name.
    const auto builder = ShapeFileBuilder::Shapes().Shape(1, "A", {0}).Shape(2, "B", {0});
    ShapesInFile file;
    EXPECT_EQ(Load(builder.TextCutTo(builder.EntryOffset(1)) + "EOF", file), 2);
    ASSERT_EQ(file.shapes.size(), 2U);
    EXPECT_EQ(file.shapes[1].name, "EOF");
}

TEST(LoadShapes, ASecondFileIsAppendedAndIndexedAnew) {
    ShapesInFile file;
    ASSERT_EQ(Load(ShapeFileBuilder::Shapes().FontInfo("F", {1, 2, 3}).Shape(65, "OLD", {0}).Text(), file),
              0);
    ASSERT_EQ(Load(ShapeFileBuilder::Shapes().Shape(65, "NEW", {0}).Text(), file), 0);
    EXPECT_EQ(file.kind, kShapes);
    EXPECT_TRUE(file.fontInfo.empty());
    ASSERT_EQ(file.shapes.size(), 3U);
    EXPECT_EQ(file.numberIndex, (std::map<std::uint16_t, std::size_t>{{65, 2}}));
    EXPECT_EQ(file.nameIndex, (std::map<std::string, std::size_t>{{"NEW", 2}}));
}

TEST(LoadShapes, ARefusedHeaderLeavesTheIndexesAlone) {
    ShapesInFile file;
    ASSERT_EQ(Load(ShapeFileBuilder::Shapes().Shape(65, "OLD", {0}).Text(), file), 0);
    EXPECT_EQ(Load(ShapeFileBuilder::Shapes().Version("9\x1a").Text(), file), 2);
    EXPECT_EQ(file.numberIndex.size(), 1U);
    EXPECT_EQ(file.nameIndex.size(), 1U);
}

// Only an attempt to read past the end sets the stream's end-of-file indicator, and one that is set already
// when reading begins refuses the file, whether or not the system then hands out the bytes that are there.
TEST(LoadShapes, AStreamThatHasMetItsEndIsRefused) {
    const std::filesystem::path path = std::filesystem::temp_directory_path() / "shx_stream_at_its_end.shx";
    std::ofstream(path, std::ios::binary).flush();
    File stream(std::fopen(path.string().c_str(), "rb"));
    ASSERT_NE(stream, nullptr);
    ASSERT_EQ(std::fgetc(stream.get()), EOF);
    std::ofstream(path, std::ios::binary) << ShapeFileBuilder::Shapes().Shape(1, "A", {0}).Text();
    ASSERT_NE(std::feof(stream.get()), 0);
    ShapesInFile file;
    EXPECT_EQ(LoadShapeFile(stream.get(), file, kAllKinds), 2);
    std::clearerr(stream.get());
    std::rewind(stream.get());
    EXPECT_EQ(LoadShapeFile(stream.get(), file, kAllKinds), 0);
    stream.reset(); // some systems remove no open file
    std::filesystem::remove(path);
}

TEST(LoadShapes, ReadingTheLastByteDoesNotSetTheIndicator) {
    const File stream = FileOf(ShapeFileBuilder::Shapes().Shape(1, "A", {0}).Text());
    ShapesInFile file;
    EXPECT_EQ(LoadShapeFile(stream.get(), file, kAllKinds), 0);
    EXPECT_EQ(std::feof(stream.get()), 0);
    EXPECT_EQ(std::fgetc(stream.get()), EOF);
}

TEST(LoadShapes, BigfontsAreRefused) {
    ShapesInFile file;
    EXPECT_EQ(Load(ShapeFileBuilder::Bigfont().Text(), file, kShapes), 11);
    EXPECT_EQ(file.kind, kBigfont);
}

} // namespace
