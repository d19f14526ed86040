// Every allocation fails in turn: std::bad_alloc comes out, nothing stays open, and nothing is lost.
#include "tests/block/BlockTest.h"
#include "tests/support/Allocations.h"

#include <new>

namespace blocktest {
namespace {

class OutOfMemory : public BlockTest {
protected:
    OutOfMemory() {
        database.SetInsunits(OxDb::kUnitsMeters);
        drawing::BlockData inches;
        inches.units = OxDb::kUnitsInches;
        drawing::BlockRecord& full = *database.AddBlock(L"FULL", inches);
        database.AddLinetype(L"DASHED", Dashes({1, -1}));
        database.AddBlock(L"HOST")->Add<drawing::BlockReference>(Drawn(L"0", ByLayer(), -1), L"FULL");
        const drawing::EntityProperties byLayer{L"0", ByLayer(), OxDb::kLnWtByLayer, L"DASHED"};
        const drawing::EntityProperties byBlock{L"0", ByBlock(), OxDb::kLnWtByBlock, L"DASHED"};
        full.Add<drawing::Line>(byLayer, OxGePoint3d{}, OxGePoint3d{9, 0, 0});
        full.Add<drawing::Polyline>(byBlock, std::vector<drawing::BulgeVertex>{{{0, 0}}, {{9, 0}}}, false,
                                    true);
        drawing::FitData fit;
        fit.points = {{0, 0, 0}, {3, 1, 0}};
        full.Add<drawing::Spline>(byLayer, fit);
        drawing::TextData text;
        text.text = L"a text that is too long to be kept within the string";
        full.Add<drawing::AttributeDefinition>(byLayer, text, L"TAG", L"?");
        block.Add<drawing::Point>(Solid(), OxGePoint3d{1, 2, 0});
    }
};

TEST_F(OutOfMemory, LeavesNothingOpenAndTheScaleAsItWas) {
    bool succeeded = false;
    std::size_t failures = 0;
    for (std::size_t failing = 1; !succeeded; ++failing) {
        BlockConverter converter(&database);
        const long before = TylModel::CountLiveObjects();
        {
            Symbol symbol;
            const test_support::AllocationWatch watch(failing);
            try {
                symbol.reset(static_cast<TylModel::SimpleSymbolDefinition*>(converter.Convert(L"FULL")));
                succeeded = !watch.HasFailed();
            } catch (const std::bad_alloc&) {
                ++failures;
            }
        }
        EXPECT_EQ(TylModel::CountLiveObjects(), before) << failing;
        EXPECT_TRUE(database.IsEverythingClosed()) << failing;
        const Symbol next(static_cast<TylModel::SimpleSymbolDefinition*>(converter.Convert(L"B")));
        EXPECT_EQ(PathAt(next, 0).GetGeometry(), L"M 1000.0,2000.0 L 1000.0,2000.0") << failing;
    }
    EXPECT_GT(failures, 20U);
}

} // namespace
} // namespace blocktest
