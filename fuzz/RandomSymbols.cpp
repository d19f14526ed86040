#include "fuzz/RandomSymbols.h"

#include <nlohmann/json.hpp>

#include <array>
#include <string_view>

namespace fuzzing {
namespace {

using nlohmann::json;

// Bytes as choices; the first of each where no bytes are left.
class Choices {
public:
    Choices(const std::uint8_t* data, std::size_t size) : data_(data), size_(size) {}

    std::size_t Below(std::size_t end) {
        if (size_ == 0) {
            return 0;
        }
        --size_;
        return *data_++ % end;
    }

    bool Yes() { return Below(2) == 1; }

    template <std::size_t kSize>
    std::string Of(const std::array<std::string_view, kSize>& texts) {
        return std::string(texts[Below(kSize)]);
    }

private:
    const std::uint8_t* data_;
    std::size_t size_;
};

std::string Number(Choices& choices) {
    constexpr std::array<std::string_view, 20> kNumbers = {
        "0",     "1",      "-1",     "2.5", "0.33333333", "-0.0",   "10",        "100",   "1e-9",    "1e9",
        "1e300", "-1e300", "1e-300", "0.1", "-0.125",     "7.0711", "3.0000001", "0.001", "1000000", "-45"};
    if (choices.Yes()) {
        return choices.Of(kNumbers);
    }
    const auto whole = static_cast<int>(choices.Below(200)) - 100;
    return std::to_string(whole) + "." + std::to_string(choices.Below(100));
}

std::string Positive(Choices& choices) {
    constexpr std::array<std::string_view, 12> kLengths = {
        "1", "10", "0.25", "2.5", "100", "0.001", "1e9", "0", "-1", "1e300", "1e-300", "3.1415926"};
    if (choices.Yes()) {
        return choices.Of(kLengths);
    }
    return std::to_string(choices.Below(50)) + "." + std::to_string(choices.Below(100));
}

std::string Words(Choices& choices) {
    constexpr std::array<std::string_view, 24> kWords = {"A",
                                                         "b",
                                                         " ",
                                                         "'",
                                                         "\"",
                                                         "<",
                                                         "&",
                                                         "\\",
                                                         "%",
                                                         "%P%",
                                                         "--",
                                                         "]]>",
                                                         ",",
                                                         "@",
                                                         "\x01",
                                                         "\n",
                                                         "\xc3\xa4",
                                                         "\xef\xbf\xbe",
                                                         "\xef\xbf\xbf",
                                                         "\xf0\x9f\x98\x80",
                                                         "/*",
                                                         "#",
                                                         ";",
                                                         "%N%"};
    std::string words;
    for (std::size_t count = choices.Below(6); count > 0; --count) {
        words += choices.Of(kWords);
    }
    return words;
}

// An expression of the model: a value, a parameter, or their sum.
std::string Expression(Choices& choices, std::string value) {
    constexpr std::array<std::string_view, 4> kParameters = {"%N%", "%P%", "%C%", "%LOST%"};
    switch (choices.Below(6)) {
    case 0:
        return choices.Of(kParameters);
    case 1:
        return choices.Of(kParameters) + "+" + value;
    default:
        return value;
    }
}

std::string Pair(Choices& choices) {
    const std::string x = Number(choices);
    return x + "," + Number(choices);
}

std::string Geometry(Choices& choices) {
    std::string geometry = "M " + Pair(choices);
    for (std::size_t count = choices.Below(12); count > 0; --count) {
        switch (choices.Below(9)) {
        case 0:
            geometry += " M " + Pair(choices);
            break;
        case 1:
            geometry += " l " + Pair(choices);
            break;
        case 2:
            geometry += " h " + Number(choices);
            break;
        case 3:
            geometry += " v " + Number(choices);
            break;
        case 4:
            geometry += " A " + Positive(choices) + "," + Positive(choices) + " " + Number(choices);
            geometry += choices.Yes() ? " true" : " false";
            geometry += choices.Yes() ? " true " : " false ";
            geometry += Pair(choices);
            break;
        case 5:
            geometry += " A " + Positive(choices) + "," + Positive(choices) + " 0 1 " +
                        (choices.Yes() ? "1 " : "0 ") + Pair(choices);
            break;
        case 6:
            geometry += choices.Yes() ? " z" : " Z";
            break;
        case 7:
            geometry += " C " + Pair(choices) + " " + Pair(choices) + " " + Pair(choices);
            break;
        default:
            geometry += " L " + Pair(choices);
            break;
        }
    }
    return geometry;
}

// The document has no empty texts.
void Set(json& object, const char* key, const std::string& text) {
    if (!text.empty()) {
        object[key] = text;
    }
}

std::string Color(Choices& choices) {
    constexpr std::array<std::string_view, 7> kColors = {"%C%",    "ff000000", "0xffff0000", "80ffffff",
                                                         "%LOST%", "green",    "'ff00ff00'"};
    return choices.Of(kColors);
}

json PathElement(Choices& choices) {
    json path = {{"type", "Path"}};
    Set(path, "geometry", Geometry(choices));
    if (choices.Below(4) != 3) {
        Set(path, "lineColor", Color(choices));
    }
    if (choices.Below(4) == 1) {
        Set(path, "fillColor", Color(choices));
    }
    if (choices.Yes()) {
        Set(path, "lineWeight", Expression(choices, Positive(choices)));
    }
    if (choices.Yes()) {
        path["lineWeightScalable"] = choices.Yes() ? "true" : "false";
    }
    return path;
}

json TextElement(Choices& choices) {
    constexpr std::array<std::string_view, 4> kAcross = {"'Left'", "'Center'", "'Right'", "'Aligned'"};
    constexpr std::array<std::string_view, 4> kUp = {"'Baseline'", "'Middle'", "'Top'", "'Bottom'"};
    json text = {{"type", "Text"}};
    Set(text, "content", Expression(choices, "'" + Words(choices) + "'"));
    Set(text, "fontName", "'" + Words(choices) + "'");
    Set(text, "height", Expression(choices, Positive(choices)));
    Set(text, "angle", Expression(choices, Number(choices)));
    Set(text, "positionX", Number(choices));
    Set(text, "positionY", Number(choices));
    Set(text, "horizontalAlignment", choices.Of(kAcross));
    Set(text, "verticalAlignment", choices.Of(kUp));
    Set(text, "textColor", Color(choices));
    for (const char* const style : {"bold", "italic", "underlined", "overlined"}) {
        if (choices.Below(4) == 1) {
            text[style] = "true";
        }
    }
    return text;
}

json Parameter(Choices& choices, const char* identifier, int dataType, const std::string& value) {
    json parameter = {{"dataType", dataType}};
    Set(parameter, "identifier", identifier);
    Set(parameter, "displayName", Words(choices));
    Set(parameter, "defaultValue", value);
    return parameter;
}

void AddUsage(Choices& choices, std::size_t usage, json& symbol) {
    const std::string angle = Expression(choices, Number(choices));
    if (usage == 0) {
        symbol["areaUsage"] = {
            {"angle", angle}, {"repeatX", Positive(choices)}, {"repeatY", Positive(choices)}};
    } else if (usage == 1) {
        json line = {{"repeat", Positive(choices)}, {"startOffset", Number(choices)}};
        if (choices.Yes()) {
            line["angle"] = angle;
            line["angleControl"] = choices.Yes() ? "'FromAngle'" : "'FromGeometry'";
        }
        symbol["lineUsage"] = std::move(line);
    } else if (usage == 2) {
        symbol["pointUsage"] = {{"angle", angle}};
    }
}

json Simple(Choices& choices, std::size_t usage) {
    json symbol = {{"type", "SimpleSymbolDefinition"}, {"name", Words(choices)}};
    symbol["graphics"] = json::array();
    for (std::size_t count = choices.Below(5); count > 0; --count) {
        symbol["graphics"].push_back(choices.Below(4) == 3 ? TextElement(choices) : PathElement(choices));
    }
    symbol["parameters"] = {Parameter(choices, "C", 6, choices.Yes() ? "0xff000000" : Words(choices)),
                            Parameter(choices, "N", 5, choices.Yes() ? "0.0" : Number(choices)),
                            Parameter(choices, "P", 0, Words(choices))};
    AddUsage(choices, usage, symbol);
    return symbol;
}

json Symbol(Choices& choices) {
    // The last has no usage, as the shapes of a font.
    const std::size_t usage = choices.Below(4);
    if (choices.Yes()) {
        return Simple(choices, usage);
    }
    json symbol = {{"type", "CompoundSymbolDefinition"}, {"name", Words(choices)}};
    symbol["symbols"] = json::array();
    for (std::size_t count = choices.Below(4); count > 0; --count) {
        symbol["symbols"].push_back(Simple(choices, choices.Below(8) == 7 ? choices.Below(4) : usage));
    }
    return symbol;
}

} // namespace

std::string RandomSymbolsDocument(const std::uint8_t* data, std::size_t size) {
    Choices choices(data, size);
    json document = {{"format", "styleconversion/symbols"}, {"version", 1}, {"symbols", json::array()}};
    for (std::size_t count = 1 + choices.Below(3); count > 0; --count) {
        document["symbols"].push_back(Symbol(choices));
    }
    return document.dump();
}

} // namespace fuzzing
