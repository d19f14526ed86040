// Layers, linetypes and text styles of a drawing document.
#include "documents/DrawingTables.h"

#include "StyleConversion/platform/Utf8.h"
#include "drawing/database/Database.h"

namespace documents {

bool RefuseName(ReadState& state, std::string_view kind, const std::wstring& name) {
    return state.RefuseValue("a name that no other " + std::string(kind) + " has",
                             Shown(platform::WideToValidUtf8(name)), ".name");
}

std::string ItemText(std::string_view kind, const std::wstring& name) {
    return name.empty() ? std::string() : std::string(kind) + ' ' + platform::WideToValidUtf8(name);
}

LayerNode::LayerNode() {
    Bind("name", name_, kRequired);
    Bind("color", color_);
    Bind("lineWeight", lineWeight_);
    Bind("linetype", linetype_);
    Bind("off", off_);
    Bind("frozen", frozen_);
}

bool LayerNode::Finish(ReadState& state) {
    const auto lineWeight = static_cast<OxDb::LineWeight>(lineWeight_.Value());
    drawing::LayerRecord* const layer = state.Target().AddLayer(name_.Value(), color_.Value(), lineWeight);
    if (layer == nullptr) {
        return RefuseName(state, "layer", name_.Value());
    }
    layer->SetLinetype(linetype_.Value());
    layer->SetState(frozen_.Value() ? drawing::LayerState::kFrozen
                    : off_.Value()  ? drawing::LayerState::kOff
                                    : drawing::LayerState::kShown);
    return true;
}

DashNode::DashNode(std::vector<drawing::Dash>& dashes) : dashes_(dashes) {
    Bind("length", length_, kRequired);
    Bind("shapeStyle", shapeStyle_);
    Bind("shapeNumber", shapeNumber_);
    Bind("text", text_);
    Bind("offset", offset_);
    Bind("scale", scale_);
    Bind("rotation", rotation_);
}

bool DashNode::Finish(ReadState& state) {
    if (!Has(shapeStyle_) && HasOtherThan(length_)) {
        return RefuseMissing(state, shapeStyle_); // what else it has belongs to a shape or text
    }
    drawing::Dash dash;
    dash.length = length_.Value();
    dash.shapeStyle = shapeStyle_.Value();
    dash.shapeNumber = shapeNumber_.Value();
    if (Has(text_)) {
        dash.text = text_.Value();
    }
    dash.offset = offset_.Vector2d();
    dash.scale = scale_.Value();
    dash.rotation = rotation_.Value();
    dashes_.push_back(std::move(dash));
    return true;
}

LinetypeNode::LinetypeNode() {
    Bind("name", name_, kRequired);
    Bind("patternLength", patternLength_);
    Bind("dashes", dashesNode_, kRequired);
}

void LinetypeNode::Reset() {
    dashes_.clear();
    ObjectNode::Reset();
}

bool LinetypeNode::Finish(ReadState& state) {
    const std::optional<double> patternLength =
        Has(patternLength_) ? std::optional<double>(patternLength_.Value()) : std::nullopt;
    return state.Target().AddLinetype(name_.Value(), std::move(dashes_), patternLength) != nullptr ||
           RefuseName(state, "linetype", name_.Value());
}

TextStyleNode::TextStyleNode() {
    Bind("name", name_, kRequired);
    Bind("fileName", fileName_);
    Bind("bigFontFileName", bigFontFileName_);
    Bind("typeface", typeface_);
    Bind("bold", bold_);
    Bind("italic", italic_);
    Bind("isShapeFile", isShapeFile_);
    Bind("isVertical", isVertical_);
    Bind("obliquingAngle", obliquingAngle_);
    Bind("textSize", textSize_);
    Bind("xScale", xScale_);
    Bind("flagBits", flagBits_);
}

bool TextStyleNode::Finish(ReadState& state) {
    drawing::TextStyleData data;
    data.fileName = fileName_.Value();
    data.bigFontFileName = bigFontFileName_.Value();
    data.typeface = typeface_.Value();
    data.bold = bold_.Value();
    data.italic = italic_.Value();
    data.isShapeFile = isShapeFile_.Value();
    data.isVertical = isVertical_.Value();
    data.obliquingAngle = obliquingAngle_.Value();
    data.textSize = textSize_.Value();
    data.xScale = xScale_.Value();
    data.flagBits = flagBits_.Value();
    return state.Target().AddTextStyle(name_.Value(), std::move(data)) != nullptr ||
           RefuseName(state, "text style", name_.Value());
}

} // namespace documents
