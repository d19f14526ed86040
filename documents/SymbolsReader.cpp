#include "documents/SymbolsReader.h"

#include "StyleConversion/platform/Utf8.h"
#include "diagnostics/ShownText.h"
#include "documents/DrawingNode.h"
#include "documents/JsonTree.h"

#include <algorithm>
#include <cstdint>
#include <initializer_list>
#include <iterator>
#include <string>
#include <utility>

namespace documents {
namespace {

using diagnostics::Code;
using diagnostics::Diagnostic;
using diagnostics::Diagnostics;
using diagnostics::Severity;

// What stands in a symbols document is less deep.
constexpr std::size_t kMostLevels = 16;
constexpr std::string_view kFormat = "styleconversion/symbols";
constexpr std::string_view kKinds[] = {"linetype", "pattern", "block", "glyph"};

constexpr std::size_t kNoItem = static_cast<std::size_t>(-1);

// A value and where it stands, up to the document.
struct SymbolNode {
    const JsonValue& value;
    const SymbolNode* parent = nullptr;
    std::string_view key = {};
    std::size_t index = kNoItem; // of a list

    std::string Path() const {
        if (parent == nullptr) {
            return {};
        }
        const std::string above = parent->Path();
        return index != kNoItem ? above + "[" + std::to_string(index) + "]"
               : above.empty()  ? diagnostics::ShownText(key)
                                : above + "." + diagnostics::ShownText(key);
    }
};

std::string ShownValue(const JsonValue& value) {
    switch (value.kind) {
    case JsonValue::Kind::kText:
        return Shown(std::string_view(value.text));
    case JsonValue::Kind::kInteger:
        return std::to_string(value.integer);
    case JsonValue::Kind::kObject:
        return "an object";
    case JsonValue::Kind::kList:
        return "a list";
    case JsonValue::Kind::kOther:
        break;
    }
    return value.text;
}

template <class Target>
struct Property {
    std::string_view key;
    void (Target::*set)(const std::wstring&);
    bool isTruth = false; // "true", or left out
};

const Property<TylModel::Path> kPathProperties[] = {
    {"geometry", &TylModel::Path::SetGeometry},
    {"lineColor", &TylModel::Path::SetLineColor},
    {"fillColor", &TylModel::Path::SetFillColor},
    {"lineWeight", &TylModel::Path::SetLineWeight},
    {"lineWeightScalable", &TylModel::Path::SetLineWeightScalable}};
const Property<TylModel::Text> kTextProperties[] = {
    {"content", &TylModel::Text::SetContent},
    {"fontName", &TylModel::Text::SetFontName},
    {"height", &TylModel::Text::SetHeight},
    {"angle", &TylModel::Text::SetAngle},
    {"positionX", &TylModel::Text::SetPositionX},
    {"positionY", &TylModel::Text::SetPositionY},
    {"horizontalAlignment", &TylModel::Text::SetHorizontalAlignment},
    {"verticalAlignment", &TylModel::Text::SetVerticalAlignment},
    {"textColor", &TylModel::Text::SetTextColor},
    {"bold", &TylModel::Text::SetBold, true},
    {"italic", &TylModel::Text::SetItalic, true},
    {"underlined", &TylModel::Text::SetUnderlined, true},
    {"overlined", &TylModel::Text::SetOverlined, true}};
const Property<TylModel::Parameter> kParameterProperties[] = {
    {"identifier", &TylModel::Parameter::SetIdentifier},
    {"displayName", &TylModel::Parameter::SetDisplayName},
    {"description", &TylModel::Parameter::SetDescription},
    {"defaultValue", &TylModel::Parameter::SetDefaultValue}};
const Property<TylModel::PointUsage> kPointProperties[] = {{"angle", &TylModel::PointUsage::SetAngle}};
const Property<TylModel::LineUsage> kLineProperties[] = {
    {"angle", &TylModel::LineUsage::SetAngle},
    {"angleControl", &TylModel::LineUsage::SetAngleControl},
    {"repeat", &TylModel::LineUsage::SetRepeat},
    {"startOffset", &TylModel::LineUsage::SetStartOffset}};
const Property<TylModel::AreaUsage> kAreaProperties[] = {{"angle", &TylModel::AreaUsage::SetAngle},
                                                         {"repeatX", &TylModel::AreaUsage::SetRepeatX},
                                                         {"repeatY", &TylModel::AreaUsage::SetRepeatY}};
const Property<TylModel::SymbolDefinition> kSymbolProperties[] = {
    {"description", &TylModel::SymbolDefinition::SetDescription}};

constexpr TylModel::Parameter::DataType kDataTypes[] = {
    TylModel::Parameter::kText,      TylModel::Parameter::kAngle,      TylModel::Parameter::kFillColor,
    TylModel::Parameter::kLineColor, TylModel::Parameter::kLineWeight, TylModel::Parameter::kTextColor};

// Reads values into the model. What is not as it must be ends the reading with false, and is kept.
class SymbolReader {
public:
    const Diagnostic& Problem() const { return problem_; }

    bool Refuse(const SymbolNode& node, Code code, std::vector<std::string> subjects = {}) {
        problem_ = {};
        problem_.code = code;
        problem_.place.path = node.Path();
        problem_.subjects = std::move(subjects);
        return false;
    }
    bool RefuseValue(const SymbolNode& node, std::string expected) {
        return Refuse(node, Code::kInvalidValue, {std::move(expected), ShownValue(node.value)});
    }

    // The member, of an object; null, and kept, where it is missing.
    const JsonValue* Member(const SymbolNode& object, std::string_view key, std::string expected) {
        const JsonValue* const found = object.value.Find(key);
        if (found == nullptr) {
            Refuse({object.value, &object, key}, Code::kMissingValue, {std::move(expected)});
        }
        return found;
    }

    bool IsObject(const SymbolNode& node) {
        return node.value.Is(JsonValue::Kind::kObject) || RefuseValue(node, "an object");
    }
    bool IsList(const SymbolNode& node) {
        return node.value.Is(JsonValue::Kind::kList) || RefuseValue(node, "a list");
    }

    bool Word(const SymbolNode& node, std::string_view& word, std::string expected) {
        if (!node.value.Is(JsonValue::Kind::kText)) {
            return RefuseValue(node, std::move(expected));
        }
        word = node.value.text;
        return true;
    }

    bool WordOf(const SymbolNode& object, std::string_view key, std::string_view& word,
                const char* expected) {
        const JsonValue* const value = Member(object, key, expected);
        return value != nullptr && Word({*value, &object, key}, word, expected);
    }

    bool PlainText(const SymbolNode& node, std::wstring& text) {
        std::string_view bytes;
        if (!Word(node, bytes, "a text")) {
            return false;
        }
        text = platform::Utf8ToWide(bytes);
        return text.find(L'\0') == std::wstring::npos ||
               RefuseValue(node, "a text without the character U+0000");
    }

    // All members of the object but `others`, which are read elsewhere.
    template <class Target, std::size_t Count>
    bool Properties(const SymbolNode& object, const Property<Target> (&properties)[Count], Target& target,
                    std::initializer_list<std::string_view> others) {
        for (std::size_t i = 0; i < object.value.keys.size(); ++i) {
            const std::string& key = object.value.keys[i];
            const JsonValue& value = object.value.values[i];
            const SymbolNode node{value, &object, key};
            const auto property =
                std::find_if(std::begin(properties), std::end(properties),
                             [&, &name = key](const Property<Target>& each) { return each.key == name; });
            if (property == std::end(properties)) {
                if (key.empty() || std::find(others.begin(), others.end(), key) == others.end()) {
                    return Refuse(node, Code::kUnknownKey);
                }
                continue;
            }
            std::wstring text;
            if (!PlainText(node, text)) {
                return false;
            }
            if (text.empty() || (property->isTruth && text != L"true")) {
                return RefuseValue(node, property->isTruth ? "\"true\"" : "a text that is not empty");
            }
            (target.*property->set)(text);
        }
        return true;
    }

private:
    Diagnostic problem_;
};

class DefinitionReader : public SymbolReader {
public:
    std::unique_ptr<TylModel::SymbolDefinition> Symbol(const SymbolNode& node,
                                                       std::optional<SymbolOrigin>& origin) {
        std::string_view type;
        if (!IsObject(node) || !WordOf(node, "type", type, kExpectedSymbol) || !Origin(node, origin)) {
            return nullptr;
        }
        if (type == "SimpleSymbolDefinition") {
            return Simple(node, false);
        }
        if (type == "CompoundSymbolDefinition") {
            return Compound(node);
        }
        RefuseValue({*node.value.Find("type"), &node, "type"}, kExpectedSymbol);
        return nullptr;
    }

private:
    static constexpr const char* kExpectedSymbol =
        R"("SimpleSymbolDefinition" or "CompoundSymbolDefinition")";

    bool Name(const SymbolNode& node, TylModel::SymbolDefinition& symbol) {
        const JsonValue* const value = Member(node, "name", "a text");
        std::wstring name;
        if (value == nullptr || !PlainText({*value, &node, "name"}, name)) {
            return false;
        }
        symbol.SetName(name);
        return true;
    }

    // Each item of a list that must be there.
    template <class Read>
    bool Items(const SymbolNode& object, std::string_view key, const Read& read) {
        const JsonValue* const value = Member(object, key, "a list");
        if (value == nullptr || !IsList({*value, &object, key})) {
            return false;
        }
        const SymbolNode list{*value, &object, key};
        for (std::size_t i = 0; i < value->values.size(); ++i) {
            const SymbolNode item{value->values[i], &list, {}, i};
            if (!IsObject(item) || !read(item)) {
                return false;
            }
        }
        return true;
    }

    std::unique_ptr<TylModel::SimpleSymbolDefinition> Simple(const SymbolNode& node, bool isPart) {
        auto symbol = std::make_unique<TylModel::SimpleSymbolDefinition>();
        // Where a part comes from, the whole says.
        const std::string_view kind = isPart ? "" : "kind";
        const std::string_view source = isPart ? "" : "source";
        const bool isRead =
            Name(node, *symbol) && Usages(node, *symbol) &&
            Items(node, "graphics", [&](const SymbolNode& item) { return Graphic(item, *symbol); }) &&
            Items(node, "parameters", [&](const SymbolNode& item) { return ReadParameter(item, *symbol); }) &&
            Properties<TylModel::SymbolDefinition>(node, kSymbolProperties, *symbol,
                                                   {"type", "name", "graphics", "parameters", "pointUsage",
                                                    "lineUsage", "areaUsage", kind, source});
        return isRead ? std::move(symbol) : nullptr;
    }

    std::unique_ptr<TylModel::SymbolDefinition> Compound(const SymbolNode& node) {
        auto compound = std::make_unique<TylModel::CompoundSymbolDefinition>();
        const bool isRead =
            Name(node, *compound) &&
            Items(node, "symbols", [&](const SymbolNode& item) { return Part(item, *compound); }) &&
            Properties<TylModel::SymbolDefinition>(node, kSymbolProperties, *compound,
                                                   {"type", "name", "symbols", "kind", "source"});
        return isRead ? std::move(compound) : nullptr;
    }

    bool Part(const SymbolNode& node, TylModel::CompoundSymbolDefinition& compound) {
        constexpr const char* kExpected = "\"SimpleSymbolDefinition\"";
        std::string_view type;
        if (!WordOf(node, "type", type, kExpected)) {
            return false;
        }
        if (type != "SimpleSymbolDefinition") {
            return RefuseValue({*node.value.Find("type"), &node, "type"}, kExpected);
        }
        auto definition = Simple(node, true);
        if (definition == nullptr) {
            return false;
        }
        auto part = std::make_unique<TylModel::SimpleSymbol>();
        part->AdoptSymbolDefinition(definition.release());
        compound.GetSymbols().Adopt(part.release());
        return true;
    }

    bool Graphic(const SymbolNode& node, TylModel::SimpleSymbolDefinition& symbol) {
        constexpr const char* kExpected = R"("Path" or "Text")";
        std::string_view type;
        if (!WordOf(node, "type", type, kExpected)) {
            return false;
        }
        if (type == "Path") {
            return Element(node, kPathProperties, symbol);
        }
        return type == "Text" ? Element(node, kTextProperties, symbol)
                              : RefuseValue({*node.value.Find("type"), &node, "type"}, kExpected);
    }

    template <class Kind, std::size_t Count>
    bool Element(const SymbolNode& node, const Property<Kind> (&properties)[Count],
                 TylModel::SimpleSymbolDefinition& symbol) {
        auto element = std::make_unique<Kind>();
        if (!Properties(node, properties, *element, {"type"})) {
            return false;
        }
        symbol.GetGraphics().Adopt(element.release());
        return true;
    }

    bool ReadParameter(const SymbolNode& node, TylModel::SimpleSymbolDefinition& symbol) {
        constexpr const char* kExpected = "0, 5, 6, 7, 8 or 23";
        const JsonValue* const value = Member(node, "dataType", kExpected);
        if (value == nullptr) {
            return false;
        }
        const auto type = std::find_if(
            std::begin(kDataTypes), std::end(kDataTypes), [&](TylModel::Parameter::DataType each) {
                return value->Is(JsonValue::Kind::kInteger) && value->integer == each;
            });
        if (type == std::end(kDataTypes)) {
            return RefuseValue({*value, &node, "dataType"}, kExpected);
        }
        auto parameter = std::make_unique<TylModel::Parameter>();
        parameter->SetDataType(*type);
        if (!Properties(node, kParameterProperties, *parameter, {"dataType"})) {
            return false;
        }
        symbol.GetParameterDefinition().Adopt(parameter.release());
        return true;
    }

    bool Usages(const SymbolNode& node, TylModel::SimpleSymbolDefinition& symbol) {
        std::unique_ptr<TylModel::PointUsage> point;
        std::unique_ptr<TylModel::LineUsage> line;
        std::unique_ptr<TylModel::AreaUsage> area;
        if (!Usage(node, "pointUsage", kPointProperties, point) ||
            !Usage(node, "lineUsage", kLineProperties, line) ||
            !Usage(node, "areaUsage", kAreaProperties, area)) {
            return false;
        }
        symbol.AdoptPointUsage(point.release());
        symbol.AdoptLineUsage(line.release());
        symbol.AdoptAreaUsage(area.release());
        return true;
    }

    // Null where there is none.
    template <class Kind, std::size_t Count>
    bool Usage(const SymbolNode& object, std::string_view key, const Property<Kind> (&properties)[Count],
               std::unique_ptr<Kind>& usage) {
        const JsonValue* const found = object.value.Find(key);
        if (found == nullptr) {
            return true;
        }
        const SymbolNode node{*found, &object, key};
        usage = std::make_unique<Kind>();
        return IsObject(node) && Properties(node, properties, *usage, {});
    }

    // Kind and source, which stand together.
    bool Origin(const SymbolNode& node, std::optional<SymbolOrigin>& origin) {
        if (node.value.Find("kind") == nullptr && node.value.Find("source") == nullptr) {
            return true;
        }
        constexpr const char* kExpected = R"("linetype", "pattern", "block" or "glyph")";
        std::string_view kind;
        const JsonValue* const source = Member(node, "source", "an object");
        if (source == nullptr || !WordOf(node, "kind", kind, kExpected)) {
            return false;
        }
        const auto known = std::find(std::begin(kKinds), std::end(kKinds), kind);
        if (known == std::end(kKinds)) {
            return RefuseValue({*node.value.Find("kind"), &node, "kind"}, kExpected);
        }
        origin.emplace();
        origin->kind = *known;
        const SymbolNode place{*source, &node, "source"};
        return IsObject(place) && Source(place, origin->place);
    }

    bool Source(const SymbolNode& node, diagnostics::Place& place) {
        if (Member(node, "file", "a text") == nullptr) {
            return false;
        }
        for (std::size_t i = 0; i < node.value.keys.size(); ++i) {
            const std::string& key = node.value.keys[i];
            const JsonValue& value = node.value.values[i];
            const SymbolNode member{value, &node, key};
            if (!SourceMember(member, place)) {
                return false;
            }
        }
        return true;
    }

    bool SourceMember(const SymbolNode& member, diagnostics::Place& place) {
        if (member.key == "file" || member.key == "path") {
            std::wstring text;
            if (!PlainText(member, text)) {
                return false;
            }
            (member.key == "file" ? place.file : place.path) = platform::WideToValidUtf8(text);
            return !text.empty() || RefuseValue(member, "a text that is not empty");
        }
        const JsonValue& value = member.value;
        const bool isInteger = value.Is(JsonValue::Kind::kInteger);
        if (member.key == "line") {
            place.line = isInteger && value.integer >= 1 ? static_cast<std::uint64_t>(value.integer) : 0;
            return place.line > 0 || RefuseValue(member, "a whole number from 1 on");
        }
        if (member.key == "shape") {
            const bool isShape = isInteger && value.integer >= 0 && value.integer <= UINT16_MAX;
            place.shape = static_cast<std::uint16_t>(isShape ? value.integer : 0);
            return isShape || RefuseValue(member, "a whole number from 0 to 65535");
        }
        return Refuse(member, Code::kUnknownKey);
    }
};

bool ReadHead(SymbolReader& reader, const SymbolNode& root, encoding::Fidelity& fidelity) {
    std::string_view format;
    const std::string expected = "\"" + std::string(kFormat) + "\"";
    if (!reader.IsObject(root) || !reader.WordOf(root, "format", format, expected.c_str())) {
        return false;
    }
    if (format != kFormat) {
        return reader.RefuseValue({*root.value.Find("format"), &root, "format"}, expected);
    }
    const JsonValue* const version = reader.Member(root, "version", "1");
    if (version == nullptr) {
        return false;
    }
    if (!version->Is(JsonValue::Kind::kInteger) || version->integer != 1) {
        return reader.RefuseValue({*version, &root, "version"}, "1");
    }
    const JsonValue* const said = root.value.Find("fidelity");
    if (said != nullptr && (!said->Is(JsonValue::Kind::kText) || said->text != "faithful")) {
        return reader.RefuseValue({*said, &root, "fidelity"}, "\"faithful\"");
    }
    fidelity = said != nullptr ? encoding::Fidelity::kFaithful : encoding::Fidelity::kStrict;
    for (std::size_t i = 0; i < root.value.keys.size(); ++i) {
        const std::string& key = root.value.keys[i];
        const JsonValue& value = root.value.values[i];
        if (key != "format" && key != "version" && key != "fidelity" && key != "symbols") {
            return reader.Refuse({value, &root, key}, Code::kUnknownKey);
        }
    }
    const JsonValue* const symbols = reader.Member(root, "symbols", "a list");
    return symbols != nullptr && reader.IsList({*symbols, &root, "symbols"});
}

} // namespace

bool ReadSymbols(std::string_view text, bool tolerant, SymbolsOfDocument& document, Diagnostics& problems) {
    JsonValue root;
    Diagnostic problem;
    if (!ReadJsonTree(text, kMostLevels, root, problem)) {
        problems.push_back(std::move(problem));
        return false;
    }
    DefinitionReader reader;
    const SymbolNode whole{root};
    if (!ReadHead(reader, whole, document.fidelity)) {
        problems.push_back(reader.Problem());
        return false;
    }
    const SymbolNode list{*root.Find("symbols"), &whole, "symbols"};
    for (std::size_t i = 0; i < list.value.values.size(); ++i) {
        ReadSymbol symbol;
        symbol.index = i;
        symbol.definition = reader.Symbol({list.value.values[i], &list, {}, i}, symbol.origin);
        if (symbol.definition != nullptr) {
            document.symbols.push_back(std::move(symbol));
            continue;
        }
        problems.push_back(reader.Problem());
        if (!tolerant) {
            return false;
        }
        problems.back().severity = Severity::kWarning;
        problems.back().outcome = diagnostics::Outcome::kSkipped;
    }
    return true;
}

} // namespace documents
