#include "conversions/checking/BlockCheck.h"

#include "StyleConversion/block/EntityClass.h"
#include "StyleConversion/block/Opened.h"
#include "StyleConversion/block/SplineSampling.h"
#include "conversions/reading/Shown.h"
#include "drawing/entities/EntityVisit.h"
#include "drawing/entities/PlacedEntities.h"

#include <algorithm>
#include <type_traits>
#include <utility>

namespace conversions {
namespace {

using diagnostics::Code;
using diagnostics::Outcome;
using diagnostics::Severity;

std::wstring LayerOf(const OxDbEntity& entity) {
    const block::LayerName layer(const_cast<OxDbEntity&>(entity)); // which it does not change
    return layer.Get() != nullptr ? layer.Get() : L"";
}

bool IsNeverInserted(const OxDbBlockTableRecord& record) {
    OxDbBlockReferenceIdIterator* created = nullptr;
    const Oxsys::ErrorStatus status = record.newBlockReferenceIdIterator(created);
    const auto iterator = block::Accepted(status, created);
    if (iterator == nullptr) {
        return true;
    }
    iterator->start();
    return iterator->done();
}

// The ids of the draw-order table; none where the block has none.
OxDbObjectIdArray DrawOrder(const OxDbBlockTableRecord& record) {
    OxDbObjectIdArray ids;
    block::Opened<OxDbSortentsTable> order;
    // Nothing is created, so the record stays as it is.
    auto& mutableRecord = const_cast<OxDbBlockTableRecord&>(record);
    if (order.Accept(mutableRecord.getSortentsTable(order.Receive(), OxDb::kForRead, false))) {
        order->getFullDrawOrder(ids, 0);
    }
    return ids;
}

} // namespace

const drawing::BlockRecord* BlockCheck::BlockOf(const OxDbBlockTableRecord& record) const {
    const wchar_t* name = nullptr;
    return record.getName(name) == Oxsys::eOk && name != nullptr ? drawing_.FindBlock(name) : nullptr;
}

BlockCheck::BlockCheck(std::string file, const drawing::Database& drawing, DrawingShapeFiles& files,
                       const std::vector<std::wstring>& layersToIgnore)
    : file_(std::move(file)), drawing_(drawing), dashShapes_(drawing, files),
      layersToIgnore_(layersToIgnore.begin(), layersToIgnore.end()) {}

void BlockCheck::AddCounted(const Kind& kind, std::size_t count, Severity severity, const std::string& item,
                            diagnostics::Diagnostics& diagnostics) const {
    const auto& [itsSeverity, isLoss, loss, outcome] = kind;
    diagnostics::Place place;
    place.file = file_;
    place.item = item;
    diagnostics.push_back({severity, loss.code, std::move(place), loss.subjects, outcome, count});
}

void BlockCheck::Check(const OxDbBlockTableRecord& record, bool startsAtBasePoint,
                       diagnostics::Diagnostics& diagnostics) {
    isConverted_ = false;
    Count(record);
    const std::string item = ItemOf(record);
    for (const auto& [kind, count] : counts_) {
        AddCounted(kind, count, std::get<Severity>(kind), item, diagnostics);
    }
    const drawing::BlockRecord* const block = BlockOf(record);
    if (const OxGePoint3d base = block != nullptr ? block->Data().basePoint : OxGePoint3d();
        !startsAtBasePoint && (base.x != 0.0 || base.y != 0.0)) {
        constexpr double kParts = 1000.0;
        AddCounted({Severity::kWarning,
                    false,
                    {Code::kBasePoint, {RoundedText(base.x, kParts) + "," + RoundedText(base.y, kParts)}},
                    Outcome::kNone},
                   1, Severity::kWarning, item, diagnostics);
    }
    if (hasColorByBlock_ && IsNeverInserted(record)) {
        AddCounted({Severity::kWarning, false, {Code::kColorByBlock, {}}, Outcome::kNone}, 1,
                   Severity::kWarning, item, diagnostics);
    }
}

void BlockCheck::AddLosses(const OxDbBlockTableRecord& record, diagnostics::Diagnostics& diagnostics) {
    isConverted_ = true;
    Count(record);
    for (const auto& [kind, count] : counts_) {
        if (std::get<bool>(kind)) {
            AddCounted(kind, count, Severity::kWarning, ItemOf(record), diagnostics);
        }
    }
}

void BlockCheck::Lose(Code code, std::vector<std::string> subjects) {
    ++counts_[{Severity::kError, true, {code, std::move(subjects)}, Outcome::kNone}];
}

void BlockCheck::Surprise(bool isLoss, Code code, std::vector<std::string> subjects) {
    ++counts_[{Severity::kWarning, isLoss, {code, std::move(subjects)}, Outcome::kNone}];
}

void BlockCheck::Count(const OxDbBlockTableRecord& record) {
    counts_.clear();
    hasColorByBlock_ = false;
    const OxDbObjectIdArray order = DrawOrder(record);
    std::unordered_set<const OxDbStub*> ordered;
    for (const OxDbObjectId id : order) {
        ordered.insert(id.stub());
    }
    OxDbBlockTableRecordIterator* created = nullptr;
    const Oxsys::ErrorStatus status = record.newIterator(created, true, true);
    const auto iterator = block::Accepted(status, created);
    if (iterator == nullptr) {
        return;
    }
    for (iterator->start(true, true); !iterator->done(); iterator->step(true, true)) {
        block::Opened<OxDbEntity> entity;
        if (!entity.Accept(iterator->getEntity(entity.Receive(), OxDb::kForRead, false))) {
            continue;
        }
        if (!ordered.empty() && !ordered.contains(entity->objectId().stub())) {
            Surprise(true, Code::kNotInDrawOrder);
        } else {
            CountEntity(*entity);
        }
    }
}

void BlockCheck::CountEntity(OxDbEntity& entity) {
    if (!layersToIgnore_.empty()) {
        const std::wstring layer = LayerOf(entity);
        if (layersToIgnore_.contains(layer)) {
            Surprise(false, Code::kIgnoredLayer, {ShownText(layer)});
            return;
        }
    }
    const block::EntityClass entityClass = block::ClassOf(entity);
    if (entityClass == block::EntityClass::kNotDrawn) {
        CountNotDrawn(entity);
        return;
    }
    if (entityClass == block::EntityClass::kPolyline &&
        static_cast<const drawing::Polyline&>(entity).Widths() != nullptr) {
        Surprise(false, Code::kWidthNotDrawn);
    }
    if (block::HasDashes(entityClass) || entityClass == block::EntityClass::kSpline) {
        CompareDashes(entity);
    }
    if (IsHidden(entity)) {
        Surprise(false, Code::kHiddenEntity);
    }
    if (IsWhite(entity)) {
        ++counts_[{Severity::kNote, false, {Code::kDrawnWhite, {}}, Outcome::kNone}];
    }
    hasColorByBlock_ = hasColorByBlock_ || entity.color().isByBlock();
    if (entityClass == block::EntityClass::kHatch) {
        CountHatch(static_cast<OxDbHatch&>(entity));
    } else if (entityClass == block::EntityClass::kSpline &&
               block::SampleSpline(static_cast<OxDbSpline&>(entity)).empty()) {
        Lose(Code::kInvalidSpline);
    } else if (entityClass == block::EntityClass::kText) {
        CountTextStyle(static_cast<const OxDbText&>(entity).textStyle());
    } else if (entityClass == block::EntityClass::kMText) {
        CountTextStyle(static_cast<const OxDbMText&>(entity).textStyle());
    } else if (block::HasDashes(entityClass)) {
        CountLinetype(entity);
    }
}

void BlockCheck::CountNotDrawn(const OxDbEntity& entity) {
    if (entity.isA() == OxDbBlockReference::desc()) {
        Surprise(true, Code::kInsertNotDrawn);
        return;
    }
    const std::string className = ShownText(entity.isA()->name());
    const bool hasShape = drawing::VisitEntity(entity.objectId(), [](const auto& itself) {
        if constexpr (std::is_same_v<std::decay_t<decltype(itself)>, drawing::OtherEntity>) {
            return !std::holds_alternative<std::monostate>(itself.Shape());
        }
        return false;
    });
    Surprise(true, hasShape ? Code::kDrawnIfFaithful : Code::kUnsupportedClass, {className});
}

// What strict conversion does not know of: linetypes of layers, and scales.
void BlockCheck::CompareDashes(const OxDbEntity& entity) {
    const drawing::EntityProperties properties = drawing::PropertiesOf(entity.objectId());
    const drawing::LayerRecord* const layer = drawing_.FindLayer(properties.layer);
    const drawing::LinetypeRecord* const own = drawing_.FindLinetype(properties.linetype);
    const drawing::LinetypeRecord* const ofLayer =
        layer != nullptr && own == drawing_.FindLinetype(L"ByLayer")
            ? drawing_.FindLinetype(layer->Linetype())
            : nullptr;
    if (ofLayer != nullptr && !ofLayer->Dashes().empty()) {
        Surprise(false, Code::kOtherDashes, {"the linetypes of layers"});
    } else if (own != nullptr && !own->Dashes().empty() &&
               drawing_.LinetypeScale() * properties.linetypeScale != 1.0) {
        Surprise(false, Code::kOtherDashes, {"their scale"});
    }
}

bool BlockCheck::IsHidden(const OxDbEntity& entity) const {
    const drawing::LayerRecord* const layer = drawing_.FindLayer(LayerOf(entity));
    return entity.objectId().stub()->hidden ||
           (layer != nullptr && layer->State() != drawing::LayerState::kShown);
}

bool BlockCheck::IsWhite(const OxDbEntity& entity) const {
    OxCmColor white;
    white.setColorIndex(7);
    const drawing::LayerRecord* const layer =
        entity.color().isByLayer() ? drawing_.FindLayer(LayerOf(entity)) : nullptr;
    return (layer != nullptr ? layer->color() : entity.color()) == white;
}

void BlockCheck::CountHatch(OxDbHatch& hatch) {
    if (hatch.isSolidFill()) {
        if (hatch.numLoops() == 0) {
            Lose(Code::kHatchWithoutBoundary);
        }
        return;
    }
    // A conversion may have evaluated it.
    const Oxsys::ErrorStatus status = hatch.numHatchLines() > 0 ? Oxsys::eOk : hatch.evaluateHatch(true);
    if (status == Oxsys::eTooManyHatchLines) {
        const std::string most = std::to_string(drawing_.MostHatchLines());
        ++counts_[{isConverted_ ? Severity::kError : Severity::kWarning,
                   true,
                   {Code::kDenseHatch, {most}},
                   isConverted_ ? Outcome::kSkipped : Outcome::kNone}];
    } else if (status == Oxsys::eNotApplicable) {
        Lose(Code::kHatchWithoutPattern);
    } else if (status != Oxsys::eOk) {
        Lose(Code::kInvalidHatch);
    } else if (hatch.numHatchLines() == 0) {
        Surprise(true, Code::kEmptyHatch);
    }
}

void BlockCheck::CountLinetype(const OxDbEntity& entity) {
    const OxDbObjectId id = entity.linetypeId();
    block::Opened<OxDbLinetypeTableRecord> linetype;
    if (linetype.Accept(oxdbOpenOxDbObject(linetype.Receive(), id, OxDb::kForRead))) {
        for (const Loss& loss : dashShapes_.LossesOf(*linetype)) {
            Lose(loss.code, loss.subjects);
        }
        return;
    }
    const std::wstring* const name = drawing_.MissingName(id);
    Lose(Code::kMissingLinetype, {name != nullptr ? ShownText(*name) : std::string()});
}

void BlockCheck::CountTextStyle(OxDbObjectId styleId) {
    block::Opened<OxDbTextStyleTableRecord> style;
    if (styleId.isNull() || style.Accept(oxdbOpenOxDbObject(style.Receive(), styleId, OxDb::kForRead))) {
        return;
    }
    const std::wstring* const name = drawing_.MissingName(styleId);
    Lose(Code::kTextStyleNotInDrawing, {name != nullptr ? ShownText(*name) : std::string()});
}

} // namespace conversions
