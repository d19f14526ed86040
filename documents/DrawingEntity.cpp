// Entities of a drawing document.
#include "documents/DrawingEntity.h"

#include "drawing/database/BlockReference.h"
#include "drawing/entities/CurveEntities.h"
#include "drawing/entities/SimpleEntities.h"
#include "drawing/entities/Texts.h"
#include "drawing/geometry/EdgeChain.h"
#include "drawing/geometry/FullTurn.h"

#include <numbers>
#include <type_traits>

namespace documents {
namespace {

// In the order in which AddTypes adds them.
enum EntityType : std::size_t {
    kPoint,
    kLine,
    kArc,
    kCircle,
    kEllipse,
    kPolyline,
    kHatch,
    kMPolygon,
    kText,
    kAttributeDefinition,
    kMText,
    kInsert,
    kOther,
    kSpline,
};

} // namespace

AttributeNode::AttributeNode(std::vector<Attribute>& attributes) : attributes_(attributes) {
    Bind("layer", layer_);
    Bind("color", color_);
    Bind("lineWeight", lineWeight_);
    Bind("linetype", linetype_);
    Bind("hidden", hidden_);
    Bind("linetypeScale", linetypeScale_);
    Bind("position", position_, kRequired);
    Bind("height", height_, kRequired);
    Bind("text", text_, kRequired);
    Bind("rotation", rotation_);
    Bind("style", style_);
    Bind("horizontalMode", horizontalMode_);
    Bind("verticalMode", verticalMode_);
    Bind("alignmentPoint", alignmentPoint_);
}

bool AttributeNode::Finish(ReadState& /*state*/) {
    attributes_.push_back(
        {{layer_.Value(), color_.Value(), static_cast<OxDb::LineWeight>(lineWeight_.Value()),
          linetype_.Value(), hidden_.Value(), linetypeScale_.Value()},
         {position_.Point3d(), height_.Value(), rotation_.Value(), text_.Value(), style_.Value(),
          static_cast<OxDb::TextHorzMode>(horizontalMode_.Value()),
          static_cast<OxDb::TextVertMode>(verticalMode_.Value())}});
    if (Has(alignmentPoint_)) {
        attributes_.back().data.alignmentPoint = alignmentPoint_.Point3d();
    }
    return true;
}

EntityNode::EntityNode(BlockInReading& block) : ObjectNode("an entity"), block_(block) {
    BindCommon("id", id_);
    BindCommon("layer", layer_);
    BindCommon("color", color_);
    BindCommon("lineWeight", lineWeight_);
    BindCommon("linetype", linetype_);
    BindCommon("hidden", hidden_);
    BindCommon("linetypeScale", linetypeScale_);
    BindGeometry();
    spline_.BindTo(*this);
    BindAreasAndTexts();
    AddTypes();
    spline_.AddTypeTo(*this);
}

void EntityNode::BindGeometry() {
    Bind("position", position_);
    Bind("start", start_);
    Bind("end", end_);
    Bind("center", center_);
    Bind("radius", radius_);
    Bind("majorAxis", majorAxis_);
    Bind("radiusRatio", radiusRatio_);
    Bind("startAngle", startAngle_);
    Bind("endAngle", endAngle_);
    Bind("normal", normal_);
    Bind("vertices", vertices_);
    Bind("plinegen", plinegen_);
    Bind("widths", widths_);
}

void EntityNode::BindAreasAndTexts() {
    Bind("solid", solid_);
    Bind("loops", loops_);
    Bind("pattern", pattern_);
    Bind("hatchLines", hatchLines_);
    Bind("fillColor", fillColor_);
    Bind("height", height_);
    Bind("rotation", rotation_);
    Bind("text", text_);
    Bind("style", style_);
    Bind("horizontalMode", horizontalMode_);
    Bind("verticalMode", verticalMode_);
    Bind("alignmentPoint", alignmentPoint_);
    Bind("tag", tag_);
    Bind("prompt", prompt_);
    Bind("location", location_);
    Bind("textHeight", textHeight_);
    Bind("contents", contents_);
    Bind("actualWidth", actualWidth_);
    Bind("actualHeight", actualHeight_);
    Bind("attachment", attachment_);
    Bind("block", insertedBlock_);
    Bind("scale", scale_);
    Bind("mirrored", mirrored_);
    Bind("columns", columns_);
    Bind("rows", rows_);
    Bind("columnSpacing", columnSpacing_);
    Bind("rowSpacing", rowSpacing_);
    Bind("attributes", attributesNode_);
    Bind("class", className_);
    Bind("corners", corners_);
    Bind("path", path_);
}

void EntityNode::AddTypes() {
    AddType("point", {&position_}, {});
    AddType("line", {&start_, &end_}, {});
    AddType("arc", {&center_, &radius_, &startAngle_, &endAngle_}, {&normal_});
    AddType("circle", {&center_, &radius_}, {});
    AddType("ellipse", {&center_, &majorAxis_, &radiusRatio_}, {&startAngle_, &endAngle_});
    AddType("polyline", {&vertices_}, {&spline_.Closed(), &plinegen_, &widths_});
    AddType("hatch", {&loops_}, {&solid_, &pattern_, &hatchLines_});
    AddType("mpolygon", {&loops_}, {&fillColor_});
    AddType("text", {&position_, &height_, &text_},
            {&rotation_, &style_, &horizontalMode_, &verticalMode_, &alignmentPoint_});
    AddType("attributeDefinition", {&position_, &height_, &text_, &tag_, &prompt_},
            {&rotation_, &style_, &horizontalMode_, &verticalMode_, &alignmentPoint_});
    AddType("mtext", {&location_, &textHeight_, &contents_},
            {&rotation_, &style_, &actualWidth_, &actualHeight_, &attachment_});
    AddType("insert", {&insertedBlock_},
            {&position_, &scale_, &rotation_, &mirrored_, &columns_, &rows_, &columnSpacing_, &rowSpacing_,
             &attributesNode_});
    AddType("other", {&className_}, {&corners_, &insertedBlock_, &position_, &path_});
}

drawing::EntityProperties EntityNode::Properties() const {
    return {layer_.Value(),    color_.Value(),  static_cast<OxDb::LineWeight>(lineWeight_.Value()),
            linetype_.Value(), hidden_.Value(), linetypeScale_.Value()};
}

template <class T, class... Args>
bool EntityNode::Add(ReadState& state, Args&&... args) {
    T& added = block_.record->Add<T>(Properties(), std::forward<Args>(args)...);
    if constexpr (std::is_same_v<T, drawing::BlockReference>) {
        for (AttributeNode::Attribute& attribute : attributes_) {
            added.template AddAttribute<drawing::Text>(attribute.properties, std::move(attribute.data));
        }
        attributes_.clear();
    }
    if constexpr (std::is_same_v<T, drawing::Polyline>) {
        added.SetWidths(std::move(widths_.Values()));
    }
    if (Has(id_) && !block_.ids.emplace(id_.Value(), added.objectId()).second) {
        return state.RefuseSpare(diagnostics::Code::kInvalidValue,
                                 {"an id that no other entity of the block has", Shown(id_.Value())},
                                 PathOf(id_), "the id");
    }
    return true;
}

drawing::InsertPlace EntityNode::Place() const {
    drawing::InsertPlace place;
    place.position = position_.Point3d();
    place.scaleX = scale_[0];
    place.scaleY = scale_[1];
    place.rotation = rotation_.Value();
    place.isMirrored = mirrored_.Value();
    place.columns = columns_.Value();
    place.rows = rows_.Value();
    place.columnSpacing = columnSpacing_.Value();
    place.rowSpacing = rowSpacing_.Value();
    return place;
}

void EntityNode::Reset() {
    attributes_.clear(); // of an insert that was left out before its end
    ObjectNode::Reset();
}

bool EntityNode::Finish(ReadState& state) {
    switch (Type()) {
    case kPolyline:
        return AddPolyline(state);
    case kSpline:
        return AddSpline(state);
    case kHatch:
        return AddHatch(state);
    case kMPolygon:
        return AddMPolygon(state);
    case kText:
    case kAttributeDefinition:
    case kMText:
        return AddText(state);
    case kInsert:
        return Add<drawing::BlockReference>(state, insertedBlock_.Value(), Place());
    case kOther:
        return AddOther(state);
    default:
        return AddCurve(state);
    }
}

bool EntityNode::AddPolyline(ReadState& state) {
    if (Has(widths_) && widths_.Values().size() != vertices_.Values().size()) {
        return state.Refuse(diagnostics::Code::kInvalidValue,
                            {"as many widths as vertices", std::to_string(widths_.Values().size())},
                            PathOf(widths_));
    }
    return Add<drawing::Polyline>(state, vertices_.Values(), spline_.Closed().Value(), plinegen_.Value());
}

bool EntityNode::AddOther(ReadState& state) {
    drawing::OtherShape shape;
    if (Has(corners_)) {
        for (const Node* const node :
             {static_cast<const Node*>(&insertedBlock_), static_cast<const Node*>(&position_),
              static_cast<const Node*>(&path_)}) {
            if (Has(*node)) {
                return RefuseKeyBeside(state, *node, "corners");
            }
        }
        shape = drawing::FilledCorners{std::move(corners_.Values())};
    } else if (Has(path_)) {
        for (const Node* const node :
             {static_cast<const Node*>(&insertedBlock_), static_cast<const Node*>(&position_)}) {
            if (Has(*node)) {
                return RefuseKeyBeside(state, *node, "path");
            }
        }
        shape = drawing::OpenPath{std::move(path_.Values())};
    } else if (Has(insertedBlock_)) {
        shape = drawing::OwnBlock{insertedBlock_.Value(), position_.Point3d()};
    } else if (Has(position_)) {
        return RefuseMissing(state, insertedBlock_);
    }
    return Add<drawing::OtherEntity>(state, className_.Value(), std::move(shape));
}

bool EntityNode::AddCurve(ReadState& state) {
    switch (Type()) {
    case kPoint:
        return Add<drawing::Point>(state, position_.Point3d());
    case kLine:
        return Add<drawing::Line>(state, start_.Point3d(), end_.Point3d());
    case kArc:
        return Add<drawing::Arc>(state,
                                 drawing::ArcData{center_.Point3d(), radius_.Value(), startAngle_.Value(),
                                                  geometry::FullTurn(startAngle_.Value(), endAngle_.Value()),
                                                  normal_.Vector3d()});
    case kCircle:
        return Add<drawing::Circle>(state, center_.Point3d(), radius_.Value());
    default:
        break;
    }
    const double endAngle =
        Has(endAngle_) ? geometry::FullTurn(startAngle_.Value(), endAngle_.Value()) : 2.0 * std::numbers::pi;
    return Add<drawing::Ellipse>(state,
                                 drawing::EllipseData{center_.Point3d(), majorAxis_.Vector3d(),
                                                      radiusRatio_.Value(), startAngle_.Value(), endAngle});
}

bool EntityNode::AddText(ReadState& state) {
    if (Type() == kMText) {
        return Add<drawing::ParagraphText>(
            state, drawing::ParagraphTextData{location_.Point3d(), textHeight_.Value(), rotation_.Value(),
                                              contents_.Value(), style_.Value(), actualWidth_.Value(),
                                              actualHeight_.Value(), attachment_.Value()});
    }
    drawing::TextData data;
    data.position = position_.Point3d();
    data.height = height_.Value();
    data.rotation = rotation_.Value();
    data.text = text_.Value();
    data.style = style_.Value();
    data.horizontalMode = static_cast<OxDb::TextHorzMode>(horizontalMode_.Value());
    data.verticalMode = static_cast<OxDb::TextVertMode>(verticalMode_.Value());
    if (Has(alignmentPoint_)) {
        data.alignmentPoint = alignmentPoint_.Point3d();
    }
    if (Type() == kText) {
        return Add<drawing::Text>(state, std::move(data));
    }
    return Add<drawing::AttributeDefinition>(state, std::move(data), tag_.Value(), prompt_.Value());
}

bool EntityNode::AddSpline(ReadState& state) {
    drawing::SplineData data;
    return spline_.Take(*this, state, data) && Add<drawing::Spline>(state, std::move(data));
}

bool EntityNode::AddHatch(ReadState& state) {
    drawing::HatchData data;
    data.solid = solid_.Value();
    data.loops = std::move(loops_.Values());
    if (!data.solid) { // the areas of filled ones are drawn by their edges as they stand
        for (drawing::HatchLoop& loop : data.loops) {
            geometry::ChainEdges(loop.edges);
        }
    }
    if (Has(pattern_)) {
        data.pattern = std::move(pattern_.Values());
    }
    if (Has(hatchLines_)) {
        data.lines = std::move(hatchLines_.Values());
    }
    return Add<drawing::Hatch>(state, std::move(data));
}

bool EntityNode::AddMPolygon(ReadState& state) {
    std::vector<drawing::PolylineLoop> loops;
    for (drawing::HatchLoop& loop : loops_.Values()) {
        if (!loop.polyline) {
            return state.Refuse(diagnostics::Code::kLoopOfEdges, {},
                                ".loops[" + std::to_string(loops.size()) + "].edges");
        }
        loops.push_back(std::move(*loop.polyline));
    }
    return Add<drawing::MPolygon>(state, std::move(loops), fillColor_.Value());
}

} // namespace documents
