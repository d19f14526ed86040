#include "documents/SymbolsDocument.h"

#include "StyleConversion/platform/Utf8.h"
#include "documents/ItemText.h"

#include <nlohmann/json.hpp>
#include <string>

namespace documents {
namespace {

using Json = nlohmann::ordered_json;

void Put(Json& object, const char* key, const std::wstring& value) {
    if (!value.empty()) {
        object[key] = platform::WideToValidUtf8(value);
    }
}

class GraphicJson : public TylModel::IGraphicElementVisitor {
public:
    void VisitPath(TylModel::Path& path) override {
        json = {{"type", "Path"}};
        Put(json, "geometry", path.GetGeometry());
        Put(json, "lineColor", path.GetLineColor());
        Put(json, "fillColor", path.GetFillColor());
        Put(json, "lineWeight", path.GetLineWeight());
        Put(json, "lineWeightScalable", path.GetLineWeightScalable());
    }

    void VisitText(TylModel::Text& text) override {
        json = {{"type", "Text"}};
        Put(json, "content", text.GetContent());
        Put(json, "fontName", text.GetFontName());
        Put(json, "height", text.GetHeight());
        Put(json, "angle", text.GetAngle());
        Put(json, "positionX", text.GetPositionX());
        Put(json, "positionY", text.GetPositionY());
        Put(json, "horizontalAlignment", text.GetHorizontalAlignment());
        Put(json, "verticalAlignment", text.GetVerticalAlignment());
        Put(json, "textColor", text.GetTextColor());
        Put(json, "bold", text.GetBold());
        Put(json, "italic", text.GetItalic());
        Put(json, "underlined", text.GetUnderlined());
        Put(json, "overlined", text.GetOverlined());
    }

    Json json;
};

Json ParameterJson(const TylModel::Parameter& parameter) {
    Json json = Json::object();
    Put(json, "identifier", parameter.GetIdentifier());
    Put(json, "displayName", parameter.GetDisplayName());
    Put(json, "description", parameter.GetDescription());
    Put(json, "defaultValue", parameter.GetDefaultValue());
    json["dataType"] = static_cast<int>(parameter.GetDataType());
    return json;
}

void PutUsages(Json& json, const TylModel::SimpleSymbolDefinition& definition) {
    if (const TylModel::PointUsage* const usage = definition.GetPointUsage()) {
        Json& object = json["pointUsage"] = Json::object();
        Put(object, "angle", usage->GetAngle());
    }
    if (const TylModel::LineUsage* const usage = definition.GetLineUsage()) {
        Json& object = json["lineUsage"] = Json::object();
        Put(object, "angle", usage->GetAngle());
        Put(object, "angleControl", usage->GetAngleControl());
        Put(object, "repeat", usage->GetRepeat());
        Put(object, "startOffset", usage->GetStartOffset());
    }
    if (const TylModel::AreaUsage* const usage = definition.GetAreaUsage()) {
        Json& object = json["areaUsage"] = Json::object();
        Put(object, "angle", usage->GetAngle());
        Put(object, "repeatX", usage->GetRepeatX());
        Put(object, "repeatY", usage->GetRepeatY());
    }
}

class SymbolJson : public TylModel::ISymbolDefinitionVisitor {
public:
    void VisitSimpleSymbolDefinition(TylModel::SimpleSymbolDefinition& definition) override {
        Start("SimpleSymbolDefinition", definition);
        Json& graphics = json["graphics"] = Json::array();
        for (int i = 0; i < definition.GetGraphics().GetCount(); ++i) {
            GraphicJson graphic;
            definition.GetGraphics().GetAt(i)->AcceptVisitor(graphic);
            graphics.push_back(std::move(graphic.json));
        }
        Json& parameters = json["parameters"] = Json::array();
        for (int i = 0; i < definition.GetParameterDefinition().GetCount(); ++i) {
            parameters.push_back(ParameterJson(*definition.GetParameterDefinition().GetAt(i)));
        }
        PutUsages(json, definition);
    }

    void VisitCompoundSymbolDefinition(TylModel::CompoundSymbolDefinition& definition) override {
        Start("CompoundSymbolDefinition", definition);
        Json& symbols = json["symbols"] = Json::array();
        for (int i = 0; i < definition.GetSymbols().GetCount(); ++i) {
            SymbolJson member;
            definition.GetSymbols().GetAt(i)->GetSymbolDefinition()->AcceptVisitor(member);
            symbols.push_back(std::move(member.json));
        }
    }

    Json json;

private:
    void Start(const char* type, const TylModel::SymbolDefinition& definition) {
        json = {{"type", type}, {"name", platform::WideToValidUtf8(definition.GetName())}};
        Put(json, "description", definition.GetDescription());
    }
};

constexpr std::string_view kHead = "{\n"
                                   "  \"format\": \"styleconversion/symbols\",\n"
                                   "  \"version\": 1,\n"
                                   "  \"symbols\": [";

} // namespace

bool SymbolsWriter::Add(TylModel::SymbolDefinition& symbol) {
    SymbolJson visitor;
    symbol.AcceptVisitor(visitor);
    const bool first = !started_;
    started_ = true;
    return (first ? sink_(kHead) : sink_(",")) && sink_(ItemText(visitor.json));
}

bool SymbolsWriter::Finish() {
    if (!started_) {
        return sink_(kHead) && sink_("]\n}\n");
    }
    return sink_("\n  ]\n}\n");
}

} // namespace documents
