#include "c/Options.h"

#include "StyleConversion/platform/Utf8.h"
#include "diagnostics/Sentences.h"
#include "diagnostics/ShownText.h"
#include "documents/JsonTree.h"

#include <algorithm>
#include <iterator>

namespace c_interface {
namespace {

using conversions::FileKind;
using conversions::Form;
using documents::JsonValue;

// An object with lists.
constexpr std::size_t kMostLevels = 2;

constexpr unsigned kInConvert = static_cast<unsigned>(Job::kConvert);
constexpr unsigned kInList = static_cast<unsigned>(Job::kList);
constexpr unsigned kInCheck = static_cast<unsigned>(Job::kCheck);

template <typename Value>
struct Word {
    std::string_view word;
    Value value;
};

constexpr Word<FileKind> kKinds[] = {{"linetypes", FileKind::kLinetypes},
                                     {"patterns", FileKind::kPatterns},
                                     {"shapes", FileKind::kShapes},
                                     {"drawing", FileKind::kDrawing},
                                     {"symbols", FileKind::kSymbols}};

constexpr Word<Form> kFormats[] = {{"json", Form::kJson},
                                   {"svg", Form::kSvg},
                                   {"html", Form::kHtml},
                                   {"qgis", Form::kQgis},
                                   {"qml", Form::kQml}};

template <typename Value, std::size_t size>
bool ReadWord(const JsonValue& json, const Word<Value> (&words)[size], Value& value) {
    const auto found = std::find_if(std::begin(words), std::end(words), [&](const Word<Value>& word) {
        return json.Is(JsonValue::Kind::kText) && json.text == word.word;
    });
    if (found == std::end(words)) {
        return false;
    }
    value = found->value;
    return true;
}

bool ReadBoolean(const JsonValue& json, bool& value) {
    value = json.text == "true";
    return json.Is(JsonValue::Kind::kOther) && (value || json.text == "false");
}

bool ReadText(const JsonValue& json, std::string& value) {
    value = json.text;
    return json.Is(JsonValue::Kind::kText);
}

bool ReadEncoding(const JsonValue& json, std::string& value) {
    return ReadText(json, value) && (value.empty() || conversions::IsKnownEncoding(value));
}

bool ReadTexts(const JsonValue& json, std::vector<std::wstring>& values) {
    for (const JsonValue& item : json.values) {
        if (!item.Is(JsonValue::Kind::kText)) {
            return false;
        }
        values.push_back(platform::Utf8ToWide(item.text));
    }
    return json.Is(JsonValue::Kind::kList);
}

struct Option {
    std::string_view key;
    unsigned jobs; // that have it
    bool (*read)(const JsonValue& json, Options& options);
    const char* expected;
};

const Option kOptions[] = {
    {"kind", kInConvert | kInList | kInCheck,
     [](const JsonValue& json, Options& options) { return ReadWord(json, kKinds, options.kind); },
     "linetypes, patterns, shapes, drawing or symbols"},
    {"format", kInConvert,
     [](const JsonValue& json, Options& options) { return ReadWord(json, kFormats, options.form); },
     "json, svg, html, qgis or qml"},
    {"tolerant", kInConvert | kInList | kInCheck,
     [](const JsonValue& json, Options& options) { return ReadBoolean(json, options.isTolerant); },
     "true or false"},
    {"faithful", kInConvert,
     [](const JsonValue& json, Options& options) { return ReadBoolean(json, options.isFaithful); },
     "true or false"},
    {"notes", kInCheck,
     [](const JsonValue& json, Options& options) { return ReadBoolean(json, options.hasNotes); },
     "true or false"},
    {"encoding", kInConvert | kInList | kInCheck,
     [](const JsonValue& json, Options& options) { return ReadEncoding(json, options.encoding); },
     "a known encoding"},
    {"font", kInConvert | kInCheck,
     [](const JsonValue& json, Options& options) { return ReadText(json, options.font); }, "a text"},
    {"drawing", kInConvert | kInCheck,
     [](const JsonValue& json, Options& options) { return ReadText(json, options.drawing); }, "a text"},
    {"names", kInConvert,
     [](const JsonValue& json, Options& options) { return ReadTexts(json, options.names); },
     "a list of texts"},
    {"ignoreLayers", kInConvert | kInCheck,
     [](const JsonValue& json, Options& options) { return ReadTexts(json, options.layersToIgnore); },
     "a list of texts"},
};

std::string ReadOption(const std::string& key, const JsonValue& json, Job job, Options& options) {
    for (const Option& option : kOptions) {
        if (option.key == key && (option.jobs & static_cast<unsigned>(job)) != 0) {
            return option.read(json, options) ? "" : "option " + key + ": expected " + option.expected;
        }
    }
    return "unknown option " + diagnostics::ShownText(key);
}

} // namespace

std::string ReadOptions(std::string_view text, Job job, Options& options) {
    JsonValue root;
    diagnostics::Diagnostic problem;
    problem.place.file = "options";
    if (!documents::ReadJsonTree(text, kMostLevels, root, problem)) {
        return diagnostics::MessageOf(problem);
    }
    if (!root.Is(JsonValue::Kind::kObject)) {
        return "options: expected an object";
    }
    for (std::size_t i = 0; i < root.keys.size(); ++i) {
        std::string error = ReadOption(root.keys[i], root.values[i], job, options);
        if (!error.empty()) {
            return error;
        }
    }
    return {};
}

} // namespace c_interface
