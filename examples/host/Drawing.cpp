#include "Drawing.h"

#include <drawing/entities/SimpleEntities.h>

#include <cstddef>

namespace {

void AddTriangle(drawing::BlockRecord& block, double baseX) {
    const OxGePoint3d tip{0.0, 0.0, 0.0};
    const OxGePoint3d lower{baseX, -2.0, 0.0};
    const OxGePoint3d upper{baseX, 2.0, 0.0};
    const drawing::EntityProperties properties;
    block.Add<drawing::Line>(properties, tip, lower);
    block.Add<drawing::Line>(properties, lower, upper);
    block.Add<drawing::Line>(properties, upper, tip);
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

    drawing::BlockRecord* const valve = database->AddBlock(L"VALVE");
    AddTriangle(*valve, -3.0);
    AddTriangle(*valve, 3.0);
    drawing::EntityProperties dashed;
    dashed.linetype = L"DASHED";
    valve->Add<drawing::Line>(dashed, OxGePoint3d{0.0, 0.0, 0.0}, OxGePoint3d{0.0, 4.0, 0.0});
    return database;
}
