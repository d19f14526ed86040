// Copies of blocks as they are seen in the drawing.
#include "drawing/entities/BlockCopy.h"

#include "drawing/database/BlockReference.h"
#include "drawing/entities/EntityVisit.h"
#include "drawing/entities/PlacedEntities.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <numbers>

namespace drawing {
namespace {

const std::wstring kInheritingLayer = L"0";
const std::wstring kSolid = L"Continuous";

// Whether two words are the same but for the case of ASCII letters; the second has small ones.
bool IsWord(const std::wstring& text, std::wstring_view word) {
    return std::equal(text.begin(), text.end(), word.begin(), word.end(), [](wchar_t c, wchar_t small) {
        return (c >= L'A' && c <= L'Z' ? c + 32 : c) == small;
    });
}

class BlockCopier {
public:
    BlockCopier(Database& database, const BlockCopyOptions& options, BlockRecord& target,
                BlockCopyLosses& losses)
        : database_(database), options_(options), target_(target), losses_(losses) {}

    void CopyTop(const BlockRecord& block) {
        const OxGePoint3d base = block.Data().basePoint;
        const PlaneMap map = options_.startsAtBasePoint ? PlaneMap::Move(-base.x, -base.y) : PlaneMap();
        Copy(block, map, nullptr);
    }

private:
    // `insert`: the properties of the insert that the block is put by; null for the block that is copied.
    void Copy(const BlockRecord& block, const PlaneMap& map, const EntityProperties* insert) {
        path_.push_back(&block);
        const std::vector<OxDbObjectId>* const order = block.DrawOrder();
        const bool isOrdered = order != nullptr && !order->empty();
        const std::size_t count = isOrdered ? order->size() : block.EntityCount();
        for (std::size_t i = 0; i < count && !losses_.isCut; ++i) {
            CopyEntity(isOrdered ? (*order)[i] : block.EntityId(i), map, insert);
        }
        path_.pop_back();
    }

    void CopyEntity(OxDbObjectId entity, const PlaneMap& map, const EntityProperties* insert) {
        if (entity.stub()->erased || !Counts()) {
            return;
        }
        const EntityProperties properties = Inherited(PropertiesOf(entity), insert);
        const bool isExpanded = (options_.expandsInserts || ownBlocks_ > 0) &&
                                entity.stub()->object->isA() == OxDbBlockReference::desc();
        if (options_.leavesOutHidden && IsHidden(properties, isExpanded)) {
            ++losses_.hidden;
            return;
        }
        if (ownBlocks_ > 0 && entity.stub()->object->isA() == OxDbPoint::desc() &&
            IsWord(properties.layer, L"defpoints")) {
            return;
        }
        const EntityProperties drawn = options_.drawsDashes ? WithDashes(properties) : properties;
        if (options_.drawsOthers &&
            VisitEntity(entity, [&](const auto& itself) { return DrawShape(itself, map, drawn); })) {
            return;
        }
        if (isExpanded) {
            Expand(static_cast<const BlockReference&>(*entity.stub()->object), map, properties);
        } else if (insert == nullptr || entity.stub()->object->isA() != OxDbAttributeDefinition::desc()) {
            AddPlaced(target_, entity, drawn, map);
        }
    }

    // With the linetype that it is seen in: the layer's where it is by layer, in its scale.
    EntityProperties WithDashes(EntityProperties properties) {
        if (IsWord(properties.linetype, L"bylayer")) {
            const LayerRecord* const layer = database_.FindLayer(properties.layer);
            properties.linetype = layer != nullptr ? layer->Linetype() : kSolid;
        }
        properties.linetype =
            ScaledLinetype(properties.linetype, database_.LinetypeScale() * properties.linetypeScale);
        return properties;
    }

    // The name of a linetype that is that many times as long, which is added where there is none yet.
    std::wstring ScaledLinetype(const std::wstring& name, double scale) {
        const LinetypeRecord* const linetype = database_.FindLinetype(name);
        if (linetype == nullptr || linetype->Dashes().empty() || scale == 1.0 || !(scale > 0.0)) {
            return name;
        }
        std::vector<Dash> dashes = linetype->Dashes();
        for (Dash& dash : dashes) {
            dash.length *= scale;
            dash.scale *= scale;
            dash.offset = {dash.offset.x * scale, dash.offset.y * scale};
        }
        // No name of a file has that character.
        std::wstring scaled = name + L'\x1f' + std::to_wstring(std::bit_cast<std::uint64_t>(scale));
        database_.AddLinetype(scaled, std::move(dashes), linetype->patternLength() * scale);
        return scaled;
    }

    // False where the copy has come to its limit.
    bool Counts() {
        losses_.isCut = losses_.isCut || ++count_ > kMostCopiedEntities;
        return !losses_.isCut;
    }

    static EntityProperties Inherited(EntityProperties properties, const EntityProperties* insert) {
        if (insert == nullptr) {
            return properties;
        }
        if (properties.layer == kInheritingLayer) {
            properties.layer = insert->layer;
        }
        if (properties.color.isByBlock()) {
            properties.color = insert->color;
        }
        if (properties.lineWeight == OxDb::kLnWtByBlock) {
            properties.lineWeight = insert->lineWeight;
        }
        if (IsByBlock(properties.linetype)) {
            properties.linetype = insert->linetype;
        }
        return properties;
    }

    static bool IsByBlock(const std::wstring& linetype) { return IsWord(linetype, L"byblock"); }

    // False for what is drawn by copying it.
    template <class Entity>
    bool DrawShape(const Entity& /*entity*/, const PlaneMap& /*map*/,
                   const EntityProperties& /*properties*/) {
        return false;
    }
    bool DrawShape(const Polyline& polyline, const PlaneMap& map, const EntityProperties& properties) {
        if (polyline.Widths() == nullptr) {
            return false;
        }
        const std::vector<BulgeVertex>& vertices = polyline.Vertices();
        const std::vector<SegmentOutline> outlines =
            OutlinesOf(vertices, *polyline.Widths(), polyline.isClosed());
        for (std::size_t i = 0; i < outlines.size() && Counts(); ++i) {
            if (!outlines[i].empty()) {
                Fill(outlines[i], map, properties);
                continue;
            }
            const BulgeVertex end = {vertices[(i + 1) % vertices.size()].point, 0.0};
            AddPolyline({vertices[i], end}, map, properties);
        }
        ++losses_.filled[polyline.isA()->name()];
        return true;
    }
    bool DrawShape(const OtherEntity& other, const PlaneMap& map, const EntityProperties& properties) {
        const std::wstring name = other.isA()->name();
        if (const auto* const area = std::get_if<FilledCorners>(&other.Shape())) {
            ++losses_.filled[name];
            Fill(Straight(InPlane(area->corners)), map, properties);
            return true;
        }
        if (const auto* const own = std::get_if<OwnBlock>(&other.Shape())) {
            ++losses_.fromBlocks[name];
            DrawOwnBlock(*own, map, properties);
            return true;
        }
        if (const auto* const path = std::get_if<OpenPath>(&other.Shape())) {
            ++losses_.paths[name];
            AddPolyline(Straight(InPlane(path->points)), map, properties);
            return true;
        }
        return false;
    }

    static std::vector<OxGePoint2d> InPlane(const std::vector<OxGePoint3d>& points) {
        std::vector<OxGePoint2d> flat;
        flat.reserve(points.size());
        for (const OxGePoint3d& point : points) {
            flat.push_back({point.x, point.y});
        }
        return flat;
    }
    static std::vector<BulgeVertex> Straight(const std::vector<OxGePoint2d>& points) {
        std::vector<BulgeVertex> vertices;
        vertices.reserve(points.size());
        for (const OxGePoint2d& point : points) {
            vertices.push_back({point, 0.0});
        }
        return vertices;
    }
    void Fill(const std::vector<BulgeVertex>& outline, const PlaneMap& map,
              const EntityProperties& properties) {
        AddPlacedArea(target_, outline, properties, map);
    }
    void AddPolyline(const std::vector<BulgeVertex>& vertices, const PlaneMap& map,
                     const EntityProperties& properties) {
        AddPlacedPolyline(target_, vertices, properties, map);
    }

    void DrawOwnBlock(const OwnBlock& own, const PlaneMap& map, const EntityProperties& properties) {
        const BlockRecord* const block = FindToExpand(own.name);
        if (block == nullptr) {
            return;
        }
        ++ownBlocks_;
        Copy(*block, map.After(PlaneMap::Move(own.position.x, own.position.y)), &properties);
        --ownBlocks_;
    }

    // Null, which is counted, where there is none or it must not be drawn here.
    const BlockRecord* FindToExpand(const std::wstring& name) {
        const BlockRecord* const block = database_.FindBlock(name);
        if (block == nullptr) {
            losses_.missing.push_back(name);
            return nullptr;
        }
        if (path_.size() > kDeepestInsert || std::find(path_.begin(), path_.end(), block) != path_.end()) {
            ++losses_.recursive;
            return nullptr;
        }
        return block;
    }

    // What is inserted on a layer that is off is shown where it is on another one itself.
    bool IsHidden(const EntityProperties& properties, bool isExpanded) {
        if (properties.hidden) {
            return true;
        }
        const LayerRecord* const layer = database_.FindLayer(properties.layer);
        const LayerState state = layer != nullptr ? layer->State() : LayerState::kShown;
        return state == LayerState::kFrozen || (state == LayerState::kOff && !isExpanded);
    }

    void Expand(const BlockReference& insert, const PlaneMap& map, const EntityProperties& properties) {
        if (const BlockRecord* const block = FindToExpand(insert.BlockText())) {
            const InsertPlace& place = insert.Place();
            for (std::int32_t row = 0; row < std::max(place.rows, 1) && !losses_.isCut; ++row) {
                for (std::int32_t column = 0; column < std::max(place.columns, 1) && !losses_.isCut;
                     ++column) {
                    Copy(*block, map.After(MapOf(place, row, column, block->Data().basePoint)), &properties);
                    Counts();
                }
            }
        }
        for (const OxDbStub* const attribute : insert.Attributes()) {
            const OxDbObjectId id = attribute->object->objectId();
            CopyEntity(id, map, &properties);
        }
    }

    static PlaneMap MapOf(const InsertPlace& place, std::int32_t row, std::int32_t column,
                          const OxGePoint3d& base) {
        const PlaneMap own = PlaneMap::Move(place.position.x, place.position.y)
                                 .After(PlaneMap::Turn(place.rotation))
                                 .After(PlaneMap::Move(column * place.columnSpacing, row * place.rowSpacing))
                                 .After(PlaneMap::Scale(place.scaleX, place.scaleY))
                                 .After(PlaneMap::Move(-base.x, -base.y));
        return place.isMirrored ? PlaneMap::Scale(-1.0, 1.0).After(own) : own;
    }

    Database& database_;
    const BlockCopyOptions& options_;
    BlockRecord& target_;
    BlockCopyLosses& losses_;
    std::vector<const BlockRecord*> path_; // the block, and those inserted around this place
    std::size_t ownBlocks_ = 0;            // of other entities, around this place
    std::size_t count_ = 0;
};

} // namespace

std::unique_ptr<BlockRecord> CopyBlock(Database& database, const BlockRecord& block,
                                       const BlockCopyOptions& options, BlockCopyLosses& losses) {
    std::unique_ptr<BlockRecord> copy = database.MakeBlock();
    copy->Set(block.Name(), block.Data());
    losses = {};
    BlockCopier(database, options, *copy, losses).CopyTop(block);
    return copy;
}

} // namespace drawing
