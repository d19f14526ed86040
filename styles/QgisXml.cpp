#include "styles/QgisXml.h"

#include "styles/Numbers.h"

namespace styles {

void QgisXml::OpenSymbol(std::string_view type, std::string_view name, bool clipsToMap,
                         std::string_view tags) {
    xml_.Open("symbol").Set("type", type).Set("name", name).Set("alpha", "1");
    xml_.Set("clip_to_extent", clipsToMap ? "1" : "0").Set("force_rhr", "0");
    if (!tags.empty()) {
        xml_.Set("tags", tags);
    }
}

void QgisXml::OpenLayer(std::string_view layerClass) {
    xml_.Open("layer").Set("class", layerClass).Set("enabled", "1").Set("locked", "0").Set("pass", "0");
    xml_.Open("Option").Set("type", "Map");
}

void QgisXml::Option(std::string_view name, std::string_view value) {
    xml_.Open("Option").Set("name", name).Set("type", "QString").Set("value", value).Close();
}

void QgisXml::Option(std::string_view name, double value) {
    Option(name, PlainNumber(value));
}

void QgisXml::Millimetres(std::string_view name, double value) {
    Option(name, value);
    Option(std::string(name) + "_unit", "MM");
}

void QgisXml::OpenMap(std::string_view name) {
    xml_.Open("Option").Set("name", name).Set("type", "Map");
}

void QgisXml::Expression(std::string_view name, std::string_view expression) {
    OpenMap(name);
    xml_.Open("Option").Set("name", "active").Set("type", "bool").Set("value", "true").Close();
    Option("expression", expression);
    // An expression, not a field.
    xml_.Open("Option").Set("name", "type").Set("type", "int").Set("value", "3").Close();
    CloseMap();
}

void QgisXml::DataDefined(std::string_view property, std::string_view expression) {
    xml_.Open("data_defined_properties").Open("Option").Set("type", "Map");
    Option("name", "");
    OpenMap("properties");
    Expression(property, expression);
    CloseMap();
    Option("type", "collection");
    xml_.Close().Close();
}

std::string QgisColor(const preview::Color& color) {
    return std::to_string(color.red) + "," + std::to_string(color.green) + "," + std::to_string(color.blue) +
           "," + std::to_string(color.alpha);
}

std::string InnerName(std::string_view symbol, std::size_t layer) {
    return "@" + std::string(symbol) + "@" + std::to_string(layer);
}

void OpenSimpleLine(QgisXml& xml, const Ink& ink) {
    xml.OpenLayer("SimpleLine");
    xml.Option("line_color", QgisColor(ink.color));
    xml.Millimetres("line_width", ink.pen);
    xml.Option("capstyle", "flat");
    xml.Option("joinstyle", "bevel");
    xml.Option("line_style", "solid");
}

void WriteDotSymbol(QgisXml& xml, const Ink& ink, std::string_view name) {
    xml.OpenSymbol("marker", name, false);
    xml.OpenLayer("SimpleMarker");
    xml.Option("name", "circle");
    xml.Option("color", QgisColor(ink.color));
    xml.Option("outline_style", "no");
    xml.Millimetres("size", ink.pen);
    xml.EndOptions();
    xml.CloseLayer();
    xml.CloseSymbol();
}

} // namespace styles
