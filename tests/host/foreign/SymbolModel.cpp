// The foreign symbol model's texts and objects, and how tests read its symbols.
#include "TylModel/TylModel.h"

#include "tests/support/ReadSymbol.h"

namespace {

long living = 0;

std::wstring TextOf(const TylModel::Property& property) {
    return TylModel::Widened(property.text);
}

ReadGraphic ReadOf(TylModel::GraphicElement& graphic) {
    if (graphic.IsPath()) {
        auto& path = static_cast<TylModel::Path&>(graphic);
        return {ReadPath{TextOf(path.geometry), TextOf(path.lineColor), TextOf(path.fillColor),
                         TextOf(path.lineWeight), TextOf(path.scalable)},
                std::nullopt};
    }
    auto& text = static_cast<TylModel::Text&>(graphic);
    return {std::nullopt,
            ReadText{TextOf(text.content), TextOf(text.fontName), TextOf(text.height), TextOf(text.angle),
                     TextOf(text.x), TextOf(text.y), TextOf(text.horizontal), TextOf(text.vertical),
                     TextOf(text.color), TextOf(text.bold), TextOf(text.italic), TextOf(text.underlined),
                     TextOf(text.overlined)}};
}

void ReadSimple(TylModel::SimpleSymbolDefinition& symbol, ReadSymbol& read) {
    auto& graphics = *symbol.GetGraphics();
    for (std::size_t i = 0; i < graphics.HowMany(); ++i) {
        read.graphics.push_back(ReadOf(graphics[i]));
    }
    auto& parameters = *symbol.GetParameterDefinition();
    for (std::size_t i = 0; i < parameters.HowMany(); ++i) {
        TylModel::Parameter& parameter = parameters[i];
        read.parameters.push_back({TextOf(parameter.identifier), TextOf(parameter.displayName),
                                   TextOf(parameter.description), TextOf(parameter.defaultValue),
                                   static_cast<int>(parameter.type)});
    }
    if (symbol.point) {
        read.point = {TextOf(symbol.point->angle)};
    }
    if (symbol.line) {
        read.line = {TextOf(symbol.line->angle), TextOf(symbol.line->control), TextOf(symbol.line->repeat),
                     TextOf(symbol.line->offset)};
    }
    if (symbol.area) {
        read.area = {TextOf(symbol.area->angle), TextOf(symbol.area->repeatX), TextOf(symbol.area->repeatY)};
    }
}

} // namespace

namespace TylModel {

std::u16string Narrowed(const std::wstring& text) {
    std::u16string units;
    for (const wchar_t c : text) {
        const auto code = static_cast<char32_t>(c);
        if (code > 0xffff) {
            units += static_cast<char16_t>(0xd800 + ((code - 0x10000) >> 10U));
            units += static_cast<char16_t>(0xdc00 + ((code - 0x10000) & 0x3ffU));
        } else {
            units += static_cast<char16_t>(code);
        }
    }
    return units;
}

std::wstring Widened(const std::u16string& text) {
    std::wstring wide;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto unit = static_cast<char32_t>(text[i]);
        const bool isPair = unit >= 0xd800 && unit < 0xdc00 && i + 1 < text.size() && text[i + 1] >= 0xdc00 &&
                            text[i + 1] < 0xe000;
        if (sizeof(wchar_t) > 2 && isPair) {
            wide += static_cast<wchar_t>(0x10000 + ((unit - 0xd800) << 10U) + (text[++i] - 0xdc00U));
        } else {
            wide += static_cast<wchar_t>(unit);
        }
    }
    return wide;
}

TylRootObject::TylRootObject() {
    ++living;
}

TylRootObject::~TylRootObject() {
    --living;
}

long TylRootObject::Living() {
    return living;
}

} // namespace TylModel

ReadSymbol Read(TylModel::SymbolDefinition& symbol) {
    ReadSymbol read;
    read.name = TextOf(symbol.name);
    read.description = TextOf(symbol.description);
    if (auto* const simple = dynamic_cast<TylModel::SimpleSymbolDefinition*>(&symbol)) {
        ReadSimple(*simple, read);
    } else {
        read.isCompound = true;
        auto& members = *dynamic_cast<TylModel::CompoundSymbolDefinition&>(symbol).GetSymbols();
        for (std::size_t i = 0; i < members.HowMany(); ++i) {
            read.members.push_back(Read(members[i].GetSymbolDefinition()));
        }
    }
    return read;
}

long CountModelObjects() {
    return TylModel::TylRootObject::Living();
}
