#include "documents/SarifDocument.h"

#include "StyleConversion/platform/Characters.h"
#include "StyleConversion/platform/Utf8.h"
#include "diagnostics/Sentences.h"
#include "documents/JsonText.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <set>
#include <string_view>
#include <vector>

namespace documents {
namespace {

using diagnostics::Code;
using diagnostics::Diagnostic;
using diagnostics::Diagnostics;

void PutText(JsonText& json, std::string_view key, std::string_view value) {
    json.Key(key);
    json.Text(platform::Utf8ToWide(value));
}

void PutInteger(JsonText& json, std::string_view key, std::uint64_t value) {
    json.Key(key);
    json.Integer(static_cast<std::int64_t>(value));
}

void PutMessage(JsonText& json, std::string_view key, std::string_view text) {
    json.Key(key);
    json.BeginObject();
    PutText(json, "text", text);
    json.EndObject();
}

std::vector<Code> CodesOf(const Diagnostics& found) {
    std::set<Code> codes;
    for (const Diagnostic& diagnostic : found) {
        codes.insert(diagnostic.code);
    }
    return {codes.begin(), codes.end()};
}

void PutTool(JsonText& json, const std::vector<Code>& rules, const std::string& toolVersion) {
    json.Key("tool");
    json.BeginObject();
    json.Key("driver");
    json.BeginObject();
    PutText(json, "name", "styleconv");
    PutText(json, "version", toolVersion);
    json.Key("rules");
    json.BeginList();
    for (const Code code : rules) {
        json.BeginObject();
        PutText(json, "id", NameOf(code));
        PutMessage(json, "shortDescription", diagnostics::SummaryOf(code));
        PutMessage(json, "help", diagnostics::HelpOf(code));
        json.EndObject();
    }
    json.EndList();
    json.EndObject();
    json.EndObject();
}

void PutRegion(JsonText& json, const diagnostics::Place& place) {
    if (place.line == 0 && !place.byte) {
        return;
    }
    json.Key("region");
    json.BeginObject();
    if (place.line > 0) {
        PutInteger(json, "startLine", place.line);
    } else {
        PutInteger(json, "byteOffset", *place.byte);
    }
    json.EndObject();
}

void PutLogicalLocation(JsonText& json, const diagnostics::Place& place) {
    const std::string& name = place.item.empty() ? place.path : place.item;
    if (name.empty()) {
        return;
    }
    json.Key("logicalLocations");
    json.BeginList();
    json.BeginObject();
    PutText(json, "fullyQualifiedName", name);
    json.EndObject();
    json.EndList();
}

void PutLocation(JsonText& json, const diagnostics::Place& place) {
    json.Key("locations");
    json.BeginList();
    json.BeginObject();
    json.Key("physicalLocation");
    json.BeginObject();
    json.Key("artifactLocation");
    json.BeginObject();
    PutText(json, "uri", UriOf(place.file));
    json.EndObject();
    PutRegion(json, place);
    json.EndObject();
    PutLogicalLocation(json, place);
    json.EndObject();
    json.EndList();
}

void PutResult(JsonText& json, const Diagnostic& diagnostic, std::size_t rule) {
    json.BeginObject();
    PutText(json, "ruleId", NameOf(diagnostic.code));
    PutInteger(json, "ruleIndex", rule);
    PutText(json, "level", NameOf(diagnostic.severity));
    const std::string& path = diagnostic.place.path;
    PutMessage(json, "message", (path.empty() ? "" : path + ": ") + SentenceOf(diagnostic));
    PutLocation(json, diagnostic.place);
    if (diagnostic.count > 1) {
        PutInteger(json, "occurrenceCount", diagnostic.count);
    }
    if (diagnostic.place.line > 0 && diagnostic.place.column > 0) {
        json.Key("properties");
        json.BeginObject();
        PutInteger(json, "column", diagnostic.place.column);
        json.EndObject();
    }
    json.EndObject();
}

// Letters, digits and the marks that stand for themselves in every part of a URI, with the "/" between parts.
bool StandsInUri(char c) {
    return platform::AsciiLower(c) != platform::AsciiUpper(c) || (c >= '0' && c <= '9') ||
           std::string_view("-._~/").find(c) != std::string_view::npos;
}

bool HasDrive(std::string_view path) {
    return path.size() > 2 && platform::AsciiLower(path[0]) != platform::AsciiUpper(path[0]) &&
           path[1] == ':' && (path[2] == '\\' || path[2] == '/');
}

} // namespace

std::string UriOf(const std::string& path) {
    constexpr char kDigits[] = "0123456789ABCDEF";
    std::string slashed = path;
    std::string uri;
    if (HasDrive(path)) {
        std::replace(slashed.begin(), slashed.end(), '\\', '/');
        uri = "file:///" + slashed.substr(0, 2);
        slashed.erase(0, 2);
    } else if (path.starts_with('/')) {
        uri = "file://";
    }
#if defined(_WIN32)
    std::replace(slashed.begin(), slashed.end(), '\\', '/');
#endif
    for (const char c : slashed) {
        if (StandsInUri(c)) {
            uri += c;
        } else {
            const auto byte = static_cast<unsigned char>(c);
            uri += '%';
            uri += kDigits[byte >> 4U];
            uri += kDigits[byte & 0xfU];
        }
    }
    return uri;
}

std::string SarifText(const Diagnostics& found, const std::string& toolVersion) {
    const std::vector<Code> rules = CodesOf(found);
    std::string text;
    JsonText json(text);
    json.BeginObject();
    PutText(json, "$schema",
            "https://docs.oasis-open.org/sarif/sarif/v2.1.0/os/schemas/sarif-schema-2.1.0.json");
    PutText(json, "version", "2.1.0");
    json.Key("runs");
    json.BeginList();
    json.BeginObject();
    PutTool(json, rules, toolVersion);
    json.Key("results");
    json.BeginList();
    for (const Diagnostic& diagnostic : found) {
        const auto rule = std::lower_bound(rules.begin(), rules.end(), diagnostic.code);
        PutResult(json, diagnostic, static_cast<std::size_t>(rule - rules.begin()));
    }
    json.EndList();
    json.EndObject();
    json.EndList();
    json.EndObject();
    text += '\n';
    return text;
}

} // namespace documents
