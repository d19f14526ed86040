// Symbols as SVG documents: one by itself, or several on a sheet.
#pragma once

#include "TylModel/TylModel.h"

#include <functional>
#include <string>
#include <string_view>

namespace preview {

/// Takes the next piece of a document's UTF-8 text. False stops the writing: the piece could not be stored.
using TextSink = std::function<bool(std::string_view)>;

/// A document with the picture of one symbol, its name and what there is to say about it.
std::string SymbolSvg(TylModel::SymbolDefinition& symbol);

/// Writes a sheet with a picture of each symbol in rows: call Add once for each of the `count` symbols, then
/// Finish. The text of one symbol at a time is held in memory.
class SheetWriter {
public:
    SheetWriter(std::size_t count, TextSink sink);

    /// Each is false when the sink refused a piece; nothing more is to be written then.
    bool Add(TylModel::SymbolDefinition& symbol);
    bool Finish();

private:
    std::string Head() const;

    std::size_t count_;
    std::size_t columns_;
    TextSink sink_;
    std::size_t added_ = 0;
};

} // namespace preview
