#include "documents/SymbolsDocument.h"

#include "StyleConversion/platform/Utf8.h"
#include "documents/JsonText.h"

#include <cstdint>
#include <string>
#include <utility>

namespace documents {
namespace {

// Where a symbol stands: an item of a list that is a member of the document.
constexpr std::size_t kSymbolLevel = 2;

void Put(JsonText& json, std::string_view key, const std::wstring& value) {
    if (!value.empty()) {
        json.Key(key);
        json.Text(value);
    }
}

class GraphicJson : public TylModel::IGraphicElementVisitor {
public:
    explicit GraphicJson(JsonText& json) : json_(json) {}

    void VisitPath(TylModel::Path& path) override {
        Begin("Path");
        Put(json_, "geometry", path.GetGeometry());
        Put(json_, "lineColor", path.GetLineColor());
        Put(json_, "fillColor", path.GetFillColor());
        Put(json_, "lineWeight", path.GetLineWeight());
        Put(json_, "lineWeightScalable", path.GetLineWeightScalable());
        json_.EndObject();
    }

    void VisitText(TylModel::Text& text) override {
        Begin("Text");
        Put(json_, "content", text.GetContent());
        Put(json_, "fontName", text.GetFontName());
        Put(json_, "height", text.GetHeight());
        Put(json_, "angle", text.GetAngle());
        Put(json_, "positionX", text.GetPositionX());
        Put(json_, "positionY", text.GetPositionY());
        Put(json_, "horizontalAlignment", text.GetHorizontalAlignment());
        Put(json_, "verticalAlignment", text.GetVerticalAlignment());
        Put(json_, "textColor", text.GetTextColor());
        Put(json_, "bold", text.GetBold());
        Put(json_, "italic", text.GetItalic());
        Put(json_, "underlined", text.GetUnderlined());
        Put(json_, "overlined", text.GetOverlined());
        json_.EndObject();
    }

private:
    void Begin(std::string_view type) {
        json_.BeginObject();
        json_.Key("type");
        json_.PlainText(type);
    }

    JsonText& json_;
};

void WriteParameter(JsonText& json, const TylModel::Parameter& parameter) {
    json.BeginObject();
    Put(json, "identifier", parameter.GetIdentifier());
    Put(json, "displayName", parameter.GetDisplayName());
    Put(json, "description", parameter.GetDescription());
    Put(json, "defaultValue", parameter.GetDefaultValue());
    json.Key("dataType");
    json.Integer(static_cast<int>(parameter.GetDataType()));
    json.EndObject();
}

void BeginUsage(JsonText& json, std::string_view key) {
    json.Key(key);
    json.BeginObject();
}

void WriteUsages(JsonText& json, const TylModel::SimpleSymbolDefinition& definition) {
    if (const TylModel::PointUsage* const usage = definition.GetPointUsage()) {
        BeginUsage(json, "pointUsage");
        Put(json, "angle", usage->GetAngle());
        json.EndObject();
    }
    if (const TylModel::LineUsage* const usage = definition.GetLineUsage()) {
        BeginUsage(json, "lineUsage");
        Put(json, "angle", usage->GetAngle());
        Put(json, "angleControl", usage->GetAngleControl());
        Put(json, "repeat", usage->GetRepeat());
        Put(json, "startOffset", usage->GetStartOffset());
        json.EndObject();
    }
    if (const TylModel::AreaUsage* const usage = definition.GetAreaUsage()) {
        BeginUsage(json, "areaUsage");
        Put(json, "angle", usage->GetAngle());
        Put(json, "repeatX", usage->GetRepeatX());
        Put(json, "repeatY", usage->GetRepeatY());
        json.EndObject();
    }
}

void WriteOrigin(JsonText& json, const SymbolOrigin& origin) {
    json.Key("kind");
    json.PlainText(origin.kind);
    json.Key("source");
    json.BeginObject();
    json.Key("file");
    json.Text(platform::Utf8ToWide(origin.place.file));
    if (origin.place.line > 0) {
        json.Key("line");
        json.Integer(static_cast<std::int64_t>(origin.place.line));
    }
    if (origin.place.shape) {
        json.Key("shape");
        json.Integer(*origin.place.shape);
    }
    if (!origin.place.path.empty()) {
        json.Key("path");
        json.Text(platform::Utf8ToWide(origin.place.path));
    }
    json.EndObject();
}

class SymbolJson : public TylModel::ISymbolDefinitionVisitor {
public:
    SymbolJson(JsonText& json, const SymbolOrigin* origin) : json_(json), origin_(origin) {}

    void VisitSimpleSymbolDefinition(TylModel::SimpleSymbolDefinition& definition) override {
        Begin("SimpleSymbolDefinition", definition);
        json_.Key("graphics");
        json_.BeginList();
        GraphicJson graphic(json_);
        for (int i = 0; i < definition.GetGraphics().GetCount(); ++i) {
            TylModel::AcceptVisitor(*definition.GetGraphics().GetAt(i), graphic);
        }
        json_.EndList();
        json_.Key("parameters");
        json_.BeginList();
        for (int i = 0; i < definition.GetParameterDefinition().GetCount(); ++i) {
            WriteParameter(json_, *definition.GetParameterDefinition().GetAt(i));
        }
        json_.EndList();
        WriteUsages(json_, definition);
        json_.EndObject();
    }

    void VisitCompoundSymbolDefinition(TylModel::CompoundSymbolDefinition& definition) override {
        Begin("CompoundSymbolDefinition", definition);
        json_.Key("symbols");
        json_.BeginList();
        for (int i = 0; i < definition.GetSymbols().GetCount(); ++i) {
            definition.GetSymbols().GetAt(i)->GetSymbolDefinition()->AcceptVisitor(*this);
        }
        json_.EndList();
        json_.EndObject();
    }

private:
    void Begin(std::string_view type, const TylModel::SymbolDefinition& definition) {
        json_.BeginObject();
        json_.Key("type");
        json_.PlainText(type);
        json_.Key("name");
        json_.Text(definition.GetName());
        Put(json_, "description", definition.GetDescription());
        // Of the whole: its parts have none of their own.
        if (const SymbolOrigin* const origin = std::exchange(origin_, nullptr); origin != nullptr) {
            WriteOrigin(json_, *origin);
        }
    }

    JsonText& json_;
    const SymbolOrigin* origin_;
};

std::string Head(encoding::Fidelity fidelity) {
    std::string head = "{\n"
                       "  \"format\": \"styleconversion/symbols\",\n"
                       "  \"version\": 1,\n";
    if (fidelity == encoding::Fidelity::kFaithful) {
        head += "  \"fidelity\": \"faithful\",\n";
    }
    return head + "  \"symbols\": [";
}

} // namespace

std::string SymbolText(TylModel::SymbolDefinition& symbol) {
    std::string text;
    JsonText json(text, 0);
    SymbolJson visitor(json, nullptr);
    symbol.AcceptVisitor(visitor);
    return text;
}

bool SymbolsWriter::Add(TylModel::SymbolDefinition& symbol, const SymbolOrigin* origin) {
    text_ = started_ ? "," : Head(fidelity_);
    started_ = true;
    text_ += "\n    ";
    JsonText json(text_, kSymbolLevel);
    SymbolJson visitor(json, origin);
    symbol.AcceptVisitor(visitor);
    return sink_(text_);
}

bool SymbolsWriter::Finish() {
    if (!started_) {
        return sink_(Head(fidelity_)) && sink_("]\n}\n");
    }
    return sink_("\n  ]\n}\n");
}

} // namespace documents
