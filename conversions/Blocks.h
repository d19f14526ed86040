// The blocks of a drawing to point symbols.
#pragma once

#include "conversions/Conversion.h"
#include "conversions/reading/DrawingView.h"

#include <string>
#include <vector>

namespace conversions {

struct BlocksOptions : DrawingView {
    std::vector<std::wstring> names; // only these, in their order; all that are no layouts where it is empty
    std::vector<std::wstring> layersToIgnore;
    bool tolerant = false;
    encoding::Fidelity fidelity = encoding::Fidelity::kStrict;
};

/// All blocks in table order, or those asked for, and then all of them. A tolerant conversion skips what is
/// wrong, and needs one.
Conversion ConvertBlocks(const Input& input, const BlocksOptions& options, Front& front);

/// The blocks that are converted where no names are given, in table order.
Listing ListBlocks(const Input& input, bool tolerant = false);

} // namespace conversions
