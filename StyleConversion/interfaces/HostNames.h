// What the library needs of a host's symbol model and drawing database without fixing how it is spelled. A
// host whose libraries spell it otherwise copies this header, changes the copy and builds with it; the rest
// of the library uses only names that docs/hosts.md lists as fixed.
#pragma once

#include "OxDb/OxDb.h"
#include "TylModel/TylModel.h"

#include <cstdint>
#include <memory>
#include <string>

namespace host {

// ---- The symbol model ----

/// The object behind what an operation gives out: a reference, or a pointer that is not null.
template <class Given>
auto& Referred(Given&& given) {
    if constexpr (requires { *given; }) {
        return *given;
    } else {
        return given;
    }
}

/// Gives the object to a collection, which owns it from the call on, also where the call throws.
template <class Collection, class T>
void Adopt(Collection&& collection, std::unique_ptr<T> item) {
    static_cast<void>(Referred(collection).Adopt(item.release()));
}

/// How many items a collection holds, and the item of that index, counted from 0.
template <class Collection>
int CountOf(Collection& collection) {
    return static_cast<int>(collection.GetCount());
}
template <class Collection>
auto& ItemAt(Collection& collection, int index) {
    return Referred(collection.GetAt(index));
}

// ---- Opening, closing, ids ----

/// The mode in which everything is opened.
inline const OxDb::OpenMode kForRead = OxDb::kForRead;

/// What GetBlockNamesEx returns where there is no database.
inline Oxsys::ErrorStatus NoDatabase() {
    return static_cast<Oxsys::ErrorStatus>(15);
}

/// Whether the id names nothing.
inline bool IsNull(OxDbObjectId id) {
    return id.isNull();
}

/// The object, which is known to be of that class, as one of it.
template <class Class, class Object>
Class& As(Object& object) {
    return static_cast<Class&>(object);
}

/// Whether an opened block record is one that can be converted: where the database can say so, whether it is
/// still in the drawing.
template <class Record>
bool IsValidBlock(Record& record) {
    if constexpr (requires { record.isResident(); }) {
        return record.isResident();
    } else {
        return true;
    }
}

/// Takes a new iterator over a block's references to the first one, where it does not stand there by itself.
template <class Iterator>
void GoToFirst(Iterator& iterator) {
    if constexpr (requires { iterator.start(); }) {
        iterator.start();
    }
}

// ---- Arrays ----

using ObjectIds = OxArray<OxDbObjectId>;
using Points2d = OxArray<OxGePoint2d>;
using Points3d = OxArray<OxGePoint3d>;
using Doubles = OxArray<double>;

/// How many elements an array holds, the element of that index, counted from 0, and one more at the end.
template <class Array>
int LengthOf(Array& array) {
    return static_cast<int>(array.logicalLength());
}
template <class Array>
decltype(auto) ElementAt(Array& array, int index) {
    return array[index];
}
template <class Array, class Element>
void Append(Array& array, const Element& element) {
    array.append(element);
}

// ---- Colours ----

/// The packed value of a colour, which OxCmEntityColor::trueColor takes.
inline std::uint32_t PackedColor(OxCmColor color) {
    return static_cast<std::uint32_t>(color.entityColor());
}

// ---- Points, vectors and curves of the plane ----

inline OxGePoint2d Point(double x, double y) {
    OxGePoint2d point;
    point.x = x;
    point.y = y;
    return point;
}
inline OxGeVector2d Vector(double x, double y) {
    OxGeVector2d vector;
    vector.x = x;
    vector.y = y;
    return vector;
}

/// Whether two points are equal within the global tolerance.
inline bool IsSamePoint(OxGePoint2d first, OxGePoint2d second) {
    return first.isEqualTo(second, OxGeContext::gTol);
}

/// An edge of a hatch loop as one of a class; null when it is of another one.
using Edge = const OxGeCurve2d;
inline const OxGeLineSeg2d* AsLineSegment(Edge& edge) {
    return edge.isKindOf(OxGe::kLineSeg2d) ? &As<const OxGeLineSeg2d>(edge) : nullptr;
}
inline const OxGeCircArc2d* AsCircularArc(Edge& edge) {
    return edge.isKindOf(OxGe::kCircArc2d) ? &As<const OxGeCircArc2d>(edge) : nullptr;
}
inline const OxGeEllipArc2d* AsEllipticalArc(Edge& edge) {
    return edge.isKindOf(OxGe::kEllipArc2d) ? &As<const OxGeEllipArc2d>(edge) : nullptr;
}

/// The curve through fit points, with the tangents at its ends or without.
inline std::unique_ptr<OxGeNurbCurve2d> CurveThrough(Points2d& fitPoints, OxGeVector2d startTangent,
                                                     OxGeVector2d endTangent) {
    return std::make_unique<OxGeNurbCurve2d>(fitPoints, startTangent, endTangent, true, true, OxGeTol());
}
inline std::unique_ptr<OxGeNurbCurve2d> CurveThrough(Points2d& fitPoints) {
    return std::make_unique<OxGeNurbCurve2d>(fitPoints, OxGeTol());
}

/// The curve of control points, rational or not. Knots nearer to each other than the tolerance count as one.
inline std::unique_ptr<OxGeNurbCurve2d> CurveOf(int degree, Doubles& knots, double knotTolerance,
                                                Points2d& controlPoints, bool periodic) {
    return std::make_unique<OxGeNurbCurve2d>(degree, OxGeKnotVector(knots, knotTolerance), controlPoints,
                                             periodic);
}
inline std::unique_ptr<OxGeNurbCurve2d> CurveOf(int degree, Doubles& knots, double knotTolerance,
                                                Points2d& controlPoints, Doubles& weights, bool periodic) {
    return std::make_unique<OxGeNurbCurve2d>(degree, OxGeKnotVector(knots, knotTolerance), controlPoints,
                                             weights, periodic);
}

/// The ends of a curve's parameter, read with that tolerance.
struct ParameterRange {
    double lower = 0.0;
    double upper = 0.0;
};
inline ParameterRange ParametersOf(OxGeNurbCurve2d& curve, double tolerance) {
    OxGeInterval interval(tolerance);
    curve.getInterval(interval);
    return {interval.lowerBound(), interval.upperBound()};
}

// ---- Entities ----

/// The points at an arc's ends, and the parameters there, which are angles in radians.
struct ArcEnds {
    OxGePoint3d start;
    OxGePoint3d end;
    double startParameter = 0.0;
    double endParameter = 0.0;
};
inline ArcEnds EndsOf(OxDbArc& arc) {
    ArcEnds ends;
    static_cast<void>(arc.getStartParam(ends.startParameter));
    static_cast<void>(arc.getEndParam(ends.endParameter));
    static_cast<void>(arc.getPointAtParam(ends.startParameter, ends.start));
    static_cast<void>(arc.getPointAtParam(ends.endParameter, ends.end));
    return ends;
}

/// The points at an ellipse's ends, and whether it is a whole one.
inline OxGePoint3d StartOf(OxDbEllipse& ellipse) {
    OxGePoint3d start;
    static_cast<void>(ellipse.getStartPoint(start));
    return start;
}
inline OxGePoint3d EndOf(OxDbEllipse& ellipse) {
    OxGePoint3d end;
    static_cast<void>(ellipse.getEndPoint(end));
    return end;
}
inline bool IsWhole(OxDbEllipse& ellipse) {
    return ellipse.isClosed();
}

/// The fit points and end tangents of a spline; its control points, knots and weights. What else the database
/// tells of a spline is not used.
struct FitData {
    Points3d points;
    bool tangentsExist = false;
    OxGeVector3d startTangent;
    OxGeVector3d endTangent;
};
inline bool ReadFitData(OxDbSpline& spline, FitData& data) {
    int degree = 0;
    double tolerance = 0.0;
    return spline.getFitData(data.points, degree, tolerance, data.tangentsExist, data.startTangent,
                             data.endTangent) == Oxsys::eOk;
}
struct NurbsData {
    int degree = 0;
    bool rational = false;
    bool closed = false;
    bool periodic = false;
    Points3d controlPoints;
    Doubles knots;
    Doubles weights;
};
inline bool ReadNurbsData(OxDbSpline& spline, NurbsData& data) {
    double controlPointTolerance = 0.0;
    double knotTolerance = 0.0;
    return spline.getNurbsData(data.degree, data.rational, data.closed, data.periodic, data.controlPoints,
                               data.knots, data.weights, controlPointTolerance, knotTolerance) == Oxsys::eOk;
}

/// The loops of a hatch. `use` is called with each edge in order. Both give false for a loop of the other
/// form and for one that cannot be read.
template <class Use>
bool ForEachEdge(OxDbHatch& hatch, int loop, Use use) {
    int loopType = 0;
    OxArray<const OxGeCurve2d*> edges;
    OxArray<int> edgeTypes;
    if (hatch.getLoopAt(loop, loopType, edges, edgeTypes) != Oxsys::eOk) {
        return false;
    }
    for (int i = 0; i < LengthOf(edges); ++i) {
        if (Edge* const edge = edges[i]) {
            use(*edge);
        }
    }
    return true;
}
inline bool ReadLoop(OxDbHatch& hatch, int loop, Points2d& vertices, Doubles& bulges) {
    int loopType = 0;
    return hatch.getLoopAt(loop, loopType, vertices, bulges) == Oxsys::eOk;
}

/// The loops and the fill colour of a multi-polygon.
inline int CountLoops(OxDbMPolygon& polygon) {
    return static_cast<int>(polygon.numMPolygonLoops());
}
inline bool ReadLoop(OxDbMPolygon& polygon, int loop, Points2d& vertices, Doubles& bulges) {
    return polygon.getMPolygonLoopAt(loop, vertices, bulges) == Oxsys::eOk;
}
inline OxCmColor FillColor(OxDbMPolygon& polygon) {
    return polygon.fillColor();
}

// ---- Texts, linetypes and text styles ----

/// A text that the database hands out; none counts as empty.
inline std::wstring TextOf(const wchar_t* text) {
    return text != nullptr ? std::wstring(text) : std::wstring();
}

/// The text at a dash, which stays the record's own; null where it has none.
inline const wchar_t* TextAt(OxDbLinetypeTableRecord& linetype, int dash) {
    const wchar_t* text = nullptr;
    return linetype.textAt(dash, text) == Oxsys::eOk ? text : nullptr;
}

/// The typeface, in a buffer that oxutDelBuffer releases, and its style.
inline Oxsys::ErrorStatus ReadFont(OxDbTextStyleTableRecord& style, wchar_t*& typeface, bool& bold,
                                   bool& italic) {
    std::int32_t characterSet = 0;
    std::int32_t pitchAndFamily = 0;
    return style.font(typeface, bold, italic, characterSet, pitchAndFamily);
}

// ---- Services of the host's application ----

/// Looks for a compiled shape file of that name. Writes its path, ended by a zero, to `path`, which has room
/// for `length` characters.
inline Oxsys::ErrorStatus FindShapeFile(OxDbHostApplicationServices& services, wchar_t* path, int length,
                                        const wchar_t* name) {
    return services.findFile(path, length, name, nullptr,
                             static_cast<OxDbHostApplicationServices::FindFileHint>(2));
}

/// The drawing that is being worked on; null where there is none.
inline OxDbDatabase* WorkingDatabase(OxDbHostApplicationServices& services) {
    return services.workingDatabase();
}

} // namespace host
