#include "conversions/GlyphSymbols.h"

#include "StyleConversion/encoding/PathCommands.h"
#include "preview/Outline.h"

namespace conversions {
namespace {

// What the only path of a glyph's symbol draws; empty where it has none.
preview::Box BoundsOf(const TylModel::SimpleSymbolDefinition& symbol) {
    preview::Outline outline;
    if (symbol.GetGraphics().GetCount() > 0) {
        const auto& path = static_cast<const TylModel::Path&>(*symbol.GetGraphics().GetAt(0));
        preview::ReadPath(path.GetGeometry(), outline);
    }
    return outline.Bounds();
}

} // namespace

std::unique_ptr<TylModel::SimpleSymbolDefinition> SymbolOf(const documents::Glyph& glyph) {
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

void AlignGlyphs(const std::vector<std::unique_ptr<TylModel::SimpleSymbolDefinition>>& symbols) {
    std::vector<preview::Box> boxes;
    preview::Box all;
    for (const auto& symbol : symbols) {
        boxes.push_back(BoundsOf(*symbol));
        all.Include(boxes.back());
    }
    for (std::size_t i = 0; i < symbols.size(); ++i) {
        if (!boxes[i].IsEmpty()) {
            std::wstring upright;
            encoding::AppendMove(upright, boxes[i].Middle().x, all.low.y);
            encoding::AppendLine(upright, boxes[i].Middle().x, all.high.y);
            auto path = std::make_unique<TylModel::Path>();
            path->SetGeometry(upright);
            symbols[i]->GetGraphics().Adopt(path.release());
        }
    }
}

} // namespace conversions
