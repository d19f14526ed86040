#include "styles/QgisLibrary.h"

#include "StyleConversion/platform/Utf8.h"
#include "styles/QgisSymbols.h"

namespace styles {
namespace {

using preview::ResolvedSymbol;
using preview::Usage;

std::string_view KindOf(const ResolvedSymbol& symbol) {
    switch (symbol.usage) {
    case Usage::kArea:
        return "hatch";
    case Usage::kLine:
        return "linetype";
    case Usage::kPoint:
        break;
    }
    return !symbol.members.empty() && symbol.members.front().hasUsage ? "block" : "shape";
}

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

// The program takes a comma for the end of a tag.
std::string TagList(std::string_view kind, const std::vector<std::string>& tags) {
    std::string list(kind);
    for (const std::string& tag : tags) {
        list += ',';
        for (const char c : tag) {
            list += c == ',' ? ' ' : c;
        }
    }
    return list;
}

} // namespace

bool QgisLibraryWriter::Add(TylModel::SymbolDefinition& symbol, const std::vector<std::string>& tags,
                            AddedStyle& added) {
    const ResolvedSymbol resolved = preview::Resolve(symbol);
    added = {};
    // Importing lets a symbol replace another one of its name, of whatever kind.
    const std::string wanted = resolved.name.empty() ? "unnamed" : platform::WideToValidUtf8(resolved.name);
    added.name = names_.Of(wanted);
    added.isRenamed = resolved.name.empty() || added.name != wanted;
    std::string text(started_ ? std::string_view() : kQgisLibraryHead);
    started_ = true;
    QgisXml xml(text);
    // Lines are not cut at the map's edge: dashes would begin there, and move with the map.
    xml.OpenSymbol(TypeOf(resolved.usage), added.name, resolved.usage == Usage::kArea,
                   TagList(KindOf(resolved), tags));
    if (!WriteLayers(xml, resolved, options_, added)) {
        WriteEmptyLayer(xml, resolved.usage);
    }
    xml.CloseSymbol();
    text += '\n';
    return sink_(text);
}

bool QgisLibraryWriter::Finish() {
    return (started_ || sink_(kQgisLibraryHead)) && sink_(kQgisLibraryTail);
}

} // namespace styles
