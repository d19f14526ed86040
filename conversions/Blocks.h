// The blocks of a drawing to point symbols.
#pragma once

#include "OxDb/OxDb.h"
#include "conversions/Conversion.h"
#include "drawing/entities/BlockCopy.h"

#include <optional>
#include <string>
#include <vector>

namespace conversions {

struct BlocksOptions {
    std::vector<std::wstring> names; // only these, in their order; all that are no layouts where it is empty
    std::vector<std::wstring> layersToIgnore;
    bool tolerant = false;
    bool modelSpace = false; // instead of blocks, as one symbol that is named after the file
    OxDb::UnitsValue units = OxDb::kUnitsUndefined; // of a drawing that has none
    drawing::BlockCopyOptions seenAs;               // what is converted of each block
    std::optional<OxCmColor> whiteAs;               // the colour in the place of colour 7
    encoding::Fidelity fidelity = encoding::Fidelity::kStrict;
};

/// All blocks in table order, or those asked for, and then all of them. A tolerant conversion skips what is
/// wrong, and needs one.
Conversion ConvertBlocks(const Input& input, const BlocksOptions& options, Front& front);

/// The names of the blocks that are converted where no names are given, in table order.
Listing ListBlocks(const Input& input);

} // namespace conversions
