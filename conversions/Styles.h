// Symbols as styles of map programs, and what is lost on the way as diagnostics.
#pragma once

#include "conversions/Forms.h"
#include "styles/MaplibreStyle.h"
#include "styles/QgisLibrary.h"

#include <map>
#include <string>
#include <vector>

namespace conversions {

/// Writes the symbols that it is given to a style library. What that does not say of them is added to the
/// job.
class QgisStyles {
public:
    /// Symbols have tags of the files that captions say, and else of the job's.
    QgisStyles(const TextSink& sink, const Captions& captions, StyleJob& job);

    /// Each is false when the sink refuses a text.
    bool Add(TylModel::SymbolDefinition& symbol);
    bool Finish() { return writer_.Finish(); }

private:
    const std::vector<std::string>& TagsOf(const TylModel::SymbolDefinition& symbol);

    const Captions& captions_;
    StyleJob& job_;
    std::map<std::string, std::vector<std::string>> tags_; // of each file
    styles::QgisLibraryWriter writer_;
};

/// The same symbols one by one, for who puts some of them into a library of styles::kQgisLibraryHead and
/// kQgisLibraryTail.
class QgisEntries {
public:
    QgisEntries(const Captions& captions, StyleJob& job);

    /// How the symbol stands in a library.
    std::string Of(TylModel::SymbolDefinition& symbol);

private:
    std::string text_;
    QgisStyles styles_;
};

/// Writes the symbol as a layer style. What that does not say of it is added to the job. False when the sink
/// refuses the text.
bool WriteLayerStyle(TylModel::SymbolDefinition& symbol, const TextSink& sink, const Captions& captions,
                     StyleJob& job);

/// Writes the symbol as styles::DrawBare does. What is left out, or why there is no picture, is added to the
/// job. False when there is none, or the sink refuses the text.
bool WriteBarePicture(TylModel::SymbolDefinition& symbol, const TextSink& sink, const Captions& captions,
                      StyleJob& job);

/// Writes the symbols that it is given to a style of MapLibre. The pictures that it shows are added to the
/// job, and so is what it does not say of the symbols.
class MaplibreStyles {
public:
    MaplibreStyles(const TextSink& sink, const Captions& captions, StyleJob& job);

    /// Each is false when the sink refuses a text.
    bool Add(TylModel::SymbolDefinition& symbol);
    bool Finish() { return writer_.Finish(); }

private:
    const Captions& captions_;
    StyleJob& job_;
    styles::MaplibreStyleWriter writer_;
};

} // namespace conversions
