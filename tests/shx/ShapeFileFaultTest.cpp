// Where a refused shape file says that it was refused, and why.
#include "StyleConversion/shx/ShapeFileFault.h"

#include "tests/support/MemoryFile.h"
#include "tests/support/ShapeFileBuilder.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

using namespace ShxUtility;
using test_support::Bytes;
using test_support::File;
using test_support::FileOf;
using test_support::ShapeFileBuilder;
using Fault = ShapeFileFault;

struct Row {
    const char* what;
    std::string bytes;
    Fault fault;
    std::size_t offset;
    int number;
    int result;
};

void Expect(const Row& row, std::uint32_t kinds = kAllKinds) {
    const File stream = FileOf(row.bytes);
    ShapesInFile file;
    ShapeFileFaultReport report;
    EXPECT_EQ(LoadShapeFile(stream.get(), file, kinds, report), row.result) << row.what;
    EXPECT_EQ(static_cast<int>(report.fault), static_cast<int>(row.fault)) << row.what;
    EXPECT_EQ(report.offset, row.offset) << row.what;
    EXPECT_EQ(report.shapeNumber, row.number) << row.what;
}

TEST(ShapeFileFault, AGoodFileHasNone) {
    Expect({"good", ShapeFileBuilder::Shapes().Text(), Fault::None, 0, 0, 0});
}

TEST(ShapeFileFault, AReportIsResetFirst) {
    ShapeFileFaultReport report{Fault::KindUnknown, 7, 8};
    const File stream = FileOf(ShapeFileBuilder::Shapes().Text());
    ShapesInFile file;
    ASSERT_EQ(LoadShapeFile(stream.get(), file, kAllKinds, report), 0);
    EXPECT_EQ(report.fault, Fault::None);
    EXPECT_EQ(report.offset, 0U);
    EXPECT_EQ(report.shapeNumber, 0);
}

TEST(ShapeFileFault, WithoutAStream) {
    ShapesInFile file;
    ShapeFileFaultReport report;
    EXPECT_EQ(LoadShapeFile(nullptr, file, kAllKinds, report), kNoStream);
    EXPECT_EQ(report.fault, Fault::NoStream);
}

TEST(ShapeFileFault, HeadersTellTheOffsetOfTheFaultyField) {
    // The magic has 11 bytes; "shapes " has 7, so its version begins at 18.
    const auto shapes = ShapeFileBuilder::Shapes();
    const Row rows[] = {
        {"empty", "", Fault::MagicCutShort, 0, 0, 2},
        {"magic cut", "Vorlanx-86", Fault::MagicCutShort, 10, 0, 2},
        {"magic wrong", ShapeFileBuilder::Shapes().Magic("Vorlanx-87 ").Text(), Fault::MagicWrong, 0, 0, 2},
        {"kind cut", shapes.TextCutTo(15), Fault::KindCutShort, 15, 0, 2},
        {"kind unknown", ShapeFileBuilder::Shapes().KindWord("shape ").Text(), Fault::KindUnknown, 11, 0, 2},
        {"kind long", ShapeFileBuilder::Shapes().KindWord("shapesxx ").Text(), Fault::KindTooLong, 11, 0, 2},
        {"bigfont", ShapeFileBuilder::Bigfont().Text(), Fault::KindBigfont, 11, 0, 11},
        {"version cut", shapes.TextCutTo(21), Fault::VersionCutShort, 21, 0, 2},
        {"version long", ShapeFileBuilder::Shapes().Version(std::string(1024, ' ') + "\x1a").Text(),
         Fault::VersionTooLong, 18, 0, 2},
        {"version unknown", ShapeFileBuilder::Shapes().Version("1.2\x1a").Text(), Fault::VersionUnknown, 18,
         0, 2},
        {"version short", ShapeFileBuilder::Shapes().Version("1.\x1a").Text(), Fault::VersionUnknown, 18, 0,
         2},
    };
    for (const Row& row : rows) {
        Expect(row);
    }
    Expect({"not accepted", shapes.Text(), Fault::KindNotAccepted, 11, 0, 3}, kUnifont);
}

TEST(ShapeFileFault, ShapesTellTheOffsetOfTheEntryOrOfTheEnd) {
    // The version "1.0\r\n\x1a" ends at 24, the count stands at 28, the index begins at 30.
    const auto two = ShapeFileBuilder::Shapes().Shape(129, "A", {1, 0}).Shape(130, "B", {1, 0});
    ASSERT_EQ(two.IndexOffset(), 30U);
    const auto once = [] { return ShapeFileBuilder::Shapes().Shape(129, "A", {1, 0}); };
    // One entry begins at 34; of two, the second begins at 30 + 8 + 4.
    const Row rows[] = {
        {"first number cut", two.TextCutTo(25), Fault::CountCutShort, 25, 0, 2},
        {"last number missing", two.TextCutTo(26), Fault::CountCutShort, 26, 0, 2},
        {"count cut", two.TextCutTo(29), Fault::CountCutShort, 29, 0, 2},
        {"index cut", two.TextCutTo(35), Fault::IndexCutShort, 35, 0, 2},
        {"name cut", two.TextCutTo(43), Fault::NameCutShort, 43, 130, 2},
        {"name without end", once().Shape(130, "B", {1}).LastNameOpen().Trailer("").Text(),
         Fault::NameCutShort, 44, 130, 2},
        {"name fills", once().Shape(130, "B", {}).Text(), Fault::NameFillsEntry, 42, 130, 2},
        {"twice", once().Shape(129, "B", {1, 0}).Text(), Fault::NumberTwice, 42, 129, 2},
        {"program cut", two.TextCutTo(45), Fault::ProgramCutShort, 45, 130, 2},
        {"second info", ShapeFileBuilder::Shapes().FontInfo("", {1, 2, 3}).FontInfo("", {1, 2, 3}).Text(),
         Fault::FontInfoTwice, 42, 0, 2},
        {"info short", ShapeFileBuilder::Shapes().FontInfo("", {1, 2}).Text(), Fault::FontInfoTooShort, 34, 0,
         2},
        {"info cut", ShapeFileBuilder::Shapes().FontInfo("", {1, 2, 3, 4}).TextCutTo(37),
         Fault::FontInfoCutShort, 37, 0, 2},
        {"info long", ShapeFileBuilder::Shapes().FontInfo("", Bytes(1025, 1)).Text(), Fault::FontInfoTooLong,
         34, 0, 2},
        {"trailer cut", once().Trailer("EO").Text(), Fault::TrailerCutShort, 40, 0, 2},
        {"trailer wrong", once().Trailer("EOX").Text(), Fault::TrailerWrong, 38, 0, 2},
    };
    for (const Row& row : rows) {
        Expect(row);
    }
}

TEST(ShapeFileFault, UnifontsTellTheOffsetOfTheEntrysHead) {
    // "unifont " makes the version end at 25, the first entry's number stands at 27.
    const auto one = ShapeFileBuilder::Unifont().Shape(300, "A", {1, 0});
    ASSERT_EQ(one.EntryOffset(0), 27U);
    ASSERT_EQ(one.EntryOffset(1), 27U + 4 + 4);
    const Row rows[] = {
        {"count cut", one.TextCutTo(26), Fault::CountCutShort, 26, 0, 2},
        {"number cut", one.TextCutTo(28), Fault::EntryHeadCutShort, 28, 0, 2},
        {"length cut", one.TextCutTo(30), Fault::EntryHeadCutShort, 30, 0, 2},
        {"name cut", one.TextCutTo(32), Fault::NameCutShort, 32, 300, 2},
        {"program cut", one.TextCutTo(34), Fault::ProgramCutShort, 34, 300, 2},
        {"twice", ShapeFileBuilder::Unifont().Shape(300, "A", {1, 0}).Shape(300, "A", {1, 0}).Text(),
         Fault::NumberTwice, 35, 300, 2},
        {"too many", ShapeFileBuilder::Unifont().Shape(300, "A", {1, 0}).Count(2).Text(),
         Fault::EntryHeadCutShort, 35, 0, 2},
    };
    for (const Row& row : rows) {
        Expect(row);
    }
}

} // namespace
