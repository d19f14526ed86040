#include "documents/GlyphsDocument.h"

#include "documents/JsonText.h"

#include <cmath>

namespace documents {
namespace {

// Where a glyph stands: an item of a list that is a member of the document.
constexpr std::size_t kGlyphLevel = 2;

const char* KindName(ShxUtility::ShapeFileKind kind) {
    switch (kind) {
    case ShxUtility::kShapes:
        return "kShapes";
    case ShxUtility::kFont:
        return "kFont";
    case ShxUtility::kUnifont:
        return "kUnifont";
    case ShxUtility::kBigfont:
        return "kBigfont";
    }
    return "";
}

// Whole numbers without a decimal point, as far as doubles tell all whole numbers apart.
void WriteNumber(JsonText& json, double value) {
    constexpr double kWholeLimit = 9007199254740992.0;
    const bool whole = std::fabs(value) < kWholeLimit && std::trunc(value) == value;
    if (whole && !(value == 0.0 && std::signbit(value))) {
        json.Integer(static_cast<std::int64_t>(value));
    } else {
        json.Number(value);
    }
}

void WriteGlyph(JsonText& json, const Glyph& glyph) {
    json.BeginObject();
    json.Key("number");
    json.Integer(glyph.number);
    json.Key("name");
    json.Text(glyph.name);
    if (glyph.result == ShxUtility::kSuccess) {
        json.Key("geometry");
        json.Text(glyph.path);
        json.Key("end");
        json.BeginList();
        WriteNumber(json, glyph.endX);
        WriteNumber(json, glyph.endY);
        json.EndList();
    }
    json.Key("result");
    json.Integer(static_cast<std::int32_t>(glyph.result));
    json.EndObject();
}

// On one line.
std::string ListOfBytes(const std::vector<std::uint8_t>& bytes) {
    std::string list = "[";
    for (const std::uint8_t byte : bytes) {
        list += list.size() > 1 ? "," : "";
        list += std::to_string(byte);
    }
    return list += ']';
}

} // namespace

std::string GlyphsWriter::Head() const {
    std::string head = "{\n"
                       "  \"format\": \"styleconversion/glyphs\",\n"
                       "  \"version\": 1,\n"
                       "  \"kind\": \"";
    head += KindName(file_.kind);
    head += "\",\n  \"isVersion10\": ";
    head += file_.isVersion10 ? "true" : "false";
    head += ",\n  \"fontInfo\": ";
    head += ListOfBytes(file_.fontInfo);
    head += ",\n  \"glyphs\": [";
    return head;
}

bool GlyphsWriter::Add(const Glyph& glyph) {
    text_ = started_ ? "," : Head();
    started_ = true;
    text_ += "\n    ";
    JsonText json(text_, kGlyphLevel);
    WriteGlyph(json, glyph);
    return sink_(text_);
}

bool GlyphsWriter::Finish() {
    return started_ ? sink_("\n  ]\n}\n") : sink_(Head()) && sink_("]\n}\n");
}

} // namespace documents
