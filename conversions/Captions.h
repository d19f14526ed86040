// What is said of symbols besides what they say themselves.
#pragma once

#include "TylModel/TylModel.h"

#include <map>
#include <string>

namespace conversions {

/// For people, as UTF-8.
struct Captions {
    std::string title; // of a page with all of them; empty where they come from no file of a name
    /// Of symbols that hold none.
    std::map<const TylModel::SymbolDefinition*, std::string> descriptions;
    /// The files that symbols come from, where these are several.
    std::map<const TylModel::SymbolDefinition*, std::string> sources;
};

} // namespace conversions
