// Hatches and multi-polygons of a DXF file.
#include "exchange/DxfHatch.h"

#include "drawing/entities/SplineCurves.h"
#include "drawing/geometry/EdgeChain.h"
#include "drawing/geometry/FullTurn.h"
#include "exchange/DxfAngles.h"

#include <cmath>
#include <numbers>

namespace exchange {
namespace {

// Bits and values of the format.
constexpr std::int32_t kPolylineLoop = 2;
enum EdgeKind : std::int32_t { kLine = 1, kArc = 2, kEllipse = 3, kSpline = 4 };

/// Reads a boundary pair by pair: their meaning depends on what stands before them.
class BoundaryReader {
public:
    BoundaryReader(const DxfRecord& record, bool isMirrored)
        : pairs_(record.pairs), isMirrored_(isMirrored) {}

    bool Read(std::vector<drawing::HatchLoop>& loops) {
        while (at_ < pairs_.size() && pairs_[at_].code != 91) {
            ++at_;
        }
        if (at_ == pairs_.size()) {
            return true; // a hatch without loops
        }
        std::int32_t count = 0;
        if (!Count(91, count)) {
            return false;
        }
        for (std::int32_t index = 0; index < count; ++index) {
            drawing::HatchLoop loop;
            if (!ReadLoop(loop)) {
                return false;
            }
            loops.push_back(std::move(loop));
        }
        return true;
    }

private:
    bool Is(int code) const { return at_ < pairs_.size() && pairs_[at_].code == code; }

    bool Number(int code, double& value) {
        if (!Is(code)) {
            return false;
        }
        const std::optional<double> number = pairs_[at_].Number();
        value = number.value_or(0.0);
        ++at_;
        return number.has_value();
    }
    bool Optional(int code, double& value) { return !Is(code) || Number(code, value); }
    bool Integer(int code, std::int32_t& value) {
        if (!Is(code)) {
            return false;
        }
        const std::optional<std::int32_t> integer = pairs_[at_].Integer();
        value = integer.value_or(0);
        ++at_;
        return integer.has_value();
    }
    // No list is longer than the pairs that are left.
    bool Count(int code, std::int32_t& count) {
        return Integer(code, count) && count >= 0 && static_cast<std::size_t>(count) <= pairs_.size() - at_;
    }
    bool Point(int code, OxGePoint2d& point) {
        if (!Number(code, point.x) || !Number(code + 10, point.y)) {
            return false;
        }
        point.x = isMirrored_ ? -point.x : point.x;
        return true;
    }
    void SkipZ(int code) { at_ += Is(code) ? 1 : 0; }

    bool ReadLoop(drawing::HatchLoop& loop) {
        std::int32_t flags = 0;
        if (!Integer(92, flags)) {
            return false;
        }
        if ((flags & kPolylineLoop) != 0 ? !ReadPolyline(loop) : !ReadEdges(loop)) {
            return false;
        }
        std::int32_t sources = 0;
        if (Is(97) && !Count(97, sources)) {
            return false;
        }
        while (Is(330)) {
            ++at_;
        }
        return true;
    }

    bool ReadPolyline(drawing::HatchLoop& loop) {
        std::int32_t hasBulges = 0;
        std::int32_t isClosed = 0;
        std::int32_t count = 0;
        // Multi-polygons have them the other way round.
        while (Is(72) || Is(73)) {
            if (!(Is(72) ? Integer(72, hasBulges) : Integer(73, isClosed))) {
                return false;
            }
        }
        if (!Count(93, count)) {
            return false;
        }
        drawing::PolylineLoop polyline;
        polyline.hasBulges = hasBulges != 0;
        for (std::int32_t index = 0; index < count; ++index) {
            drawing::BulgeVertex vertex;
            if (!Point(10, vertex.point) || !Optional(42, vertex.bulge)) {
                return false;
            }
            vertex.bulge = isMirrored_ ? -vertex.bulge : vertex.bulge;
            polyline.vertices.push_back(vertex);
        }
        loop.polyline = std::move(polyline);
        return true;
    }

    bool ReadEdges(drawing::HatchLoop& loop) {
        std::int32_t count = 0;
        if (!Count(93, count)) {
            return false;
        }
        for (std::int32_t index = 0; index < count; ++index) {
            std::int32_t kind = 0;
            if (!Integer(72, kind) || !ReadEdge(kind, loop.edges)) {
                return false;
            }
        }
        geometry::ChainEdges(loop.edges);
        return true;
    }

    bool ReadEdge(std::int32_t kind, std::vector<drawing::HatchEdge>& edges) {
        switch (kind) {
        case kLine: {
            OxGePoint2d start;
            OxGePoint2d end;
            if (!Point(10, start) || !Point(11, end)) {
                return false;
            }
            edges.emplace_back(OxGeLineSeg2d(start, end));
            return true;
        }
        case kArc:
            return ReadArc(edges);
        case kEllipse:
            return ReadEllipse(edges);
        case kSpline:
            return ReadSpline(edges);
        default:
            return false;
        }
    }

    // Of clockwise edges the file counts angles clockwise, as the interface does.
    bool ReadSweep(double& start, double& end, bool& isClockwise) {
        std::int32_t isCounterClockwise = 1;
        if (!Number(50, start) || !Number(51, end) || (Is(73) && !Integer(73, isCounterClockwise))) {
            return false;
        }
        start = Radians(start);
        end = geometry::FullTurn(start, Radians(end));
        isClockwise = (isCounterClockwise == 0) != isMirrored_;
        return true;
    }

    bool ReadArc(std::vector<drawing::HatchEdge>& edges) {
        OxGePoint2d center;
        double radius = 0.0;
        double start = 0.0;
        double end = 0.0;
        bool isClockwise = false;
        if (!Point(10, center) || !Number(40, radius) || !ReadSweep(start, end, isClockwise)) {
            return false;
        }
        // In the mirror angles count from -x, the other way round.
        const double turn = isMirrored_ ? std::numbers::pi : 0.0;
        edges.emplace_back(OxGeCircArc2d(center, radius, start + turn, end + turn, isClockwise));
        return true;
    }

    bool ReadEllipse(std::vector<drawing::HatchEdge>& edges) {
        OxGePoint2d center;
        OxGePoint2d axis;
        double ratio = 1.0;
        double start = 0.0;
        double end = 0.0;
        bool isClockwise = false;
        if (!Point(10, center) || !Point(11, axis) || !Number(40, ratio) ||
            !ReadSweep(start, end, isClockwise)) {
            return false;
        }
        edges.emplace_back(OxGeEllipArc2d(center, {axis.x, axis.y}, ratio, EllipseParameter(start, ratio),
                                          EllipseParameter(end, ratio), isClockwise));
        return true;
    }

    bool ReadNumbers(int code, std::int32_t count, std::vector<double>& numbers) {
        for (std::int32_t index = 0; index < count; ++index) {
            double number = 0.0;
            if (!Number(code, number)) {
                return false;
            }
            numbers.push_back(number);
        }
        return true;
    }

    bool ReadSpline(std::vector<drawing::HatchEdge>& edges) {
        drawing::NurbsData nurbs;
        std::int32_t isRational = 0;
        std::int32_t isPeriodic = 0;
        std::int32_t knots = 0;
        std::int32_t points = 0;
        if (!Integer(94, nurbs.degree) || !Integer(73, isRational) || !Integer(74, isPeriodic) ||
            !Count(95, knots) || !Count(96, points) || !ReadNumbers(40, knots, nurbs.knots)) {
            return false;
        }
        for (std::int32_t index = 0; index < points; ++index) {
            OxGePoint2d point;
            if (!Point(10, point)) {
                return false;
            }
            SkipZ(30);
            nurbs.controlPoints.push_back({point.x, point.y, 0.0});
            if (Is(42)) {
                double weight = 1.0;
                if (!Number(42, weight)) {
                    return false;
                }
                nurbs.weights.push_back(weight);
            }
        }
        if (nurbs.weights.size() != nurbs.controlPoints.size()) {
            nurbs.weights.clear();
        }
        nurbs.periodic = isPeriodic != 0;
        drawing::SplineData data = std::move(nurbs);
        if (!ReadFitPoints(data)) {
            return false;
        }
        edges.emplace_back(std::shared_ptr<const OxGeNurbCurve2d>(drawing::BuildCurve(data)));
        return true;
    }

    // Code 97 counts fit points here, and source objects behind a loop: only the former go on with code 11.
    // The curve is the one of the control points, where it has any.
    bool ReadFitPoints(drawing::SplineData& data) {
        if (!Is(97)) {
            return true;
        }
        const bool arePoints = at_ + 1 < pairs_.size() && pairs_[at_ + 1].code == 11;
        if (!arePoints) {
            const std::optional<std::int32_t> none = pairs_[at_].Integer();
            const bool isOurs =
                none == 0 && at_ + 1 < pairs_.size() &&
                (pairs_[at_ + 1].code == 72 || pairs_[at_ + 1].code == 97 || pairs_[at_ + 1].code == 12);
            at_ += isOurs ? 1 : 0;
            return SkipTangents();
        }
        std::int32_t count = 0;
        if (!Count(97, count)) {
            return false;
        }
        drawing::FitData fit;
        for (std::int32_t index = 0; index < count; ++index) {
            OxGePoint2d point;
            if (!Point(11, point)) {
                return false;
            }
            fit.points.push_back({point.x, point.y, 0.0});
        }
        if (std::get<drawing::NurbsData>(data).controlPoints.empty()) {
            data = std::move(fit);
        }
        return SkipTangents();
    }
    bool SkipTangents() {
        OxGePoint2d tangent;
        return (!Is(12) || Point(12, tangent)) && (!Is(13) || Point(13, tangent));
    }

    const std::vector<DxfPair>& pairs_;
    std::size_t at_ = 0;
    bool isMirrored_;
};

bool IsOfFamily(int code) {
    return (code >= 43 && code <= 46) || code == 49 || code == 53;
}

// The families stand behind code 78, each from its angle to its dashes.
std::vector<drawing::HatchFamily> ReadFamilies(const DxfRecord& record, bool isMirrored) {
    std::vector<drawing::HatchFamily> families;
    bool hasBegun = false;
    for (const DxfPair& pair : record.pairs) {
        hasBegun = hasBegun || pair.code == 78;
        const double number = hasBegun && IsOfFamily(pair.code) ? record.NumberOf(pair, 0.0) : 0.0;
        if (hasBegun && pair.code == 53) {
            families.push_back({Radians(number), {}, {}, {}});
        }
        if (families.empty()) {
            continue;
        }
        drawing::HatchFamily& family = families.back();
        switch (pair.code) {
        case 43:
            family.base.x = number;
            break;
        case 44:
            family.base.y = number;
            break;
        case 45:
            family.offset.x = number;
            break;
        case 46:
            family.offset.y = number;
            break;
        case 49:
            family.dashes.push_back(number);
            break;
        default:
            break;
        }
    }
    if (isMirrored) {
        for (drawing::HatchFamily& family : families) {
            family.angle = std::numbers::pi - family.angle;
            family.base.x = -family.base.x;
            family.offset.x = -family.offset.x;
        }
    }
    return families;
}

} // namespace

std::optional<drawing::HatchData> ReadHatch(const DxfRecord& record, bool isMirrored) {
    drawing::HatchData data;
    data.solid = record.Integer(70, 0) != 0;
    if (!BoundaryReader(record, isMirrored).Read(data.loops)) {
        return std::nullopt;
    }
    if (!data.solid) {
        std::vector<drawing::HatchFamily> families = ReadFamilies(record, isMirrored);
        if (!families.empty()) {
            data.pattern = std::move(families);
        }
    }
    return data;
}

std::optional<std::vector<drawing::PolylineLoop>> ReadMPolygonLoops(const DxfRecord& record,
                                                                    bool isMirrored) {
    std::vector<drawing::HatchLoop> loops;
    if (!BoundaryReader(record, isMirrored).Read(loops)) {
        return std::nullopt;
    }
    std::vector<drawing::PolylineLoop> polylines;
    for (drawing::HatchLoop& loop : loops) {
        if (loop.polyline) {
            polylines.push_back(std::move(*loop.polyline));
        }
    }
    return polylines;
}

} // namespace exchange
