// Polylines: free-standing ones, and the geometry of all.
#include "OxDb/OxDbPolyline.h"

#include "drawing/database/Core.h"
#include "drawing/entities/PolylineData.h"

#include <cmath>
#include <memory>
#include <vector>

namespace {

using geometry::BulgeVertex;

OxGePoint3d InSpace(const OxGePoint2d& point) {
    return {point.x, point.y, 0.0};
}

OxGeCircArc3d ArcBetween(const OxGePoint2d& start, const OxGePoint2d& end, double bulge) {
    const double dx = end.x - start.x;
    const double dy = end.y - start.y;
    const double chord = start.distanceTo(end);
    // From the middle of the chord to the centre, positive to the left of the direction of travel.
    const double toCenter = chord * (1.0 - bulge * bulge) / (4.0 * bulge);
    const OxGePoint3d center = {(start.x + end.x) * 0.5 - dy / chord * toCenter,
                                (start.y + end.y) * 0.5 + dx / chord * toCenter, 0.0};
    const double radius = chord * (1.0 + bulge * bulge) / (4.0 * std::abs(bulge));
    const OxGeVector3d normal = {0.0, 0.0, bulge < 0.0 ? -1.0 : 1.0};
    return {InSpace(start), InSpace(end), center, radius, 4.0 * std::atan(std::abs(bulge)), normal};
}

// The point after the part `part` (0 to 1) of an arc.
OxGePoint3d PointOfArc(const OxGeCircArc3d& arc, double part) {
    const OxGePoint3d center = arc.center();
    const OxGePoint3d start = arc.startPoint();
    const double sense = arc.normal().z < 0.0 ? -1.0 : 1.0;
    const double angle = std::atan2(start.y - center.y, start.x - center.x) + sense * arc.endAng() * part;
    return {center.x + arc.radius() * std::cos(angle), center.y + arc.radius() * std::sin(angle), 0.0};
}

} // namespace

OxDbPolyline::OxDbPolyline(unsigned int vertexCount) {
    auto data = std::make_unique<Data>();
    data->vertices.reserve(vertexCount);
    data_ = data.release();
}

OxDbPolyline::~OxDbPolyline() {
    delete data_;
}

const OxRxClass* OxDbPolyline::isA() const {
    return desc();
}

unsigned int OxDbPolyline::numVerts() const {
    return static_cast<unsigned int>(data_->vertices.size());
}

bool OxDbPolyline::hasPlinegen() const {
    return data_->plinegen;
}

OxDbPolyline::SegType OxDbPolyline::segType(unsigned int index) const {
    if (index >= data_->SegmentCount()) {
        return index == 0 && data_->vertices.size() == 1 ? kPoint : kEmpty;
    }
    const BulgeVertex& start = data_->vertices[index];
    if (start.point == data_->SegmentEnd(index)) {
        return kCoincident;
    }
    return start.bulge == 0.0 ? kLine : kArc;
}

Oxsys::ErrorStatus OxDbPolyline::getLineSegAt(unsigned int index, OxGeLineSeg2d& segment) const {
    const SegType type = segType(index);
    if (type != kLine) {
        return index < data_->SegmentCount() ? Oxsys::eNotApplicable : Oxsys::eInvalidIndex;
    }
    segment.set(data_->vertices[index].point, data_->SegmentEnd(index));
    return Oxsys::eOk;
}

Oxsys::ErrorStatus OxDbPolyline::getArcSegAt(unsigned int index, OxGeCircArc3d& segment) const {
    const SegType type = segType(index);
    if (type != kArc) {
        return index < data_->SegmentCount() ? Oxsys::eNotApplicable : Oxsys::eInvalidIndex;
    }
    const BulgeVertex& start = data_->vertices[index];
    segment = ArcBetween(start.point, data_->SegmentEnd(index), start.bulge);
    return Oxsys::eOk;
}

Oxsys::ErrorStatus OxDbPolyline::addVertexAt(unsigned int index, const OxGePoint2d& point, double bulge,
                                             double /*startWidth*/, double /*endWidth*/) {
    if (index > data_->vertices.size()) {
        return Oxsys::eInvalidIndex;
    }
    data_->vertices.insert(data_->vertices.begin() + static_cast<std::ptrdiff_t>(index),
                           BulgeVertex{point, bulge});
    return Oxsys::eOk;
}

void OxDbPolyline::setPlinegen(bool value) {
    data_->plinegen = value;
}

void OxDbPolyline::setClosed(bool value) {
    data_->closed = value;
}

bool OxDbPolyline::isClosed() const {
    return data_->closed;
}

Oxsys::ErrorStatus OxDbPolyline::close() {
    return Oxsys::eNoDatabase;
}

OxDbObjectId OxDbPolyline::objectId() const {
    return {};
}

bool OxDbPolyline::isResident() const {
    return false;
}

wchar_t* OxDbPolyline::layer() const {
    return drawing::AllocateText(L"0");
}

OxCmColor OxDbPolyline::color() const {
    return data_->DrawnOrDefault().color;
}

OxDb::LineWeight OxDbPolyline::lineWeight() const {
    return data_->DrawnOrDefault().lineWeight;
}

OxDbObjectId OxDbPolyline::linetypeId() const {
    return data_->DrawnOrDefault().linetypeId;
}

Oxsys::ErrorStatus OxDbPolyline::setColor(const OxCmColor& color) {
    data_->OwnDrawn().color = color;
    return Oxsys::eOk;
}

Oxsys::ErrorStatus OxDbPolyline::setLineWeight(OxDb::LineWeight lineWeight) {
    data_->OwnDrawn().lineWeight = lineWeight;
    return Oxsys::eOk;
}

Oxsys::ErrorStatus OxDbPolyline::setLinetype(OxDbObjectId linetypeId) {
    data_->OwnDrawn().linetypeId = linetypeId;
    return Oxsys::eOk;
}

Oxsys::ErrorStatus OxDbPolyline::getStartParam(double& parameter) const {
    parameter = 0.0;
    return Oxsys::eOk;
}

Oxsys::ErrorStatus OxDbPolyline::getEndParam(double& parameter) const {
    parameter = static_cast<double>(data_->SegmentCount());
    return Oxsys::eOk;
}

Oxsys::ErrorStatus OxDbPolyline::getPointAtParam(double parameter, OxGePoint3d& point) const {
    const auto segmentCount = static_cast<double>(data_->SegmentCount());
    if (data_->vertices.empty() || !(parameter >= 0.0) || parameter > segmentCount) {
        return Oxsys::eInvalidInput;
    }
    const auto index = static_cast<unsigned int>(parameter);
    const double part = parameter - static_cast<double>(index);
    if (part == 0.0) {
        point = InSpace(data_->vertices[index < numVerts() ? index : 0].point);
        return Oxsys::eOk;
    }
    OxGeCircArc3d arc;
    if (getArcSegAt(index, arc) == Oxsys::eOk) {
        point = PointOfArc(arc, part);
        return Oxsys::eOk;
    }
    const OxGePoint2d& start = data_->vertices[index].point;
    const OxGePoint2d& end = data_->SegmentEnd(index);
    point = {start.x + (end.x - start.x) * part, start.y + (end.y - start.y) * part, 0.0};
    return Oxsys::eOk;
}

Oxsys::ErrorStatus OxDbPolyline::getStartPoint(OxGePoint3d& point) const {
    return getPointAtParam(0.0, point);
}

Oxsys::ErrorStatus OxDbPolyline::getEndPoint(OxGePoint3d& point) const {
    return getPointAtParam(static_cast<double>(data_->SegmentCount()), point);
}
