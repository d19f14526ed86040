// A drawing with one block, the symbol that it becomes, and the promise that everything was closed.
#pragma once

#include "StyleConversion/block/BlockConverter.h"
#include "TylModel/TylModel.h"
#include "drawing/database/BlockReference.h"
#include "drawing/database/Database.h"
#include "drawing/entities/Areas.h"
#include "drawing/entities/CurveEntities.h"
#include "drawing/entities/SimpleEntities.h"
#include "drawing/entities/Texts.h"

#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

namespace blocktest {

using Symbol = std::unique_ptr<TylModel::SimpleSymbolDefinition>;

inline OxCmColor Rgb(std::uint8_t red, std::uint8_t green, std::uint8_t blue) {
    OxCmColor color;
    color.setRGB(red, green, blue);
    return color;
}

inline OxCmColor Index(std::uint8_t index) {
    OxCmColor color;
    color.setColorIndex(index);
    return color;
}

inline OxCmColor ByLayer() {
    OxCmColor color;
    color.setByLayer();
    return color;
}

inline OxCmColor ByBlock() {
    OxCmColor color;
    color.setByBlock();
    return color;
}

/// An entity of a given layer, colour and line weight, solid.
inline drawing::EntityProperties Drawn(const std::wstring& layer, const OxCmColor& color,
                                       std::int32_t lineWeight = OxDb::kLnWtByLwDefault) {
    return {layer, color, static_cast<OxDb::LineWeight>(lineWeight), L"Continuous"};
}

/// An entity in black, with the default line weight and the given linetype: no parameter comes of it.
inline drawing::EntityProperties Dashed(const std::wstring& linetype) {
    return {L"0", Rgb(0, 0, 0), OxDb::kLnWtByLwDefault, linetype};
}

inline drawing::EntityProperties Solid() {
    return Dashed(L"Continuous");
}

/// Dashes that carry nothing.
inline std::vector<drawing::Dash> Dashes(const std::vector<double>& lengths) {
    std::vector<drawing::Dash> dashes;
    for (const double length : lengths) {
        drawing::Dash dash;
        dash.length = length;
        dashes.push_back(dash);
    }
    return dashes;
}

/// Has a drawing in millimetres with layer "0" and an empty block "B".
class BlockTest : public ::testing::Test {
protected:
    BlockTest();
    ~BlockTest() override;

    /// Converts a block; fails the test when nothing comes of it.
    Symbol Convert(const std::wstring& name = L"B");

    /// The paths of the block "B", in order.
    std::vector<std::wstring> Geometries();
    /// The geometry of the only graphic of the block "B".
    std::wstring Geometry();

    drawing::Database database;
    drawing::BlockRecord& block;

private:
    std::int64_t buffers_;
    std::int64_t iterators_;
    long modelObjects_;
};

/// What the properties of the graphic and the parameter at a place are; fail the test when there is none.
const TylModel::Path& PathAt(const Symbol& symbol, std::int32_t index);
const TylModel::Text& TextAt(const Symbol& symbol, std::int32_t index);
const TylModel::Parameter& ParameterAt(const Symbol& symbol, std::int32_t index);
/// Identifiers of all parameters in order.
std::vector<std::wstring> Identifiers(const Symbol& symbol);

} // namespace blocktest
