// Layers, linetypes and text styles of a drawing document.
#pragma once

#include "documents/DrawingObject.h"
#include "documents/DrawingValues.h"
#include "drawing/database/Records.h"

#include <vector>

namespace documents {

/// Refuses a record because its table has the name already. `kind`: "layer".
bool RefuseName(ReadState& state, std::string_view kind, const std::wstring& name);

/// "layer ROADS"; empty for a record without a name.
std::string ItemText(std::string_view kind, const std::wstring& name);

class LayerNode : public ObjectNode {
public:
    LayerNode();
    std::string_view Part() const override { return "layer"; }
    std::string Item() const override { return ItemText("layer", name_.Value()); }

protected:
    bool Finish(ReadState& state) override;

private:
    TextNode name_;
    ColorNode color_{IndexColor(7)};
    TextNode linetype_{L"Continuous"};
    BooleanNode off_;
    BooleanNode frozen_;
    IntegerNode lineWeight_{OxDb::kLnWtByLwDefault};
};

/// One dash of a linetype; added to a list.
class DashNode : public ObjectNode {
public:
    explicit DashNode(std::vector<drawing::Dash>& dashes);

protected:
    bool Finish(ReadState& state) override;

private:
    std::vector<drawing::Dash>& dashes_;
    NumberNode length_;
    TextNode shapeStyle_;
    IntegerNode shapeNumber_;
    TextNode text_;
    TupleNode offset_{2, 2, "an offset [x, y]"};
    NumberNode scale_{1.0};
    NumberNode rotation_;
};

class LinetypeNode : public ObjectNode {
public:
    LinetypeNode();
    void Reset() override;
    std::string_view Part() const override { return "linetype"; }
    std::string Item() const override { return ItemText("linetype", name_.Value()); }

protected:
    bool Finish(ReadState& state) override;

private:
    std::vector<drawing::Dash> dashes_;
    TextNode name_;
    NumberNode patternLength_;
    ListNode<DashNode> dashesNode_{dashes_};
};

class TextStyleNode : public ObjectNode {
public:
    TextStyleNode();
    std::string_view Part() const override { return "text style"; }
    std::string Item() const override { return ItemText("text style", name_.Value()); }

protected:
    bool Finish(ReadState& state) override;

private:
    TextNode name_;
    TextNode fileName_;
    TextNode bigFontFileName_;
    TextNode typeface_;
    BooleanNode bold_;
    BooleanNode italic_;
    BooleanNode isShapeFile_;
    BooleanNode isVertical_;
    NumberNode obliquingAngle_;
    NumberNode textSize_;
    NumberNode xScale_{1.0};
    IntegerNode flagBits_;
};

} // namespace documents
