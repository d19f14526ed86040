#include "Summary.h"

namespace {

class Counter : public TylModel::ISymbolDefinitionVisitor {
public:
    void VisitSimpleSymbolDefinition(TylModel::SimpleSymbolDefinition& definition) override {
        graphics_ += definition.GetGraphics().GetCount();
    }
    void VisitCompoundSymbolDefinition(TylModel::CompoundSymbolDefinition& definition) override {
        for (std::int32_t i = 0; i < definition.GetSymbols().GetCount(); ++i) {
            definition.GetSymbols().GetAt(i)->GetSymbolDefinition()->AcceptVisitor(*this);
            ++symbols_;
        }
    }
    std::string Text() const {
        const std::string members = symbols_ > 0 ? std::to_string(symbols_) + " symbols with " : "";
        return members + std::to_string(graphics_) + " graphics";
    }

private:
    std::int32_t symbols_ = 0;
    std::int32_t graphics_ = 0;
};

} // namespace

std::string Summary(TylModel::SymbolDefinition& symbol) {
    Counter counter;
    symbol.AcceptVisitor(counter);
    std::string name;
    for (const wchar_t c : symbol.GetName()) {
        name += c < 0x80 ? static_cast<char>(c) : '?';
    }
    return name + ": " + counter.Text();
}
