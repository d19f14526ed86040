// The documents of what a target converted.
#pragma once

#include "TylModel/TylModel.h"
#include "drawing/database/Database.h"

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace fuzzing {

using Symbols = std::vector<std::unique_ptr<TylModel::SymbolDefinition>>;

/// Takes the symbols over; a null pointer holds none.
Symbols Owned(std::vector<TylModel::SymbolDefinition*>* symbols);

/// The symbols of all blocks that the drawing lists. Requires that there is one for each, and that all that
/// was opened for them is closed.
Symbols ConvertBlocks(drawing::Database& database);

/// The symbols document.
std::string TextOf(const Symbols& symbols);

/// Requires that the text is JSON.
void RequireJson(const std::string& text);

/// Requires that the text is a JSON document with so many symbols.
void RequireDocument(const std::string& text, std::size_t symbolCount);

} // namespace fuzzing
