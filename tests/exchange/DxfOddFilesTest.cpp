// What few files have, and what damaged ones lack: each is read as it is meant, and told of where it differs.
#include "drawing/database/BlockReference.h"
#include "drawing/entities/SimpleEntities.h"
#include "tests/exchange/DxfFiles.h"

#include <gtest/gtest.h>
#include <memory>
#include <numbers>
#include <string>
#include <utility>
#include <vector>

namespace {

using Texts = std::vector<std::string>;

std::unique_ptr<drawing::Database> Drawing(const std::string& bytes, Texts* told = nullptr) {
    diagnostics::Diagnostic fault;
    exchange::DxfNotes notes;
    auto database = exchange::ReadDxf(bytes, fault, notes);
    for (const diagnostics::Diagnostic& note : notes.All()) {
        if (told != nullptr && note.code != diagnostics::Code::kNoUnit) {
            told->push_back(diagnostics::MessageOf(note));
        }
    }
    return database;
}

Texts ToldOf(const std::string& bytes) {
    Texts told;
    EXPECT_NE(Drawing(bytes, &told), nullptr);
    return told;
}

DxfWriter LineTo(double x) {
    return DxfWriter().Text(0, "LINE").Text(8, "0").Point(10, 0, 0).Point(11, x, 0);
}

constexpr const char* kLineToOne = R"({"type": "line", "start": [0, 0], "end": [1, 0]})";

DxfWriter Table(const std::string& name, const DxfWriter& entries) {
    return DxfWriter().Text(0, "TABLE").Text(2, name).Append(entries).Text(0, "ENDTAB");
}

std::string FileOfTables(const DxfWriter& tables, const DxfWriter& entities = {}) {
    return Section("TABLES", tables).Append(FileOf(entities)).Ascii();
}

// Loops of an MPOLYGON; files have the flags "closed" and "has bulges" in either order.
DxfWriter Loop(int first, int second) {
    DxfWriter loop;
    loop.Integer(92, 3).Integer(first, 1).Integer(second, 1).Integer(93, 3);
    loop.Point(10, 0, 0).Number(42, 0).Point(10, 4, 0).Number(42, 0.5).Point(10, 4, 3).Number(42, 0);
    return loop;
}

TEST(DxfOddFiles, LoopsOfMultiPolygonsAreOutlinesInEitherOrderOfTheirFlags) {
    const std::string json =
        SymbolsOfJson(R"({"type": "mpolygon", "loops": [{"vertices": [[0, 0], [4, 0, 0.5], [4, 3]]},
                                                        {"vertices": [[1, 1], [2, 1], [2, 2]]}],
                          "fillColor": 3})");
    ASSERT_NE(json.find("\"type\": \"Path\""), std::string::npos) << json;
    for (const auto& [first, second] : {std::pair(72, 73), std::pair(73, 72)}) {
        DxfWriter polygon;
        polygon.Text(0, "MPOLYGON").Text(8, "0").Integer(70, 1).Point(10, 0, 0).Number(30, 0);
        polygon.Text(2, "SOLID").Integer(71, 1).Integer(91, 2).Append(Loop(first, second));
        polygon.Integer(92, 3).Integer(first, 0).Integer(second, 0).Integer(93, 3);
        polygon.Point(10, 1, 1).Point(10, 2, 1).Point(10, 2, 2);
        polygon.Integer(76, 1).Integer(63, 3).Point(11, 0, 0).Integer(99, 0);
        const DxfWriter file = FileOf(polygon);
        EXPECT_EQ(SymbolsOfDxf(file.Ascii()), json) << first;
        EXPECT_EQ(SymbolsOfDxf(file.Binary()), json) << first;
        EXPECT_EQ(ToldOf(file.Ascii()), Texts());
    }
}

TEST(DxfOddFiles, DashesCarryShapesAndTextsTurnedByDegrees) {
    DxfWriter entry;
    entry.Text(0, "LTYPE").Text(5, "A1").Text(2, "GAS").Integer(73, 3).Number(40, 6);
    entry.Number(49, 3).Integer(74, 0);
    entry.Number(49, -1).Integer(74, 4).Integer(75, 132).Text(340, "B2").Number(46, 0.5).Number(50, 90);
    entry.Number(44, -0.25).Number(45, 0.125);
    entry.Number(49, -2).Integer(74, 2).Integer(75, 0).Text(340, "B1").Number(46, 2).Number(50, -45);
    entry.Number(44, 1).Number(45, 0).Text(9, "G");
    DxfWriter styles; // behind the linetypes that refer to them
    styles.Text(0, "STYLE").Text(5, "B1").Text(2, "NOTES").Integer(70, 0).Text(3, "romans.shx");
    styles.Text(0, "STYLE").Text(5, "B2").Text(2, "").Integer(70, 1).Text(3, "marks.shx");
    const auto database = Drawing(FileOfTables(Table("LTYPE", entry).Append(Table("STYLE", styles))));
    ASSERT_NE(database, nullptr);
    ASSERT_EQ(database->Linetypes().size(), 1U);
    const std::vector<drawing::Dash>& dashes = database->Linetypes()[0]->Dashes();
    ASSERT_EQ(dashes.size(), 3U);
    EXPECT_EQ(dashes[0].length, 3);
    EXPECT_EQ(dashes[0].shapeStyle, L"");
    EXPECT_EQ(dashes[1].length, -1);
    EXPECT_EQ(dashes[1].shapeNumber, 132);
    EXPECT_EQ(dashes[1].shapeStyle, L"marks.shx"); // a style without a name is found by its file
    EXPECT_EQ(dashes[1].scale, 0.5);
    EXPECT_EQ(dashes[1].rotation, 90 * (std::numbers::pi / 180));
    EXPECT_EQ(dashes[1].offset.x, -0.25);
    EXPECT_EQ(dashes[1].offset.y, 0.125);
    EXPECT_FALSE(dashes[1].text);
    EXPECT_EQ(dashes[2].shapeNumber, 0);
    EXPECT_EQ(dashes[2].shapeStyle, L"NOTES");
    EXPECT_EQ(dashes[2].scale, 2);
    EXPECT_EQ(dashes[2].rotation, -45 * (std::numbers::pi / 180));
    ASSERT_TRUE(dashes[2].text);
    EXPECT_EQ(*dashes[2].text, L"G");
}

TEST(DxfOddFiles, StylesHaveTheirFontInExtendedData) {
    constexpr std::int64_t kItalic = 0x1000000;
    constexpr std::int64_t kBold = 0x2000000;
    DxfWriter styles;
    styles.Text(0, "STYLE").Text(2, "PLAIN").Integer(70, 0).Text(3, "romans.shx");
    int index = 0;
    for (const std::int64_t font : {std::int64_t{34}, kItalic | 34, kBold | 34, kItalic | kBold | 34}) {
        styles.Text(0, "STYLE").Text(2, "S" + std::to_string(index++)).Integer(70, 0).Text(3, "a.ttf");
        styles.Text(1001, "OTHER").Text(1000, "Deja Sans").Integer(1071, font);
    }
    styles.Text(0, "STYLE").Text(2, "").Integer(70, 1).Text(3, "one.shx");
    styles.Text(0, "STYLE").Text(2, "").Integer(70, 1).Text(3, "two.shx");
    const std::string file = FileOfTables(Table("STYLE", styles));
    EXPECT_EQ(ToldOf(file), Texts()); // two without a name are no duplicates
    const auto database = Drawing(file);
    const std::vector<drawing::TextStyleRecord*> found = database->TextStyles();
    ASSERT_EQ(found.size(), 7U);
    EXPECT_EQ(found[0]->Data().typeface, L"");
    for (std::size_t i = 1; i <= 4; ++i) {
        EXPECT_EQ(found[i]->Data().typeface, L"Deja Sans");
        EXPECT_EQ(found[i]->Data().italic, i == 2 || i == 4) << i;
        EXPECT_EQ(found[i]->Data().bold, i >= 3) << i;
        EXPECT_FALSE(found[i]->Data().isShapeFile);
    }
    for (std::size_t i = 5; i <= 6; ++i) {
        EXPECT_EQ(found[i]->Data().fileName, i == 5 ? L"one.shx" : L"two.shx");
        EXPECT_TRUE(found[i]->Data().isShapeFile);
    }
}

// A handle that is none orders nothing, and is nobody's.
TEST(DxfOddFiles, HandlesMayBeEmptyOrMissing) {
    DxfWriter lines;
    for (const char* const handle : {"", "no", "0", "11111111111111111"}) {
        lines.Append(LineTo(1).Text(5, handle));
    }
    lines.Append(LineTo(1));
    std::string json = kLineToOne;
    for (int i = 1; i < 5; ++i) {
        json += std::string(",") + kLineToOne;
    }
    EXPECT_EQ(SymbolsOfDxf(FileOf(lines).Ascii()), SymbolsOfJson(json));
    EXPECT_EQ(ToldOf(FileOf(lines).Ascii()), Texts());
}

TEST(DxfOddFiles, EntitiesWithoutAHandleStayInFrontOfTheDrawOrder) {
    DxfWriter tables = Table("BLOCK_RECORD", DxfWriter().Text(0, "BLOCK_RECORD").Text(5, "1F").Text(2, "B"));
    DxfWriter lines = LineTo(1);
    lines.Append(LineTo(2).Text(5, "30")).Append(LineTo(3)).Append(LineTo(4).Text(5, "31")).Append(LineTo(5));
    DxfWriter block;
    block.Text(0, "BLOCK").Text(2, "B").Append(lines).Text(0, "ENDBLK");
    DxfWriter objects;
    objects.Text(0, "SORTENTSTABLE").Text(5, "99").Text(330, "1F");
    objects.Text(331, "30").Text(5, "31").Text(331, "31").Text(5, "30");
    const std::string file = Section("TABLES", tables)
                                 .Append(Section("BLOCKS", block))
                                 .Append(Section("OBJECTS", objects))
                                 .Text(0, "EOF")
                                 .Ascii();
    std::string json;
    for (const int x : {1, 3, 5, 4, 2}) { // those without one in the order of the file
        json += (json.empty() ? "" : ",") + std::string(R"({"type": "line", "start": [0, 0], "end": [)") +
                std::to_string(x) + ", 0]}";
    }
    EXPECT_EQ(SymbolsOfDxf(file), SymbolsOfJson(json));
}

TEST(DxfOddFiles, BlocksNeedNoRecordInTheTable) {
    const std::string without = FileOf(LineTo(1)).Ascii();
    const std::string with = FileOfTables(
        Table("BLOCK_RECORD", DxfWriter().Text(0, "BLOCK_RECORD").Text(5, "1F").Text(2, "b")), LineTo(1));
    EXPECT_EQ(SymbolsOfDxf(without), SymbolsOfJson(kLineToOne));
    EXPECT_EQ(SymbolsOfDxf(with), SymbolsOfJson(kLineToOne));
    EXPECT_EQ(ToldOf(without), Texts());
    EXPECT_EQ(ToldOf(with), Texts());
}

TEST(DxfOddFiles, AScaleOfZeroIsOne) {
    DxfWriter insert;
    insert.Text(0, "INSERT").Text(8, "0").Text(2, "OTHER").Point(10, 1, 2).Number(41, 0).Number(42, 2);
    Texts told;
    const auto database = Drawing(FileOf(insert).Ascii(), &told);
    EXPECT_EQ(told, (Texts{":17: warning: the scale of INSERT is zero; read as 1 (block B)"}));
    const auto& found =
        static_cast<const drawing::BlockReference&>(*database->FindBlock(L"B")->EntityId(0).stub()->object);
    EXPECT_EQ(found.Place().scaleX, 1);
    EXPECT_EQ(found.Place().scaleY, 2);
}

TEST(DxfOddFiles, ASectionMayLackItsEnd) {
    DxfWriter file;
    file.Text(0, "SECTION").Text(2, "BLOCKS").Text(0, "BLOCK").Text(8, "0").Text(2, "B").Append(LineTo(1));
    file.Text(0, "ENDBLK").Text(0, "SECTION").Text(2, "ENTITIES").Append(LineTo(2)).Text(0, "EOF");
    EXPECT_EQ(SymbolsOfDxf(file.Ascii()), SymbolsOfJson(kLineToOne));
    EXPECT_EQ(ToldOf(file.Ascii()),
              (Texts{":25: warning: a section begins before ENDSEC; the section before ends here"}));
    EXPECT_EQ(Drawing(file.Ascii())->FindBlock(L"*Model_Space")->EntityCount(), 1U);
    // Nor the block, nor the file.
    DxfWriter cut;
    cut.Text(0, "SECTION").Text(2, "BLOCKS").Text(0, "BLOCK").Text(8, "0").Text(2, "B").Append(LineTo(1));
    EXPECT_EQ(SymbolsOfDxf(cut.Ascii()), SymbolsOfJson(kLineToOne));
    EXPECT_EQ(ToldOf(cut.Ascii()),
              (Texts{":11: warning: missing EOF at the end of the file; read to its last line"}));
}

TEST(DxfOddFiles, NothingBehindTheEndOfTheFileIsRead) {
    for (const std::string& junk : {std::string("junk"), std::string(" 0\nSECTION\n"), std::string(100, '\0'),
                                    std::string("\x1a"), std::string("\xff\xfe\n\n\n 10\n")}) {
        EXPECT_EQ(SymbolsOfDxf(FileOf(LineTo(1)).Ascii() + junk), SymbolsOfJson(kLineToOne));
        EXPECT_EQ(ToldOf(FileOf(LineTo(1)).Ascii() + junk), Texts());
        EXPECT_EQ(SymbolsOfDxf(FileOf(LineTo(1)).Binary() + junk), SymbolsOfJson(kLineToOne));
    }
}

TEST(DxfOddFiles, AHelixIsItsSplineAndNoneOfItsOwnNumbers) {
    DxfWriter helix;
    helix.Text(0, "HELIX").Text(8, "0").Integer(70, 8).Integer(71, 2).Integer(72, 6).Integer(73, 3);
    helix.Integer(74, 0);
    for (const double knot : {0.0, 0.0, 0.0, 1.0, 1.0, 1.0}) {
        helix.Number(40, knot);
    }
    helix.Point(10, 0, 0).Point(10, 5, 10).Point(10, 10, 0);
    helix.Integer(90, 29).Integer(91, 63).Point(10, 7, 7).Point(11, 8, 8).Point(12, 0, 0).Number(40, 3);
    helix.Number(41, 5).Number(42, 2).Integer(290, 1).Integer(280, 1);
    const std::string json = SymbolsOfJson(R"({"type": "spline", "degree": 2, "knots": [0, 0, 0, 1, 1, 1],
                                                "controlPoints": [[0, 0], [5, 10], [10, 0]]})");
    EXPECT_NE(json.find("\"type\": \"Path\""), std::string::npos);
    EXPECT_EQ(SymbolsOfDxf(FileOf(helix).Ascii()), json);
}

// Within a millionth of the turn, either way; in arcs of which the file has degrees, too.
TEST(DxfOddFiles, ATurnThatIsFullButForRoundingIsFull) {
    constexpr double kTurn = 2.0 * std::numbers::pi;
    struct Row {
        double start;
        double end;
        bool isFull;
    };
    const auto ellipseOf = [](const Row& row) {
        return DxfWriter()
            .Text(0, "ELLIPSE")
            .Text(8, "0")
            .Point(10, 0, 0)
            .Point(11, 4, 0)
            .Number(40, 0.5)
            .Number(41, row.start)
            .Number(42, row.end);
    };
    for (const Row& row : {Row{0, kTurn, true}, Row{0, 6.283185, true}, Row{0, 6.283186, true},
                           Row{0, kTurn * (1 - 0.9e-6), true}, Row{0, kTurn * (1 - 1.1e-6), false},
                           Row{0, kTurn * (1 + 0.9e-6), true}, Row{0, kTurn * (1 + 1.1e-6), false},
                           Row{1, 1 + 6.283185, true}, Row{0, 6.28, false}}) {
        const auto database = Drawing(FileOf(ellipseOf(row)).Ascii());
        const auto& ellipse =
            static_cast<const drawing::Ellipse&>(*database->FindBlock(L"B")->EntityId(0).stub()->object);
        EXPECT_EQ(ellipse.isClosed(), row.isFull) << row.start << " to " << row.end;
    }
    for (const Row& row : {Row{0, 360, true}, Row{0, 359.9999, true}, Row{0, 360.0001, true},
                           Row{0, 359.999, false}, Row{90, 449.9999, true}}) {
        const auto database = Drawing(FileOf(DxfWriter()
                                                 .Text(0, "ARC")
                                                 .Text(8, "0")
                                                 .Point(10, 0, 0)
                                                 .Number(40, 2)
                                                 .Number(50, row.start)
                                                 .Number(51, row.end))
                                          .Ascii());
        const auto& arc =
            static_cast<const drawing::Arc&>(*database->FindBlock(L"B")->EntityId(0).stub()->object);
        EXPECT_EQ(std::abs(arc.Data().endAngle - arc.Data().startAngle - kTurn) < 1e-12, row.isFull)
            << row.start << " to " << row.end;
    }
}

TEST(DxfOddFiles, BlocksMayInsertEachOtherAndThemselves) {
    const auto block = [](const std::string& name, const DxfWriter& entities) {
        return DxfWriter().Text(0, "BLOCK").Text(8, "0").Text(2, name).Append(entities).Text(0, "ENDBLK");
    };
    const auto insert = [](const std::string& name) {
        return DxfWriter().Text(0, "INSERT").Text(8, "0").Text(2, name).Point(10, 0, 0);
    };
    const DxfWriter dimension = DxfWriter().Text(0, "DIMENSION").Text(8, "0").Text(2, "D").Point(12, 0, 0);
    const std::string file = Section("BLOCKS", block("B", insert("C").Append(LineTo(1)))
                                                   .Append(block("C", insert("B").Append(insert("C"))))
                                                   .Append(block("D", dimension)))
                                 .Text(0, "EOF")
                                 .Ascii();
    EXPECT_EQ(ToldOf(file), Texts());
    const auto database = Drawing(file);
    EXPECT_EQ(database->FindBlock(L"B")->EntityCount(), 2U);
    EXPECT_EQ(database->FindBlock(L"C")->EntityCount(), 2U);
    EXPECT_NE(SymbolsOf(*database).find("L 1000.0,0.0"), std::string::npos);
}

} // namespace
