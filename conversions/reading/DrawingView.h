// What of a drawing is converted, and how it is seen, where its user asks for more than what is required.
#pragma once

#include "OxDb/OxDb.h"
#include "diagnostics/Diagnostic.h"
#include "drawing/database/Database.h"
#include "drawing/entities/BlockCopy.h"

#include <memory>
#include <optional>
#include <string>

namespace conversions {

struct DrawingView {
    bool modelSpace = false; // instead of blocks, as one symbol that is named after the file
    OxDb::UnitsValue units = OxDb::kUnitsUndefined; // of a drawing that has none
    drawing::BlockCopyOptions seenAs;               // what is seen of each block
    std::optional<OxCmColor> whiteAs;               // the colour in the place of colour 7
};

/// Gives the drawing that was read its unit and the colour; what was said of a missing unit is taken back.
void SetUnitAndColor(const DrawingView& view, drawing::Database& drawing,
                     diagnostics::Diagnostics& diagnostics);

/// Whether blocks are converted from copies.
bool ChangesBlocks(const DrawingView& view);

/// The block as it is seen; what cannot be drawn, and what is drawn although conversions leave it out
/// otherwise, is said. Null, which is said, where it comes to too much. `file` is what messages call the
/// drawing.
std::unique_ptr<drawing::BlockRecord> CopyAsSeen(const DrawingView& view, const std::string& file,
                                                 drawing::Database& drawing,
                                                 const drawing::BlockRecord& block,
                                                 diagnostics::Diagnostics& diagnostics);

/// "block TREE"
std::string ItemOf(const OxDbBlockTableRecord& record);

} // namespace conversions
