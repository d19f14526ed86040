// Reads symbols of our own model.
#include "tests/support/ReadSymbol.h"

namespace {

struct Reader final : TylModel::ISymbolDefinitionVisitor, TylModel::IGraphicElementVisitor {
    void VisitPath(TylModel::Path& path) override {
        read.graphics.push_back({ReadPath{path.GetGeometry(), path.GetLineColor(), path.GetFillColor(),
                                          path.GetLineWeight(), path.GetLineWeightScalable()},
                                 std::nullopt});
    }

    void VisitText(TylModel::Text& text) override {
        read.graphics.push_back(
            {std::nullopt, ReadText{text.GetContent(), text.GetFontName(), text.GetHeight(), text.GetAngle(),
                                    text.GetPositionX(), text.GetPositionY(), text.GetHorizontalAlignment(),
                                    text.GetVerticalAlignment(), text.GetTextColor(), text.GetBold(),
                                    text.GetItalic(), text.GetUnderlined(), text.GetOverlined()}});
    }

    void VisitSimpleSymbolDefinition(TylModel::SimpleSymbolDefinition& symbol) override {
        const auto& graphics = symbol.GetGraphics();
        for (int i = 0; i < graphics.GetCount(); ++i) {
            AcceptVisitor(*graphics.GetAt(i), *this);
        }
        const auto& parameters = symbol.GetParameterDefinition();
        for (int i = 0; i < parameters.GetCount(); ++i) {
            const TylModel::Parameter& parameter = *parameters.GetAt(i);
            read.parameters.push_back({parameter.GetIdentifier(), parameter.GetDisplayName(),
                                       parameter.GetDescription(), parameter.GetDefaultValue(),
                                       static_cast<int>(parameter.GetDataType())});
        }
        if (const auto* const usage = symbol.GetPointUsage()) {
            read.point = {usage->GetAngle()};
        }
        if (const auto* const usage = symbol.GetLineUsage()) {
            read.line = {usage->GetAngle(), usage->GetAngleControl(), usage->GetRepeat(),
                         usage->GetStartOffset()};
        }
        if (const auto* const usage = symbol.GetAreaUsage()) {
            read.area = {usage->GetAngle(), usage->GetRepeatX(), usage->GetRepeatY()};
        }
    }

    void VisitCompoundSymbolDefinition(TylModel::CompoundSymbolDefinition& symbol) override {
        read.isCompound = true;
        const auto& members = symbol.GetSymbols();
        for (int i = 0; i < members.GetCount(); ++i) {
            read.members.push_back(Read(*members.GetAt(i)->GetSymbolDefinition()));
        }
    }

    ReadSymbol read;
};

} // namespace

ReadSymbol Read(TylModel::SymbolDefinition& symbol) {
    Reader reader;
    reader.read.name = symbol.GetName();
    reader.read.description = symbol.GetDescription();
    symbol.AcceptVisitor(reader);
    return reader.read;
}

long CountModelObjects() {
    return TylModel::CountLiveObjects();
}
