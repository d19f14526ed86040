// Symbols as a page for the browser.
#pragma once

#include "preview/ResolvedSymbol.h"
#include "preview/SymbolSvg.h"

#include <cstddef>
#include <map>
#include <string>
#include <vector>

namespace preview {

/// What a gallery says of all its symbols.
struct GalleryPage {
    std::size_t count = 0;         // of the symbols
    std::string title = "Symbols"; // of the page and its tab, as UTF-8
    std::string document = "{}";   // a symbols document without symbols: what downloaded ones stand in
    // What stands before and behind the symbols of a style library; empty where the gallery holds no styles.
    std::string styleHead = {};
    std::string styleTail = {};
};

/// What a line of text needs of a glyph besides its path; lengths in units of the symbol.
struct GlyphFacts {
    unsigned character = 0; // its number
    double advance = 0.0;   // to the next one
    double above = 0.0;     // the height of capitals of the font
    double below = 0.0;     // how far its letters reach below the line
};

/// What a gallery says of one symbol besides what the symbol says itself; all as UTF-8.
struct GalleryFacts {
    std::string source;      // the file that it comes from; empty where there is but one
    std::string description; // where the symbol has none
    std::string json = "{}"; // the symbol as it stands in a symbols document
    std::string style;       // the symbol as it stands in a style library, if galleries hold one
    std::string loss;        // what the symbol does not draw, or draws elsewhere; empty where it is right
    TylModel::SymbolDefinition* faithful = nullptr; // the one that draws it, if there is one; borrowed
    const GlyphFacts* glyph = nullptr;              // of a font's glyph; borrowed
};

/// Writes one HTML file that needs no other: a card for each symbol, a search, groups, light and dark, a
/// control for every parameter, a large view, downloads, and a line to type in each font. Call Measure for
/// each symbol, if all are to be shown at one scale, too; then Add for each, then Finish. The text of one
/// symbol at a time is held in memory.
class GalleryWriter {
public:
    GalleryWriter(GalleryPage page, TextSink sink) : page_(std::move(page)), sink_(std::move(sink)) {}

    /// Takes note of the symbol's own scale: that of a kind is the one in the middle.
    void Measure(TylModel::SymbolDefinition& symbol);

    /// Each is false when the sink refused a piece; nothing more is to be written then.
    bool Add(TylModel::SymbolDefinition& symbol, const GalleryFacts& facts = {});
    bool Finish();

private:
    bool WriteHead();
    double CommonScale(Usage usage);

    GalleryPage page_;
    TextSink sink_;
    std::size_t added_ = 0;
    std::map<Usage, std::vector<double>> scales_; // of the symbols that were measured
    bool isSorted_ = false;
};

} // namespace preview
