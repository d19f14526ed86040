// What a polyline holds.
#pragma once

#include "OxDb/OxDbPolyline.h"
#include "drawing/database/Resident.h"
#include "drawing/geometry/BulgeVertex.h"

#include <memory>
#include <vector>

struct OxDbPolyline::Data {
    std::vector<geometry::BulgeVertex> vertices;
    bool closed = false;
    bool plinegen = false;
    // Of a free-standing polyline that was given any; one of a drawing has its own elsewhere.
    struct Drawn {
        OxCmColor color = drawing::EntityProperties::ByLayerColor();
        OxDb::LineWeight lineWeight = OxDb::kLnWtByLayer;
        OxDbObjectId linetypeId;
    };
    std::unique_ptr<Drawn> drawn;

    Drawn& OwnDrawn() {
        if (drawn == nullptr) {
            drawn = std::make_unique<Drawn>();
        }
        return *drawn;
    }
    Drawn DrawnOrDefault() const { return drawn ? *drawn : Drawn(); }

    std::size_t SegmentCount() const {
        return closed || vertices.empty() ? vertices.size() : vertices.size() - 1;
    }
    const OxGePoint2d& SegmentEnd(std::size_t index) const {
        return vertices[index + 1 < vertices.size() ? index + 1 : 0].point;
    }
};
