// Which classes of entities a block conversion draws.
#pragma once

#include "StyleConversion/interfaces/HostNames.h"

#include <cstdint>

namespace block {

/// In the order in which an entity is asked for them, which decides where one class derives from another.
enum class EntityClass : std::uint8_t {
    kPoint,
    kLine,
    kPolyline,
    kSpline,
    kArc,
    kCircle,
    kEllipse,
    kHatch,
    kMPolygon,
    kText,
    kMText,
    kNotDrawn,
};

/// The first class that the entity is of or derives from; kNotDrawn for every other (references to blocks,
/// dimensions, solids).
EntityClass ClassOf(OxDbEntity& entity);

/// Whether entities of that class are drawn in the dashes of their linetype.
bool HasDashes(EntityClass entityClass);

} // namespace block
