// Copies of blocks as they are seen in the drawing: with what is inserted, from another origin, without what
// is hidden.
#pragma once

#include "drawing/database/Database.h"

#include <cstddef>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace drawing {

/// How a block is copied. With nothing set, the copy draws as the block itself.
struct BlockCopyOptions {
    bool expandsInserts = false;
    bool startsAtBasePoint = false; ///< the base point becomes 0, 0
    bool leavesOutHidden = false;   ///< hidden entities, and layers that are off or frozen
    bool drawsOthers = false;       ///< widths of polylines, and the shapes of other entities
    bool drawsDashes = false;       ///< linetypes of layers, and the scales of the drawing and of entities
};

/// Inserts in inserted blocks may stand so deep.
inline constexpr std::size_t kDeepestInsert = 32;
/// How many entities and inserts an expanded block may come to.
inline constexpr std::size_t kMostCopiedEntities = 1000000;

/// What could not be expanded.
struct BlockCopyLosses {
    std::size_t recursive = 0;         ///< inserts of a block into itself, and deeper than kDeepestInsert
    std::vector<std::wstring> missing; ///< names of inserted blocks that the drawing does not have
    bool isCut = false;                ///< the copy came to kMostCopiedEntities, and ends there
    std::size_t hidden = 0;            ///< entities left out on purpose
    /// Entities of which the shape was drawn, by their class: hatches of filled corners and widths, copies of
    /// the entities of blocks, polylines.
    std::map<std::wstring, std::size_t> filled;
    std::map<std::wstring, std::size_t> fromBlocks;
    std::map<std::wstring, std::size_t> paths;

    bool operator==(const BlockCopyLosses&) const = default;
};

/// A block that is in no table, of the same name and properties, with copies of the entities in draw order.
/// It must not outlive the database. An inserted entity takes the insert's layer where its own is 0, and the
/// insert's colour, line weight and linetype where its own are by block. Definitions of attributes are not
/// drawn in inserted blocks; the inserts' attributes are. What stands in the block of another entity is drawn
/// with all that is inserted there, but for points of the layer "Defpoints", which no picture of a drawing
/// shows.
OXDB_API std::unique_ptr<BlockRecord> CopyBlock(Database& database, const BlockRecord& block,
                                                const BlockCopyOptions& options, BlockCopyLosses& losses);

} // namespace drawing
