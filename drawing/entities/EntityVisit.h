// From an entity of a drawing in memory to its class.
#pragma once

#include "drawing/database/BlockReference.h"
#include "drawing/entities/Areas.h"
#include "drawing/entities/CurveEntities.h"
#include "drawing/entities/SimpleEntities.h"
#include "drawing/entities/Texts.h"

namespace drawing {

/// Calls `use` with the entity as what it is: a Line, a Hatch, an OtherEntity. The id is that of an entity of
/// this database in memory.
template <class Use>
decltype(auto) VisitEntity(OxDbObjectId id, Use&& use) {
    const OxDbObject& entity = *id.stub()->object;
    const OxRxClass* const itsClass = entity.isA();
    if (itsClass == OxDbLine::desc()) {
        return use(static_cast<const Line&>(entity));
    }
    if (itsClass == OxDbPolyline::desc()) {
        return use(static_cast<const Polyline&>(entity));
    }
    if (itsClass == OxDbArc::desc()) {
        return use(static_cast<const Arc&>(entity));
    }
    if (itsClass == OxDbCircle::desc()) {
        return use(static_cast<const Circle&>(entity));
    }
    if (itsClass == OxDbEllipse::desc()) {
        return use(static_cast<const Ellipse&>(entity));
    }
    if (itsClass == OxDbSpline::desc()) {
        return use(static_cast<const Spline&>(entity));
    }
    if (itsClass == OxDbPoint::desc()) {
        return use(static_cast<const Point&>(entity));
    }
    if (itsClass == OxDbHatch::desc()) {
        return use(static_cast<const Hatch&>(entity));
    }
    if (itsClass == OxDbMPolygon::desc()) {
        return use(static_cast<const MPolygon&>(entity));
    }
    if (itsClass == OxDbText::desc()) {
        return use(static_cast<const Text&>(entity));
    }
    if (itsClass == OxDbAttributeDefinition::desc()) {
        return use(static_cast<const AttributeDefinition&>(entity));
    }
    if (itsClass == OxDbMText::desc()) {
        return use(static_cast<const ParagraphText&>(entity));
    }
    if (itsClass == OxDbBlockReference::desc()) {
        return use(static_cast<const BlockReference&>(entity));
    }
    return use(static_cast<const OtherEntity&>(entity));
}

} // namespace drawing
