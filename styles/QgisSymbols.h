// QGIS symbols and their layers, one function for each kind of symbol.
#pragma once

#include "styles/AreaParts.h"
#include "styles/LineParts.h"
#include "styles/MarkerParts.h"
#include "styles/QgisExpression.h"
#include "styles/QgisLibrary.h"
#include "styles/QgisXml.h"

#include <string_view>

namespace styles {

/// Writes the symbol under the name that `added` has, and adds what that does not say of it.
void WriteSymbol(QgisXml& xml, const preview::ResolvedSymbol& symbol, const QgisOptions& options,
                 std::string_view tags, AddedStyle& added);

/// Each writes the layers of the symbol that was opened last, which has that name. False where there are
/// none.
bool WriteFillLayers(QgisXml& xml, const AreaParts& area, HatchUnit unit, std::string_view name);
bool WriteLineLayers(QgisXml& xml, const LineParts& line, const preview::ResolvedSymbol& symbol, double scale,
                     std::string_view name, Losses& losses);
bool WriteMarkerLayers(QgisXml& xml, const MarkerParts& marker, const preview::ResolvedSymbol& symbol,
                       double scale);

/// One layer: a run as a square SVG of that half side around the anchor.
void WriteSvgMarker(QgisXml& xml, const Run& run, preview::Point anchor, double reach, double scale,
                    const preview::ResolvedSymbol& symbol);

} // namespace styles
