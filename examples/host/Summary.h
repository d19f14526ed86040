// One line about a symbol, for people.
#pragma once

#include <TylModel/SymbolDefinition.h>

#include <string>

/// "VALVE: 7 graphics", or for a compound symbol "FENCE: 2 symbols with 3 graphics".
std::string Summary(TylModel::SymbolDefinition& symbol);
