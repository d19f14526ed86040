#include "Drawing.h"

#include <drawing/entities/SimpleEntities.h>

#include <cstddef>

namespace {

constexpr int kTree = 131; // in marks.shx

void AddTriangle(drawing::BlockRecord& block, double baseX) {
    const OxGePoint3d tip{0.0, 0.0, 0.0};
    const OxGePoint3d lower{baseX, -2.0, 0.0};
    const OxGePoint3d upper{baseX, 2.0, 0.0};
    const drawing::EntityProperties properties;
    block.Add<drawing::Line>(properties, tip, lower);
    block.Add<drawing::Line>(properties, lower, upper);
    block.Add<drawing::Line>(properties, upper, tip);
}

// A linetype whose gaps carry a shape of that style's file.
void AddMarked(drawing::Database& database, const wchar_t* linetype, const wchar_t* style,
               const wchar_t* file) {
    drawing::TextStyleData data;
    data.fileName = file;
    data.isShapeFile = true;
    database.AddTextStyle(style, data);
    drawing::Dash dash;
    dash.length = 4.0;
    drawing::Dash mark;
    mark.length = -1.0;
    mark.shapeStyle = style;
    mark.shapeNumber = kTree;
    database.AddLinetype(linetype, {dash, mark});
}

void AddLine(drawing::BlockRecord& block, const wchar_t* linetype, double y) {
    drawing::EntityProperties properties;
    properties.linetype = linetype;
    block.Add<drawing::Line>(properties, OxGePoint3d{0.0, y, 0.0}, OxGePoint3d{20.0, y, 0.0});
}

} // namespace

std::unique_ptr<drawing::Database> OpenDrawing() {
    auto database = std::make_unique<drawing::Database>();
    database->SetInsunits(OxDb::kUnitsMillimeters);

    OxCmColor red;
    red.setColorIndex(1);
    database->AddLayer(L"0", red);

    drawing::Dash dash;
    dash.length = 1.0;
    drawing::Dash gap;
    gap.length = -0.5;
    database->AddLinetype(L"DASHED", {dash, gap});
    AddMarked(*database, L"TREES", L"MARKS", L"Marks.shx");
    AddMarked(*database, L"SPOILED", L"NO_SHAPES", L"rowmans.jhf");

    drawing::BlockRecord* const valve = database->AddBlock(L"VALVE");
    AddTriangle(*valve, -3.0);
    AddTriangle(*valve, 3.0);
    drawing::EntityProperties dashed;
    dashed.linetype = L"DASHED";
    valve->Add<drawing::Line>(dashed, OxGePoint3d{0.0, 0.0, 0.0}, OxGePoint3d{0.0, 4.0, 0.0});

    drawing::BlockRecord* const hedge = database->AddBlock(L"HEDGE");
    AddLine(*hedge, L"TREES", 0.0);
    AddLine(*hedge, L"SPOILED", 2.0);
    return database;
}
