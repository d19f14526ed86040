#include "styles/QgisLayerStyle.h"

#include "styles/QgisSymbols.h"

namespace styles {
namespace {

// As the program numbers the kinds of geometry that a layer may have.
int GeometryNumber(preview::Usage usage) {
    switch (usage) {
    case preview::Usage::kArea:
        return 2;
    case preview::Usage::kLine:
        return 1;
    case preview::Usage::kPoint:
        break;
    }
    return 0;
}

} // namespace

std::string QgisLayerStyle(TylModel::SymbolDefinition& symbol, const QgisOptions& options, Losses& losses) {
    const preview::ResolvedSymbol resolved = preview::Resolve(symbol);
    std::string text = "<!DOCTYPE qgis>\n"
                       "<qgis version=\"3.22.0\" styleCategories=\"Symbology\">\n"
                       "<renderer-v2 type=\"singleSymbol\" enableorderby=\"0\" forceraster=\"0\" "
                       "symbollevels=\"0\">\n"
                       "<symbols>\n";
    AddedStyle added;
    // The program looks for the only symbol by this name.
    added.name = "0";
    QgisXml xml(text);
    WriteSymbol(xml, resolved, options, {}, added);
    losses.merge(added.losses);
    text += "\n</symbols>\n<rotation/>\n<sizescale/>\n</renderer-v2>\n<layerGeometryType>" +
            std::to_string(GeometryNumber(resolved.usage)) + "</layerGeometryType>\n</qgis>\n";
    return text;
}

} // namespace styles
