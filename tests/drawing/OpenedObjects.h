// Opening objects of a drawing in tests.
#pragma once

#include "OxDb/OxDb.h"
#include "drawing/database/BlockReference.h"
#include "drawing/database/Database.h"
#include "drawing/entities/CurveEntities.h"
#include "drawing/entities/SimpleEntities.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

/// The opened table, which the test closes.
template <class Table>
Table* OpenTable(drawing::Database& database) {
    Table* table = nullptr;
    EXPECT_EQ(database.getSymbolTable(table, OxDb::kForRead), Oxsys::eOk);
    return table;
}

/// The layer's name of an entity, the buffer released.
inline std::wstring LayerName(const OxDbEntity& entity) {
    wchar_t* buffer = entity.layer();
    std::wstring name = buffer != nullptr ? buffer : L"(none)";
    oxutDelBuffer(buffer);
    return name;
}

inline std::uint32_t TrueColor(const OxCmColor& color) {
    return OxCmEntityColor::trueColor(color.entityColor());
}

inline OxCmColor ColorOfIndex(std::uint8_t index) {
    OxCmColor color;
    color.setColorIndex(index);
    return color;
}

inline drawing::Dash DashOf(double length, const std::wstring& shapeStyle = {}) {
    drawing::Dash dash;
    dash.length = length;
    dash.shapeStyle = shapeStyle;
    return dash;
}

inline drawing::FitData FitThrough(const std::vector<OxGePoint3d>& points) {
    drawing::FitData data;
    data.points = points;
    return data;
}

/// An open polygon as a spline of degree 1, with a knot per point.
inline drawing::NurbsData PolygonThrough(const std::vector<OxGePoint3d>& points) {
    drawing::NurbsData data;
    data.degree = 1;
    data.controlPoints = points;
    data.knots.push_back(0.0);
    for (std::size_t index = 0; index < points.size(); ++index) {
        data.knots.push_back(static_cast<double>(index));
    }
    data.knots.push_back(data.knots.back());
    return data;
}
