#include "StyleConversion/block/EntityClass.h"

namespace block {
namespace {

// The place of the first class that the entity is of; how many there are when it is of none.
template <class... Classes>
int FirstOf(OxDbEntity& entity) {
    int index = 0;
    const auto is = [&](auto&& wanted) {
        const bool found = entity.isKindOf(wanted);
        index += found ? 0 : 1;
        return found;
    };
    static_cast<void>((is(Classes::desc()) || ...));
    return index;
}

} // namespace

EntityClass ClassOf(OxDbEntity& entity) {
    return static_cast<EntityClass>(
        FirstOf<OxDbPoint, OxDbLine, OxDbPolyline, OxDbSpline, OxDbArc, OxDbCircle, OxDbEllipse, OxDbHatch,
                OxDbMPolygon, OxDbText, OxDbMText>(entity));
}

bool HasDashes(EntityClass entityClass) {
    switch (entityClass) {
    case EntityClass::kLine:
    case EntityClass::kPolyline:
    case EntityClass::kSpline:
    case EntityClass::kArc:
    case EntityClass::kCircle:
        return true;
    default:
        return false;
    }
}

} // namespace block
