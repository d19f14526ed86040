#include "documents/GlyphsDocument.h"

#include "StyleConversion/platform/Utf8.h"
#include "documents/ItemText.h"

#include <cmath>
#include <nlohmann/json.hpp>

namespace documents {
namespace {

using Json = nlohmann::ordered_json;

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
Json NumberJson(double value) {
    constexpr double kWholeLimit = 9007199254740992.0;
    const bool whole = std::fabs(value) < kWholeLimit && std::trunc(value) == value;
    if (whole && !(value == 0.0 && std::signbit(value))) {
        return static_cast<std::int64_t>(value);
    }
    return std::isfinite(value) ? Json(value) : Json(nullptr);
}

Json GlyphJson(const Glyph& glyph) {
    Json json = {{"number", glyph.number}, {"name", platform::WideToValidUtf8(glyph.name)}};
    if (glyph.result == ShxUtility::kSuccess) {
        json["geometry"] = platform::WideToValidUtf8(glyph.path);
        json["end"] = Json::array({NumberJson(glyph.endX), NumberJson(glyph.endY)});
    }
    json["result"] = static_cast<std::int32_t>(glyph.result);
    return json;
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
    head += Json(file_.fontInfo).dump();
    head += ",\n  \"glyphs\": [";
    return head;
}

bool GlyphsWriter::Add(const Glyph& glyph) {
    const std::string separator = started_ ? "," : Head();
    started_ = true;
    return sink_(separator) && sink_(ItemText(GlyphJson(glyph)));
}

bool GlyphsWriter::Finish() {
    return started_ ? sink_("\n  ]\n}\n") : sink_(Head()) && sink_("]\n}\n");
}

} // namespace documents
