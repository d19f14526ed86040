#include "styles/MaplibreStyle.h"

#include "StyleConversion/platform/Characters.h"
#include "StyleConversion/platform/Utf8.h"
#include "styles/LineParts.h"
#include "styles/MapPictureParts.h"

#include <optional>

namespace styles {
namespace {

using preview::ResolvedSymbol;
using preview::Usage;

constexpr std::string_view kStyleHead = "{\n"
                                        "  \"version\": 8,\n"
                                        "  \"sprite\": \"sprite\",\n"
                                        "  \"sources\": {\n"
                                        "    \"features\": {\"type\": \"geojson\", \"data\": {\"type\": "
                                        "\"FeatureCollection\", \"features\": []}}\n"
                                        "  },\n"
                                        "  \"layers\": [";
constexpr std::string_view kStyleTail = "\n  ]\n}\n";

std::string JsonString(std::string_view utf8) {
    constexpr char kDigits[] = "0123456789abcdef";
    std::string text = "\"";
    for (const char c : utf8) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte < 0x20 || byte == 0x7f) {
            text += "\\u00";
            text += kDigits[byte >> 4];
            text += kDigits[byte & 15];
            continue;
        }
        if (c == '"' || c == '\\') {
            text += '\\';
        }
        text += c;
    }
    return text + "\"";
}

// Short enough for a file's name, and no name that a system keeps for itself.
std::string PictureNameOf(std::string_view kind, std::string_view name) {
    constexpr std::size_t kLongest = 80;
    std::string text(kind);
    for (const char c : name.substr(0, kLongest)) {
        const char lower = platform::AsciiLower(c);
        const bool isKept = (lower >= 'a' && lower <= 'z') || (lower >= '0' && lower <= '9');
        text += isKept ? lower : '-';
    }
    return text;
}

std::string ColorValue(const preview::Color& color) {
    if (color.alpha == 255) {
        return preview::ColorText(color);
    }
    return "rgba(" + std::to_string(color.red) + "," + std::to_string(color.green) + "," +
           std::to_string(color.blue) + "," + PlainNumber(color.alpha / 255.0) + ")";
}

// A dash, a gap, a dash, ... from the beginning of the line, in pens. Behind an odd number of them the last
// one and the first are one.
std::string DashList(const Dashes& dashes) {
    std::vector<double> lengths;
    double at = 0.0;
    std::size_t first = 0;
    while (first < dashes.lengths.size() && at + dashes.lengths[first] <= dashes.phase) {
        at += dashes.lengths[first++];
    }
    if (first % 2 == 1) {
        lengths.push_back(0.0);
    }
    const double used = dashes.phase - at;
    for (std::size_t i = 0; i < dashes.lengths.size(); ++i) {
        const double length = dashes.lengths[(first + i) % dashes.lengths.size()];
        lengths.push_back(i == 0 ? length - used : length);
    }
    if (used > 0.0) {
        lengths.push_back(used);
    }
    std::string text;
    for (const double length : lengths) {
        text += (text.empty() ? "" : ", ") + PlainNumber(length / dashes.ink.pen);
    }
    return "[" + text + "]";
}

// The dashes of a line that has nothing else. Their colour and pen stay the layer's own.
std::optional<Dashes> OnlyDashes(const LineParts& line) {
    const auto* const dashes = line.parts.size() == 1 ? std::get_if<Dashes>(&line.parts.front()) : nullptr;
    return dashes != nullptr ? std::optional(*dashes) : std::nullopt;
}

std::string DashPaint(const Dashes& dashes) {
    std::string paint = "\"line-color\": " + JsonString(ColorValue(dashes.ink.color)) +
                        ", \"line-width\": " + PixelText(dashes.ink.pen * kPixelsPerMillimetre);
    if (!dashes.lengths.empty()) {
        paint += ", \"line-dasharray\": " + DashList(dashes);
    }
    return R"("type": "line", "paint": {)" + paint + "}";
}

std::string PicturePaint(Usage usage, const std::string& picture, int height) {
    const std::string name = JsonString(picture);
    switch (usage) {
    case Usage::kArea:
        return R"("type": "fill", "paint": {"fill-pattern": )" + name + "}";
    case Usage::kLine:
        return R"("type": "line", "paint": {"line-pattern": )" + name +
               ", \"line-width\": " + std::to_string(height) + "}";
    case Usage::kPoint:
        break;
    }
    // Angles of drawings are counter-clockwise.
    return R"("type": "symbol", "layout": {"icon-image": )" + name +
           R"(, "icon-allow-overlap": true, "icon-rotation-alignment": "map", )"
           R"("icon-rotate": ["*", -1, ["to-number", ["get", "ROTATION"], 0]]})";
}

std::string_view PrefixOf(Usage usage) {
    return usage == Usage::kArea ? "hatch-" : usage == Usage::kLine ? "line-" : "point-";
}

MapPicture PictureOf(const ResolvedSymbol& symbol, const MaplibreOptions& options) {
    switch (symbol.usage) {
    case Usage::kArea:
        return AreaPicture(symbol, options.scale, options.allowsApproximate);
    case Usage::kLine:
        return LinePicture(symbol, options.scale);
    case Usage::kPoint:
        break;
    }
    return PointPicture(symbol, options.scale);
}

} // namespace

bool MaplibreStyleWriter::Add(TylModel::SymbolDefinition& symbol, AddedLayer& added) {
    const ResolvedSymbol resolved = preview::Resolve(symbol);
    const std::string wanted = resolved.name.empty() ? "unnamed" : platform::WideToValidUtf8(resolved.name);
    added = {};
    std::string drawn;
    const LineParts line =
        resolved.usage == Usage::kLine ? LinePartsOf(resolved, options_.scale) : LineParts{};
    if (const auto dashes = OnlyDashes(line)) {
        added.picture.losses = line.losses;
        drawn = DashPaint(*dashes);
    } else {
        added.picture = PictureOf(resolved, options_);
        if (added.picture.svg.empty()) {
            added.name = wanted;
            return true;
        }
        added.pictureName = pictureNames_.Of(PictureNameOf(PrefixOf(resolved.usage), wanted));
        drawn = PicturePaint(resolved.usage, added.pictureName, added.picture.height);
    }
    added.name = names_.Of(wanted);
    added.isRenamed = resolved.name.empty() || added.name != wanted;
    std::string text(started_ ? std::string_view() : kStyleHead);
    started_ = true;
    const std::string id = JsonString(added.name);
    text += (hasLayer_ ? ",\n    {" : "\n    {");
    hasLayer_ = true;
    text += R"("id": )" + id + R"(, "source": "features", "filter": ["==", ["get", "symbol"], )" + id +
            "],\n     " + drawn + "}";
    return sink_(text);
}

bool MaplibreStyleWriter::Finish() {
    return (started_ || sink_(kStyleHead)) && sink_(kStyleTail);
}

} // namespace styles
