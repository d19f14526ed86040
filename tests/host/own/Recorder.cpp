#include "Recorder.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <stdexcept>
#include <utility>

namespace {

struct Close {
    void operator()(OxDbObject* object) const { object->close(); }
};
template <class T>
using Open = std::unique_ptr<T, Close>;

template <class T>
Open<T> OpenObject(OxDbObjectId id) {
    T* object = nullptr;
    return Open<T>(oxdbOpenOxDbObject(object, id, OxDb::kForRead) == Oxsys::eOk ? object : nullptr);
}

template <class Table>
Open<Table> TableOf(OxDbDatabase& database) {
    Table* table = nullptr;
    if (database.getSymbolTable(table, OxDb::kForRead) != Oxsys::eOk) {
        throw std::runtime_error("no table");
    }
    return Open<Table>(table);
}

std::wstring Taken(wchar_t* buffer) {
    const std::unique_ptr<wchar_t[]> owned(buffer);
    return buffer != nullptr ? buffer : L"";
}

RecordedColor ColorOf(const OxCmColor& color) {
    if (color.isByLayer() || color.isByBlock()) {
        return color.isByLayer() ? 0x1000000U : 0x2000000U;
    }
    return OxCmEntityColor::trueColor(color.entityColor());
}

void Add(std::vector<double>& numbers, const OxGePoint2d& point) {
    numbers.insert(numbers.end(), {point.x, point.y});
}
template <class Triple>
void Add3(std::vector<double>& numbers, const Triple& triple) {
    numbers.insert(numbers.end(), {triple.x, triple.y, triple.z});
}
template <class Array>
std::vector<double> Flat(const Array& points) {
    std::vector<double> numbers;
    for (const auto& point : points) {
        Add(numbers, point);
    }
    return numbers;
}
std::vector<double> Copied(const OxGeDoubleArray& array) {
    return {array.begin(), array.end()};
}

class Recorder {
public:
    explicit Recorder(OxDbDatabase& database) : database_(database) { drawing_.units = database.insunits(); }

    RecordedDrawing Take() { return std::move(drawing_); }

    void RecordStyle(const std::wstring& name) {
        const auto table = TableOf<OxDbTextStyleTable>(database_);
        OxDbTextStyleTableRecord* record = nullptr;
        if (table->getAt(name.c_str(), record, OxDb::kForRead) == Oxsys::eOk) {
            const Open<OxDbTextStyleTableRecord> style(record);
            StylePlace(style->objectId());
        }
    }

    void RecordBlocks() {
        const auto table = TableOf<OxDbBlockTable>(database_);
        OxDbBlockTableIterator* created = nullptr;
        table->newIterator(created);
        const std::unique_ptr<OxDbBlockTableIterator> iterator(created);
        for (; !iterator->done(); iterator->step()) {
            OxDbBlockTableRecord* record = nullptr;
            iterator->getRecord(record, OxDb::kForRead);
            const Open<OxDbBlockTableRecord> block(record);
            drawing_.blocks.push_back(RecordBlock(*block));
        }
    }

private:
    RecordedBlock RecordBlock(OxDbBlockTableRecord& block) {
        RecordedBlock recorded;
        const wchar_t* name = nullptr;
        block.getName(name);
        recorded.name = name;
        recorded.isLayout = block.isLayout();
        recorded.isAnonymous = block.isAnonymous();
        recorded.units = block.blockInsertUnits();
        std::vector<OxDbObjectId> ids;
        OxDbBlockTableRecordIterator* created = nullptr;
        block.newIterator(created);
        const std::unique_ptr<OxDbBlockTableRecordIterator> iterator(created);
        for (; !iterator->done(); iterator->step()) {
            OxDbEntity* opened = nullptr;
            iterator->getEntity(opened, OxDb::kForRead);
            const Open<OxDbEntity> entity(opened);
            ids.push_back(entity->objectId());
            recorded.entities.push_back(RecordEntity(*entity));
        }
        OxDbSortentsTable* sorted = nullptr;
        if (block.getSortentsTable(sorted, OxDb::kForRead) == Oxsys::eOk) {
            const Open<OxDbSortentsTable> order(sorted);
            OxDbObjectIdArray drawOrder;
            order->getFullDrawOrder(drawOrder);
            for (const OxDbObjectId id : drawOrder) {
                recorded.drawOrder.push_back(std::find(ids.begin(), ids.end(), id) - ids.begin());
            }
        }
        OxDbBlockReferenceIdIterator* references = nullptr;
        block.newBlockReferenceIdIterator(references);
        const std::unique_ptr<OxDbBlockReferenceIdIterator> inserts(references);
        OxDbBlockReference* reference = nullptr;
        if (inserts->getBlockReference(reference, OxDb::kForRead) == Oxsys::eOk) {
            const Open<OxDbBlockReference> first(reference);
            recorded.reference.push_back(RecordEntity(*first));
        }
        return recorded;
    }

    RecordedEntity RecordEntity(OxDbEntity& entity) {
        RecordedEntity recorded;
        wchar_t* layer = entity.layer();
        recorded.layer = layer;
        RecordLayer(layer);
        oxutDelBuffer(layer);
        RecordLayer(L"0"); // where the polylines that splines become stand
        recorded.color = ColorOf(entity.color());
        recorded.lineWeight = entity.lineWeight();
        recorded.linetype = LinetypePlace(entity.linetypeId());
        recorded.kind = L"Other";
        RecordAs<OxDbPoint>(entity, recorded, L"Point") || RecordAs<OxDbLine>(entity, recorded, L"Line") ||
            RecordAs<OxDbPolyline>(entity, recorded, L"Polyline") ||
            RecordAs<OxDbSpline>(entity, recorded, L"Spline") ||
            RecordAs<OxDbArc>(entity, recorded, L"Arc") ||
            RecordAs<OxDbCircle>(entity, recorded, L"Circle") ||
            RecordAs<OxDbEllipse>(entity, recorded, L"Ellipse") ||
            RecordAs<OxDbHatch>(entity, recorded, L"Hatch") ||
            RecordAs<OxDbMPolygon>(entity, recorded, L"MPolygon") ||
            RecordAs<OxDbAttributeDefinition>(entity, recorded, L"AttributeDefinition") ||
            RecordAs<OxDbText>(entity, recorded, L"Text") ||
            RecordAs<OxDbMText>(entity, recorded, L"MText") ||
            RecordAs<OxDbBlockReference>(entity, recorded, L"BlockReference");
        return recorded;
    }

    template <class Class>
    bool RecordAs(OxDbEntity& entity, RecordedEntity& recorded, const wchar_t* kind) {
        if (!entity.isKindOf(Class::desc())) {
            return false;
        }
        recorded.kind = kind;
        Record(static_cast<Class&>(entity), recorded);
        return true;
    }

    void Record(OxDbPoint& point, RecordedEntity& recorded) { Add3(recorded.numbers, point.position()); }
    void Record(OxDbLine& line, RecordedEntity& recorded) {
        Add3(recorded.numbers, line.startPoint());
        Add3(recorded.numbers, line.endPoint());
    }
    void Record(OxDbBlockReference& /*reference*/, RecordedEntity& /*recorded*/) {}
    void Record(OxDbArc& arc, RecordedEntity& recorded) {
        Add3(recorded.numbers, arc.center());
        recorded.numbers.push_back(arc.radius());
        Add3(recorded.numbers, arc.normal());
        double start = 0;
        double end = 0;
        OxGePoint3d first;
        OxGePoint3d last;
        arc.getStartParam(start);
        arc.getEndParam(end);
        arc.getPointAtParam(start, first);
        arc.getPointAtParam(end, last);
        recorded.numbers.insert(recorded.numbers.end(), {start, end});
        Add3(recorded.numbers, first);
        Add3(recorded.numbers, last);
    }
    void Record(OxDbCircle& circle, RecordedEntity& recorded) {
        Add3(recorded.numbers, circle.center());
        recorded.numbers.push_back(circle.radius());
    }
    void Record(OxDbEllipse& ellipse, RecordedEntity& recorded) {
        OxGePoint3d first;
        OxGePoint3d last;
        ellipse.getStartPoint(first);
        ellipse.getEndPoint(last);
        Add3(recorded.numbers, ellipse.center());
        Add3(recorded.numbers, ellipse.majorAxis());
        Add3(recorded.numbers, ellipse.minorAxis());
        recorded.numbers.insert(recorded.numbers.end(), {ellipse.startAngle(), ellipse.endAngle()});
        Add3(recorded.numbers, first);
        Add3(recorded.numbers, last);
        recorded.numbers.push_back(ellipse.isClosed() ? 1 : 0);
    }
    void Record(OxDbPolyline& polyline, RecordedEntity& recorded) {
        const unsigned int count = polyline.numVerts();
        recorded.numbers = {static_cast<double>(count), polyline.isClosed() ? 1.0 : 0.0,
                            polyline.hasPlinegen() ? 1.0 : 0.0};
        for (unsigned int i = 0; i < count; ++i) {
            RecordedLoop segment;
            segment.kind = polyline.segType(i);
            OxGeLineSeg2d line;
            OxGeCircArc3d arc;
            if (polyline.getLineSegAt(i, line) == Oxsys::eOk) {
                Add(segment.numbers, line.startPoint());
                Add(segment.numbers, line.endPoint());
            } else if (polyline.getArcSegAt(i, arc) == Oxsys::eOk) {
                Add3(segment.numbers, arc.startPoint());
                Add3(segment.numbers, arc.endPoint());
                Add3(segment.numbers, arc.center());
                Add3(segment.numbers, arc.normal());
                segment.numbers.insert(segment.numbers.end(), {arc.radius(), arc.startAng(), arc.endAng()});
            }
            recorded.loops.push_back(segment);
        }
    }
    void Record(OxDbHatch& hatch, RecordedEntity& recorded) {
        recorded.numbers.push_back(hatch.isSolidFill() ? 1 : 0);
        if (!hatch.isSolidFill() && hatch.evaluateHatch(true) == Oxsys::eOk) {
            for (int i = 0; i < hatch.numHatchLines(); ++i) {
                OxGePoint2d start;
                OxGePoint2d end;
                hatch.getHatchLineDataAt(i, start, end);
                Add(recorded.numbers, start);
                Add(recorded.numbers, end);
            }
        }
        for (int i = 0; i < hatch.numLoops(); ++i) {
            int type = 0;
            OxArray<const OxGeCurve2d*> edges;
            OxArray<int> types;
            RecordedLoop loop;
            if (hatch.getLoopAt(i, type, edges, types) == Oxsys::eOk) {
                loop.kind = 1;
                for (const OxGeCurve2d* const edge : edges) {
                    loop.edges.push_back(RecordEdge(*edge));
                }
            } else {
                OxGePoint2dArray vertices;
                OxGeDoubleArray bulges;
                loop.kind = hatch.getLoopAt(i, type, vertices, bulges) == Oxsys::eOk ? 2 : 0;
                loop.numbers = Flat(vertices);
                loop.bulges = Copied(bulges);
            }
            recorded.loops.push_back(loop);
        }
    }
    template <class Arc>
    static RecordedLoop RecordArc(int kind, const Arc& arc, double first, double second) {
        RecordedLoop recorded;
        recorded.kind = kind;
        Add(recorded.numbers, arc.startPoint());
        Add(recorded.numbers, arc.endPoint());
        Add(recorded.numbers, arc.center());
        recorded.numbers.insert(recorded.numbers.end(),
                                {first, second, arc.startAng(), arc.endAng(), arc.isClockWise() ? 1.0 : 0.0,
                                 arc.isClosed() ? 1.0 : 0.0});
        return recorded;
    }
    static RecordedLoop RecordEdge(const OxGeCurve2d& edge) {
        if (edge.isKindOf(OxGe::kCircArc2d)) {
            const auto& arc = static_cast<const OxGeCircArc2d&>(edge);
            return RecordArc(2, arc, arc.radius(), arc.radius());
        }
        if (edge.isKindOf(OxGe::kEllipArc2d)) {
            const auto& arc = static_cast<const OxGeEllipArc2d&>(edge);
            return RecordArc(3, arc, arc.majorRadius(), arc.minorRadius());
        }
        RecordedLoop recorded;
        recorded.kind = 4;
        if (edge.isKindOf(OxGe::kLineSeg2d)) {
            const auto& line = static_cast<const OxGeLineSeg2d&>(edge);
            recorded.kind = 1;
            Add(recorded.numbers, line.startPoint());
            Add(recorded.numbers, line.endPoint());
        }
        return recorded;
    }
    void Record(OxDbMPolygon& polygon, RecordedEntity& recorded) {
        recorded.fillColor = ColorOf(polygon.fillColor());
        for (int i = 0; i < polygon.numMPolygonLoops(); ++i) {
            OxGePoint2dArray vertices;
            OxGeDoubleArray bulges;
            RecordedLoop loop;
            loop.kind = polygon.getMPolygonLoopAt(i, vertices, bulges) == Oxsys::eOk ? 2 : 0;
            loop.numbers = Flat(vertices);
            loop.bulges = Copied(bulges);
            recorded.loops.push_back(loop);
        }
    }
    void Record(OxDbText& text, RecordedEntity& recorded) {
        recorded.style = StylePlace(text.textStyle());
        recorded.numbers = {text.height(), text.rotation()};
        Add3(recorded.numbers, text.position());
        recorded.numbers.insert(recorded.numbers.end(), {static_cast<double>(text.horizontalMode()),
                                                         static_cast<double>(text.verticalMode())});
        recorded.texts.push_back(text.textStringConst());
    }
    void Record(OxDbAttributeDefinition& text, RecordedEntity& recorded) {
        Record(static_cast<OxDbText&>(text), recorded);
        recorded.texts.push_back(text.tagConst());
        recorded.texts.push_back(text.promptConst());
    }
    void Record(OxDbMText& text, RecordedEntity& recorded) {
        recorded.style = StylePlace(text.textStyle());
        recorded.numbers = {text.textHeight(), text.rotation()};
        Add3(recorded.numbers, text.location());
        recorded.numbers.insert(recorded.numbers.end(), {text.actualWidth(), text.actualHeight()});
        recorded.texts.push_back(text.contents());
    }

    void Record(OxDbSpline& spline, RecordedEntity& recorded) {
        OxGePoint3dArray points;
        OxGeDoubleArray knots;
        OxGeDoubleArray weights;
        int degree = 0;
        bool tangents = false;
        bool rational = false;
        bool closed = false;
        bool periodic = false;
        double tolerance = 0;
        OxGeVector3d start;
        OxGeVector3d end;
        const bool readable =
            (spline.hasFitData() ? spline.getFitData(points, degree, tolerance, tangents, start, end)
                                 : spline.getNurbsData(degree, rational, closed, periodic, points, knots,
                                                       weights, tolerance, tolerance)) == Oxsys::eOk;
        recorded.numbers = {spline.hasFitData() ? 1.0 : 0.0,
                            readable ? 1.0 : 0.0,
                            tangents ? 1.0 : 0.0,
                            rational ? 1.0 : 0.0,
                            closed ? 1.0 : 0.0,
                            periodic ? 1.0 : 0.0,
                            static_cast<double>(degree),
                            static_cast<double>(points.length()),
                            static_cast<double>(knots.length()),
                            static_cast<double>(weights.length())};
        Add3(recorded.numbers, start);
        Add3(recorded.numbers, end);
        OxGePoint2dArray flat;
        for (const OxGePoint3d& point : points) {
            Add3(recorded.numbers, point);
            flat.append({point.x, point.y});
        }
        recorded.numbers.insert(recorded.numbers.end(), knots.begin(), knots.end());
        recorded.numbers.insert(recorded.numbers.end(), weights.begin(), weights.end());
        std::unique_ptr<OxGeNurbCurve2d> curve;
        if (spline.hasFitData()) {
            curve = tangents ? std::make_unique<OxGeNurbCurve2d>(flat, OxGeVector2d{start.x, start.y},
                                                                 OxGeVector2d{end.x, end.y})
                             : std::make_unique<OxGeNurbCurve2d>(flat);
        } else {
            const OxGeKnotVector vector(knots);
            curve = rational ? std::make_unique<OxGeNurbCurve2d>(degree, vector, flat, weights, periodic)
                             : std::make_unique<OxGeNurbCurve2d>(degree, vector, flat, periodic);
            if (closed) {
                curve->makeClosed();
            }
        }
        RecordCurve(*curve, points.length(), recorded);
    }

    // Samples for every tolerance that halving or doubling the first one can come to.
    static void RecordCurve(const OxGeNurbCurve2d& curve, int definingPoints, RecordedEntity& recorded) {
        OxGePoint2d low;
        OxGePoint2d high;
        curve.boundBlock().getMinMaxPoints(low, high);
        OxGeInterval interval(1e-12);
        curve.getInterval(interval);
        recorded.numbers.insert(recorded.numbers.end(),
                                {low.x, low.y, high.x, high.y, interval.lowerBound(), interval.upperBound()});
        double first = 0.001 * std::max(high.x - low.x, high.y - low.y);
        first = first == 0.0 ? 0.001 : first;
        const auto count = [&](double tolerance) {
            OxGePoint2dArray points;
            OxGeDoubleArray parameters;
            curve.getSamplePoints(interval.lowerBound(), interval.upperBound(), tolerance, points,
                                  parameters);
            recorded.samples.push_back({tolerance, Flat(points)});
            return points.length();
        };
        const int samples = count(first);
        for (double t = first; t > 1e-6; t *= 0.5) {
            if (count(t * 0.5) >= definingPoints) {
                break;
            }
        }
        int doubled = samples;
        for (double t = first; doubled > 1000 && t < 1.0; t *= 2.0) {
            doubled = count(t * 2.0);
        }
    }

    void RecordLayer(const wchar_t* name) {
        const auto table = TableOf<OxDbLayerTable>(database_);
        OxDbLayerTableRecord* record = nullptr;
        if (table->getAt(name, record, OxDb::kForRead) == Oxsys::eOk) {
            const Open<OxDbLayerTableRecord> layer(record);
            const wchar_t* spelling = nullptr;
            layer->getName(spelling);
            drawing_.layers[name] = {spelling, ColorOf(layer->color()), layer->lineWeight()};
        }
    }

    std::int64_t LinetypePlace(OxDbObjectId id) {
        const auto known = std::find(linetypeIds_.begin(), linetypeIds_.end(), id);
        if (known != linetypeIds_.end()) {
            return known - linetypeIds_.begin() + 1;
        }
        const Open<OxDbLinetypeTableRecord> linetype = OpenObject<OxDbLinetypeTableRecord>(id);
        if (linetype == nullptr) {
            return 0;
        }
        RecordedLinetype recorded;
        recorded.patternLength = linetype->patternLength();
        for (int i = 0; i < linetype->numDashes(); ++i) {
            RecordedDash dash;
            dash.length = linetype->dashLengthAt(i);
            dash.style = StylePlace(linetype->shapeStyleAt(i));
            dash.shapeNumber = linetype->shapeNumberAt(i);
            const OxGeVector2d offset = linetype->shapeOffsetAt(i);
            dash.placing = {offset.x, offset.y, linetype->shapeScaleAt(i), linetype->shapeRotationAt(i)};
            const wchar_t* text = nullptr;
            dash.hasText = linetype->textAt(i, text) == Oxsys::eOk && text != nullptr;
            dash.text = dash.hasText != 0 ? text : L"";
            recorded.dashes.push_back(dash);
        }
        linetypeIds_.push_back(id);
        drawing_.linetypes.push_back(recorded);
        return static_cast<std::int64_t>(linetypeIds_.size());
    }

    std::int64_t StylePlace(OxDbObjectId id) {
        const auto known = std::find(styleIds_.begin(), styleIds_.end(), id);
        if (known != styleIds_.end()) {
            return known - styleIds_.begin() + 1;
        }
        const Open<OxDbTextStyleTableRecord> style = OpenObject<OxDbTextStyleTableRecord>(id);
        if (style == nullptr) {
            return 0;
        }
        RecordedStyle recorded;
        const wchar_t* name = nullptr;
        style->getName(name);
        recorded.name = name;
        wchar_t* buffer = nullptr;
        style->fileName(buffer);
        recorded.fileName = Taken(buffer);
        bool bold = false;
        bool italic = false;
        std::int32_t characterSet = 0;
        std::int32_t pitch = 0;
        style->font(buffer, bold, italic, characterSet, pitch);
        recorded.typeface = Taken(buffer);
        recorded.bold = bold;
        recorded.italic = italic;
        recorded.sizes = {style->textSize(), style->xScale(), style->obliquingAngle()};
        styleIds_.push_back(id);
        drawing_.styles.push_back(recorded);
        return static_cast<std::int64_t>(styleIds_.size());
    }

    OxDbDatabase& database_;
    RecordedDrawing drawing_;
    std::vector<OxDbObjectId> linetypeIds_;
    std::vector<OxDbObjectId> styleIds_;
};

} // namespace

RecordedDrawing Record(OxDbDatabase& database, const std::vector<std::wstring>& styleNames) {
    Recorder recorder(database);
    for (const std::wstring& name : styleNames) {
        recorder.RecordStyle(name);
    }
    recorder.RecordBlocks();
    return recorder.Take();
}
