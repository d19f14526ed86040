// A drawing database of another making: it plays back a recorded drawing. Ids are numbers, modes and kinds
// are scoped enumerations, truth values are integers, arrays have an allocator, nothing is const that need
// not be, and a table counts what is open.
#pragma once

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

struct RecordedBlock;
struct RecordedDrawing;
struct RecordedEntity;
struct RecordedLayer;
struct RecordedLinetype;
struct RecordedLoop;
struct RecordedStyle;

typedef int OxBool;

namespace Oxsys {
enum class ErrorStatus : std::int32_t { ok, notFound = 4711 };
inline constexpr ErrorStatus eOk = ErrorStatus::ok;
} // namespace Oxsys

class OxDb {
public:
    enum class OpenMode { Read = 7 };
    enum class UnitsValue : unsigned char {};
    typedef int LineWeight;
};

template <class T, class Allocator = std::allocator<T>, std::size_t Grow = 8>
class OxArray {
public:
    OxArray() = default;
    OxArray(const OxArray&) = delete;
    OxArray& operator=(const OxArray&) = delete;
    std::size_t Length() { return elements_.size(); }
    T& Get(std::size_t place) { return elements_.at(place); }
    void Push(T element) { elements_.push_back(element); }

private:
    std::vector<T, Allocator> elements_;
};

struct OxDbObjectId {
    std::uint64_t number;
};

class OxGeVector2d {
public:
    OxGeVector2d() {}
    double x, y;
};

class OxGeVector3d {
public:
    OxGeVector3d() : x(0), y(0), z(0) {}
    OxGeVector3d(double a, double b, double c) : x(a), y(b), z(c) {}
    double length() { return std::sqrt(x * x + y * y + z * z); }
    double x, y, z;
};

struct OxGeTolerance {
    double points = 1e-10;
};

class OxGeContext {
public:
    static const OxGeTolerance gTol;
};

class OxGePoint2d {
public:
    OxGePoint2d() {}
    double distanceTo(const OxGePoint2d& other) {
        const double dx = other.x - x;
        const double dy = other.y - y;
        return std::sqrt(dx * dx + dy * dy);
    }
    OxBool isEqualTo(const OxGePoint2d& other, const OxGeTolerance& tolerance) {
        return distanceTo(other) <= tolerance.points;
    }
    double x, y;
};

class OxGePoint3d {
public:
    OxGePoint3d() : x(0), y(0), z(0) {}
    double x, y, z;
};

class OxGeEntity2d {
public:
    enum class Kind { Line = 1, Circle, Ellipse, Spline };
    explicit OxGeEntity2d(Kind kind) : kind_(kind) {}
    virtual ~OxGeEntity2d() {}
    OxBool isKindOf(Kind kind) { return kind == kind_; }

private:
    Kind kind_;
};

class OxGeCurve2d : public OxGeEntity2d {
public:
    using OxGeEntity2d::OxGeEntity2d;
    OxBool isClosed() { return closed; }
    OxGePoint2d startPoint() { return start; }
    OxGePoint2d endPoint() { return end; }
    OxBool closed = 0;
    OxGePoint2d start, end;
};

class OxGeLineSeg2d : public OxGeCurve2d {
public:
    OxGeLineSeg2d() : OxGeCurve2d(Kind::Line) {}
    float unused = 0;
    double length() { return start.distanceTo(end); }
};

class OxGeCircArc2d : public OxGeCurve2d {
public:
    explicit OxGeCircArc2d(Kind kind = Kind::Circle) : OxGeCurve2d(kind) {}
    OxGePoint2d center() { return center_; }
    double radius() { return first_; }
    double startAng() { return startAngle_; }
    double endAng() { return endAngle_; }
    OxBool isClockWise() { return clockwise_; }
    OxGePoint2d center_;
    double first_ = 0, second_ = 0, startAngle_ = 0, endAngle_ = 0;
    OxBool clockwise_ = 0;
};

class OxGeEllipArc2d : public OxGeCircArc2d {
public:
    OxGeEllipArc2d() : OxGeCircArc2d(Kind::Ellipse) {}
    double majorRadius() { return first_; }
    double minorRadius() { return second_; }
};

class OxGeCircArc3d {
public:
    OxGeCircArc3d() {}
    const OxGePoint3d& startPoint() { return start_; }
    const OxGePoint3d& endPoint() { return end_; }
    const OxGePoint3d& center() { return center_; }
    const OxGeVector3d& normal() { return normal_; }
    double radius() { return radius_; }
    double startAng() { return startAngle_; }
    double endAng() { return endAngle_; }
    OxGePoint3d start_, end_, center_;
    OxGeVector3d normal_;
    double radius_ = 0, startAngle_ = 0, endAngle_ = 0;
};

class OxGeBoundBlock2d {
public:
    void getMinMaxPoints(OxGePoint2d& minimum, OxGePoint2d& maximum) {
        minimum = low;
        maximum = high;
    }
    OxGePoint2d low, high;
};

class OxGeInterval {
public:
    double ends[2] = {0, 0};
};

class OxGeKnotVector {
public:
    double tolerance = 0;
    std::vector<double> knots;
};

/// Plays back the samples that were recorded for the spline whose data it is given.
class OxGeNurbCurve2d {
public:
    explicit OxGeNurbCurve2d(const RecordedEntity& spline) : spline_(spline) {}
    OxGeNurbCurve2d& makeClosed() { return *this; }
    OxGeBoundBlock2d boundBlock();
    void getInterval(OxGeInterval* interval, double tolerance);
    void getSamplePoints(double from, double to, double tolerance, OxArray<OxGePoint2d>& points,
                         OxArray<double>& parameters);

private:
    const RecordedEntity& spline_;
};

class OxCmColor {
public:
    explicit OxCmColor(std::uint32_t recorded) : recorded_(recorded) {}
    OxBool isByLayer() { return recorded_ >> 24U == 1; }
    OxBool isByBlock() { return recorded_ >> 24U == 2; }
    void setRGB(unsigned char red, unsigned char green, unsigned char blue) {
        recorded_ = static_cast<std::uint32_t>(red << 16 | green << 8 | blue);
    }
    unsigned long packed() { return recorded_; }

private:
    std::uint32_t recorded_; // red, green, blue; above them 1 for by layer and 2 for by block
};

class OxCmEntityColor {
public:
    static int trueColor(unsigned long packed) { return static_cast<int>(packed & 0xffffffUL); }
};

/// A class: its place in the order of the derivations.
struct OxClass {
    const char* name;
    const OxClass* parent;
};

class OxDbObject {
public:
    OxDbObject();
    virtual ~OxDbObject();
    OxDbObject(const OxDbObject&) = delete;
    [[nodiscard]] Oxsys::ErrorStatus close();
    OxBool isKindOf(const OxClass& wanted);
    OxDbObjectId id() { return {number}; }
    static OxDbObject* Opened(std::uint64_t number);
    static long CountOpen();

    std::uint64_t number = 0;
    const OxClass* kind = nullptr;
};

#define OX_DESC(base) static const OxClass& desc();

class OxDbEntity : public OxDbObject {
public:
    OX_DESC(OxDbObject)
    wchar_t* layer();
    OxCmColor color();
    OxDb::LineWeight lineWeight();
    OxDbObjectId linetypeId();
    const RecordedEntity* recorded = nullptr;
    RecordedDrawing* drawing = nullptr;
};

class OxDbPoint : public OxDbEntity {
public:
    OX_DESC(OxDbEntity)
    OxGePoint3d position();
};

class OxDbLine : public OxDbEntity {
public:
    OX_DESC(OxDbEntity)
    OxGePoint3d startPoint();
    OxGePoint3d endPoint();
};

class OxDbArc : public OxDbEntity {
public:
    OX_DESC(OxDbEntity)
    double radius();
    OxGePoint3d center();
    OxGeVector3d normal();
    double parameter(bool atEnd);
    OxGePoint3d point(bool atEnd);
};

class OxDbCircle : public OxDbEntity {
public:
    OX_DESC(OxDbEntity)
    double radius();
    OxGePoint3d center();
};

class OxDbEllipse : public OxDbEntity {
public:
    OX_DESC(OxDbEntity)
    OxGePoint3d center();
    OxGeVector3d majorAxis();
    OxGeVector3d minorAxis();
    double startAngle();
    double endAngle();
    OxGePoint3d from();
    OxGePoint3d to();
    OxBool wholeEllipse();
};

class OxDbPolyline : public OxDbEntity {
public:
    OxDbPolyline();
    ~OxDbPolyline() override;
    OX_DESC(OxDbEntity)
    int numVerts();
    unsigned char segType(int index);
    Oxsys::ErrorStatus getLineSegAt(int index, OxGeLineSeg2d& segment);
    Oxsys::ErrorStatus getArcSegAt(int index, OxGeCircArc3d& segment);
    OxBool isClosed();
    OxBool hasPlinegen();
    [[nodiscard]] Oxsys::ErrorStatus addVertexAt(int index, const OxGePoint2d& point, double bulge,
                                                 double startWidth, double endWidth);
    [[nodiscard]] Oxsys::ErrorStatus setColor(OxCmColor color);
    [[nodiscard]] Oxsys::ErrorStatus setLineWeight(OxDb::LineWeight weight);
    [[nodiscard]] Oxsys::ErrorStatus setLinetype(OxDbObjectId linetype);
    void setPlinegen(OxBool value);

private:
    std::unique_ptr<RecordedEntity> own_;
};

class OxDbSpline : public OxDbEntity {
public:
    OX_DESC(OxDbEntity)
    OxBool hasFitData();
};

class OxDbHatch : public OxDbEntity {
public:
    OX_DESC(OxDbEntity)
    OxBool isSolidFill();
    int numLoops();
    /// The edges belong to the caller.
    Oxsys::ErrorStatus getLoopAt(int index, long& type, OxArray<std::shared_ptr<OxGeCurve2d>>& edges,
                                 OxArray<OxGeEntity2d::Kind>& kinds);
    Oxsys::ErrorStatus getLoopAt(int index, long& type, OxArray<OxGePoint2d>& vertices,
                                 OxArray<double>& bulges);
    Oxsys::ErrorStatus evaluateHatch(OxBool underestimate);
    int numHatchLines();
    Oxsys::ErrorStatus getHatchLineDataAt(int index, OxGePoint2d& start, OxGePoint2d& end);
};

class OxDbMPolygon : public OxDbEntity {
public:
    OX_DESC(OxDbEntity)
    unsigned short loops();
    bool loop(unsigned short index, OxArray<OxGePoint2d>* vertices, OxArray<double>* bulges);
    OxCmColor inside();
};

class OxDbText : public OxDbEntity {
public:
    OX_DESC(OxDbEntity)
    OxDbObjectId textStyle();
    double height();
    double rotation();
    OxGePoint3d position();
    short horizontalMode();
    short verticalMode();
    const wchar_t* textStringConst();
};

class OxDbAttributeDefinition : public OxDbText {
public:
    OX_DESC(OxDbText)
    const wchar_t* tagConst();
    const wchar_t* promptConst();
};

class OxDbMText : public OxDbEntity {
public:
    OX_DESC(OxDbEntity)
    OxDbObjectId textStyle();
    double textHeight();
    double rotation();
    OxGePoint3d location();
    double actualWidth();
    double actualHeight();
    const wchar_t* contents();
};

class OxDbBlockReference : public OxDbEntity {
public:
    OX_DESC(OxDbEntity)
};

class OxDbSymbolTableRecord : public OxDbObject {
public:
    Oxsys::ErrorStatus getName(const wchar_t*& name);
    const wchar_t* name = nullptr;
};

class OxDbLayerTableRecord : public OxDbSymbolTableRecord {
public:
    OX_DESC(OxDbSymbolTableRecord)
    OxCmColor color();
    OxDb::LineWeight lineWeight();
    const RecordedLayer* recorded = nullptr;
};

class OxDbLinetypeTableRecord : public OxDbSymbolTableRecord {
public:
    OX_DESC(OxDbSymbolTableRecord)
    double patternLength();
    unsigned int numDashes();
    double dashLengthAt(unsigned int index);
    OxDbObjectId shapeStyleAt(unsigned int index);
    unsigned short shapeNumberAt(unsigned int index);
    OxGeVector2d shapeOffsetAt(unsigned int index);
    double shapeScaleAt(unsigned int index);
    double shapeRotationAt(unsigned int index);
    Oxsys::ErrorStatus textAt(unsigned int index, const wchar_t*& text);
    const RecordedLinetype* recorded = nullptr;
    RecordedDrawing* drawing = nullptr;
};

class OxDbTextStyleTableRecord : public OxDbSymbolTableRecord {
public:
    OX_DESC(OxDbSymbolTableRecord)
    Oxsys::ErrorStatus fileName(wchar_t*& name);
    Oxsys::ErrorStatus bigFontFileName(wchar_t*& name);
    Oxsys::ErrorStatus font(wchar_t*& typeface, bool& bold, bool& italic, unsigned char& charset,
                            long& pitch);
    unsigned char flagBits();
    OxBool isShapeFile();
    OxBool isVertical();
    double obliquingAngle();
    double textSize();
    double xScale();
    const RecordedStyle* recorded = nullptr;
};

class OxDbSortentsTable : public OxDbObject {
public:
    Oxsys::ErrorStatus getFullDrawOrder(OxArray<OxDbObjectId>& ids, unsigned char honourMask);
    const RecordedBlock* recorded = nullptr;
    RecordedDrawing* drawing = nullptr;
};

/// Goes over the places from 0 to an end.
class Counting {
public:
    virtual ~Counting();
    Counting();
    void start(bool atBeginning, bool skipErased);
    void step(bool forward, bool skipErased);
    OxBool done() { return place >= end; }
    std::size_t place = 0, end = 0;
    static long Living();
};

class OxDbBlockTableRecordIterator : public Counting {
public:
    Oxsys::ErrorStatus getEntity(OxDbEntity*& entity, OxDb::OpenMode mode, bool erased);
    RecordedBlock* recorded = nullptr;
    RecordedDrawing* drawing = nullptr;
};

/// Stands at the first reference from its making, and has no way to go anywhere else.
class OxDbBlockReferenceIdIterator : private Counting {
public:
    ~OxDbBlockReferenceIdIterator() override;
    Oxsys::ErrorStatus getBlockReference(OxDbBlockReference*& reference, OxDb::OpenMode mode, bool erased);
    RecordedBlock* recorded = nullptr;
    RecordedDrawing* drawing = nullptr;
};

class OxDbBlockTableRecord : public OxDbSymbolTableRecord {
public:
    OX_DESC(OxDbSymbolTableRecord)
    OxBool isLayout();
    OxBool isAnonymous();
    OxDb::UnitsValue blockInsertUnits();
    Oxsys::ErrorStatus getSortentsTable(OxDbSortentsTable*& table, OxDb::OpenMode mode, bool create);
    Oxsys::ErrorStatus newIterator(OxDbBlockTableRecordIterator*& iterator, bool atBeginning,
                                   bool skipErased);
    Oxsys::ErrorStatus newBlockReferenceIdIterator(OxDbBlockReferenceIdIterator*& iterator);
    RecordedBlock* recorded = nullptr;
    RecordedDrawing* drawing = nullptr;
};

class OxDbSymbolTableIterator : public Counting {};

class OxDbBlockTableIterator : public OxDbSymbolTableIterator {
public:
    Oxsys::ErrorStatus getRecord(OxDbBlockTableRecord*& record, OxDb::OpenMode mode, bool erased);
    RecordedDrawing* drawing = nullptr;
};

class OxDbBlockTable : public OxDbObject {
public:
    Oxsys::ErrorStatus getAt(const wchar_t* name, OxDbBlockTableRecord*& record, OxDb::OpenMode mode,
                             bool erased);
    Oxsys::ErrorStatus newIterator(OxDbBlockTableIterator*& iterator, bool atBeginning, bool skipErased);
    RecordedDrawing* drawing = nullptr;
};

class OxDbLayerTable : public OxDbObject {
public:
    Oxsys::ErrorStatus getAt(const wchar_t* name, OxDbLayerTableRecord*& record, OxDb::OpenMode mode,
                             bool erased);
    RecordedDrawing* drawing = nullptr;
};

class OxDbTextStyleTable : public OxDbObject {
public:
    Oxsys::ErrorStatus getAt(const wchar_t* name, OxDbTextStyleTableRecord*& record, OxDb::OpenMode mode,
                             bool erased);
    RecordedDrawing* drawing = nullptr;
};

class OxDbDatabase {
public:
    explicit OxDbDatabase(RecordedDrawing& recorded) : drawing(&recorded) {}
    Oxsys::ErrorStatus getSymbolTable(OxDbBlockTable*& table, OxDb::OpenMode mode);
    Oxsys::ErrorStatus getSymbolTable(OxDbLayerTable*& table, OxDb::OpenMode mode);
    Oxsys::ErrorStatus getSymbolTable(OxDbTextStyleTable*& table, OxDb::OpenMode mode);
    OxDb::UnitsValue insunits();
    RecordedDrawing* drawing;
};

Oxsys::ErrorStatus oxdbOpenOxDbEntity(OxDbEntity*& entity, OxDbObjectId id, OxDb::OpenMode mode, bool erased);
Oxsys::ErrorStatus oxdbOpenOxDbObject(OxDbObject*& object, OxDbObjectId id, OxDb::OpenMode mode,
                                      const OxClass& required, bool erased);
void oxutDelBuffer(wchar_t*& buffer);
/// Texts that oxutDelBuffer has not had back.
long CountTexts();

class OxDbHostApplicationServices {
public:
    virtual ~OxDbHostApplicationServices() {}
    /// Copies the path of the shape file of that name; false when there is none.
    virtual bool lookFor(wchar_t* path, std::size_t room, const wchar_t* name, int hint) = 0;
    virtual OxDbDatabase* currentDrawing() = 0;
};
OxDbHostApplicationServices* oxdbHostApplicationServices();
void SetServices(OxDbHostApplicationServices* services);
