// Which blocks a drawing has to convert.
#include "tests/block/BlockTest.h"

namespace blocktest {
namespace {

using drawing::Operation;
using Names = std::vector<std::wstring>;

class BlockNames : public BlockTest {
protected:
    BlockNames() {
        drawing::BlockData layout;
        layout.layout = true;
        drawing::BlockData anonymous;
        anonymous.anonymous = true;
        database.AddBlock(L"*Model_Space", layout);
        database.AddBlock(L"ZEBRA");
        database.AddBlock(L"*U1", anonymous);
        database.AddBlock(L"ant");
    }

    // What both operations return; their lists must agree.
    struct Result {
        std::int32_t plain;
        Oxsys::ErrorStatus status;
        Names names;
    };

    Result List() { return List(&database); }

    static Result List(OxDbDatabase* from) {
        BlockConverter converter(from);
        Names names{L"left over"};
        Names namesOfEx{L"left over"};
        const std::int32_t plain = converter.GetBlockNames(names);
        const Oxsys::ErrorStatus status = converter.GetBlockNamesEx(namesOfEx);
        EXPECT_EQ(names, namesOfEx);
        return {plain, status, names};
    }

    void Fail(Operation operation, Oxsys::ErrorStatus status) {
        database.Failures().Fail(operation, 0, status);
    }
};

TEST_F(BlockNames, AreTheNamesOfBlocksThatAreNeitherLayoutsNorAnonymousInTableOrder) {
    const Result result = List();
    EXPECT_EQ(result.plain, 0);
    EXPECT_EQ(result.status, Oxsys::eOk);
    EXPECT_EQ(result.names, (Names{L"B", L"ZEBRA", L"ant"}));
}

TEST_F(BlockNames, AreNoneForADrawingOfLayoutsAndAnonymousBlocks) {
    drawing::Database bare;
    drawing::BlockData data;
    data.layout = true;
    bare.AddBlock(L"*Model_Space", data);
    bare.AddBlock(L"*Paper_Space", data);
    data = {};
    data.anonymous = true;
    bare.AddBlock(L"*U1", data);
    const Result result = List(&bare);
    EXPECT_EQ(result.plain, 0);
    EXPECT_EQ(result.status, Oxsys::eOk);
    EXPECT_TRUE(result.names.empty());
}

TEST_F(BlockNames, WithoutADatabaseAreAFailureWithAnEmptyList) {
    const Result result = List(nullptr);
    EXPECT_EQ(result.plain, 1);
    EXPECT_EQ(static_cast<int>(result.status), 15);
    EXPECT_TRUE(result.names.empty());
}

TEST_F(BlockNames, LeaveOutErasedRecordsAndThoseThatAreNotResident) {
    drawing::Database::Erase(block.objectId());
    drawing::Database::MakeNonResident(database.AddBlock(L"GHOST")->objectId());
    EXPECT_EQ(List().names, (Names{L"ZEBRA", L"ant"}));
}

TEST_F(BlockNames, FailWithTheStatusOfTheBlockTable) {
    Fail(Operation::kGetBlockTable, Oxsys::eOutOfMemory);
    const Result result = List();
    EXPECT_EQ(result.plain, 1);
    EXPECT_EQ(result.status, Oxsys::eOutOfMemory);
    EXPECT_TRUE(result.names.empty());
}

TEST_F(BlockNames, WithSuccessButNoTableFailOnlyInThePlainForm) {
    Fail(Operation::kGetBlockTable, Oxsys::eOk);
    const Result result = List();
    EXPECT_EQ(result.plain, 1);
    EXPECT_EQ(result.status, Oxsys::eOk);
}

TEST_F(BlockNames, FailWithTheStatusOfTheIterator) {
    Fail(Operation::kBlockTableNewIterator, Oxsys::eInvalidInput);
    const Result result = List();
    EXPECT_EQ(result.plain, 1);
    EXPECT_EQ(result.status, Oxsys::eInvalidInput);
}

TEST_F(BlockNames, WithSuccessButNoIteratorFailOnlyInThePlainForm) {
    Fail(Operation::kBlockTableNewIterator, Oxsys::eOk);
    const Result result = List();
    EXPECT_EQ(result.plain, 1);
    EXPECT_EQ(result.status, Oxsys::eOk);
}

TEST_F(BlockNames, LeaveOutARecordThatCannotBeOpened) {
    BlockConverter converter(&database);
    Names names;
    database.Failures().Fail(Operation::kBlockTableIteratorGetRecord, 1, Oxsys::eUnknownObject);
    EXPECT_EQ(converter.GetBlockNames(names), 0);
    EXPECT_EQ(names, (Names{L"ZEBRA", L"ant"}));
}

TEST_F(BlockNames, LeaveOutARecordWhoseNameCannotBeRead) {
    BlockConverter converter(&database);
    Names names;
    database.Failures().Fail(Operation::kBlockGetName, 2, Oxsys::eUnknownObject);
    EXPECT_EQ(converter.GetBlockNamesEx(names), Oxsys::eOk);
    EXPECT_EQ(names, (Names{L"B", L"ant"}));
}

TEST_F(BlockNames, CopyOfAConverterSharesTheDrawing) {
    const BlockConverter converter(&database);
    BlockConverter copy(converter);
    BlockConverter assigned(nullptr);
    assigned = converter;
    Names names;
    EXPECT_EQ(copy.GetBlockNames(names), 0);
    EXPECT_EQ(assigned.GetBlockNames(names), 0);
    EXPECT_EQ(names.size(), 3U);
}

} // namespace
} // namespace blocktest
