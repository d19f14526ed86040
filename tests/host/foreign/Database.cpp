// Plays back a recorded drawing.
#include "OxDb/OxDb.h"

#include "ForeignNames.h"
#include "tests/host/RecordedDrawing.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <cwchar>
#include <functional>
#include <map>
#include <set>
#include <utility>

const OxGeTolerance OxGeContext::gTol;

namespace {

using Oxsys::ErrorStatus;

long iterators = 0;
std::uint64_t lastOpened = 0;
std::set<const wchar_t*> texts;
// What is open, by a number given at each opening.
std::map<std::uint64_t, OxDbObject*> openObjects;
OxDbHostApplicationServices* services = nullptr;

[[noreturn]] void Break(const char* law) {
    std::fprintf(stderr, "foreign database: %s\n", law);
    std::abort();
}

const OxClass kObject{"Object", nullptr};
const OxClass kEntity{"Entity", &kObject};
const OxClass kPoint{"Point", &kEntity};
const OxClass kLine{"Line", &kEntity};
const OxClass kArc{"Arc", &kEntity};
const OxClass kCircle{"Circle", &kEntity};
const OxClass kEllipse{"Ellipse", &kEntity};
const OxClass kPolyline{"Polyline", &kEntity};
const OxClass kSpline{"Spline", &kEntity};
const OxClass kHatch{"Hatch", &kEntity};
const OxClass kMPolygon{"MPolygon", &kEntity};
const OxClass kText{"Text", &kEntity};
const OxClass kAttributeDefinition{"AttributeDefinition", &kText};
const OxClass kMText{"MText", &kEntity};
const OxClass kBlockReference{"BlockReference", &kEntity};
const OxClass kOther{"Other", &kEntity};
const OxClass kRecord{"Record", &kObject};
const OxClass kLayerRecord{"LayerRecord", &kRecord};
const OxClass kBlockRecord{"BlockRecord", &kRecord};
const OxClass kLinetypeRecord{"LinetypeRecord", &kRecord};
const OxClass kStyleRecord{"StyleRecord", &kRecord};

// Ids: what they name in the upper half, its place and one more in the lower one.
enum class Named : std::uint64_t { kEntityOfBlock = 1, kLinetype, kStyle };
OxDbObjectId IdOf(Named what, std::int64_t place, std::uint64_t block = 0) {
    return {place == 0
                ? 0
                : static_cast<std::uint64_t>(what) << 60U | block << 32U | static_cast<std::uint64_t>(place)};
}

template <class T>
ErrorStatus Give(T*& opened, T* object, const OxClass& kind) {
    std::unique_ptr<T> owned(object);
    object->number = ++lastOpened;
    object->kind = &kind;
    openObjects[object->number] = object;
    opened = owned.release();
    return Oxsys::eOk;
}

// Left behind by failing calls: nothing that may be touched.
template <class T>
ErrorStatus Refuse(T*& opened) {
    opened = reinterpret_cast<T*>(std::uintptr_t{8});
    return ErrorStatus::notFound;
}

OxGePoint3d Point3(const std::vector<double>& numbers, std::size_t place) {
    OxGePoint3d point;
    point.x = numbers.at(place);
    point.y = numbers.at(place + 1);
    point.z = numbers.at(place + 2);
    return point;
}

OxGeVector3d Vector3(const std::vector<double>& numbers, std::size_t place) {
    return {numbers.at(place), numbers.at(place + 1), numbers.at(place + 2)};
}

void Fill(OxArray<OxGePoint2d>& points, const std::vector<double>& numbers) {
    for (std::size_t i = 0; i + 1 < numbers.size(); i += 2) {
        points.Push(host::Point(numbers[i], numbers[i + 1]));
    }
}

wchar_t* CopyOf(const std::wstring& text) {
    auto* const copy = new wchar_t[text.size() + 1];
    std::wmemcpy(copy, text.c_str(), text.size() + 1);
    return copy;
}

RecordedDrawing* currentDrawing = nullptr; // that ids refer to: the one whose tables were opened last

template <class Class>
OxDbEntity* Make() {
    return new Class;
}

struct EntityClass {
    const OxClass* kind;
    OxDbEntity* (*make)();
};

const EntityClass& ClassOf(const std::wstring& kind) {
    static const std::map<std::wstring, EntityClass> classes = {
        {L"Point", {&kPoint, Make<OxDbPoint>}},
        {L"Line", {&kLine, Make<OxDbLine>}},
        {L"Arc", {&kArc, Make<OxDbArc>}},
        {L"Circle", {&kCircle, Make<OxDbCircle>}},
        {L"Ellipse", {&kEllipse, Make<OxDbEllipse>}},
        {L"Polyline", {&kPolyline, Make<OxDbPolyline>}},
        {L"Spline", {&kSpline, Make<OxDbSpline>}},
        {L"Hatch", {&kHatch, Make<OxDbHatch>}},
        {L"MPolygon", {&kMPolygon, Make<OxDbMPolygon>}},
        {L"Text", {&kText, Make<OxDbText>}},
        {L"AttributeDefinition", {&kAttributeDefinition, Make<OxDbAttributeDefinition>}},
        {L"MText", {&kMText, Make<OxDbMText>}},
        {L"BlockReference", {&kBlockReference, Make<OxDbBlockReference>}},
        {L"Other", {&kOther, Make<OxDbEntity>}},
    };
    return classes.at(kind);
}

OxDbEntity* OpenEntity(const RecordedEntity& recorded, RecordedDrawing* drawing) {
    const EntityClass& made = ClassOf(recorded.kind);
    OxDbEntity* const entity = made.make();
    entity->recorded = &recorded;
    entity->drawing = drawing;
    OxDbEntity* opened = nullptr;
    Give(opened, entity, *made.kind);
    return opened;
}

const std::vector<double>& Numbers(const OxDbEntity& entity) {
    return entity.recorded->numbers;
}

} // namespace

OxDbObject::OxDbObject() = default;
OxDbObject::~OxDbObject() = default;
ErrorStatus OxDbObject::close() {
    if (openObjects.erase(number) != 1) {
        Break("closed what is not open");
    }
    delete this;
    return ErrorStatus::notFound; // which nobody may mind
}
OxBool OxDbObject::isKindOf(const OxClass& wanted) {
    for (const OxClass* at = kind; at != nullptr; at = at->parent) {
        if (at == &wanted) {
            return 256; // as true as any other
        }
    }
    return 0;
}
long OxDbObject::CountOpen() {
    return static_cast<long>(openObjects.size());
}

const OxClass& OxDbEntity::desc() {
    return kEntity;
}
const OxClass& OxDbPoint::desc() {
    return kPoint;
}
const OxClass& OxDbLine::desc() {
    return kLine;
}
const OxClass& OxDbArc::desc() {
    return kArc;
}
const OxClass& OxDbCircle::desc() {
    return kCircle;
}
const OxClass& OxDbEllipse::desc() {
    return kEllipse;
}
const OxClass& OxDbPolyline::desc() {
    return kPolyline;
}
const OxClass& OxDbSpline::desc() {
    return kSpline;
}
const OxClass& OxDbHatch::desc() {
    return kHatch;
}
const OxClass& OxDbMPolygon::desc() {
    return kMPolygon;
}
const OxClass& OxDbText::desc() {
    return kText;
}
const OxClass& OxDbAttributeDefinition::desc() {
    return kAttributeDefinition;
}
const OxClass& OxDbMText::desc() {
    return kMText;
}
const OxClass& OxDbBlockReference::desc() {
    return kBlockReference;
}
const OxClass& OxDbLayerTableRecord::desc() {
    return kLayerRecord;
}
const OxClass& OxDbBlockTableRecord::desc() {
    return kBlockRecord;
}
const OxClass& OxDbLinetypeTableRecord::desc() {
    return kLinetypeRecord;
}
const OxClass& OxDbTextStyleTableRecord::desc() {
    return kStyleRecord;
}

// ---- Entities ----

wchar_t* OxDbEntity::layer() {
    std::unique_ptr<wchar_t[]> copy(CopyOf(recorded->layer));
    texts.insert(copy.get());
    return copy.release();
}
void oxutDelBuffer(wchar_t*& buffer) {
    texts.erase(buffer); // others are file names and typefaces
    delete[] buffer;
    buffer = nullptr;
}
long CountTexts() {
    return static_cast<long>(texts.size());
}

OxCmColor OxDbEntity::color() {
    return OxCmColor(recorded->color);
}
OxDb::LineWeight OxDbEntity::lineWeight() {
    return recorded->lineWeight;
}
OxDbObjectId OxDbEntity::linetypeId() {
    return IdOf(Named::kLinetype, recorded->linetype);
}

OxGePoint3d OxDbPoint::position() {
    return Point3(Numbers(*this), 0);
}
OxGePoint3d OxDbLine::startPoint() {
    return Point3(Numbers(*this), 0);
}
OxGePoint3d OxDbLine::endPoint() {
    return Point3(Numbers(*this), 3);
}
double OxDbArc::radius() {
    return Numbers(*this).at(3);
}
OxGePoint3d OxDbArc::center() {
    return Point3(Numbers(*this), 0);
}
OxGeVector3d OxDbArc::normal() {
    return Vector3(Numbers(*this), 4);
}
double OxDbArc::parameter(bool atEnd) {
    return Numbers(*this).at(atEnd ? 8 : 7);
}
OxGePoint3d OxDbArc::point(bool atEnd) {
    return Point3(Numbers(*this), atEnd ? 12 : 9);
}
double OxDbCircle::radius() {
    return Numbers(*this).at(3);
}
OxGePoint3d OxDbCircle::center() {
    return Point3(Numbers(*this), 0);
}
OxGePoint3d OxDbEllipse::center() {
    return Point3(Numbers(*this), 0);
}
OxGeVector3d OxDbEllipse::majorAxis() {
    return Vector3(Numbers(*this), 3);
}
OxGeVector3d OxDbEllipse::minorAxis() {
    return Vector3(Numbers(*this), 6);
}
double OxDbEllipse::startAngle() {
    return Numbers(*this).at(9);
}
double OxDbEllipse::endAngle() {
    return Numbers(*this).at(10);
}
OxGePoint3d OxDbEllipse::from() {
    return Point3(Numbers(*this), 11);
}
OxGePoint3d OxDbEllipse::to() {
    return Point3(Numbers(*this), 14);
}
OxBool OxDbEllipse::wholeEllipse() {
    return static_cast<OxBool>(Numbers(*this).at(17));
}

// Numbers: how many vertices, closed, continuous linetype. Loops: the segments. One that was made free of any
// drawing has its vertices as numbers of the first loop instead.
OxDbPolyline::OxDbPolyline() : own_(new RecordedEntity) {
    kind = &kPolyline;
    own_->layer = L"0";
    own_->numbers = {0, 0, 0};
    recorded = own_.get();
}
OxDbPolyline::~OxDbPolyline() = default;
int OxDbPolyline::numVerts() {
    return static_cast<int>(Numbers(*this).at(0));
}
OxBool OxDbPolyline::isClosed() {
    return static_cast<OxBool>(Numbers(*this).at(1));
}
OxBool OxDbPolyline::hasPlinegen() {
    return static_cast<OxBool>(Numbers(*this).at(2));
}
unsigned char OxDbPolyline::segType(int index) {
    return static_cast<unsigned char>(recorded->loops.at(static_cast<std::size_t>(index)).kind);
}
ErrorStatus OxDbPolyline::getLineSegAt(int index, OxGeLineSeg2d& segment) {
    const RecordedLoop& read = recorded->loops.at(static_cast<std::size_t>(index));
    if (read.numbers.size() != 4) {
        return ErrorStatus::notFound;
    }
    segment.start = host::Point(read.numbers[0], read.numbers[1]);
    segment.end = host::Point(read.numbers[2], read.numbers[3]);
    return Oxsys::eOk;
}
ErrorStatus OxDbPolyline::getArcSegAt(int index, OxGeCircArc3d& segment) {
    const std::vector<double>& numbers = recorded->loops.at(static_cast<std::size_t>(index)).numbers;
    if (numbers.size() != 15) {
        return ErrorStatus::notFound;
    }
    segment.start_ = Point3(numbers, 0);
    segment.end_ = Point3(numbers, 3);
    segment.center_ = Point3(numbers, 6);
    segment.normal_ = Vector3(numbers, 9);
    segment.radius_ = numbers[12];
    segment.startAngle_ = numbers[13];
    segment.endAngle_ = numbers[14];
    return Oxsys::eOk;
}
ErrorStatus OxDbPolyline::addVertexAt(int index, const OxGePoint2d& point, double bulge, double startWidth,
                                      double endWidth) {
    if (index != numVerts() || bulge != 0.0 || startWidth != -1.0 || endWidth != -1.0) {
        Break("a vertex that is no sample of a spline");
    }
    // The segment that it ends, and an empty one behind it.
    if (!own_->loops.empty()) {
        std::vector<double>& last = own_->loops.back().numbers;
        const bool same = last[0] == point.x && last[1] == point.y;
        last.insert(last.end(), {point.x, point.y});
        own_->loops.back().kind = same ? 2 : 0;
    }
    own_->loops.push_back({3, {point.x, point.y}, {}, {}});
    own_->numbers[0] += 1;
    return Oxsys::eOk;
}
ErrorStatus OxDbPolyline::setColor(OxCmColor color) {
    own_->color = static_cast<RecordedColor>(color.packed());
    return Oxsys::eOk;
}
ErrorStatus OxDbPolyline::setLineWeight(OxDb::LineWeight weight) {
    own_->lineWeight = weight;
    return Oxsys::eOk;
}
ErrorStatus OxDbPolyline::setLinetype(OxDbObjectId linetype) {
    own_->linetype = static_cast<std::int64_t>(linetype.number & 0xffffffffU);
    return Oxsys::eOk;
}
void OxDbPolyline::setPlinegen(OxBool value) {
    own_->numbers[2] = value;
}

// Numbers: by fit points; readable; tangents exist, rational, closed, periodic; degree; how many points,
// knots and weights; two tangents; then those points, knots and weights; at the end the box and the interval.
OxBool OxDbSpline::hasFitData() {
    host::LastSpline() = recorded;
    return static_cast<OxBool>(Numbers(*this).at(0));
}
namespace {
std::size_t FillSpline(const std::vector<double>& numbers, OxArray<OxGePoint3d>& points) {
    const auto count = static_cast<std::size_t>(numbers.at(7));
    for (std::size_t i = 0; i < count; ++i) {
        points.Push(Point3(numbers, 16 + 3 * i));
    }
    return 16 + 3 * count;
}
} // namespace
bool host::ReadFitData(OxDbSpline& spline, FitData& data) {
    const std::vector<double>& numbers = Numbers(spline);
    data.tangentsExist = numbers.at(2) != 0;
    data.startTangent = Vector3(numbers, 10);
    data.endTangent = Vector3(numbers, 13);
    FillSpline(numbers, data.points);
    return numbers.at(1) != 0;
}
bool host::ReadNurbsData(OxDbSpline& spline, NurbsData& data) {
    const std::vector<double>& numbers = Numbers(spline);
    data.rational = numbers.at(3) != 0;
    data.closed = numbers.at(4) != 0;
    data.periodic = numbers.at(5) != 0;
    data.degree = static_cast<int>(numbers.at(6));
    std::size_t place = FillSpline(numbers, data.controlPoints);
    for (int i = 0; i < static_cast<int>(numbers.at(8)); ++i) {
        data.knots.Push(numbers.at(place++));
    }
    for (int i = 0; i < static_cast<int>(numbers.at(9)); ++i) {
        data.weights.Push(numbers.at(place++));
    }
    return numbers.at(1) != 0;
}
OxGeBoundBlock2d OxGeNurbCurve2d::boundBlock() {
    const std::vector<double>& numbers = spline_.numbers;
    const std::size_t box = numbers.size() - 6;
    OxGeBoundBlock2d block;
    block.low = host::Point(numbers.at(box), numbers.at(box + 1));
    block.high = host::Point(numbers.at(box + 2), numbers.at(box + 3));
    return block;
}
void OxGeNurbCurve2d::getInterval(OxGeInterval* interval, double /*tolerance*/) {
    const std::vector<double>& numbers = spline_.numbers;
    interval->ends[0] = numbers.at(numbers.size() - 2);
    interval->ends[1] = numbers.at(numbers.size() - 1);
}
void OxGeNurbCurve2d::getSamplePoints(double /*from*/, double /*to*/, double tolerance,
                                      OxArray<OxGePoint2d>& points, OxArray<double>& /*parameters*/) {
    for (const RecordedSamples& samples : spline_.samples) {
        if (samples.tolerance == tolerance) {
            Fill(points, samples.points);
            return;
        }
    }
    Break("asked for samples that were not recorded");
}

// Numbers: solid, and then the hatch lines, or none when they cannot be worked out.
OxBool OxDbHatch::isSolidFill() {
    return static_cast<OxBool>(Numbers(*this).at(0));
}
int OxDbHatch::numLoops() {
    return static_cast<int>(recorded->loops.size());
}
ErrorStatus OxDbHatch::getLoopAt(int index, long& /*type*/, OxArray<std::shared_ptr<OxGeCurve2d>>& edges,
                                 OxArray<OxGeEntity2d::Kind>& /*kinds*/) {
    const RecordedLoop& loop = recorded->loops.at(static_cast<std::size_t>(index));
    if (loop.kind != 1) {
        return ErrorStatus::notFound;
    }
    for (const RecordedLoop& read : loop.edges) {
        const std::vector<double>& numbers = read.numbers;
        const auto kindOfEdge = static_cast<OxGeEntity2d::Kind>(read.kind);
        std::shared_ptr<OxGeCurve2d> edge;
        if (kindOfEdge == OxGeEntity2d::Kind::Line) {
            edge = std::make_shared<OxGeLineSeg2d>();
        } else if (kindOfEdge == OxGeEntity2d::Kind::Spline) {
            edges.Push(std::make_shared<OxGeCurve2d>(kindOfEdge));
            continue;
        } else {
            std::shared_ptr<OxGeCircArc2d> arc;
            if (kindOfEdge == OxGeEntity2d::Kind::Circle) {
                arc = std::make_shared<OxGeCircArc2d>();
            } else {
                arc = std::make_shared<OxGeEllipArc2d>();
            }
            arc->center_ = host::Point(numbers.at(4), numbers.at(5));
            arc->first_ = numbers.at(6);
            arc->second_ = numbers.at(7);
            arc->startAngle_ = numbers.at(8);
            arc->endAngle_ = numbers.at(9);
            arc->clockwise_ = static_cast<OxBool>(numbers.at(10));
            arc->closed = static_cast<OxBool>(numbers.at(11));
            edge = arc;
        }
        edge->start = host::Point(numbers.at(0), numbers.at(1));
        edge->end = host::Point(numbers.at(2), numbers.at(3));
        edges.Push(edge);
    }
    return Oxsys::eOk;
}
ErrorStatus OxDbHatch::getLoopAt(int index, long& /*type*/, OxArray<OxGePoint2d>& vertices,
                                 OxArray<double>& bulges) {
    const RecordedLoop& loop = recorded->loops.at(static_cast<std::size_t>(index));
    if (loop.kind != 2) {
        return ErrorStatus::notFound;
    }
    Fill(vertices, loop.numbers);
    for (const double bulge : loop.bulges) {
        bulges.Push(bulge);
    }
    return Oxsys::eOk;
}
ErrorStatus OxDbHatch::evaluateHatch(OxBool underestimate) {
    return underestimate != 0 && Numbers(*this).size() > 1 ? Oxsys::eOk : ErrorStatus::notFound;
}
int OxDbHatch::numHatchLines() {
    return static_cast<int>((Numbers(*this).size() - 1) / 4);
}
ErrorStatus OxDbHatch::getHatchLineDataAt(int index, OxGePoint2d& start, OxGePoint2d& end) {
    const std::size_t place = 1 + 4 * static_cast<std::size_t>(index);
    start = host::Point(Numbers(*this).at(place), Numbers(*this).at(place + 1));
    end = host::Point(Numbers(*this).at(place + 2), Numbers(*this).at(place + 3));
    return Oxsys::eOk;
}

unsigned short OxDbMPolygon::loops() {
    return static_cast<unsigned short>(recorded->loops.size());
}
bool OxDbMPolygon::loop(unsigned short index, OxArray<OxGePoint2d>* vertices, OxArray<double>* bulges) {
    const RecordedLoop& read = recorded->loops.at(index);
    Fill(*vertices, read.numbers);
    for (const double bulge : read.bulges) {
        bulges->Push(bulge);
    }
    return read.kind == 2;
}
OxCmColor OxDbMPolygon::inside() {
    return OxCmColor(recorded->fillColor);
}

OxDbObjectId OxDbText::textStyle() {
    return IdOf(Named::kStyle, recorded->style);
}
double OxDbText::height() {
    return Numbers(*this).at(0);
}
double OxDbText::rotation() {
    return Numbers(*this).at(1);
}
OxGePoint3d OxDbText::position() {
    return Point3(Numbers(*this), 2);
}
short OxDbText::horizontalMode() {
    return static_cast<short>(Numbers(*this).at(5));
}
short OxDbText::verticalMode() {
    return static_cast<short>(Numbers(*this).at(6));
}
const wchar_t* OxDbText::textStringConst() {
    return recorded->texts.at(0).c_str();
}
const wchar_t* OxDbAttributeDefinition::tagConst() {
    return recorded->texts.at(1).c_str();
}
const wchar_t* OxDbAttributeDefinition::promptConst() {
    return recorded->texts.at(2).c_str();
}
OxDbObjectId OxDbMText::textStyle() {
    return IdOf(Named::kStyle, recorded->style);
}
double OxDbMText::textHeight() {
    return Numbers(*this).at(0);
}
double OxDbMText::rotation() {
    return Numbers(*this).at(1);
}
OxGePoint3d OxDbMText::location() {
    return Point3(Numbers(*this), 2);
}
double OxDbMText::actualWidth() {
    return Numbers(*this).at(5);
}
double OxDbMText::actualHeight() {
    return Numbers(*this).at(6);
}
const wchar_t* OxDbMText::contents() {
    return recorded->texts.at(0).c_str();
}

// ---- Records ----

ErrorStatus OxDbSymbolTableRecord::getName(const wchar_t*& text) {
    text = name;
    return Oxsys::eOk;
}
OxCmColor OxDbLayerTableRecord::color() {
    return OxCmColor(recorded->color);
}
OxDb::LineWeight OxDbLayerTableRecord::lineWeight() {
    return recorded->lineWeight;
}

double OxDbLinetypeTableRecord::patternLength() {
    return recorded->patternLength;
}
unsigned int OxDbLinetypeTableRecord::numDashes() {
    return static_cast<unsigned int>(recorded->dashes.size());
}
double OxDbLinetypeTableRecord::dashLengthAt(unsigned int index) {
    return index < numDashes() ? recorded->dashes[index].length : 0.0;
}
OxDbObjectId OxDbLinetypeTableRecord::shapeStyleAt(unsigned int index) {
    return IdOf(Named::kStyle, recorded->dashes.at(index).style);
}
unsigned short OxDbLinetypeTableRecord::shapeNumberAt(unsigned int index) {
    return static_cast<unsigned short>(recorded->dashes.at(index).shapeNumber);
}
OxGeVector2d OxDbLinetypeTableRecord::shapeOffsetAt(unsigned int index) {
    return host::Vector(recorded->dashes.at(index).placing.at(0), recorded->dashes.at(index).placing.at(1));
}
double OxDbLinetypeTableRecord::shapeScaleAt(unsigned int index) {
    return recorded->dashes.at(index).placing.at(2);
}
double OxDbLinetypeTableRecord::shapeRotationAt(unsigned int index) {
    return recorded->dashes.at(index).placing.at(3);
}
ErrorStatus OxDbLinetypeTableRecord::textAt(unsigned int index, const wchar_t*& text) {
    const RecordedDash& dash = recorded->dashes.at(index);
    text = dash.text.c_str();
    return dash.hasText != 0 ? Oxsys::eOk : ErrorStatus::notFound;
}

ErrorStatus OxDbTextStyleTableRecord::fileName(wchar_t*& name_) {
    name_ = CopyOf(recorded->fileName);
    return Oxsys::eOk;
}
ErrorStatus OxDbTextStyleTableRecord::bigFontFileName(wchar_t*& name_) {
    name_ = CopyOf(L"");
    return Oxsys::eOk;
}
ErrorStatus OxDbTextStyleTableRecord::font(wchar_t*& typeface, bool& bold, bool& italic,
                                           unsigned char& charset, long& pitch) {
    typeface = CopyOf(recorded->typeface);
    bold = recorded->bold != 0;
    italic = recorded->italic != 0;
    charset = 0;
    pitch = 0;
    return Oxsys::eOk;
}
unsigned char OxDbTextStyleTableRecord::flagBits() {
    return 0;
}
OxBool OxDbTextStyleTableRecord::isShapeFile() {
    return 0;
}
OxBool OxDbTextStyleTableRecord::isVertical() {
    return 0;
}
double OxDbTextStyleTableRecord::textSize() {
    return recorded->sizes.at(0);
}
double OxDbTextStyleTableRecord::xScale() {
    return recorded->sizes.at(1);
}
double OxDbTextStyleTableRecord::obliquingAngle() {
    return recorded->sizes.at(2);
}

// ---- Tables and ways through them ----

Counting::Counting() {
    ++iterators;
}
Counting::~Counting() {
    --iterators;
}
long Counting::Living() {
    return iterators;
}
void Counting::start(bool atBeginning, bool skipErased) {
    if (!atBeginning || !skipErased) {
        Break("an iterator is started at its end");
    }
    place = 0;
}
void Counting::step(bool forward, bool skipErased) {
    place += forward && skipErased ? 1 : 2;
}
OxDbBlockReferenceIdIterator::~OxDbBlockReferenceIdIterator() = default;

namespace {

// The entity of that place; its id has the place of its block, too.
OxDbEntity* OpenEntityAt(RecordedDrawing* drawing, std::size_t block, std::size_t place) {
    return OpenEntity(drawing->blocks.at(block).entities.at(place), drawing);
}

ErrorStatus OpenBlock(OxDbBlockTableRecord*& record, RecordedDrawing* drawing, RecordedBlock& block) {
    auto* const made = new OxDbBlockTableRecord;
    made->recorded = &block;
    made->drawing = drawing;
    made->name = block.name.c_str();
    return Give(record, made, kBlockRecord);
}

} // namespace

OxBool OxDbBlockTableRecord::isLayout() {
    return recorded->isLayout;
}
OxBool OxDbBlockTableRecord::isAnonymous() {
    return recorded->isAnonymous;
}
OxDb::UnitsValue OxDbBlockTableRecord::blockInsertUnits() {
    return static_cast<OxDb::UnitsValue>(recorded->units);
}
ErrorStatus OxDbBlockTableRecord::getSortentsTable(OxDbSortentsTable*& table, OxDb::OpenMode /*mode*/,
                                                   bool create) {
    if (recorded->drawOrder.empty() || create) {
        return Refuse(table);
    }
    auto* const made = new OxDbSortentsTable;
    made->recorded = recorded;
    made->drawing = drawing;
    return Give(table, made, kObject);
}
ErrorStatus OxDbSortentsTable::getFullDrawOrder(OxArray<OxDbObjectId>& ids, unsigned char /*honourMask*/) {
    const auto block = static_cast<std::uint64_t>(recorded - drawing->blocks.data());
    for (const std::int64_t place : recorded->drawOrder) {
        ids.Push(IdOf(Named::kEntityOfBlock, place + 1, block));
    }
    return Oxsys::eOk;
}
ErrorStatus OxDbBlockTableRecord::newIterator(OxDbBlockTableRecordIterator*& iterator, bool /*atBeginning*/,
                                              bool /*skipErased*/) {
    iterator = new OxDbBlockTableRecordIterator;
    iterator->recorded = recorded;
    iterator->drawing = drawing;
    iterator->end = recorded->entities.size();
    return Oxsys::eOk;
}
ErrorStatus OxDbBlockTableRecordIterator::getEntity(OxDbEntity*& entity, OxDb::OpenMode /*mode*/,
                                                    bool /*erased*/) {
    entity = OpenEntity(recorded->entities.at(place), drawing);
    return Oxsys::eOk;
}
ErrorStatus OxDbBlockTableRecord::newBlockReferenceIdIterator(OxDbBlockReferenceIdIterator*& iterator) {
    iterator = new OxDbBlockReferenceIdIterator;
    iterator->recorded = recorded;
    iterator->drawing = drawing;
    return Oxsys::eOk;
}
ErrorStatus OxDbBlockReferenceIdIterator::getBlockReference(OxDbBlockReference*& reference,
                                                            OxDb::OpenMode /*mode*/, bool /*erased*/) {
    if (recorded->reference.empty()) {
        return Refuse(reference);
    }
    reference = static_cast<OxDbBlockReference*>(OpenEntity(recorded->reference.front(), drawing));
    return Oxsys::eOk;
}
ErrorStatus OxDbBlockTableIterator::getRecord(OxDbBlockTableRecord*& record, OxDb::OpenMode /*mode*/,
                                              bool /*erased*/) {
    return OpenBlock(record, drawing, drawing->blocks.at(place));
}
ErrorStatus OxDbBlockTable::getAt(const wchar_t* name, OxDbBlockTableRecord*& record, OxDb::OpenMode /*mode*/,
                                  bool /*erased*/) {
    for (RecordedBlock& block : drawing->blocks) {
        if (block.name == name) {
            return OpenBlock(record, drawing, block);
        }
    }
    return Refuse(record);
}
ErrorStatus OxDbBlockTable::newIterator(OxDbBlockTableIterator*& iterator, bool /*atBeginning*/,
                                        bool /*skipErased*/) {
    iterator = new OxDbBlockTableIterator;
    iterator->drawing = drawing;
    iterator->end = drawing->blocks.size();
    return Oxsys::eOk;
}
ErrorStatus OxDbLayerTable::getAt(const wchar_t* name, OxDbLayerTableRecord*& record, OxDb::OpenMode /*mode*/,
                                  bool /*erased*/) {
    const auto found = drawing->layers.find(name);
    if (found == drawing->layers.end()) {
        return Refuse(record);
    }
    auto* const made = new OxDbLayerTableRecord;
    made->recorded = &found->second;
    made->name = found->second.name.c_str();
    return Give(record, made, kLayerRecord);
}
ErrorStatus OxDbTextStyleTable::getAt(const wchar_t* name, OxDbTextStyleTableRecord*& record,
                                      OxDb::OpenMode /*mode*/, bool /*erased*/) {
    for (const RecordedStyle& style : drawing->styles) {
        if (style.name == name) {
            auto* const made = new OxDbTextStyleTableRecord;
            made->recorded = &style;
            return Give(record, made, kStyleRecord);
        }
    }
    return Refuse(record);
}

ErrorStatus OxDbDatabase::getSymbolTable(OxDbBlockTable*& table, OxDb::OpenMode /*mode*/) {
    currentDrawing = drawing;
    auto* const made = new OxDbBlockTable;
    made->drawing = drawing;
    return Give(table, made, kObject);
}
ErrorStatus OxDbDatabase::getSymbolTable(OxDbLayerTable*& table, OxDb::OpenMode /*mode*/) {
    auto* const made = new OxDbLayerTable;
    made->drawing = drawing;
    return Give(table, made, kObject);
}
ErrorStatus OxDbDatabase::getSymbolTable(OxDbTextStyleTable*& table, OxDb::OpenMode /*mode*/) {
    auto* const made = new OxDbTextStyleTable;
    made->drawing = drawing;
    return Give(table, made, kObject);
}
OxDb::UnitsValue OxDbDatabase::insunits() {
    return static_cast<OxDb::UnitsValue>(drawing->units);
}

ErrorStatus oxdbOpenOxDbEntity(OxDbEntity*& entity, OxDbObjectId id, OxDb::OpenMode /*mode*/,
                               bool /*erased*/) {
    const std::uint64_t place = (id.number & 0xffffffffU) - 1;
    const std::uint64_t block = id.number >> 32U & 0xfffffffU;
    entity = OpenEntityAt(currentDrawing, block, place);
    return Oxsys::eOk;
}
ErrorStatus oxdbOpenOxDbObject(OxDbObject*& object, OxDbObjectId id, OxDb::OpenMode /*mode*/,
                               const OxClass& required, bool /*erased*/) {
    const std::uint64_t place = (id.number & 0xffffffffU) - 1;
    const auto what = static_cast<Named>(id.number >> 60U);
    if (what == Named::kLinetype && &required == &kLinetypeRecord) {
        auto* const made = new OxDbLinetypeTableRecord;
        made->recorded = &currentDrawing->linetypes.at(place);
        made->drawing = currentDrawing;
        return Give(object, static_cast<OxDbObject*>(made), kLinetypeRecord);
    }
    if (what == Named::kStyle && &required == &kStyleRecord) {
        auto* const made = new OxDbTextStyleTableRecord;
        made->recorded = &currentDrawing->styles.at(place);
        return Give(object, static_cast<OxDbObject*>(made), kStyleRecord);
    }
    return Refuse(object);
}

OxDbHostApplicationServices* oxdbHostApplicationServices() {
    return services;
}
void SetServices(OxDbHostApplicationServices* set) {
    services = set;
}
