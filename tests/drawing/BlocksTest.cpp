// Blocks: iteration, draw order, references.
#include "drawing/entities/SimpleEntities.h"
#include "tests/drawing/OpenedObjects.h"

#include <vector>

namespace {

using drawing::Database;

OxGePoint3d At(double x) {
    return {x, 0, 0};
}

/// The x coordinates of the points that an iterator comes by.
std::vector<double> Walk(const drawing::BlockRecord& block, bool forward, bool skipErased) {
    OxDbBlockTableRecordIterator* iterator = nullptr;
    EXPECT_EQ(block.newIterator(iterator, forward, skipErased), Oxsys::eOk);
    std::vector<double> found;
    for (iterator->start(forward, skipErased); !iterator->done(); iterator->step(forward, skipErased)) {
        OxDbEntity* entity = nullptr;
        EXPECT_EQ(iterator->getEntity(entity, OxDb::kForRead, true), Oxsys::eOk);
        found.push_back(static_cast<OxDbPoint*>(entity)->position().x);
        entity->close();
    }
    delete iterator;
    return found;
}

TEST(Blocks, EntitiesComeInTheOrderOfCreation) {
    Database database;
    drawing::BlockRecord* const block = database.AddBlock(L"B");
    for (const double x : {3.0, 1.0, 2.0}) {
        block->Add<drawing::Point>({}, At(x));
    }
    EXPECT_EQ(Walk(*block, true, true), (std::vector<double>{3, 1, 2}));
    EXPECT_EQ(Walk(*block, false, true), (std::vector<double>{2, 1, 3}));
}

TEST(Blocks, IteratorsSkipErasedEntitiesWhenTold) {
    Database database;
    drawing::BlockRecord* const block = database.AddBlock(L"B");
    for (const double x : {0.0, 1.0, 2.0, 3.0, 4.0}) {
        block->Add<drawing::Point>({}, At(x));
    }
    for (const std::size_t index : {0U, 2U, 4U}) {
        Database::Erase(block->EntityId(index));
    }
    EXPECT_EQ(Walk(*block, true, true), (std::vector<double>{1, 3}));
    EXPECT_EQ(Walk(*block, false, true), (std::vector<double>{3, 1}));
    EXPECT_EQ(Walk(*block, true, false), (std::vector<double>{0, 1, 2, 3, 4}));
}

TEST(Blocks, AnIteratorThatIsDoneGivesNothing) {
    Database database;
    OxDbBlockTableRecordIterator* iterator = nullptr;
    ASSERT_EQ(database.AddBlock(L"B")->newIterator(iterator, true, true), Oxsys::eOk);
    EXPECT_TRUE(iterator->done());
    iterator->step();
    EXPECT_TRUE(iterator->done());
    OxDbEntity* entity = nullptr;
    EXPECT_NE(iterator->getEntity(entity, OxDb::kForRead), Oxsys::eOk);
    EXPECT_EQ(entity, nullptr);
    delete iterator;
}

TEST(Blocks, TheTableGoesThroughBlocksInOrderOfAddition) {
    Database database;
    database.AddBlock(L"b");
    database.AddBlock(L"*Model", {.layout = true});
    const drawing::BlockRecord* const erased = database.AddBlock(L"gone");
    database.AddBlock(L"*U1", {.anonymous = true, .units = OxDb::kUnitsInches});
    Database::Erase(erased->objectId());
    auto* const table = OpenTable<OxDbBlockTable>(database);
    OxDbBlockTableIterator* iterator = nullptr;
    ASSERT_EQ(table->newIterator(iterator), Oxsys::eOk);
    std::vector<std::wstring> names;
    for (iterator->start(); !iterator->done(); iterator->step()) {
        OxDbBlockTableRecord* record = nullptr;
        ASSERT_EQ(iterator->getRecord(record, OxDb::kForRead), Oxsys::eOk);
        const wchar_t* name = nullptr;
        ASSERT_EQ(record->getName(name), Oxsys::eOk);
        names.emplace_back(name);
        EXPECT_EQ(record->isLayout(), names.back() == L"*Model");
        EXPECT_EQ(record->isAnonymous(), names.back() == L"*U1");
        EXPECT_EQ(record->blockInsertUnits(),
                  names.back() == L"*U1" ? OxDb::kUnitsInches : OxDb::kUnitsUndefined);
        record->close();
    }
    delete iterator;
    table->close();
    EXPECT_EQ(names, (std::vector<std::wstring>{L"b", L"*Model", L"*U1"}));
    EXPECT_TRUE(database.IsEverythingClosed());
}

TEST(Blocks, ADrawOrderTableMayBeAbsentOrEmptyOrInAnyOrder) {
    Database database;
    drawing::BlockRecord* const block = database.AddBlock(L"B");
    const OxDbObjectId first = block->Add<drawing::Point>({}, At(1)).objectId();
    const OxDbObjectId second = block->Add<drawing::Point>({}, At(2)).objectId();
    OxDbSortentsTable* table = nullptr;
    EXPECT_EQ(block->getSortentsTable(table, OxDb::kForRead, false), Oxsys::eKeyNotFound);
    EXPECT_EQ(table, nullptr);
    block->SetDrawOrder({second, first});
    ASSERT_EQ(block->getSortentsTable(table, OxDb::kForRead, false), Oxsys::eOk);
    OxDbObjectIdArray ids;
    ids.append(first); // replaced
    ASSERT_EQ(table->getFullDrawOrder(ids, 0), Oxsys::eOk);
    ASSERT_EQ(ids.logicalLength(), 2);
    EXPECT_EQ(ids[0], second);
    EXPECT_EQ(ids[1], first);
    table->close();
    block->SetDrawOrder({});
    ASSERT_EQ(block->getSortentsTable(table, OxDb::kForRead, false), Oxsys::eOk);
    ASSERT_EQ(table->getFullDrawOrder(ids, 0), Oxsys::eOk);
    EXPECT_TRUE(ids.isEmpty());
    table->close();
    EXPECT_TRUE(database.IsEverythingClosed());
}

TEST(Blocks, ABlockThatIsNeverInsertedHasAnEmptyReferenceIterator) {
    Database database;
    OxDbBlockReferenceIdIterator* references = nullptr;
    ASSERT_EQ(database.AddBlock(L"B")->newBlockReferenceIdIterator(references), Oxsys::eOk);
    ASSERT_NE(references, nullptr);
    references->start();
    EXPECT_TRUE(references->done());
    OxDbBlockReference* reference = nullptr;
    EXPECT_NE(references->getBlockReference(reference, OxDb::kForRead), Oxsys::eOk);
    EXPECT_EQ(reference, nullptr);
    delete references;
}

TEST(Blocks, AnErasedFirstReferenceIsTheFirstAllTheSame) {
    Database database;
    drawing::BlockRecord* const tree = database.AddBlock(L"Tree");
    drawing::BlockRecord* const model = database.AddBlock(L"*Model", {.layout = true});
    const auto& first = model->Add<drawing::BlockReference>({}, std::wstring(L"TREE"));
    const auto& second = model->Add<drawing::BlockReference>({}, std::wstring(L"tree"));
    Database::Erase(first.objectId());
    OxDbBlockReferenceIdIterator* references = nullptr;
    ASSERT_EQ(tree->newBlockReferenceIdIterator(references), Oxsys::eOk);
    OxDbBlockReference* reference = nullptr;
    EXPECT_EQ(references->getBlockReference(reference, OxDb::kForRead), Oxsys::eWasErased);
    references->step();
    ASSERT_EQ(references->getBlockReference(reference, OxDb::kForRead), Oxsys::eOk);
    EXPECT_EQ(reference, &second);
    EXPECT_EQ(reference->blockTableRecord(), tree->objectId());
    delete references;
}

TEST(Blocks, ABlockFilledBeforeItHasANameIsTheSame) {
    Database database;
    std::unique_ptr<drawing::BlockRecord> block = database.MakeBlock();
    block->Add<drawing::BlockReference>({}, std::wstring(L"Late"));
    const drawing::BlockRecord* const added =
        database.AddBlock(L"Late", {.units = OxDb::kUnitsFeet}, std::move(block));
    ASSERT_NE(added, nullptr);
    EXPECT_EQ(added->EntityCount(), 1U);
    EXPECT_EQ(added->blockInsertUnits(), OxDb::kUnitsFeet);
    OxDbBlockReferenceIdIterator* references = nullptr;
    ASSERT_EQ(added->newBlockReferenceIdIterator(references), Oxsys::eOk);
    EXPECT_FALSE(references->done());
    delete references;
}

TEST(Blocks, LookUpsAmongManyLayersAndEntitiesAreNoSearch) {
    // Linear look-ups would need some 10^10 comparisons here and not come to an end in a test's time.
    Database database;
    for (int layer = 0; layer < 10000; ++layer) {
        database.AddLayer(L"Layer " + std::to_wstring(layer), ColorOfIndex(1));
    }
    drawing::BlockRecord* const block = database.AddBlock(L"B");
    for (int entity = 0; entity < 200000; ++entity) {
        block->Add<drawing::Point>({.layer = L"Layer " + std::to_wstring(entity % 10000)}, At(entity));
    }
    auto* const table = OpenTable<OxDbLayerTable>(database);
    OxDbBlockTableRecordIterator* iterator = nullptr;
    ASSERT_EQ(block->newIterator(iterator, true, true), Oxsys::eOk);
    int found = 0;
    for (; !iterator->done(); iterator->step()) {
        OxDbEntity* entity = nullptr;
        ASSERT_EQ(iterator->getEntity(entity, OxDb::kForRead), Oxsys::eOk);
        OxDbLayerTableRecord* layer = nullptr;
        found += table->getAt(LayerName(*entity).c_str(), layer, OxDb::kForRead) == Oxsys::eOk ? 1 : 0;
        layer->close();
        entity->close();
    }
    delete iterator;
    EXPECT_EQ(found, 200000);
}

} // namespace
