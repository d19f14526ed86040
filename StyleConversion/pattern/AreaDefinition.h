// The parts that every area symbol is put together from.
#pragma once

#include "TylModel/TylModel.h"

#include <memory>
#include <string>
#include <vector>

namespace pattern {

/// The texts of an area usage. The angle is that of the tile, in degrees beside HATCHANGLE; empty for none.
struct UsageTexts {
    std::wstring angle;
    std::wstring repeatX;
    std::wstring repeatY;
};

using Definitions = std::vector<std::unique_ptr<TylModel::SimpleSymbolDefinition>>;

/// A symbol with its usage and the parameters HATCHCOLOR and HATCHANGLE, without a path.
std::unique_ptr<TylModel::SimpleSymbolDefinition> MakeDefinition(const std::wstring& name,
                                                                 const UsageTexts& usage);

/// Adds a path of the colour HATCHCOLOR.
void AdoptPath(TylModel::SimpleSymbolDefinition& definition, const std::wstring& geometry);

/// The only definition, or a compound of several; null for none. The definitions are taken.
std::unique_ptr<TylModel::SymbolDefinition> Joined(const std::wstring& name, Definitions& definitions);

} // namespace pattern
