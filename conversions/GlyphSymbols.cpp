#include "conversions/GlyphSymbols.h"

#include "StyleConversion/encoding/PathCommands.h"
#include "preview/Outline.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <string>

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

struct Range {
    std::uint16_t first;
    std::uint16_t last;
};

// Of Unicode's first 65536 numbers those that nobody sees by themselves, or that are no characters: controls,
// spaces, marks of direction, halves of pairs, private use.
constexpr Range kUnseen[] = {{0, 32},          {127, 160},       {173, 173},       {0x061c, 0x061c},
                             {0x1680, 0x1680}, {0x180e, 0x180e}, {0x2000, 0x200f}, {0x2028, 0x202f},
                             {0x205f, 0x206f}, {0x3000, 0x3000}, {0xd800, 0xf8ff}, {0xfdd0, 0xfdef},
                             {0xfe00, 0xfe0f}, {0xfeff, 0xfeff}, {0xfff0, 0xffff}};

// The numbers of fonts of bytes are a code page's beyond ASCII, and nobody knows which.
bool IsSeenCharacter(std::uint16_t number, ShxUtility::ShapeFileKind kind) {
    if (kind != ShxUtility::kUnifont && !(kind == ShxUtility::kFont && number < 127)) {
        return false;
    }
    return std::none_of(std::begin(kUnseen), std::end(kUnseen), [number](const Range& range) {
        return number >= range.first && number <= range.last;
    });
}

// "A (65) UCA", "10 LF".
std::wstring GlyphName(const documents::Glyph& glyph, ShxUtility::ShapeFileKind kind) {
    std::wstring name = std::to_wstring(glyph.number);
    if (IsSeenCharacter(glyph.number, kind)) {
        name = std::wstring(1, static_cast<wchar_t>(glyph.number)) + L" (" + name + L')';
    }
    if (!glyph.name.empty()) {
        name += L' ';
        name += glyph.name;
    }
    return name;
}

} // namespace

std::unique_ptr<TylModel::SimpleSymbolDefinition> SymbolOf(const documents::Glyph& glyph,
                                                           ShxUtility::ShapeFileKind kind) {
    auto symbol = std::make_unique<TylModel::SimpleSymbolDefinition>();
    symbol->SetName(GlyphName(glyph, kind));
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
