#include "documents/FindingsDocument.h"

#include "StyleConversion/platform/Utf8.h"
#include "documents/JsonText.h"

#include <algorithm>
#include <string_view>

namespace documents {
namespace {

void WriteText(JsonText& json, std::string_view key, const std::string& value) {
    json.Key(key);
    json.Text(platform::Utf8ToWide(value));
}

void WriteFinding(JsonText& json, const Finding& finding) {
    json.BeginObject();
    WriteText(json, "file", finding.file);
    if (finding.line > 0) {
        json.Key("line");
        json.Integer(static_cast<std::int64_t>(finding.line));
    }
    if (finding.byte) {
        json.Key("byte");
        json.Integer(static_cast<std::int64_t>(*finding.byte));
    }
    if (finding.shape) {
        json.Key("shape");
        json.Integer(*finding.shape);
    }
    WriteText(json, "severity", SeverityName(finding.severity));
    WriteText(json, "message", finding.message);
    if (!finding.item.empty()) {
        WriteText(json, "item", finding.item);
    }
    json.EndObject();
}

void WriteCount(JsonText& json, std::string_view key, std::size_t count) {
    json.Key(key);
    json.Integer(static_cast<std::int64_t>(count));
}

} // namespace

const char* SeverityName(Severity severity) {
    switch (severity) {
    case Severity::kError:
        return "error";
    case Severity::kWarning:
        return "warning";
    case Severity::kNote:
        break;
    }
    return "note";
}

std::size_t CountOf(const std::vector<Finding>& findings, Severity severity) {
    return static_cast<std::size_t>(
        std::count_if(findings.begin(), findings.end(),
                      [&](const Finding& finding) { return finding.severity == severity; }));
}

std::string FindingsText(const std::vector<Finding>& findings) {
    std::string text;
    JsonText json(text);
    json.BeginObject();
    WriteText(json, "format", "styleconversion/findings");
    WriteCount(json, "version", 1);
    WriteCount(json, "errors", CountOf(findings, Severity::kError));
    WriteCount(json, "warnings", CountOf(findings, Severity::kWarning));
    json.Key("findings");
    json.BeginList();
    for (const Finding& finding : findings) {
        WriteFinding(json, finding);
    }
    json.EndList();
    json.EndObject();
    text += '\n';
    return text;
}

} // namespace documents
