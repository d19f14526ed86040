// Class descriptors and destructors of the interface classes.
#include "OxDb/OxDb.h"

namespace {

constexpr OxRxClass kObjectRoot(L"OxRxObject", nullptr);
constexpr OxRxClass kObject(L"OxDbObject", &kObjectRoot);
constexpr OxRxClass kSymbolTable(L"OxDbSymbolTable", &kObject);
constexpr OxRxClass kBlockTable(L"OxDbBlockTable", &kSymbolTable);
constexpr OxRxClass kLayerTable(L"OxDbLayerTable", &kSymbolTable);
constexpr OxRxClass kTextStyleTable(L"OxDbTextStyleTable", &kSymbolTable);
constexpr OxRxClass kSymbolTableRecord(L"OxDbSymbolTableRecord", &kObject);
constexpr OxRxClass kBlockTableRecord(L"OxDbBlockTableRecord", &kSymbolTableRecord);
constexpr OxRxClass kLayerTableRecord(L"OxDbLayerTableRecord", &kSymbolTableRecord);
constexpr OxRxClass kTextStyleTableRecord(L"OxDbTextStyleTableRecord", &kSymbolTableRecord);
constexpr OxRxClass kLinetypeTableRecord(L"OxDbLinetypeTableRecord", &kSymbolTableRecord);
constexpr OxRxClass kSortentsTable(L"OxDbSortentsTable", &kObject);
constexpr OxRxClass kEntity(L"OxDbEntity", &kObject);
constexpr OxRxClass kPoint(L"OxDbPoint", &kEntity);
constexpr OxRxClass kCurve(L"OxDbCurve", &kEntity);
constexpr OxRxClass kLine(L"OxDbLine", &kCurve);
constexpr OxRxClass kPolyline(L"OxDbPolyline", &kCurve);
constexpr OxRxClass kSpline(L"OxDbSpline", &kCurve);
constexpr OxRxClass kArc(L"OxDbArc", &kCurve);
constexpr OxRxClass kCircle(L"OxDbCircle", &kCurve);
constexpr OxRxClass kEllipse(L"OxDbEllipse", &kCurve);
constexpr OxRxClass kHatch(L"OxDbHatch", &kEntity);
constexpr OxRxClass kMPolygon(L"OxDbMPolygon", &kEntity);
constexpr OxRxClass kText(L"OxDbText", &kEntity);
constexpr OxRxClass kAttributeDefinition(L"OxDbAttributeDefinition", &kText);
constexpr OxRxClass kMText(L"OxDbMText", &kEntity);
constexpr OxRxClass kBlockReference(L"OxDbBlockReference", &kEntity);

} // namespace

const OxRxClass* OxRxObject::desc() {
    return &kObjectRoot;
}
const OxRxClass* OxDbObject::desc() {
    return &kObject;
}
const OxRxClass* OxDbSymbolTable::desc() {
    return &kSymbolTable;
}
const OxRxClass* OxDbBlockTable::desc() {
    return &kBlockTable;
}
const OxRxClass* OxDbLayerTable::desc() {
    return &kLayerTable;
}
const OxRxClass* OxDbTextStyleTable::desc() {
    return &kTextStyleTable;
}
const OxRxClass* OxDbSymbolTableRecord::desc() {
    return &kSymbolTableRecord;
}
const OxRxClass* OxDbBlockTableRecord::desc() {
    return &kBlockTableRecord;
}
const OxRxClass* OxDbLayerTableRecord::desc() {
    return &kLayerTableRecord;
}
const OxRxClass* OxDbTextStyleTableRecord::desc() {
    return &kTextStyleTableRecord;
}
const OxRxClass* OxDbLinetypeTableRecord::desc() {
    return &kLinetypeTableRecord;
}
const OxRxClass* OxDbSortentsTable::desc() {
    return &kSortentsTable;
}
const OxRxClass* OxDbEntity::desc() {
    return &kEntity;
}
const OxRxClass* OxDbPoint::desc() {
    return &kPoint;
}
const OxRxClass* OxDbCurve::desc() {
    return &kCurve;
}
const OxRxClass* OxDbLine::desc() {
    return &kLine;
}
const OxRxClass* OxDbPolyline::desc() {
    return &kPolyline;
}
const OxRxClass* OxDbSpline::desc() {
    return &kSpline;
}
const OxRxClass* OxDbArc::desc() {
    return &kArc;
}
const OxRxClass* OxDbCircle::desc() {
    return &kCircle;
}
const OxRxClass* OxDbEllipse::desc() {
    return &kEllipse;
}
const OxRxClass* OxDbHatch::desc() {
    return &kHatch;
}
const OxRxClass* OxDbMPolygon::desc() {
    return &kMPolygon;
}
const OxRxClass* OxDbText::desc() {
    return &kText;
}
const OxRxClass* OxDbAttributeDefinition::desc() {
    return &kAttributeDefinition;
}
const OxRxClass* OxDbMText::desc() {
    return &kMText;
}
const OxRxClass* OxDbBlockReference::desc() {
    return &kBlockReference;
}

OxRxObject::~OxRxObject() = default;
OxDbObject::~OxDbObject() = default;
OxDbSymbolTable::~OxDbSymbolTable() = default;
OxDbBlockTable::~OxDbBlockTable() = default;
OxDbLayerTable::~OxDbLayerTable() = default;
OxDbTextStyleTable::~OxDbTextStyleTable() = default;
OxDbSymbolTableRecord::~OxDbSymbolTableRecord() = default;
OxDbBlockTableRecord::~OxDbBlockTableRecord() = default;
OxDbLayerTableRecord::~OxDbLayerTableRecord() = default;
OxDbTextStyleTableRecord::~OxDbTextStyleTableRecord() = default;
OxDbLinetypeTableRecord::~OxDbLinetypeTableRecord() = default;
OxDbSortentsTable::~OxDbSortentsTable() = default;
OxDbSymbolTableIterator::~OxDbSymbolTableIterator() = default;
OxDbBlockTableIterator::~OxDbBlockTableIterator() = default;
OxDbBlockTableRecordIterator::~OxDbBlockTableRecordIterator() = default;
OxDbBlockReferenceIdIterator::~OxDbBlockReferenceIdIterator() = default;
OxDbEntity::~OxDbEntity() = default;
OxDbPoint::~OxDbPoint() = default;
OxDbCurve::~OxDbCurve() = default;
OxDbLine::~OxDbLine() = default;
OxDbSpline::~OxDbSpline() = default;
OxDbArc::~OxDbArc() = default;
OxDbCircle::~OxDbCircle() = default;
OxDbEllipse::~OxDbEllipse() = default;
OxDbHatch::~OxDbHatch() = default;
OxDbMPolygon::~OxDbMPolygon() = default;
OxDbText::~OxDbText() = default;
OxDbAttributeDefinition::~OxDbAttributeDefinition() = default;
OxDbMText::~OxDbMText() = default;
OxDbBlockReference::~OxDbBlockReference() = default;
OxDbDatabase::~OxDbDatabase() = default;
OxGeEntity2d::~OxGeEntity2d() = default;
OxGeCurve2d::~OxGeCurve2d() = default;
