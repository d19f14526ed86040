// Symbols as a page for the browser.
#pragma once

#include "preview/SymbolSvg.h"

namespace preview {

/// Writes one HTML file that needs no other: a card for each symbol, a search, a zoom, light and dark, and a
/// control for every parameter. Call Add once for each of the `count` symbols, then Finish. The text of one
/// symbol at a time is held in memory.
class GalleryWriter {
public:
    GalleryWriter(std::size_t count, TextSink sink) : count_(count), sink_(std::move(sink)) {}

    /// Each is false when the sink refused a piece; nothing more is to be written then.
    bool Add(TylModel::SymbolDefinition& symbol);
    bool Finish();

private:
    bool WriteHead();

    std::size_t count_;
    TextSink sink_;
    std::size_t added_ = 0;
};

} // namespace preview
