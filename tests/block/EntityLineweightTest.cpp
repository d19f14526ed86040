// Line weights: outright, by layer, by block.
#include "tests/block/BlockTest.h"

namespace blocktest {
namespace {

using drawing::Operation;
using Texts = std::vector<std::wstring>;

constexpr std::int32_t kByLayer = -1;
constexpr std::int32_t kByBlock = -2;

class EntityLineweight : public BlockTest {
protected:
    EntityLineweight() {
        database.AddLayer(L"Roads", Index(1), static_cast<OxDb::LineWeight>(50));
        host_ = database.AddBlock(L"HOST");
    }

    void AddPoint(std::int32_t weight, const std::wstring& layer = L"0") {
        block.Add<drawing::Point>(Drawn(layer, Rgb(0, 0, 0), weight), OxGePoint3d{});
    }

    void Insert(std::int32_t weight, const std::wstring& layer = L"0") {
        host_->Add<drawing::BlockReference>(Drawn(layer, Index(1), weight), L"B");
    }

    void Fail(Operation operation, std::uint64_t call, Oxsys::ErrorStatus status = Oxsys::eInvalidInput) {
        database.Failures().Clear();
        database.Failures().Fail(operation, call, status);
    }

    // The weight of the only path; the parameters must be no more than the rotation.
    std::wstring OutrightWeight() {
        const Symbol symbol = Convert();
        EXPECT_EQ(Identifiers(symbol), Texts{L"ROTATION"});
        return PathAt(symbol, 0).GetLineWeight();
    }

    // The default of the only parameter before the rotation, which the only path must refer to.
    std::wstring DefaultOf(const std::wstring& identifier) {
        const Symbol symbol = Convert();
        EXPECT_EQ(Identifiers(symbol), (Texts{identifier, L"ROTATION"}));
        EXPECT_EQ(PathAt(symbol, 0).GetLineWeight(), L"%" + identifier + L"%");
        return ParameterAt(symbol, 0).GetDefaultValue();
    }

    drawing::BlockRecord* host_;
};

TEST_F(EntityLineweight, CodesAreWrittenAsTwiceTheirMillimetresWhateverTheScale) {
    database.SetInsunits(OxDb::kUnitsMeters);
    struct Case {
        std::int32_t code;
        std::wstring text;
    };
    const Case cases[] = {{35, L"0.7"},  {0, L"0.0"},  {211, L"4.22"},
                          {212, L"0.0"}, {-3, L"0.0"}, {-7, L"0.0"}};
    for (const Case& row : cases) {
        drawing::BlockRecord& other = *database.AddBlock(L"CODE" + std::to_wstring(row.code));
        other.Add<drawing::Point>(Drawn(L"0", Rgb(0, 0, 0), row.code), OxGePoint3d{});
        const Symbol symbol = Convert(L"CODE" + std::to_wstring(row.code));
        EXPECT_EQ(PathAt(symbol, 0).GetLineWeight(), row.text) << row.code;
        EXPECT_EQ(Identifiers(symbol), Texts{L"ROTATION"});
    }
}

TEST_F(EntityLineweight, ByLayerBecomesAParameterOfTheLayer) {
    AddPoint(kByLayer, L"Roads");
    const Symbol symbol = Convert();
    ASSERT_EQ(Identifiers(symbol), (Texts{L"LWBYLAYERRoads", L"ROTATION"}));
    const TylModel::Parameter& parameter = ParameterAt(symbol, 0);
    EXPECT_EQ(parameter.GetDisplayName(), L"Lineweight Defined ByLayer Roads");
    EXPECT_EQ(parameter.GetDescription(), L"Lineweight Defined ByLayer Roads");
    EXPECT_EQ(parameter.GetDefaultValue(), L"1.0");
    EXPECT_EQ(static_cast<int>(parameter.GetDataType()), 8);
    EXPECT_EQ(PathAt(symbol, 0).GetLineWeight(), L"%LWBYLAYERRoads%");
}

TEST_F(EntityLineweight, ColourAndWeightByOneLayerAreTwoParameters) {
    block.Add<drawing::Point>(Drawn(L"Roads", ByLayer(), kByLayer), OxGePoint3d{});
    const Symbol symbol = Convert();
    ASSERT_EQ(Identifiers(symbol), (Texts{L"COLORBYLAYERRoads", L"LWBYLAYERRoads", L"ROTATION"}));
    EXPECT_EQ(static_cast<int>(ParameterAt(symbol, 0).GetDataType()), 7);
    EXPECT_EQ(static_cast<int>(ParameterAt(symbol, 1).GetDataType()), 8);
}

TEST_F(EntityLineweight, TwoEntitiesOfALayerShareItsParameter) {
    AddPoint(kByLayer);
    AddPoint(kByLayer);
    const Symbol symbol = Convert();
    EXPECT_EQ(Identifiers(symbol), (Texts{L"LWBYLAYER0", L"ROTATION"}));
    EXPECT_EQ(PathAt(symbol, 1).GetLineWeight(), L"%LWBYLAYER0%");
}

TEST_F(EntityLineweight, ByLayerWithoutThatLayerIsZero) {
    AddPoint(kByLayer, L"Nowhere");
    EXPECT_EQ(OutrightWeight(), L"0.0");
}

TEST_F(EntityLineweight, ByLayerIsZeroWhenTheTableTheNameOrTheLayerCannotBeHad) {
    AddPoint(kByLayer, L"Roads");
    for (const Operation operation :
         {Operation::kGetLayerTable, Operation::kEntityLayer, Operation::kLayerTableGetAt}) {
        for (const Oxsys::ErrorStatus status : {Oxsys::eInvalidInput, Oxsys::eOk}) {
            Fail(operation, 1, status);
            EXPECT_EQ(OutrightWeight(), L"0.0") << drawing::OperationName(operation);
        }
    }
}

TEST_F(EntityLineweight, ByLayerIsTheLayersWeightOutrightWhenTheLayersNameCannotBeRead) {
    AddPoint(kByLayer, L"Roads");
    Fail(Operation::kLayerGetName, 1);
    EXPECT_EQ(OutrightWeight(), L"1.0");
}

TEST_F(EntityLineweight, ByBlockBecomesAParameterOfTheBlockWithTheWeightOfItsFirstInsert) {
    AddPoint(kByBlock);
    Insert(30);
    Insert(70);
    const Symbol symbol = Convert();
    ASSERT_EQ(Identifiers(symbol), (Texts{L"LWBYBLOCKB", L"ROTATION"}));
    const TylModel::Parameter& parameter = ParameterAt(symbol, 0);
    EXPECT_EQ(parameter.GetDisplayName(), L"Lineweight Defined ByBlock B");
    EXPECT_EQ(parameter.GetDescription(), L"Lineweight Defined ByBlock B");
    EXPECT_EQ(parameter.GetDefaultValue(), L"0.6");
    EXPECT_EQ(static_cast<int>(parameter.GetDataType()), 8);
    EXPECT_EQ(PathAt(symbol, 0).GetLineWeight(), L"%LWBYBLOCKB%");
}

TEST_F(EntityLineweight, ByBlockInABlockThatIsNeverInsertedIsZero) {
    AddPoint(kByBlock, L"Roads");
    EXPECT_EQ(OutrightWeight(), L"0.0");
}

TEST_F(EntityLineweight, ByBlockIsZeroWhenTheIteratorOrTheInsertCannotBeHad) {
    AddPoint(kByBlock, L"Roads");
    Insert(30);
    for (const Operation operation : {Operation::kNewBlockReferenceIterator, Operation::kGetBlockReference}) {
        for (const Oxsys::ErrorStatus status : {Oxsys::eInvalidInput, Oxsys::eOk}) {
            Fail(operation, 1, status);
            EXPECT_EQ(OutrightWeight(), L"0.0") << drawing::OperationName(operation);
        }
    }
}

TEST_F(EntityLineweight, ByBlockWithAnInsertByLayerTakesTheWeightOfTheInsertsLayer) {
    AddPoint(kByBlock);
    Insert(kByLayer, L"Roads");
    EXPECT_EQ(DefaultOf(L"LWBYBLOCKB"), L"1.0");
}

TEST_F(EntityLineweight, ByBlockThatCannotBeResolvedFurtherGivesAZeroDefault) {
    AddPoint(kByBlock);
    Insert(kByLayer, L"Nowhere");
    EXPECT_EQ(DefaultOf(L"LWBYBLOCKB"), L"0.0");
}

TEST_F(EntityLineweight, ByBlockIsTheInsertsWeightOutrightWhenTheBlocksNameCannotBeRead) {
    AddPoint(kByBlock);
    Insert(30);
    Fail(Operation::kBlockGetName, 2);
    EXPECT_EQ(OutrightWeight(), L"0.6");
}

TEST_F(EntityLineweight, ByBlockStillByLayerWithoutABlockNameIsTriedByTheEntitysLayer) {
    AddPoint(kByBlock, L"Roads");
    Insert(kByLayer, L"Nowhere");
    Fail(Operation::kBlockGetName, 2);
    EXPECT_EQ(DefaultOf(L"LWBYLAYERRoads"), L"1.0");
}

} // namespace
} // namespace blocktest
