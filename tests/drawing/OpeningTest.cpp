// Opening and closing, and what is counted.
#include "drawing/entities/SimpleEntities.h"
#include "tests/drawing/OpenedObjects.h"

namespace {

TEST(Opening, EveryOpeningNeedsItsOwnClose) {
    drawing::Database database;
    drawing::BlockRecord* const block = database.AddBlock(L"B");
    const OxDbObjectId id = block->Add<drawing::Point>({}, OxGePoint3d{1, 2, 3}).objectId();
    OxDbEntity* entity = nullptr;
    ASSERT_EQ(oxdbOpenOxDbEntity(entity, id, OxDb::kForRead), Oxsys::eOk);
    ASSERT_EQ(oxdbOpenOxDbEntity(entity, id, OxDb::kForRead), Oxsys::eOk);
    EXPECT_EQ(database.Counts().OpenNow(), 2U);
    EXPECT_EQ(drawing::Database::OpenCount(id), 2U);
    EXPECT_EQ(entity->close(), Oxsys::eOk);
    EXPECT_FALSE(database.IsEverythingClosed());
    EXPECT_EQ(entity->close(), Oxsys::eOk);
    EXPECT_TRUE(database.IsEverythingClosed());
    EXPECT_EQ(database.Counts().opened, 2U);
    EXPECT_EQ(database.Counts().closed, 2U);
}

TEST(Opening, OneCloseTooManyIsNoticed) {
    drawing::Database database;
    auto* const table = OpenTable<OxDbLayerTable>(database);
    EXPECT_EQ(table->close(), Oxsys::eOk);
    EXPECT_EQ(table->close(), Oxsys::eNotOpen);
    EXPECT_EQ(database.Counts().OpenNow(), 0U);
    EXPECT_FALSE(database.IsEverythingClosed());
}

TEST(Opening, AnIdOfTheWrongClassIsNotOpened) {
    drawing::Database database;
    const drawing::LayerRecord* const layer = database.AddLayer(L"A", ColorOfIndex(1));
    OxDbEntity* entity = nullptr;
    EXPECT_EQ(oxdbOpenOxDbEntity(entity, layer->objectId(), OxDb::kForRead), Oxsys::eNotThatKindOfClass);
    EXPECT_EQ(entity, nullptr);
    OxDbLinetypeTableRecord* linetype = nullptr;
    EXPECT_EQ(oxdbOpenOxDbObject(linetype, layer->objectId(), OxDb::kForRead), Oxsys::eNotThatKindOfClass);
    OxDbSymbolTableRecord* record = nullptr;
    EXPECT_EQ(oxdbOpenOxDbObject(record, layer->objectId(), OxDb::kForRead), Oxsys::eOk);
    EXPECT_EQ(record, layer);
    EXPECT_EQ(database.Counts().OpenNow(), 1U);
}

TEST(Opening, ANullIdIsNotOpened) {
    OxDbEntity* entity = nullptr;
    EXPECT_EQ(oxdbOpenOxDbEntity(entity, OxDbObjectId(), OxDb::kForRead), Oxsys::eNullObjectId);
    OxDbObject* object = nullptr;
    EXPECT_EQ(oxdbOpenOxDbObject(object, OxDbObjectId(), OxDb::kForRead, OxDbObject::desc()),
              Oxsys::eNullObjectId);
}

TEST(Opening, AnErasedEntityIsOpenedOnlyWhereErasedOnesMayBe) {
    drawing::Database database;
    const OxDbObjectId id = database.AddBlock(L"B")->Add<drawing::Point>({}, OxGePoint3d{}).objectId();
    drawing::Database::Erase(id);
    OxDbEntity* entity = nullptr;
    EXPECT_EQ(oxdbOpenOxDbEntity(entity, id, OxDb::kForRead), Oxsys::eWasErased);
    EXPECT_EQ(entity, nullptr);
    EXPECT_EQ(oxdbOpenOxDbEntity(entity, id, OxDb::kForRead, true), Oxsys::eOk);
}

TEST(Opening, ANonResidentObjectOpensAndSaysSo) {
    drawing::Database database;
    drawing::BlockRecord* const block = database.AddBlock(L"B");
    EXPECT_TRUE(block->isResident());
    drawing::Database::MakeNonResident(block->objectId());
    auto* const table = OpenTable<OxDbBlockTable>(database);
    OxDbBlockTableRecord* record = nullptr;
    ASSERT_EQ(table->getAt(L"B", record, OxDb::kForRead), Oxsys::eOk);
    EXPECT_FALSE(record->isResident());
}

TEST(Opening, LayerBuffersAreCounted) {
    drawing::Database database;
    const auto& point = database.AddBlock(L"B")->Add<drawing::Point>({.layer = L"Walls"}, OxGePoint3d{});
    const std::int64_t before = drawing::LiveBufferCount();
    wchar_t* buffer = point.layer();
    EXPECT_STREQ(buffer, L"Walls");
    EXPECT_EQ(drawing::LiveBufferCount(), before + 1);
    oxutDelBuffer(buffer);
    EXPECT_EQ(buffer, nullptr);
    EXPECT_EQ(drawing::LiveBufferCount(), before);
    oxutDelBuffer(buffer);
    EXPECT_EQ(drawing::LiveBufferCount(), before);
}

TEST(Opening, IteratorsAreCounted) {
    drawing::Database database;
    drawing::BlockRecord* const block = database.AddBlock(L"B");
    const std::int64_t before = drawing::LiveIteratorCount();
    OxDbBlockTableRecordIterator* entities = nullptr;
    OxDbBlockReferenceIdIterator* references = nullptr;
    OxDbBlockTableIterator* blocks = nullptr;
    auto* const table = OpenTable<OxDbBlockTable>(database);
    ASSERT_EQ(block->newIterator(entities, true, true), Oxsys::eOk);
    ASSERT_EQ(block->newBlockReferenceIdIterator(references), Oxsys::eOk);
    ASSERT_EQ(table->newIterator(blocks), Oxsys::eOk);
    EXPECT_EQ(drawing::LiveIteratorCount(), before + 3);
    delete entities;
    delete references;
    delete blocks;
    EXPECT_EQ(drawing::LiveIteratorCount(), before);
}

TEST(KindOf, RespectsDerivation) {
    drawing::Database database;
    drawing::BlockRecord* const block = database.AddBlock(L"B");
    const auto& line = block->Add<drawing::Line>({}, OxGePoint3d{}, OxGePoint3d{});
    EXPECT_TRUE(line.isKindOf(OxDbLine::desc()));
    EXPECT_TRUE(line.isKindOf(OxDbCurve::desc()));
    EXPECT_TRUE(line.isKindOf(OxDbEntity::desc()));
    EXPECT_TRUE(line.isKindOf(OxDbObject::desc()));
    EXPECT_TRUE(line.isKindOf(OxRxObject::desc()));
    EXPECT_FALSE(line.isKindOf(OxDbPoint::desc()));
    EXPECT_FALSE(line.isKindOf(nullptr));
    const auto& other = block->Add<drawing::OtherEntity>({}, std::wstring(L"OxDbDimension"));
    EXPECT_TRUE(other.isKindOf(OxDbEntity::desc()));
    EXPECT_FALSE(other.isKindOf(OxDbCurve::desc()));
    EXPECT_STREQ(other.isA()->name(), L"OxDbDimension");
}

TEST(KindOf, ADrawingMayBringAClassDerivedFromAKnownOne) {
    static const OxRxClass kLeader(L"Leader", OxDbLine::desc());
    class Leader : public drawing::Line {
    public:
        using Line::Line;
        const OxRxClass* isA() const override { return &kLeader; }
    };
    drawing::Database database;
    const auto& leader = database.AddBlock(L"B")->Add<Leader>({}, OxGePoint3d{}, OxGePoint3d{1, 0, 0});
    EXPECT_TRUE(leader.isKindOf(&kLeader));
    EXPECT_TRUE(leader.isKindOf(OxDbLine::desc()));
    OxDbEntity* entity = nullptr;
    EXPECT_EQ(oxdbOpenOxDbEntity(entity, leader.objectId(), OxDb::kForRead), Oxsys::eOk);
}

TEST(Entities, OfADrawingCannotBeChanged) {
    drawing::Database database;
    auto& point = database.AddBlock(L"B")->Add<drawing::Point>({.color = ColorOfIndex(1)}, OxGePoint3d{});
    EXPECT_NE(point.setColor(ColorOfIndex(2)), Oxsys::eOk);
    EXPECT_NE(point.setLineWeight(OxDb::kLnWt000), Oxsys::eOk);
    EXPECT_NE(point.setLinetype(OxDbObjectId()), Oxsys::eOk);
    EXPECT_EQ(TrueColor(point.color()), 0xff0000U);
    EXPECT_EQ(point.lineWeight(), OxDb::kLnWtByLayer);
}

} // namespace
