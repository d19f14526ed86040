// Blocks and shapes: one SVG for each run of equal paint. All share one square around the insertion point, so
// that the symbol's size and angle act on the whole.

#include "styles/QgisSymbols.h"

#include "StyleConversion/platform/Utf8.h"
#include "styles/Base64.h"
#include "styles/SquareSvg.h"

namespace styles {

void WriteSvgMarker(QgisXml& xml, const Run& run, preview::Point anchor, double reach, double scale,
                    const preview::ResolvedSymbol& symbol) {
    const SquareSvg svg = DrawSquare(run.items, anchor, reach, scale, symbol);
    xml.OpenLayer("SvgMarker");
    xml.Option("name", "base64:" + Base64(svg.text));
    xml.Millimetres("size", 2 * reach);
    xml.Option("color", QgisColor(run.ink.color));
    xml.Option("outline_color", QgisColor(run.ink.color));
    xml.Millimetres("outline_width", run.ink.pen);
    // Clockwise.
    xml.Option("angle", 0.0 - run.angle);
    xml.Option("fixedAspectRatio", "0");
    if (!svg.attributes.empty()) {
        xml.OpenMap("parameters");
        for (const AttributeText& text : svg.attributes) {
            xml.Expression(text.name, "coalesce(attribute(" +
                                          QgisLiteral(platform::WideToValidUtf8(text.attribute)) + ")," +
                                          QgisLiteral(platform::WideToValidUtf8(text.standard)) + ")");
        }
        xml.CloseMap();
    }
    xml.EndOptions();
    xml.CloseLayer();
}

bool WriteMarkerLayers(QgisXml& xml, const MarkerParts& marker, const preview::ResolvedSymbol& symbol,
                       double scale) {
    for (const Run& run : marker.runs) {
        WriteSvgMarker(xml, run, {}, marker.reach, scale, symbol);
    }
    return !marker.runs.empty();
}

} // namespace styles
