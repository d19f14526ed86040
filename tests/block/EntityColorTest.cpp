// Colours: outright, by layer, by block.
#include "tests/block/BlockTest.h"

namespace blocktest {
namespace {

using drawing::Operation;
using Texts = std::vector<std::wstring>;

class EntityColor : public BlockTest {
protected:
    EntityColor() {
        database.AddLayer(L"Roads", Rgb(0x12, 0x34, 0x56));
        host_ = database.AddBlock(L"HOST");
    }

    void AddPoint(const OxCmColor& color, const std::wstring& layer = L"0") {
        block.Add<drawing::Point>(Drawn(layer, color), OxGePoint3d{});
    }

    void Insert(const OxCmColor& color, const std::wstring& layer = L"0") {
        host_->Add<drawing::BlockReference>(Drawn(layer, color), L"B");
    }

    void Fail(Operation operation, std::uint64_t call, Oxsys::ErrorStatus status = Oxsys::eInvalidInput) {
        database.Failures().Clear();
        database.Failures().Fail(operation, call, status);
    }

    // The colour of the only path; the parameters must be no more than the rotation.
    std::wstring OutrightColor() {
        const Symbol symbol = Convert();
        EXPECT_EQ(Identifiers(symbol), Texts{L"ROTATION"});
        return PathAt(symbol, 0).GetLineColor();
    }

    // The default of the only parameter before the rotation, which the only path must refer to.
    std::wstring DefaultOf(const std::wstring& identifier) {
        const Symbol symbol = Convert();
        EXPECT_EQ(Identifiers(symbol), (Texts{identifier, L"ROTATION"}));
        EXPECT_EQ(PathAt(symbol, 0).GetLineColor(), L"%" + identifier + L"%");
        return ParameterAt(symbol, 0).GetDefaultValue();
    }

    drawing::BlockRecord* host_;
};

TEST_F(EntityColor, TrueColourIsWrittenOutright) {
    AddPoint(Rgb(18, 52, 86));
    EXPECT_EQ(OutrightColor(), L"ff123456");
}

TEST_F(EntityColor, IndexColourGoesThroughThePalette) {
    AddPoint(Index(1));
    EXPECT_EQ(OutrightColor(), L"ffff0000");
}

TEST_F(EntityColor, ByLayerBecomesAParameterOfTheLayer) {
    AddPoint(ByLayer(), L"Roads");
    const Symbol symbol = Convert();
    ASSERT_EQ(Identifiers(symbol), (Texts{L"COLORBYLAYERRoads", L"ROTATION"}));
    const TylModel::Parameter& parameter = ParameterAt(symbol, 0);
    EXPECT_EQ(parameter.GetDisplayName(), L"Color Defined ByLayer Roads");
    EXPECT_EQ(parameter.GetDescription(), L"Color Defined ByLayer Roads");
    EXPECT_EQ(parameter.GetDefaultValue(), L"ff123456");
    EXPECT_EQ(static_cast<int>(parameter.GetDataType()), 7);
    EXPECT_EQ(PathAt(symbol, 0).GetLineColor(), L"%COLORBYLAYERRoads%");
}

TEST_F(EntityColor, TwoEntitiesOfALayerShareItsParameter) {
    AddPoint(ByLayer());
    AddPoint(ByLayer());
    const Symbol symbol = Convert();
    EXPECT_EQ(Identifiers(symbol), (Texts{L"COLORBYLAYER0", L"ROTATION"}));
    EXPECT_EQ(PathAt(symbol, 0).GetLineColor(), L"%COLORBYLAYER0%");
    EXPECT_EQ(PathAt(symbol, 1).GetLineColor(), L"%COLORBYLAYER0%");
}

TEST_F(EntityColor, ParametersComeInTheOrderInWhichEntitiesNeedThem) {
    AddPoint(ByLayer(), L"Roads");
    AddPoint(ByLayer());
    AddPoint(ByLayer(), L"Roads");
    EXPECT_EQ(Identifiers(Convert()), (Texts{L"COLORBYLAYERRoads", L"COLORBYLAYER0", L"ROTATION"}));
}

TEST_F(EntityColor, ParameterTakesTheLayersSpellingAndNotTheEntitys) {
    AddPoint(ByLayer(), L"ROADS");
    EXPECT_EQ(DefaultOf(L"COLORBYLAYERRoads"), L"ff123456");
}

TEST_F(EntityColor, LayerIsLookedUpOncePerSpelling) {
    for (const wchar_t* const layer : {L"Roads", L"ROADS", L"Roads", L"ROADS"}) {
        AddPoint(ByLayer(), layer);
    }
    database.Failures().Clear();
    const Symbol symbol = Convert();
    EXPECT_EQ(database.Failures().Calls(Operation::kLayerTableGetAt), 2U);
    EXPECT_EQ(Identifiers(symbol), (Texts{L"COLORBYLAYERRoads", L"ROTATION"}));
    for (std::int32_t i = 0; i < 4; ++i) {
        EXPECT_EQ(PathAt(symbol, i).GetLineColor(), L"%COLORBYLAYERRoads%") << i;
    }
}

TEST_F(EntityColor, LayerThatCouldNotBeHadIsLookedUpAgainForTheNextEntity) {
    AddPoint(ByLayer(), L"Roads");
    AddPoint(ByLayer(), L"Roads");
    for (const Operation operation : {Operation::kLayerTableGetAt, Operation::kLayerGetName}) {
        Fail(operation, 1);
        const Symbol symbol = Convert();
        EXPECT_NE(PathAt(symbol, 0).GetLineColor(), L"%COLORBYLAYERRoads%");
        EXPECT_EQ(PathAt(symbol, 1).GetLineColor(), L"%COLORBYLAYERRoads%");
    }
}

TEST_F(EntityColor, ByLayerWithoutThatLayerIsBlack) {
    AddPoint(ByLayer(), L"Nowhere");
    EXPECT_EQ(OutrightColor(), L"ff000000");
}

TEST_F(EntityColor, ByLayerIsBlackWhenTheTableTheNameOrTheLayerCannotBeHad) {
    AddPoint(ByLayer(), L"Roads");
    for (const Operation operation :
         {Operation::kGetLayerTable, Operation::kEntityLayer, Operation::kLayerTableGetAt}) {
        for (const Oxsys::ErrorStatus status : {Oxsys::eInvalidInput, Oxsys::eOk}) {
            Fail(operation, 1, status);
            EXPECT_EQ(OutrightColor(), L"ff000000") << drawing::OperationName(operation);
        }
    }
}

TEST_F(EntityColor, ByLayerIsTheLayersColourOutrightWhenTheLayersNameCannotBeRead) {
    AddPoint(ByLayer(), L"Roads");
    Fail(Operation::kLayerGetName, 1);
    EXPECT_EQ(OutrightColor(), L"ff123456");
}

TEST_F(EntityColor, LayerWhoseOwnColourIsByBlockOrByLayerGivesABlackDefault) {
    database.AddLayer(L"Odd", ByBlock());
    AddPoint(ByLayer(), L"Odd");
    EXPECT_EQ(DefaultOf(L"COLORBYLAYEROdd"), L"ff000000");
}

TEST_F(EntityColor, ByBlockBecomesAParameterOfTheBlockWithTheColourOfItsFirstInsert) {
    AddPoint(ByBlock());
    Insert(Index(1));
    Insert(Index(3));
    const Symbol symbol = Convert();
    ASSERT_EQ(Identifiers(symbol), (Texts{L"COLORBYBLOCKB", L"ROTATION"}));
    const TylModel::Parameter& parameter = ParameterAt(symbol, 0);
    EXPECT_EQ(parameter.GetDisplayName(), L"Color Defined ByBlock B");
    EXPECT_EQ(parameter.GetDescription(), L"Color Defined ByBlock B");
    EXPECT_EQ(parameter.GetDefaultValue(), L"ffff0000");
    EXPECT_EQ(static_cast<int>(parameter.GetDataType()), 7);
    EXPECT_EQ(PathAt(symbol, 0).GetLineColor(), L"%COLORBYBLOCKB%");
}

TEST_F(EntityColor, ByBlockInABlockThatIsNeverInsertedIsBlack) {
    AddPoint(ByBlock());
    EXPECT_EQ(OutrightColor(), L"ff000000");
}

TEST_F(EntityColor, ByBlockIsBlackWhenTheIteratorOrTheInsertCannotBeHad) {
    AddPoint(ByBlock());
    Insert(Index(1));
    for (const Operation operation : {Operation::kNewBlockReferenceIterator, Operation::kGetBlockReference}) {
        for (const Oxsys::ErrorStatus status : {Oxsys::eInvalidInput, Oxsys::eOk}) {
            Fail(operation, 1, status);
            EXPECT_EQ(OutrightColor(), L"ff000000") << drawing::OperationName(operation);
        }
    }
}

TEST_F(EntityColor, ByBlockWithAnInsertByLayerTakesTheColourOfTheInsertsLayer) {
    AddPoint(ByBlock());
    Insert(ByLayer(), L"Roads");
    EXPECT_EQ(DefaultOf(L"COLORBYBLOCKB"), L"ff123456");
}

TEST_F(EntityColor, ByBlockThatCannotBeResolvedFurtherGivesABlackDefault) {
    AddPoint(ByBlock());
    Insert(ByLayer(), L"Nowhere");
    EXPECT_EQ(DefaultOf(L"COLORBYBLOCKB"), L"ff000000");
}

TEST_F(EntityColor, ByBlockWithAnInsertByBlockGivesABlackDefault) {
    AddPoint(ByBlock());
    Insert(ByBlock());
    EXPECT_EQ(DefaultOf(L"COLORBYBLOCKB"), L"ff000000");
}

TEST_F(EntityColor, ByBlockIsTheInsertsColourOutrightWhenTheBlocksNameCannotBeRead) {
    AddPoint(ByBlock());
    Insert(Index(3));
    // The first reading names the symbol.
    Fail(Operation::kBlockGetName, 2);
    EXPECT_EQ(OutrightColor(), L"ff00ff00");
}

TEST_F(EntityColor, ByBlockStillByLayerWithoutABlockNameIsTriedByTheEntitysLayer) {
    AddPoint(ByBlock(), L"Roads");
    Insert(ByLayer(), L"Nowhere");
    Fail(Operation::kBlockGetName, 2);
    EXPECT_EQ(DefaultOf(L"COLORBYLAYERRoads"), L"ff123456");
}

TEST_F(EntityColor, ExistingParameterKeepsTheDefaultOfItsFirstCreator) {
    // An attribute may have any tag; its parameter is found like any other.
    drawing::TextData data;
    data.text = L"mine";
    block.Add<drawing::AttributeDefinition>(Drawn(L"0", Rgb(0, 0, 0)), data, L"COLORBYLAYERRoads", L"?");
    AddPoint(ByLayer(), L"Roads");
    const Symbol symbol = Convert();
    EXPECT_EQ(Identifiers(symbol), (Texts{L"COLORBYLAYERRoads", L"ROTATION"}));
    EXPECT_EQ(ParameterAt(symbol, 0).GetDefaultValue(), L"'mine'");
    EXPECT_EQ(PathAt(symbol, 1).GetLineColor(), L"%COLORBYLAYERRoads%");
}

TEST_F(EntityColor, IdentifiersAreComparedWithRegardToCase) {
    drawing::TextData data;
    block.Add<drawing::AttributeDefinition>(Drawn(L"0", Rgb(0, 0, 0)), data, L"COLORBYLAYERROADS", L"?");
    AddPoint(ByLayer(), L"Roads");
    EXPECT_EQ(Identifiers(Convert()), (Texts{L"COLORBYLAYERROADS", L"COLORBYLAYERRoads", L"ROTATION"}));
}

} // namespace
} // namespace blocktest
