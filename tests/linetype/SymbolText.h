// Symbols as one line of text each, for comparing.
#pragma once

#include "StyleConversion/platform/CodePage.h"
#include "tests/support/ReadSymbol.h"

#include <string>
#include <vector>

namespace linetypetest {

/// Graphics, parameters and usage of a symbol as text, in order. Properties that are not set are left out:
/// "simple NAME {path M 0,0 ; params LINECOLOR LINEWEIGHT; line repeat=1}" and
/// "compound NAME (DESCRIPTION) [simple …, simple …]". The colours and weight of a path are shown only where
/// they are not those of every path of a line symbol.
class SymbolText {
public:
    static std::string Of(TylModel::SymbolDefinition& definition) {
        SymbolText text;
        text.Add(Read(definition));
        return text.text_;
    }

private:
    void Add(const ReadSymbol& symbol) {
        Header(symbol.isCompound ? "compound " : "simple ", symbol);
        if (symbol.isCompound) {
            AddMembers(symbol);
            return;
        }
        text_ += " {";
        for (const ReadGraphic& graphic : symbol.graphics) {
            graphic.path ? Add(*graphic.path) : Add(*graphic.text);
        }
        text_ += "params";
        for (const ReadParameter& parameter : symbol.parameters) {
            Add(" ", parameter.identifier);
        }
        if (symbol.line) {
            text_ += "; line";
            Add(" angle=", symbol.line->angle);
            Add(" control=", symbol.line->angleControl);
            Add(" repeat=", symbol.line->repeat);
            Add(" start=", symbol.line->startOffset);
        }
        if (symbol.point || symbol.area) {
            text_ += "; another usage";
        }
        text_ += "}";
    }

    void AddMembers(const ReadSymbol& symbol) {
        text_ += " [";
        const char* separator = "";
        for (const ReadSymbol& member : symbol.members) {
            text_ += separator;
            Add(member);
            separator = ", ";
        }
        text_ += "]";
    }

    void Add(const ReadPath& path) {
        text_ += "path " + platform::WideToAnsi(path.geometry);
        if (path.lineColor != L"%LINECOLOR%" || path.lineWeight != L"%LINEWEIGHT%" ||
            path.lineWeightScalable != L"false" || !path.fillColor.empty()) {
            Add("color=", path.lineColor);
            Add(" weight=", path.lineWeight);
            Add(" scalable=", path.lineWeightScalable);
            Add(" fill=", path.fillColor);
        }
        text_ += "; ";
    }

    void Add(const ReadText& text) {
        Add("text ", text.content);
        Add(" font=", text.fontName);
        Add(" height=", text.height);
        Add(" angle=", text.angle);
        Add(" x=", text.x);
        Add(" y=", text.y);
        Add(" ", text.horizontal);
        Add(" ", text.vertical);
        Add(" ", text.color);
        Add(" bold=", text.bold);
        Add(" italic=", text.italic);
        Add(" underlined=", text.underlined);
        Add(" overlined=", text.overlined);
        text_ += "; ";
    }

    void Header(const char* kind, const ReadSymbol& symbol) {
        text_ += kind + platform::WideToAnsi(symbol.name);
        Add(" (", symbol.description);
        text_ += symbol.description.empty() ? "" : ")";
    }

    void Add(const char* label, const std::wstring& value) {
        if (!value.empty()) {
            text_ += label + platform::WideToAnsi(value);
        }
    }

    std::string text_;
};

/// Each symbol as SymbolText has it and with a line's end. Deletes the symbols.
inline std::string TakeTexts(const std::vector<TylModel::SymbolDefinition*>& symbols) {
    std::string result;
    for (TylModel::SymbolDefinition* const symbol : symbols) {
        result += SymbolText::Of(*symbol) + "\n";
        delete symbol;
    }
    return result;
}

} // namespace linetypetest
