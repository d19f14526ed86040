#include "documents/DiagnosticsDocument.h"

#include "StyleConversion/platform/Utf8.h"
#include "diagnostics/Sentences.h"
#include "documents/JsonText.h"

#include <cstdint>
#include <string_view>

namespace documents {
namespace {

using diagnostics::Diagnostic;
using diagnostics::Severity;

void WriteText(JsonText& json, std::string_view key, std::string_view value) {
    json.Key(key);
    json.Text(platform::Utf8ToWide(value));
}

void WriteCount(JsonText& json, std::string_view key, std::uint64_t count) {
    json.Key(key);
    json.Integer(static_cast<std::int64_t>(count));
}

void WritePlace(JsonText& json, const diagnostics::Place& place) {
    WriteText(json, "file", place.file);
    if (place.line > 0) {
        WriteCount(json, "line", place.line);
    }
    if (place.line > 0 && place.column > 0) {
        WriteCount(json, "column", place.column);
    }
    if (place.byte) {
        WriteCount(json, "byte", *place.byte);
    }
    if (place.shape) {
        WriteCount(json, "shape", *place.shape);
    }
    if (!place.path.empty()) {
        WriteText(json, "path", place.path);
    }
}

void WriteFinding(JsonText& json, const Diagnostic& diagnostic) {
    json.BeginObject();
    WritePlace(json, diagnostic.place);
    WriteText(json, "severity", NameOf(diagnostic.severity));
    WriteText(json, "code", NameOf(diagnostic.code));
    WriteText(json, "message", SentenceOf(diagnostic));
    if (!diagnostic.place.item.empty()) {
        WriteText(json, "item", diagnostic.place.item);
    }
    if (diagnostic.count > 1) {
        WriteCount(json, "count", diagnostic.count);
    }
    json.EndObject();
}

} // namespace

std::string DiagnosticsText(const diagnostics::Diagnostics& found) {
    std::string text;
    JsonText json(text);
    json.BeginObject();
    WriteText(json, "format", "styleconversion/findings");
    WriteCount(json, "version", 1);
    WriteCount(json, "errors", CountOf(found, Severity::kError));
    WriteCount(json, "warnings", CountOf(found, Severity::kWarning));
    json.Key("findings");
    json.BeginList();
    for (const Diagnostic& diagnostic : found) {
        WriteFinding(json, diagnostic);
    }
    json.EndList();
    json.EndObject();
    text += '\n';
    return text;
}

} // namespace documents
