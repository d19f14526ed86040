// Layers, text styles, linetypes: look-ups, reads, ownership.
#include "tests/drawing/OpenedObjects.h"

namespace {

TEST(Tables, NamesAreLookedUpWithoutRegardToCase) {
    drawing::Database database;
    ASSERT_NE(database.AddLayer(L"Stra\u00dfe \u00c4\u0416\u03a9", ColorOfIndex(3)), nullptr);
    auto* const table = OpenTable<OxDbLayerTable>(database);
    for (const wchar_t* const name : {L"Stra\u00dfe \u00c4\u0416\u03a9", L"STRA\u00dfE \u00e4\u0436\u03c9"}) {
        OxDbLayerTableRecord* layer = nullptr;
        ASSERT_EQ(table->getAt(name, layer, OxDb::kForRead), Oxsys::eOk);
        const wchar_t* read = nullptr;
        ASSERT_EQ(layer->getName(read), Oxsys::eOk);
        EXPECT_STREQ(read, L"Stra\u00dfe \u00c4\u0416\u03a9"); // spelled as it was given
        layer->close();
    }
    OxDbLayerTableRecord* layer = nullptr;
    EXPECT_EQ(table->getAt(L"Strasse \u00c4\u0416\u03a9", layer, OxDb::kForRead), Oxsys::eKeyNotFound);
    EXPECT_EQ(layer, nullptr);
    EXPECT_EQ(table->getAt(nullptr, layer, OxDb::kForRead), Oxsys::eKeyNotFound);
    table->close();
    EXPECT_TRUE(database.IsEverythingClosed());
}

TEST(Tables, ANameIsTakenOncePerTable) {
    drawing::Database database;
    EXPECT_NE(database.AddLayer(L"A", ColorOfIndex(1)), nullptr);
    EXPECT_EQ(database.AddLayer(L"a", ColorOfIndex(2)), nullptr);
    EXPECT_NE(database.AddTextStyle(L"a", {}), nullptr);
    EXPECT_EQ(database.AddTextStyle(L"A", {}), nullptr);
    EXPECT_NE(database.AddLinetype(L"A", {}), nullptr);
    EXPECT_EQ(database.AddLinetype(L"a", {}), nullptr);
    EXPECT_NE(database.AddBlock(L"A"), nullptr);
    EXPECT_EQ(database.AddBlock(L"a"), nullptr);
}

TEST(Tables, NamesThatWereOnlyMentionedAreInNoTable) {
    drawing::Database database;
    database.AddBlock(L"B")->Add<drawing::Point>({.layer = L"Roads"}, OxGePoint3d{});
    auto* const table = OpenTable<OxDbLayerTable>(database);
    OxDbLayerTableRecord* layer = nullptr;
    EXPECT_EQ(table->getAt(L"Roads", layer, OxDb::kForRead), Oxsys::eKeyNotFound);
    table->close();
}

TEST(Tables, AnErasedRecordIsOpenedOnlyWhereErasedOnesMayBe) {
    drawing::Database database;
    const drawing::LayerRecord* const record = database.AddLayer(L"A", ColorOfIndex(1));
    drawing::Database::Erase(record->objectId());
    EXPECT_FALSE(record->isResident());
    auto* const table = OpenTable<OxDbLayerTable>(database);
    OxDbLayerTableRecord* layer = nullptr;
    EXPECT_EQ(table->getAt(L"A", layer, OxDb::kForRead), Oxsys::eWasErased);
    EXPECT_EQ(layer, nullptr);
    EXPECT_EQ(table->getAt(L"A", layer, OxDb::kForRead, true), Oxsys::eOk);
    EXPECT_EQ(layer, record);
}

TEST(Tables, ATextStyleHandsOutCopies) {
    drawing::Database database;
    drawing::TextStyleData data;
    data.fileName = L"txt.shx";
    data.typeface = L"Arial";
    data.bold = true;
    data.characterSet = 2;
    data.pitchAndFamily = 34;
    const drawing::TextStyleRecord* const style = database.AddTextStyle(L"S", data);
    wchar_t* name = nullptr;
    ASSERT_EQ(style->fileName(name), Oxsys::eOk);
    EXPECT_STREQ(name, L"txt.shx");
    name[0] = L'?';
    delete[] name;
    ASSERT_EQ(style->fileName(name), Oxsys::eOk);
    EXPECT_STREQ(name, L"txt.shx");
    delete[] name;
    ASSERT_EQ(style->bigFontFileName(name), Oxsys::eOk);
    EXPECT_STREQ(name, L"");
    delete[] name;
    bool bold = false;
    bool italic = true;
    std::int32_t characterSet = 0;
    std::int32_t pitch = 0;
    ASSERT_EQ(style->font(name, bold, italic, characterSet, pitch), Oxsys::eOk);
    EXPECT_STREQ(name, L"Arial");
    EXPECT_TRUE(bold);
    EXPECT_FALSE(italic);
    EXPECT_EQ(characterSet, 2);
    EXPECT_EQ(pitch, 34);
    delete[] name;
}

/// The linetype record of an entity with a linetype of that name; null when it cannot be opened.
OxDbLinetypeTableRecord* LinetypeNamed(drawing::Database& database, const std::wstring& name) {
    static int blocks = 0;
    drawing::BlockRecord* const block = database.AddBlock(L"block " + std::to_wstring(blocks++));
    const auto& line = block->Add<drawing::Line>({.linetype = name}, OxGePoint3d{}, OxGePoint3d{1, 0, 0});
    OxDbLinetypeTableRecord* record = nullptr;
    oxdbOpenOxDbObject(record, line.linetypeId(), OxDb::kForRead);
    return record;
}

TEST(Linetypes, TheBuiltInOnesHaveNoDashes) {
    drawing::Database database;
    for (const wchar_t* const name : {L"ByLayer", L"BYBLOCK", L"continuous"}) {
        OxDbLinetypeTableRecord* const record = LinetypeNamed(database, name);
        ASSERT_NE(record, nullptr);
        EXPECT_EQ(record->numDashes(), 0);
        EXPECT_EQ(record->patternLength(), 0.0);
    }
}

TEST(Linetypes, OneOfTheTableStandsBeforeItsBuiltInNamesake) {
    drawing::Database database;
    ASSERT_NE(database.AddLinetype(L"CONTINUOUS", {DashOf(1.0), DashOf(-0.5)}), nullptr);
    EXPECT_EQ(LinetypeNamed(database, L"Continuous")->numDashes(), 2);
    EXPECT_EQ(database.AddLinetype(L"Continuous", {}), nullptr);
    EXPECT_EQ(LinetypeNamed(database, L"ByLayer")->numDashes(), 0);
}

TEST(Linetypes, OneThatTheDrawingLacksIsKnownByName) {
    drawing::Database database;
    drawing::BlockRecord& block = *database.AddBlock(L"B");
    drawing::EntityProperties properties;
    properties.linetype = L"Gas";
    const drawing::Line& line = block.Add<drawing::Line>(properties, OxGePoint3d(), OxGePoint3d());
    const OxDbObjectId missing = line.linetypeId();
    ASSERT_NE(database.MissingName(missing), nullptr);
    EXPECT_EQ(*database.MissingName(missing), L"Gas");
    EXPECT_TRUE(missing == line.linetypeId());
    EXPECT_EQ(database.MissingName(line.objectId()), nullptr);
    EXPECT_EQ(database.MissingName(OxDbObjectId()), nullptr);
    EXPECT_EQ(
        database.MissingName(
            block.Add<drawing::Line>(drawing::EntityProperties(), OxGePoint3d(), OxGePoint3d()).linetypeId()),
        nullptr);
}

TEST(Linetypes, OneAddedAfterTheEntityIsFound) {
    drawing::Database database;
    const auto& line = database.AddBlock(L"B")->Add<drawing::Line>({.linetype = L"dashed"}, OxGePoint3d{},
                                                                   OxGePoint3d{1, 0, 0});
    OxDbLinetypeTableRecord* record = nullptr;
    EXPECT_EQ(oxdbOpenOxDbObject(record, line.linetypeId(), OxDb::kForRead), Oxsys::eUnknownObject);
    database.AddLinetype(L"DASHED", {DashOf(1.0)});
    EXPECT_EQ(oxdbOpenOxDbObject(record, line.linetypeId(), OxDb::kForRead), Oxsys::eOk);
}

TEST(Linetypes, ThePatternLengthIsTheSumOfMagnitudesUnlessGiven) {
    drawing::Database database;
    const std::vector<drawing::Dash> dashes = {DashOf(0.5), DashOf(-0.25), DashOf(0.0)};
    EXPECT_EQ(database.AddLinetype(L"A", dashes)->patternLength(), 0.75);
    EXPECT_EQ(database.AddLinetype(L"B", dashes, 2.0)->patternLength(), 2.0);
}

TEST(Linetypes, AnIndexThatThereIsNotReadsAsNothing) {
    drawing::Database database;
    const drawing::LinetypeRecord* const record = database.AddLinetype(L"A", {DashOf(0.5, L"S")});
    const wchar_t* text = L"as it was";
    for (const int index : {-1, 1}) {
        EXPECT_EQ(record->dashLengthAt(index), 0.0);
        EXPECT_TRUE(record->shapeStyleAt(index).isNull());
        EXPECT_EQ(record->shapeNumberAt(index), 0);
        EXPECT_EQ(record->shapeScaleAt(index), 1.0);
        EXPECT_EQ(record->textAt(index, text), Oxsys::eInvalidIndex);
        EXPECT_EQ(text, nullptr);
    }
}

TEST(Linetypes, AnUnknownStyleOfADashHasAnIdThatCannotBeOpened) {
    drawing::Database database;
    const drawing::LinetypeRecord* const record = database.AddLinetype(L"A", {DashOf(0.5, L"S")});
    ASSERT_FALSE(record->shapeStyleAt(0).isNull());
    OxDbTextStyleTableRecord* style = nullptr;
    EXPECT_NE(oxdbOpenOxDbObject(style, record->shapeStyleAt(0), OxDb::kForRead), Oxsys::eOk);
    EXPECT_EQ(style, nullptr);
    database.AddTextStyle(L"s", {});
    EXPECT_EQ(oxdbOpenOxDbObject(style, record->shapeStyleAt(0), OxDb::kForRead), Oxsys::eOk);
}

} // namespace
