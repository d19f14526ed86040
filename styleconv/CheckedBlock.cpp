#include "styleconv/CheckedBlock.h"

#include "StyleConversion/block/FirstReference.h"
#include "StyleConversion/block/Opened.h"
#include "StyleConversion/block/SplineSampling.h"
#include "styleconv/Messages.h"

#include <algorithm>
#include <initializer_list>
#include <utility>

namespace styleconv {
namespace {

std::string Counted(std::size_t count) {
    return count == 1 ? "1 entity" : std::to_string(count) + " entities";
}

bool IsAnyOf(const OxDbEntity& entity, std::initializer_list<const OxRxClass*> classes) {
    return std::any_of(classes.begin(), classes.end(),
                       [&](const OxRxClass* wanted) { return entity.isKindOf(wanted); });
}

// Whether a conversion has a way to draw it.
bool IsDrawn(const OxDbEntity& entity) {
    return IsAnyOf(entity, {OxDbPoint::desc(), OxDbLine::desc(), OxDbPolyline::desc(), OxDbSpline::desc(),
                            OxDbArc::desc(), OxDbCircle::desc(), OxDbEllipse::desc(), OxDbHatch::desc(),
                            OxDbMPolygon::desc(), OxDbText::desc(), OxDbMText::desc()});
}

// Whether it is drawn in the dashes of its linetype.
bool HasDashes(const OxDbEntity& entity) {
    return IsAnyOf(entity, {OxDbLine::desc(), OxDbPolyline::desc(), OxDbSpline::desc(), OxDbArc::desc(),
                            OxDbCircle::desc()});
}

std::wstring LayerOf(const OxDbEntity& entity) {
    const block::LayerName layer(entity);
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

std::string ItemOf(const OxDbBlockTableRecord& record) {
    const wchar_t* name = nullptr;
    return "block " + (record.getName(name) == Oxsys::eOk && name != nullptr ? Shown(name) : std::string());
}

BlockCheck::BlockCheck(std::string file, const drawing::Database& drawing, ShapeSearch& search,
                       const std::vector<std::wstring>& layersToIgnore)
    : file_(std::move(file)), drawing_(drawing), dashShapes_(drawing, search),
      layersToIgnore_(layersToIgnore.begin(), layersToIgnore.end()) {}

void BlockCheck::Check(const OxDbBlockTableRecord& record, std::vector<Finding>& findings) {
    isConverted_ = false;
    Count(record);
    const std::string item = ItemOf(record);
    for (const auto& [kind, count] : counts_) {
        const auto& [severity, isLoss, what] = kind;
        findings.push_back({file_, 0, severity, Counted(count) + " " + what, item});
    }
    if (hasColorByBlock_ && IsNeverInserted(record)) {
        findings.push_back({file_, 0, Severity::kWarning,
                            "it has colours by block, but nothing inserts it: there is no colour to take",
                            item});
    }
}

void BlockCheck::AddLosses(const OxDbBlockTableRecord& record, std::vector<Finding>& findings) {
    isConverted_ = true;
    Count(record);
    for (const auto& [kind, count] : counts_) {
        const auto& [severity, isLoss, what] = kind;
        if (isLoss) {
            findings.push_back({file_, 0, Severity::kWarning, Counted(count) + " " + what, ItemOf(record)});
        }
    }
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
            Surprise(true, "will not be drawn: not named in the draw order of the block");
        } else {
            CountEntity(*entity);
        }
    }
}

void BlockCheck::CountEntity(OxDbEntity& entity) {
    if (!layersToIgnore_.empty()) {
        const std::wstring layer = LayerOf(entity);
        if (layersToIgnore_.contains(layer)) {
            Surprise(false, "on the ignored layer " + Shown(layer) + " will not be drawn");
            return;
        }
    }
    if (!IsDrawn(entity)) {
        Surprise(true, "of the class " + Shown(entity.isA()->name()) + " will not be drawn");
        return;
    }
    hasColorByBlock_ = hasColorByBlock_ || entity.color().isByBlock();
    if (entity.isKindOf(OxDbHatch::desc())) {
        CountHatch(static_cast<OxDbHatch&>(entity));
    } else if (entity.isKindOf(OxDbSpline::desc()) &&
               block::SampleSpline(static_cast<const OxDbSpline&>(entity)).isEmpty()) {
        Lose("(spline) will not be drawn: its data make no curve");
    } else if (entity.isKindOf(OxDbText::desc())) {
        CountTextStyle(static_cast<const OxDbText&>(entity).textStyle());
    } else if (entity.isKindOf(OxDbMText::desc())) {
        CountTextStyle(static_cast<const OxDbMText&>(entity).textStyle());
    } else if (HasDashes(entity)) {
        CountLinetype(entity);
    }
}

void BlockCheck::CountHatch(OxDbHatch& hatch) {
    if (hatch.isSolidFill()) {
        if (hatch.numLoops() == 0) {
            Lose("(hatch) will not be drawn: it has no boundary");
        }
        return;
    }
    // A conversion may have evaluated it.
    const Oxsys::ErrorStatus status = hatch.numHatchLines() > 0 ? Oxsys::eOk : hatch.evaluateHatch(true);
    const std::string most = std::to_string(drawing_.MostHatchLines());
    if (status == Oxsys::eTooManyHatchLines && isConverted_) {
        Lose("(hatch) will not be drawn: it has more than " + most + " lines");
    } else if (status == Oxsys::eTooManyHatchLines) {
        Surprise(true, "(hatch) has more than " + most +
                           " lines: a conversion may end at the limit of time or memory");
    } else if (status == Oxsys::eNotApplicable) {
        Lose("(hatch) will not be drawn: it is not solid and has no pattern");
    } else if (status != Oxsys::eOk) {
        Lose("(hatch) will not be drawn: its lines cannot be worked out");
    } else if (hatch.numHatchLines() == 0) {
        Surprise(true, "(hatch) will not be drawn: no line of its pattern lies inside its boundary");
    }
}

void BlockCheck::CountLinetype(const OxDbEntity& entity) {
    const OxDbObjectId id = entity.linetypeId();
    block::Opened<OxDbLinetypeTableRecord> linetype;
    if (linetype.Accept(oxdbOpenOxDbObject(linetype.Receive(), id, OxDb::kForRead))) {
        for (const std::string& lack : dashShapes_.LacksOf(*linetype)) {
            Lose("will be drawn without " + lack);
        }
        return;
    }
    const std::wstring* const name = drawing_.MissingName(id);
    Lose("will be drawn without dashes: the drawing has no linetype " +
         (name != nullptr ? Shown(*name) : std::string()));
}

void BlockCheck::CountTextStyle(OxDbObjectId styleId) {
    block::Opened<OxDbTextStyleTableRecord> style;
    if (styleId.isNull() || style.Accept(oxdbOpenOxDbObject(style.Receive(), styleId, OxDb::kForRead))) {
        return;
    }
    const std::wstring* const name = drawing_.MissingName(styleId);
    Lose("(text) will be written without a font of its own: the drawing has no text style " +
         (name != nullptr ? Shown(*name) : std::string()));
}

} // namespace styleconv
