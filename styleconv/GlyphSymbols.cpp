#include "styleconv/GlyphSymbols.h"

namespace styleconv {

std::unique_ptr<TylModel::SymbolDefinition> SymbolOf(const documents::Glyph& glyph) {
    auto symbol = std::make_unique<TylModel::SimpleSymbolDefinition>();
    std::wstring name = std::to_wstring(glyph.number);
    if (!glyph.name.empty()) {
        name += L' ';
        name += glyph.name;
    }
    symbol->SetName(name);
    if (glyph.result != ShxUtility::kSuccess) {
        symbol->SetDescription(L"cannot be drawn: result " + std::to_wstring(glyph.result));
        return symbol;
    }
    auto path = std::make_unique<TylModel::Path>();
    path->SetGeometry(glyph.path);
    path->SetLineColor(L"ff000000");
    symbol->GetGraphics().Adopt(path.release());
    return symbol;
}

} // namespace styleconv
