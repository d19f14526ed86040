// The header of a shape file: magic, kind, acceptance, version.
#include "StyleConversion/shx/ShapeHeaderReader.h"

#include <gtest/gtest.h>
#include <string>

namespace {

using namespace ShxUtility;

const std::string kMagic = "Vorlanx-86 ";

struct Header {
    ShxResult result;
    ShapesInFile file;
    std::string rest; // what is left to read
};

Header Read(const std::string& bytes, std::uint32_t kinds = kAllKinds) {
    Header header{};
    ShapeFileReport report;
    ShapeReading reading(bytes, header.file, report);
    header.result = ReadFileHeader(reading, header.file, kinds);
    header.rest = reading.cursor.Take(bytes.size());
    return header;
}

TEST(ReadFileHeader, TakesShapesOfVersion10UpToTheEndOfItsVersion) {
    const Header header = Read(kMagic + "shapes 1.0\r\n\x1a" + "rest");
    EXPECT_EQ(header.result, 0);
    EXPECT_EQ(header.file.kind, kShapes);
    EXPECT_TRUE(header.file.isVersion10);
    EXPECT_EQ(header.rest, "rest");
}

TEST(ReadFileHeader, Version11IsNotVersion10) {
    Header header = Read(kMagic + "shapes 1.1\r\n\x1a");
    EXPECT_EQ(header.result, 0);
    EXPECT_FALSE(header.file.isVersion10);

    ShapesInFile before;
    before.isVersion10 = true;
    const std::string bytes = kMagic + "shapes 1.1\x1a";
    ShapeFileReport report;
    ShapeReading reading(bytes, before, report);
    EXPECT_EQ(ReadFileHeader(reading, before, kAllKinds), 0);
    EXPECT_FALSE(before.isVersion10);
}

TEST(ReadFileHeader, TakesUnifont) {
    const Header header = Read(kMagic + "unifont 1.0\r\n\x1a");
    EXPECT_EQ(header.result, 0);
    EXPECT_EQ(header.file.kind, kUnifont);
}

TEST(ReadFileHeader, RefusesEveryOtherMagic) {
    for (std::size_t i = 0; i < kMagic.size(); ++i) {
        std::string magic = kMagic;
        magic[i] = static_cast<char>(magic[i] ^ 1);
        EXPECT_EQ(Read(magic + "shapes 1.0\x1a").result, 2) << i;
        EXPECT_EQ(Read(kMagic.substr(0, i)).result, 2) << i;
    }
    EXPECT_EQ(Read("").result, kMalformed);
}

TEST(ReadFileHeader, RefusesUnknownKindWords) {
    const char* const words[] = {"shape ",    "Shapes ",   "SHAPES ",    " ",         "shapesx ",
                                 "shapesxx ", "unifonts ", "bigfontxx ", "unifon t ", "shapes\t"};
    for (const char* const word : words) {
        const Header header = Read(kMagic + word + "1.0\x1a");
        EXPECT_EQ(header.result, 2) << word;
        EXPECT_EQ(header.file.kind, 0) << word;
    }
}

TEST(ReadFileHeader, ReadsAtMostEightBytesOfAKindWord) {
    // The eighth byte may be the space, the ninth may not.
    EXPECT_EQ(Read(kMagic + "1234567 rest").rest, "rest");
    EXPECT_EQ(Read(kMagic + "12345678 rest").rest, " rest");
    EXPECT_EQ(Read(kMagic + "12345678 rest").result, 2);
}

TEST(ReadFileHeader, RefusesAFileThatEndsWithinItsKindWord) {
    EXPECT_EQ(Read(kMagic).result, 2);
    EXPECT_EQ(Read(kMagic + "shapes").result, 2);
}

TEST(ReadFileHeader, RefusesABigfontWhateverIsAccepted) {
    for (const std::uint32_t kinds : {0U, 1U, 2U, 4U, 8U, 15U, kAllKinds}) {
        // Neither the accepted kinds nor the version, which is not there, are looked at.
        const Header header = Read(kMagic + "bigfont ", kinds);
        EXPECT_EQ(header.result, 11) << kinds;
        EXPECT_EQ(header.file.kind, kBigfont) << kinds;
    }
}

TEST(ReadFileHeader, RefusesKindsThatAreNotAccepted) {
    struct Row {
        const char* word;
        std::uint32_t kinds;
        int result;
    };
    const Row rows[] = {{"shapes ", 0, 3},  {"shapes ", 1, 0},  {"shapes ", 2, 0},  {"shapes ", 3, 0},
                        {"shapes ", 4, 3},  {"shapes ", 8, 3},  {"shapes ", 12, 3}, {"shapes ", 6, 0},
                        {"unifont ", 0, 3}, {"unifont ", 1, 3}, {"unifont ", 2, 3}, {"unifont ", 4, 0},
                        {"unifont ", 8, 3}, {"unifont ", 6, 0}, {"unifont ", 3, 3}};
    for (const Row& row : rows) {
        EXPECT_EQ(Read(kMagic + row.word + "1.0\x1a", row.kinds).result, row.result) << row.word << row.kinds;
    }
}

TEST(ReadFileHeader, SetsTheKindOfARefusedFileAndDoesNotReadItsVersion) {
    const Header header = Read(kMagic + "unifont 1.0\x1a", kShapes);
    EXPECT_EQ(header.result, kKindNotAccepted);
    EXPECT_EQ(header.file.kind, kUnifont);
    EXPECT_EQ(header.rest, "1.0\x1a");
    // A version that would be refused does not come to be looked at.
    EXPECT_EQ(Read(kMagic + "unifont 9.9\x1a", kShapes).result, 3);
}

TEST(ReadFileHeader, RefusesOtherVersions) {
    for (const char* const version : {"1.2\x1a", "2.0\x1a", "1.\x1a", "1.2", "0.1\x1a", " 1.0\x1a", "1,0\x1a",
                                      "1\x1a.0\x1a", "\x1a", "10\x1a", "1.x\x1a", "1.0", ""}) {
        EXPECT_EQ(Read(kMagic + "shapes " + version).result, 2) << version;
    }
}

TEST(ReadFileHeader, IgnoresWhatFollowsTheVersion) {
    for (const char* const version : {"1.0\x1a", "1.0 and more\x1a", "1.05\x1a", "1.0\n\n\n\x1a"}) {
        const Header header = Read(kMagic + "shapes " + version);
        EXPECT_EQ(header.result, 0) << version;
        EXPECT_TRUE(header.file.isVersion10) << version;
    }
}

TEST(ReadFileHeader, AVersionHasAtMost1024BytesWithItsEnd) {
    const std::string longest = "1.1" + std::string(1024 - 4, 'x') + "\x1a";
    ASSERT_EQ(longest.size(), 1024U);
    EXPECT_EQ(Read(kMagic + "shapes " + longest).result, 0);
    EXPECT_EQ(Read(kMagic + "shapes " + "1.1" + std::string(1024 - 3, 'x') + "\x1a").result, 2);
}

TEST(ReadFileHeader, LeavesShapesAndIndexesAlone) {
    ShapesInFile file;
    file.numberIndex[7] = 0;
    file.nameIndex["A"] = 0;
    file.fontInfo = {1, 2, 3};
    file.shapes.resize(1);
    const std::string bytes = kMagic + "unifont 1.0\x1a";
    ShapeFileReport report;
    ShapeReading reading(bytes, file, report);
    EXPECT_EQ(ReadFileHeader(reading, file, kAllKinds), 0);
    EXPECT_EQ(file.numberIndex.size(), 1U);
    EXPECT_EQ(file.nameIndex.size(), 1U);
    EXPECT_EQ(file.fontInfo.size(), 3U);
    EXPECT_EQ(file.shapes.size(), 1U);
}

} // namespace
