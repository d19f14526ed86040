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
    WriteSymbol(xml, resolved, options_, TagList(KindOf(resolved), tags), added);
    text += '\n';
    return sink_(text);
}

bool QgisLibraryWriter::Finish() {
    return (started_ || sink_(kQgisLibraryHead)) && sink_(kQgisLibraryTail);
}

} // namespace styles
