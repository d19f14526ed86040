#include "documents/ListDocument.h"

#include "StyleConversion/platform/Utf8.h"
#include "documents/JsonText.h"

#include <cstdint>

namespace documents {
namespace {

void WriteMember(JsonText& json, std::string_view key, const std::string& value) {
    json.Key(key);
    json.Text(platform::Utf8ToWide(value));
}

} // namespace

std::string ListText(const std::vector<ListedSymbol>& symbols) {
    std::string text;
    JsonText json(text);
    json.BeginList();
    for (const ListedSymbol& symbol : symbols) {
        json.BeginObject();
        json.Key("kind");
        json.PlainText(symbol.kind);
        WriteMember(json, "name", symbol.name);
        if (!symbol.description.empty()) {
            WriteMember(json, "description", symbol.description);
        }
        WriteMember(json, "file", symbol.place.file);
        if (symbol.place.line > 0) {
            json.Key("line");
            json.Integer(static_cast<std::int64_t>(symbol.place.line));
        }
        if (symbol.place.shape) {
            json.Key("shape");
            json.Integer(*symbol.place.shape);
        }
        json.EndObject();
    }
    json.EndList();
    text += '\n';
    return text;
}

} // namespace documents
