// Where a refused shape file says that it was refused, and why.
#include "StyleConversion/shx/ShapeFileReader.h"

#include "tests/support/ShapeFileBuilder.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

using namespace ShxUtility;
using test_support::Bytes;
using test_support::ShapeFileBuilder;
using Error = ShapeFileError;

struct Row {
    const char* what;
    std::string bytes;
    Error error;
    std::size_t offset;
    int number;
    int result;
};

void Expect(const Row& row, std::uint32_t kinds = kAllKinds) {
    ShapesInFile file;
    ShapeFileReport report;
    EXPECT_EQ(LoadShapeFile(row.bytes, file, kinds, report), row.result) << row.what;
    EXPECT_EQ(static_cast<int>(report.error), static_cast<int>(row.error)) << row.what;
    EXPECT_EQ(report.offset, row.offset) << row.what;
    EXPECT_EQ(report.shapeNumber, row.number) << row.what;
}

TEST(ShapeFileReport, AGoodFileHasNone) {
    Expect({"good", ShapeFileBuilder::Shapes().Text(), Error::None, 0, 0, 0});
}

TEST(ShapeFileReport, AReportIsResetFirst) {
    ShapeFileReport report{Error::KindUnknown, 7, 8};
    ShapesInFile file;
    ASSERT_EQ(LoadShapeFile(ShapeFileBuilder::Shapes().Text(), file, kAllKinds, report), 0);
    EXPECT_EQ(report.error, Error::None);
    EXPECT_EQ(report.offset, 0U);
    EXPECT_EQ(report.shapeNumber, 0);
}

TEST(ShapeFileReport, HeadersTellTheOffsetOfTheInvalidField) {
    // The magic has 11 bytes; "shapes " has 7, so its version begins at 18.
    const auto shapes = ShapeFileBuilder::Shapes();
    const Row rows[] = {
        {"empty", "", Error::MagicCutShort, 0, 0, 2},
        {"magic cut", "Vorlanx-86", Error::MagicCutShort, 10, 0, 2},
        {"magic wrong", ShapeFileBuilder::Shapes().Magic("Vorlanx-87 ").Text(), Error::MagicWrong, 0, 0, 2},
        {"kind cut", shapes.TextCutTo(15), Error::KindCutShort, 15, 0, 2},
        {"kind unknown", ShapeFileBuilder::Shapes().KindWord("shape ").Text(), Error::KindUnknown, 11, 0, 2},
        {"kind long", ShapeFileBuilder::Shapes().KindWord("shapesxx ").Text(), Error::KindTooLong, 11, 0, 2},
        {"bigfont", ShapeFileBuilder::Bigfont().Text(), Error::KindBigfont, 11, 0, 11},
        {"version cut", shapes.TextCutTo(21), Error::VersionCutShort, 21, 0, 2},
        {"version long", ShapeFileBuilder::Shapes().Version(std::string(1024, ' ') + "\x1a").Text(),
         Error::VersionTooLong, 18, 0, 2},
        {"version unknown", ShapeFileBuilder::Shapes().Version("1.2\x1a").Text(), Error::VersionUnknown, 18,
         0, 2},
        {"version short", ShapeFileBuilder::Shapes().Version("1.\x1a").Text(), Error::VersionUnknown, 18, 0,
         2},
    };
    for (const Row& row : rows) {
        Expect(row);
    }
    Expect({"not accepted", shapes.Text(), Error::KindNotAccepted, 11, 0, 3}, kUnifont);
}

TEST(ShapeFileReport, ShapesTellTheOffsetOfTheEntryOrOfTheEnd) {
    // The version "1.0\r\n\x1a" ends at 24, the count stands at 28, the index begins at 30.
    const auto two = ShapeFileBuilder::Shapes().Shape(129, "A", {1, 0}).Shape(130, "B", {1, 0});
    ASSERT_EQ(two.IndexOffset(), 30U);
    const auto once = [] { return ShapeFileBuilder::Shapes().Shape(129, "A", {1, 0}); };
    // One entry begins at 34; of two, the second begins at 30 + 8 + 4.
    const Row rows[] = {
        {"first number cut", two.TextCutTo(25), Error::CountCutShort, 25, 0, 2},
        {"last number missing", two.TextCutTo(26), Error::CountCutShort, 26, 0, 2},
        {"count cut", two.TextCutTo(29), Error::CountCutShort, 29, 0, 2},
        {"index cut", two.TextCutTo(35), Error::IndexCutShort, 35, 0, 2},
        {"name cut", two.TextCutTo(43), Error::NameCutShort, 43, 130, 2},
        {"name without end", once().Shape(130, "B", {1}).LastNameOpen().Trailer("").Text(),
         Error::NameCutShort, 44, 130, 2},
        {"name fills", once().Shape(130, "B", {}).Text(), Error::NameFillsEntry, 42, 130, 2},
        {"twice", once().Shape(129, "B", {1, 0}).Text(), Error::NumberTwice, 42, 129, 2},
        {"program cut", two.TextCutTo(45), Error::ProgramCutShort, 45, 130, 2},
        {"second info", ShapeFileBuilder::Shapes().FontInfo("", {1, 2, 3}).FontInfo("", {1, 2, 3}).Text(),
         Error::FontInfoTwice, 42, 0, 2},
        {"info short", ShapeFileBuilder::Shapes().FontInfo("", {1, 2}).Text(), Error::FontInfoTooShort, 34, 0,
         2},
        {"info cut", ShapeFileBuilder::Shapes().FontInfo("", {1, 2, 3, 4}).TextCutTo(37),
         Error::FontInfoCutShort, 37, 0, 2},
        {"info long", ShapeFileBuilder::Shapes().FontInfo("", Bytes(1025, 1)).Text(), Error::FontInfoTooLong,
         34, 0, 2},
        {"trailer cut", once().Trailer("EO").Text(), Error::TrailerCutShort, 40, 0, 2},
        {"trailer wrong", once().Trailer("EOX").Text(), Error::TrailerWrong, 38, 0, 2},
    };
    for (const Row& row : rows) {
        Expect(row);
    }
}

TEST(ShapeFileReport, UnifontsTellTheOffsetOfTheEntrysHead) {
    // "unifont " makes the version end at 25, the first entry's number stands at 27.
    const auto one = ShapeFileBuilder::Unifont().Shape(300, "A", {1, 0});
    ASSERT_EQ(one.EntryOffset(0), 27U);
    ASSERT_EQ(one.EntryOffset(1), 27U + 4 + 4);
    const Row rows[] = {
        {"count cut", one.TextCutTo(26), Error::CountCutShort, 26, 0, 2},
        {"number cut", one.TextCutTo(28), Error::EntryHeadCutShort, 28, 0, 2},
        {"length cut", one.TextCutTo(30), Error::EntryHeadCutShort, 30, 0, 2},
        {"name cut", one.TextCutTo(32), Error::NameCutShort, 32, 300, 2},
        {"program cut", one.TextCutTo(34), Error::ProgramCutShort, 34, 300, 2},
        {"twice", ShapeFileBuilder::Unifont().Shape(300, "A", {1, 0}).Shape(300, "A", {1, 0}).Text(),
         Error::NumberTwice, 35, 300, 2},
        {"too many", ShapeFileBuilder::Unifont().Shape(300, "A", {1, 0}).Count(2).Text(),
         Error::EntryHeadCutShort, 35, 0, 2},
    };
    for (const Row& row : rows) {
        Expect(row);
    }
}

} // namespace
