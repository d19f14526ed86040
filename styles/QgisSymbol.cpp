// One symbol of QGIS, whatever its kind.

#include "styles/QgisSymbols.h"

namespace styles {
namespace {

using preview::ResolvedSymbol;
using preview::Usage;

// For a symbol that draws nothing: the program does not know symbols without layers.
void WriteEmptyLayer(QgisXml& xml, Usage usage) {
    switch (usage) {
    case Usage::kArea:
        xml.OpenLayer("SimpleFill");
        xml.Option("style", "no");
        break;
    case Usage::kLine:
        xml.OpenLayer("SimpleLine");
        xml.Option("line_style", "no");
        break;
    case Usage::kPoint:
        xml.OpenLayer("SimpleMarker");
        xml.Option("color", "0,0,0,0");
        break;
    }
    xml.Option("outline_style", "no");
    xml.EndOptions();
    xml.CloseLayer();
}

bool WriteLayers(QgisXml& xml, const ResolvedSymbol& symbol, const QgisOptions& options, AddedStyle& added) {
    switch (symbol.usage) {
    case Usage::kArea: {
        const AreaParts area = AreaPartsOf(symbol, options.scale);
        added.losses = area.losses;
        return WriteFillLayers(xml, area, options.hatchUnit, added.name);
    }
    case Usage::kLine: {
        const LineParts line = LinePartsOf(symbol, options.scale);
        added.losses = line.losses;
        return WriteLineLayers(xml, line, symbol, options.scale, added.name, added.losses);
    }
    case Usage::kPoint:
        break;
    }
    const MarkerParts marker = MarkerPartsOf(symbol, options.scale);
    added.losses = marker.losses;
    return WriteMarkerLayers(xml, marker, symbol, options.scale);
}

std::string_view TypeOf(Usage usage) {
    return usage == Usage::kArea ? "fill" : usage == Usage::kLine ? "line" : "marker";
}

} // namespace

void WriteSymbol(QgisXml& xml, const ResolvedSymbol& symbol, const QgisOptions& options,
                 std::string_view tags, AddedStyle& added) {
    // Lines are not cut at the map's edge: dashes would begin there, and move with the map.
    xml.OpenSymbol(TypeOf(symbol.usage), added.name, symbol.usage == Usage::kArea, tags);
    if (!WriteLayers(xml, symbol, options, added)) {
        WriteEmptyLayer(xml, symbol.usage);
    }
    xml.CloseSymbol();
}

} // namespace styles
