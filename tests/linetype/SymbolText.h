// Symbols as one line of text each, for comparing.
#pragma once

#include "StyleConversion/platform/CodePage.h"

#include "TylModel/TylModel.h"

#include <string>
#include <vector>

namespace linetypetest {

/// Graphics, parameters and usage of a symbol as text, in order. Properties that are not set are left out:
/// "simple NAME {path M 0,0 ; params LINECOLOR LINEWEIGHT; line repeat=1}" and
/// "compound NAME (DESCRIPTION) [simple …, simple …]". The colours and weight of a path are shown only where
/// they are not those of every path of a line symbol.
class SymbolText : private TylModel::ISymbolDefinitionVisitor, private TylModel::IGraphicElementVisitor {
public:
    static std::string Of(TylModel::SymbolDefinition& definition) {
        SymbolText text;
        definition.AcceptVisitor(text);
        return text.text_;
    }

private:
    void VisitSimpleSymbolDefinition(TylModel::SimpleSymbolDefinition& definition) override {
        Header("simple ", definition);
        text_ += " {";
        for (std::int32_t i = 0; i < definition.GetGraphics().GetCount(); ++i) {
            definition.GetGraphics().GetAt(i)->AcceptVisitor(*this);
        }
        text_ += "params";
        for (std::int32_t i = 0; i < definition.GetParameterDefinition().GetCount(); ++i) {
            Add(" ", definition.GetParameterDefinition().GetAt(i)->GetIdentifier());
        }
        if (const TylModel::LineUsage* const usage = definition.GetLineUsage()) {
            text_ += "; line";
            Add(" angle=", usage->GetAngle());
            Add(" control=", usage->GetAngleControl());
            Add(" repeat=", usage->GetRepeat());
            Add(" start=", usage->GetStartOffset());
        }
        if (definition.GetPointUsage() != nullptr || definition.GetAreaUsage() != nullptr) {
            text_ += "; another usage";
        }
        text_ += "}";
    }

    void VisitCompoundSymbolDefinition(TylModel::CompoundSymbolDefinition& definition) override {
        Header("compound ", definition);
        text_ += " [";
        for (std::int32_t i = 0; i < definition.GetSymbols().GetCount(); ++i) {
            text_ += i > 0 ? ", " : "";
            definition.GetSymbols().GetAt(i)->GetSymbolDefinition()->AcceptVisitor(*this);
        }
        text_ += "]";
    }

    void VisitPath(TylModel::Path& path) override {
        text_ += "path " + platform::WideToAnsi(path.GetGeometry());
        if (path.GetLineColor() != L"%LINECOLOR%" || path.GetLineWeight() != L"%LINEWEIGHT%" ||
            path.GetLineWeightScalable() != L"false" || !path.GetFillColor().empty()) {
            Add("color=", path.GetLineColor());
            Add(" weight=", path.GetLineWeight());
            Add(" scalable=", path.GetLineWeightScalable());
            Add(" fill=", path.GetFillColor());
        }
        text_ += "; ";
    }

    void VisitText(TylModel::Text& text) override {
        Add("text ", text.GetContent());
        Add(" font=", text.GetFontName());
        Add(" height=", text.GetHeight());
        Add(" angle=", text.GetAngle());
        Add(" x=", text.GetPositionX());
        Add(" y=", text.GetPositionY());
        Add(" ", text.GetHorizontalAlignment());
        Add(" ", text.GetVerticalAlignment());
        Add(" ", text.GetTextColor());
        Add(" bold=", text.GetBold());
        Add(" italic=", text.GetItalic());
        Add(" underlined=", text.GetUnderlined());
        Add(" overlined=", text.GetOverlined());
        text_ += "; ";
    }

    void Header(const char* kind, const TylModel::SymbolDefinition& definition) {
        text_ += kind + platform::WideToAnsi(definition.GetName());
        Add(" (", definition.GetDescription());
        text_ += definition.GetDescription().empty() ? "" : ")";
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
