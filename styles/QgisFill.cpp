// Hatches: generators of geometry for the lines of each ink, and for its dots.

#include "styles/QgisSymbols.h"

namespace styles {
namespace {

void OpenGenerator(QgisXml& xml, std::string_view symbolType, const std::string& expression, double density,
                   HatchUnit unit) {
    xml.OpenLayer("GeometryGenerator");
    xml.Option("SymbolType", symbolType);
    const std::string enabled = EnabledExpression(density, unit);
    // A feature's own geometry is known in millimetres only inside the expression.
    xml.Option("geometryModifier",
               unit == HatchUnit::kMap ? expression : "if(" + enabled + "," + expression + ",NULL)");
    xml.Option("units", unit == HatchUnit::kMap ? "MapUnit" : "MM");
    xml.EndOptions();
    if (unit == HatchUnit::kMap) {
        xml.DataDefined("enabled", enabled);
    }
}

} // namespace

bool WriteFillLayers(QgisXml& xml, const AreaParts& area, HatchUnit unit, std::string_view name) {
    std::size_t layers = 0;
    for (const AreaLayer& layer : area.layers) {
        const double density = DensityOf(layer.tilings);
        for (const std::string& lines : LinesExpressions(layer.tilings, unit)) {
            OpenGenerator(xml, "Line", lines, density, unit);
            xml.OpenSymbol("line", InnerName(name, layers++), true);
            OpenSimpleLine(xml, layer.ink);
            xml.EndOptions();
            xml.CloseLayer();
            xml.CloseSymbol();
            xml.CloseLayer();
        }
        for (const std::string& dots : DotsExpressions(layer.tilings, unit)) {
            OpenGenerator(xml, "Marker", dots, density, unit);
            WriteDotSymbol(xml, layer.ink, InnerName(name, layers++));
            xml.CloseLayer();
        }
    }
    return layers > 0;
}

} // namespace styles
