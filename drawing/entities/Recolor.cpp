// Another colour in the place of one of the palette.
#include "drawing/entities/Recolor.h"

#include "drawing/entities/EntityVisit.h"

#include <type_traits>

namespace drawing {
namespace {

class Recoloring {
public:
    Recoloring(const OxCmColor& from, const OxCmColor& to) : from_(from), to_(to) {}

    template <class Entity>
    void operator()(const Entity& entity) {
        // Nobody else has the drawing yet.
        auto& mine = const_cast<Entity&>(entity);
        if (mine.color() == from_) {
            mine.Recolor(to_);
        }
        if constexpr (std::is_same_v<Entity, MPolygon>) {
            if (mine.fillColor() == from_) {
                mine.RecolorFill(to_);
            }
        }
        if constexpr (std::is_same_v<Entity, BlockReference>) {
            for (const OxDbStub* const attribute : mine.Attributes()) {
                VisitEntity(attribute->object->objectId(), *this);
            }
        }
    }

private:
    OxCmColor from_;
    OxCmColor to_;
};

} // namespace

void ReplaceColor(Database& database, std::uint8_t index, const OxCmColor& color) {
    OxCmColor from;
    from.setColorIndex(index);
    for (LayerRecord* const layer : database.Layers()) {
        if (layer->color() == from) {
            layer->Recolor(color);
        }
    }
    Recoloring recoloring(from, color);
    for (BlockRecord* const block : database.Blocks()) {
        for (std::size_t i = 0; i < block->EntityCount(); ++i) {
            VisitEntity(block->EntityId(i), recoloring);
        }
    }
}

} // namespace drawing
