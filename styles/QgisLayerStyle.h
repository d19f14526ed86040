// One symbol as a layer style file of QGIS: all features of the layer that takes it have that symbol.
#pragma once

#include "TylModel/TylModel.h"
#include "styles/Loss.h"
#include "styles/QgisLibrary.h"

#include <string>

namespace styles {

/// The file's UTF-8 text. What it does not say of the symbol is added to the losses.
std::string QgisLayerStyle(TylModel::SymbolDefinition& symbol, const QgisOptions& options, Losses& losses);

} // namespace styles
