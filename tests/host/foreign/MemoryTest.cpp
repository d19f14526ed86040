// Memory and open objects of conversions by the foreign pair.
#include "OxDb/OxDb.h"
#include "StyleConversion/block/BlockConverter.h"
#include "tests/host/RecordedDrawing.h"
#include "tests/support/Allocations.h"
#include "tests/support/ReadSymbol.h"

#include <gtest/gtest.h>
#include <memory>
#include <new>
#include <string>

namespace {

RecordedEntity Entity(const std::wstring& kind, const std::vector<double>& numbers) {
    RecordedEntity entity;
    entity.kind = kind;
    entity.layer = L"Walls";
    entity.color = 0x1000000; // by layer
    entity.lineWeight = -1;
    entity.linetype = 1;
    entity.numbers = numbers;
    return entity;
}

// A block of a dashed line and circle and a text, on a layer.
RecordedDrawing Drawing() {
    RecordedDrawing drawing;
    drawing.units = 4;
    drawing.layers[L"Walls"] = {L"Walls", 0xff, 25};
    drawing.linetypes.push_back({3, {{2, 0, 0, {0, 0, 1, 0}, 0, L""}, {-1, 0, 0, {0, 0, 1, 0}, 0, L""}}});
    RecordedBlock block;
    block.name = L"B";
    block.entities = {Entity(L"Line", {0, 0, 0, 10, 0, 0}), Entity(L"Circle", {0, 0, 0, 5}),
                      Entity(L"Text", {2.5, 0, 1, 2, 0, 0, 0})};
    block.entities.back().texts = {L"a text that is longer than what strings hold within themselves"};
    block.drawOrder = {2, 0, 1};
    drawing.blocks.push_back(block);
    return drawing;
}

long CountOpen() {
    return OxDbObject::CountOpen() + Counting::Living() + CountTexts();
}

bool ConvertAll(OxDbDatabase& database) {
    BlockConverter converter(&database);
    std::vector<std::wstring> names;
    converter.GetBlockNames(names);
    const std::unique_ptr<TylModel::SymbolDefinition> symbol(converter.Convert(L"B"));
    return names.size() == 1 && symbol != nullptr;
}

TEST(ForeignMemory, AnyFailedAllocationThrowsAndLeavesNothingBehindAndNothingOpen) {
    RecordedDrawing drawing = Drawing();
    OxDbDatabase database(drawing);
    ASSERT_TRUE(ConvertAll(database));
    std::size_t failures = 0;
    for (bool failed = true; failed;) {
        const test_support::AllocationWatch watch(failures + 1);
        bool thrown = false;
        try {
            EXPECT_TRUE(ConvertAll(database));
        } catch (const std::bad_alloc&) {
            thrown = true;
        }
        failed = watch.HasFailed();
        EXPECT_EQ(thrown, failed) << failures;
        ASSERT_EQ(watch.Live(), 0) << failures;
        ASSERT_EQ(CountModelObjects(), 0) << failures;
        ASSERT_EQ(CountOpen(), 0) << failures;
        failures += failed ? 1 : 0;
    }
    EXPECT_GT(failures, 100U);
}

} // namespace
