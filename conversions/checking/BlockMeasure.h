// How far the strict symbol of a block is from what the drawing shows, in numbers.
#pragma once

#include "TylModel/TylModel.h"
#include "conversions/checking/CutNumber.h"

#include <cstddef>
#include <optional>

namespace conversions {

struct BlockMeasure {
    std::size_t parts = 0;        // that the drawing shows
    std::size_t lost = 0;         // of these
    double share = 0.0;           // the farthest that something is from its place, of the block's larger side
    std::optional<CutNumber> cut; // the number that makes it so, where one does
    double scale = 1.0;           // how many times as large the drawing shows it
    bool isText = false;          // whether a text makes it so, by its codes or its place
};

/// Compares the strict and the faithful symbol of one block: paths by their points or, where they are built
/// otherwise, by points along each and their distances from the other; texts by the boxes that they take.
/// What is out of place by less than half of kWarningShare counts as in place.
BlockMeasure MeasureBlock(TylModel::SymbolDefinition& strict, TylModel::SymbolDefinition& faithful);

} // namespace conversions
