// What is said of symbols besides what they say themselves.
#pragma once

#include "TylModel/TylModel.h"
#include "preview/Gallery.h"

#include <functional>
#include <map>
#include <memory>
#include <string>

namespace conversions {

/// What a strict symbol loses, and the symbol that does not.
struct SymbolLoss {
    std::string text;                                                          // for people, as UTF-8
    std::function<std::shared_ptr<TylModel::SymbolDefinition>()> makeFaithful; // which may come to null
};

/// For people, as UTF-8.
struct Captions {
    std::string title; // of a page with all of them; empty where they come from no file of a name
    /// Of symbols that hold none.
    std::map<const TylModel::SymbolDefinition*, std::string> descriptions;
    /// The files that symbols come from, where these are several.
    std::map<const TylModel::SymbolDefinition*, std::string> sources;
    /// Of strict symbols that are measured and not right.
    std::map<const TylModel::SymbolDefinition*, SymbolLoss> losses;
    /// Of glyphs of fonts that are drawn as a line of text has them.
    std::map<const TylModel::SymbolDefinition*, preview::GlyphFacts> glyphs;
};

} // namespace conversions
