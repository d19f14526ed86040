// Header, layers, block records and spaces of DXF files.
#include "drawing/database/Database.h"
#include "tests/exchange/DxfFiles.h"

#include <gtest/gtest.h>

namespace {

DxfWriter TableOf(const std::string& name, const DxfWriter& entries) {
    return DxfWriter().Text(0, "TABLE").Text(2, name).Append(entries).Text(0, "ENDTAB");
}

DxfWriter ShortLine() {
    return DxfWriter().Text(0, "LINE").Text(8, "0").Point(10, 0, 0).Point(11, 1, 0);
}

constexpr const char* kShortLine = R"({"type": "line", "start": [0, 0], "end": [1, 0]})";

std::unique_ptr<drawing::Database> DrawingOfFile(const DxfWriter& file) {
    diagnostics::Diagnostic fault;
    exchange::DxfNotes notes;
    return exchange::ReadDxf(file.Ascii(), fault, notes);
}

TEST(DxfTables, TheHeaderLayersAndEntitiesHaveScalesAndLinetypes) {
    DxfWriter header;
    header.Text(9, "$INSUNITS").Integer(70, 4).Text(9, "$LTSCALE").Number(40, 2.5);
    header.Text(9, "$MEASUREMENT").Integer(70, 1);
    DxfWriter layers;
    layers.Text(0, "LAYER").Text(2, "0").Integer(70, 0).Integer(62, 7).Text(6, "CONTINUOUS");
    layers.Text(0, "LAYER").Text(2, "ROAD").Integer(70, 0).Integer(62, 7).Text(6, "GAPS");
    const DxfWriter scaled = ShortLine().Number(48, 0.5);
    const DxfWriter flat = ShortLine().Number(48, 0);
    EXPECT_EQ(DocumentOfDxf(Section("HEADER", header)
                                .Append(Section("TABLES", TableOf("LAYER", layers)))
                                .Append(FileOf(DxfWriter(scaled).Append(flat)))
                                .Ascii()),
              DocumentOfJson(R"("insunits": 4, "linetypeScale": 2.5, "metric": true,
                                "layers": [{"name": "0"}, {"name": "ROAD", "linetype": "GAPS"}],
                                "blocks": [{"name": "B", "entities": [
                                    {"type": "line", "start": [0, 0], "end": [1, 0], "linetypeScale": 0.5},
                                    {"type": "line", "start": [0, 0], "end": [1, 0]}]}])"));
    const std::string inches =
        Section("HEADER",
                DxfWriter().Text(9, "$MEASUREMENT").Integer(70, 0).Text(9, "$LTSCALE").Number(40, -1))
            .Append(FileOf({}))
            .Ascii();
    EXPECT_EQ(DocumentOfDxf(inches),
              DocumentOfJson(R"("metric": false, "blocks": [{"name": "B", "entities": []}])"));
}

TEST(DxfTables, TheSystemOfUnitsTellsWhichUnitIsLikely) {
    const auto said = [](const DxfWriter& header) {
        diagnostics::Diagnostic fault;
        exchange::DxfNotes notes;
        exchange::ReadDxf(Section("HEADER", header).Append(FileOf({})).Ascii(), fault, notes);
        return notes.All().size() == 1 ? diagnostics::MessageOf(notes.All()[0]) : "";
    };
    const std::string start = ": warning: the drawing has no unit; its lengths are read as metres: --units ";
    const DxfWriter system = DxfWriter().Text(9, "$MEASUREMENT");
    EXPECT_EQ(said({}), start + "names another");
    EXPECT_EQ(said(DxfWriter(system).Integer(70, 1)),
              start + "mm is likely, as it was drawn with metric linetypes");
    EXPECT_EQ(said(DxfWriter(system).Integer(70, 0)),
              start + "inch is likely, as it was drawn with linetypes in inches");
}

TEST(DxfTables, LayersHaveColorsWeightsAndStates) {
    DxfWriter layers;
    layers.Text(0, "LAYER").Text(2, "0").Integer(70, 0).Integer(62, 7);
    layers.Text(0, "LAYER").Text(2, "INDEX").Integer(70, 0).Integer(62, 3).Integer(370, 50);
    layers.Text(0, "LAYER").Text(2, "TRUE").Integer(70, 4).Integer(62, 3).Integer(420, 0x102030);
    layers.Text(0, "LAYER").Text(2, "OFF").Integer(70, 0).Integer(62, -5);
    layers.Text(0, "LAYER").Text(2, "FROZEN").Integer(70, 1).Integer(62, 5);
    EXPECT_EQ(DocumentOfDxf(Section("TABLES", TableOf("LAYER", layers)).Append(FileOf({})).Ascii()),
              DocumentOfJson(R"("layers": [{"name": "0", "color": 7},
                                           {"name": "INDEX", "color": 3, "lineWeight": 50},
                                           {"name": "TRUE", "color": "#102030"},
                                           {"name": "OFF", "color": 5, "off": true},
                                           {"name": "FROZEN", "color": 5, "frozen": true}],
                                "blocks": [{"name": "B", "entities": []}])"));
}

TEST(DxfTables, ABlockHasTheUnitOfItsRecord) {
    DxfWriter header;
    header.Text(9, "$INSUNITS").Integer(70, 6);
    DxfWriter records;
    records.Text(0, "BLOCK_RECORD").Text(5, "1F").Text(2, "b").Integer(70, 4);
    const DxfWriter file = Section("HEADER", header)
                               .Append(Section("TABLES", TableOf("BLOCK_RECORD", records)))
                               .Append(FileOf(ShortLine()));
    const std::string json = R"("insunits": 6, "layers": [{"name": "0"}],
                                "blocks": [{"name": "B", "units": 4, "entities": [)" +
                             std::string(kShortLine) + "]}]";
    EXPECT_EQ(DocumentOfDxf(file.Ascii()), DocumentOfJson(json));
    EXPECT_NE(SymbolsOf(*DrawingOfFile(file)).find("L 1.0,0.0"), std::string::npos); // not 1000
}

TEST(DxfTables, EntitiesAreInTheModelSpaceOrInAPaperSpace) {
    DxfWriter entities = ShortLine();
    entities.Append(ShortLine().Integer(67, 1)).Append(ShortLine());
    const auto database = DrawingOfFile(Section("ENTITIES", entities).Text(0, "EOF"));
    ASSERT_NE(database, nullptr);
    for (const auto& [name, count] : {std::pair(L"*Model_Space", 2U), std::pair(L"*Paper_Space", 1U)}) {
        const drawing::BlockRecord* const space = database->FindBlock(name);
        ASSERT_NE(space, nullptr);
        EXPECT_EQ(space->EntityCount(), count);
        EXPECT_TRUE(space->Data().layout);
    }
}

// Old files have "$" where others have "*".
TEST(DxfTables, TheSpacesOfOldFilesAreTheSame) {
    DxfWriter blocks;
    for (const char* const name : {"$MODEL_SPACE", "$PAPER_SPACE"}) {
        blocks.Text(0, "BLOCK").Text(8, "0").Text(2, name).Point(10, 0, 0).Text(0, "ENDBLK");
    }
    const auto database =
        DrawingOfFile(Section("BLOCKS", blocks).Append(Section("ENTITIES", ShortLine())).Text(0, "EOF"));
    ASSERT_NE(database, nullptr);
    EXPECT_EQ(database->Blocks().size(), 2U);
    const drawing::BlockRecord* const space = database->FindBlock(L"$MODEL_SPACE");
    ASSERT_NE(space, nullptr);
    EXPECT_EQ(space->EntityCount(), 1U);
    EXPECT_TRUE(space->Data().layout);
}

// The page is known by its value, whatever its variable is called; UTF-8 throughout needs none.
TEST(DxfTables, TextsAreInThePageOfTheHeaderUnlessAllAreUtf8) {
    const auto file = [](const std::string& text) {
        DxfWriter header;
        header.Text(9, "$OTHER").Text(3, "some words").Text(9, "$PAGE").Text(3, "ANSI_1251");
        const DxfWriter entity =
            DxfWriter().Text(0, "TEXT").Text(8, "0").Point(10, 0, 0).Number(40, 1).Text(1, text);
        return Section("HEADER", header).Append(FileOf(entity));
    };
    const auto json = [](const std::string& text) {
        return DocumentOfJson(BlockOfJson(
            R"({"type": "text", "position": [0, 0], "height": 1, "style": "STANDARD", "text": ")" + text +
            "\"}"));
    };
    for (const bool isBinary : {false, true}) {
        const auto document = [&](const std::string& text) {
            return DocumentOfDxf(isBinary ? file(text).Binary() : file(text).Ascii());
        };
        EXPECT_EQ(document("\xe4"), json("\\u0434")) << isBinary;
        EXPECT_EQ(document("\xc3\xa4"), json("\\u00e4")) << isBinary;
        EXPECT_EQ(document("\xe4 \\U+00E4 \xc3"), json("\\u0434 \\u00e4 \\u0413")) << isBinary;
    }
}

} // namespace
