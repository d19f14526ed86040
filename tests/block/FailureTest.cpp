// Every call of the drawing database fails in turn: nothing stays open, and a symbol comes all the same.
#include "tests/block/BlockTest.h"
#include "tests/block/ShapeFolder.h"
#include "tests/support/ShapeFileBuilder.h"
#include "tests/support/ShapeProgramBuilder.h"

namespace blocktest {
namespace {

using test_support::ShapeFileBuilder;
using test_support::ShapeProgramBuilder;

// A block with an entity of every class, colours and line weights of every kind, shapes and texts at dashes.
class Failures : public BlockTest {
protected:
    Failures() {
        folder.Write("lib.shx", ShapeFileBuilder::Shapes()
                                    .FontInfo("f", {1, 1, 0})
                                    .Shape('A', "", ShapeProgramBuilder().Vector(1, 0).End())
                                    .Text());
        folder.Services().ShareFailures(database.Failures());
        drawing::TextStyleData style;
        style.fileName = L"lib.shx";
        style.typeface = L"Arial";
        database.AddTextStyle(L"STANDARD", style);
        std::vector<drawing::Dash> dashes = Dashes({1, -1});
        dashes[0].shapeStyle = dashes[1].shapeStyle = L"STANDARD";
        dashes[0].shapeNumber = 'A';
        dashes[1].text = L"A";
        database.AddLinetype(L"SHAPED", dashes);
        database.AddLayer(L"Roads", Index(1));
        database.AddBlock(L"HOST")->Add<drawing::BlockReference>(EntityOf(L"Roads", ByLayer(), -1), L"B");
        AddCurves();
        AddAreasAndTexts();
    }

    static drawing::EntityProperties EntityOf(const std::wstring& layer, const OxCmColor& color,
                                              std::int32_t weight) {
        return {layer, color, static_cast<OxDb::LineWeight>(weight), L"SHAPED"};
    }

    void AddCurves() {
        const drawing::EntityProperties byLayer = EntityOf(L"Roads", ByLayer(), -1);
        const drawing::EntityProperties byBlock = EntityOf(L"0", ByBlock(), -2);
        block.Add<drawing::Point>(byBlock, OxGePoint3d{});
        block.Add<drawing::Line>(byLayer, OxGePoint3d{}, OxGePoint3d{4, 0, 0});
        drawing::ArcData arc;
        arc.radius = 2;
        arc.endAngle = 2;
        block.Add<drawing::Arc>(byBlock, arc);
        block.Add<drawing::Circle>(byLayer, OxGePoint3d{}, 2.0);
        drawing::EllipseData ellipse;
        ellipse.endAngle = 2;
        block.Add<drawing::Ellipse>(byLayer, ellipse);
        const std::vector<drawing::BulgeVertex> vertices{{{0, 0}, 1}, {{2, 0}}, {{4, 0}}};
        block.Add<drawing::Polyline>(byLayer, vertices, false, true);
        block.Add<drawing::Polyline>(byLayer, vertices, true, false);
        drawing::FitData fit;
        fit.points = {{0, 0, 0}, {3, 1, 0}};
        block.Add<drawing::Spline>(byLayer, fit);
        drawing::NurbsData nurbs;
        nurbs.controlPoints = {{0, 0, 0}, {1, 1, 0}, {2, 0, 0}, {3, 0, 0}};
        nurbs.knots = {0, 0, 0, 0, 1, 1, 1, 1};
        block.Add<drawing::Spline>(byBlock, nurbs);
    }

    void AddAreasAndTexts() {
        const drawing::EntityProperties byLayer = EntityOf(L"Roads", ByLayer(), -1);
        const drawing::PolylineLoop triangle{{{{0, 0}}, {{1, 0}}, {{1, 1}}}, false};
        drawing::HatchData solid;
        solid.solid = true;
        solid.loops.emplace_back();
        solid.loops.back().polyline = triangle;
        solid.loops.emplace_back();
        solid.loops.back().edges.push_back(OxGeLineSeg2d({0, 0}, {1, 2}));
        block.Add<drawing::Hatch>(byLayer, std::move(solid));
        drawing::HatchData lines;
        lines.lines = std::vector<drawing::HatchLine>{{{0, 0}, {1, 0}}, {{0, 1}, {1, 1}}};
        block.Add<drawing::Hatch>(byLayer, std::move(lines));
        block.Add<drawing::MPolygon>(byLayer, std::vector<drawing::PolylineLoop>{triangle}, ByBlock());
        drawing::TextData text;
        text.text = L"x";
        block.Add<drawing::Text>(byLayer, text);
        block.Add<drawing::AttributeDefinition>(byLayer, text, L"TAG", L"?");
        block.Add<drawing::ParagraphText>(byLayer, drawing::ParagraphTextData{});
    }

    void CheckEveryCall(Oxsys::ErrorStatus status) {
        const std::uint64_t calls = CountCalls();
        ASSERT_GT(calls, 100U);
        BlockConverter converter(&database);
        for (std::uint64_t call = 1; call <= calls; ++call) {
            database.Failures().Clear();
            database.Failures().FailAnyCall(call, status);
            const Symbol symbol(dynamic_cast<TylModel::SimpleSymbolDefinition*>(converter.Convert(L"B")));
            EXPECT_EQ(database.Failures().FailedCalls(), 1U) << call;
            EXPECT_TRUE(database.IsEverythingClosed()) << call;
            EXPECT_EQ(drawing::LiveIteratorCount(), 0) << call;
            EXPECT_EQ(drawing::LiveBufferCount(), 0) << call;
            if (symbol == nullptr) {
                // Only without the table, the record or its name.
                EXPECT_LE(call, 4U);
            } else {
                EXPECT_NE(symbol->GetPointUsage(), nullptr) << call;
            }
        }
    }

    std::uint64_t CountCalls() {
        database.Failures().Clear();
        Convert();
        return database.Failures().AllCalls();
    }

    ShapeFolder folder;
};

TEST_F(Failures, BlockHasAGraphicOfEveryEntity) {
    EXPECT_EQ(static_cast<std::size_t>(Convert()->GetGraphics().GetCount()), block.EntityCount());
}

TEST_F(Failures, EveryCallMayFailOnItsOwn) {
    CheckEveryCall(Oxsys::eInvalidInput);
}

TEST_F(Failures, EveryCallMaySucceedAndGiveNothing) {
    CheckEveryCall(Oxsys::eOk);
}

TEST_F(Failures, EveryKindOfCallMayFailThroughout) {
    BlockConverter converter(&database);
    for (std::size_t i = 0; i < drawing::kOperationCount; ++i) {
        for (const Oxsys::ErrorStatus status : {Oxsys::eInvalidInput, Oxsys::eOk}) {
            database.Failures().Clear();
            database.Failures().Fail(static_cast<drawing::Operation>(i), 0, status);
            const Symbol symbol(dynamic_cast<TylModel::SimpleSymbolDefinition*>(converter.Convert(L"B")));
            std::vector<std::wstring> names;
            converter.GetBlockNames(names);
            EXPECT_TRUE(database.IsEverythingClosed())
                << drawing::OperationName(static_cast<drawing::Operation>(i));
        }
    }
}

} // namespace
} // namespace blocktest
