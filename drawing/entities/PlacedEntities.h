// Copies of entities, put through a map of the plane.
#pragma once

#include "drawing/database/Blocks.h"
#include "drawing/entities/PlaneMap.h"
#include "drawing/geometry/BulgeVertex.h"

#include <vector>

namespace drawing {

/// Adds a copy of an entity of the same drawing to a block. Where circles do not stay circles, arcs become
/// arcs of ellipses, and arcs of polylines arcs along those to a millionth of their size. Texts keep their
/// letters upright and unmirrored. Inserts become entities of which only the type is known, "insert".
OXDB_API void AddPlaced(BlockRecord& block, OxDbObjectId entity, const EntityProperties& properties,
                        const PlaneMap& map);

/// Adds a polyline with those vertices, not closed, as a copy of one.
OXDB_API void AddPlacedPolyline(BlockRecord& block, const std::vector<geometry::BulgeVertex>& vertices,
                                const EntityProperties& properties, const PlaneMap& map);

/// Adds a solid hatch within that outline, as a copy of one.
OXDB_API void AddPlacedArea(BlockRecord& block, const std::vector<geometry::BulgeVertex>& outline,
                            const EntityProperties& properties, const PlaneMap& map);

/// What the entity was made with.
OXDB_API EntityProperties PropertiesOf(OxDbObjectId entity);

} // namespace drawing
