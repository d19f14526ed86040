// The names of the foreign symbol model and drawing database, for the library: its own header of this name,
// copied and changed.
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
    return static_cast<int>(collection.HowMany());
}
template <class Collection>
auto& ItemAt(Collection& collection, int index) {
    return collection[static_cast<std::size_t>(index)];
}

// ---- Opening, closing, ids ----

/// The mode in which everything is opened.
inline const OxDb::OpenMode kForRead = OxDb::OpenMode::Read;

/// What GetBlockNamesEx returns where there is no database.
inline Oxsys::ErrorStatus NoDatabase() {
    return static_cast<Oxsys::ErrorStatus>(15);
}

/// Whether the id names nothing.
inline bool IsNull(OxDbObjectId id) {
    return id.number == 0;
}

/// The object, which is known to be of that class, as one of it.
template <class Class, class Object>
Class& As(Object& object) {
    return static_cast<Class&>(object);
}

/// All that it lists can be converted.
inline bool IsValidBlock(OxDbBlockTableRecord& /*record*/) {
    return true;
}

/// It stands there from its making.
inline void GoToFirst(OxDbBlockReferenceIdIterator& /*iterator*/) {}

// ---- Arrays ----

using ObjectIds = OxArray<OxDbObjectId>;
using Points2d = OxArray<OxGePoint2d>;
using Points3d = OxArray<OxGePoint3d>;
using Doubles = OxArray<double>;

/// How many elements an array holds, the element of that index, counted from 0, and one more at the end.
template <class Array>
int LengthOf(Array& array) {
    return static_cast<int>(array.Length());
}
template <class Array>
decltype(auto) ElementAt(Array& array, int index) {
    return array.Get(static_cast<std::size_t>(index));
}
template <class Array, class Element>
void Append(Array& array, const Element& element) {
    array.Push(element);
}

// ---- Colours ----

/// The packed value of a colour, which OxCmEntityColor::trueColor takes.
inline std::uint32_t PackedColor(OxCmColor color) {
    return static_cast<std::uint32_t>(color.packed());
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
using Edge = OxGeCurve2d;
inline OxGeLineSeg2d* AsLineSegment(Edge& edge) {
    return edge.isKindOf(OxGeEntity2d::Kind::Line) ? &As<OxGeLineSeg2d>(edge) : nullptr;
}
inline OxGeCircArc2d* AsCircularArc(Edge& edge) {
    return edge.isKindOf(OxGeEntity2d::Kind::Circle) ? &As<OxGeCircArc2d>(edge) : nullptr;
}
inline OxGeEllipArc2d* AsEllipticalArc(Edge& edge) {
    return edge.isKindOf(OxGeEntity2d::Kind::Ellipse) ? &As<OxGeEllipArc2d>(edge) : nullptr;
}

/// The curves are known by the spline that was read last: the recording has their samples.
inline const RecordedEntity*& LastSpline() {
    static const RecordedEntity* last = nullptr;
    return last;
}
inline std::unique_ptr<OxGeNurbCurve2d> CurveThrough(Points2d&, OxGeVector2d, OxGeVector2d) {
    return std::make_unique<OxGeNurbCurve2d>(*LastSpline());
}
inline std::unique_ptr<OxGeNurbCurve2d> CurveThrough(Points2d&) {
    return std::make_unique<OxGeNurbCurve2d>(*LastSpline());
}
inline std::unique_ptr<OxGeNurbCurve2d> CurveOf(int, Doubles&, double, Points2d&, bool) {
    return std::make_unique<OxGeNurbCurve2d>(*LastSpline());
}
inline std::unique_ptr<OxGeNurbCurve2d> CurveOf(int, Doubles&, double, Points2d&, Doubles&, bool) {
    return std::make_unique<OxGeNurbCurve2d>(*LastSpline());
}

/// The ends of a curve's parameter, read with that tolerance.
struct ParameterRange {
    double lower = 0.0;
    double upper = 0.0;
};
inline ParameterRange ParametersOf(OxGeNurbCurve2d& curve, double tolerance) {
    OxGeInterval interval;
    curve.getInterval(&interval, tolerance);
    return {interval.ends[0], interval.ends[1]};
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
    return {arc.point(false), arc.point(true), arc.parameter(false), arc.parameter(true)};
}

/// The points at an ellipse's ends, and whether it is a whole one.
inline OxGePoint3d StartOf(OxDbEllipse& ellipse) {
    return ellipse.from();
}
inline OxGePoint3d EndOf(OxDbEllipse& ellipse) {
    return ellipse.to();
}
inline bool IsWhole(OxDbEllipse& ellipse) {
    return ellipse.wholeEllipse() != 0;
}

/// The fit points and end tangents of a spline; its control points, knots and weights. What else the database
/// tells of a spline is not used.
struct FitData {
    Points3d points;
    bool tangentsExist = false;
    OxGeVector3d startTangent;
    OxGeVector3d endTangent;
};
bool ReadFitData(OxDbSpline& spline, FitData& data);
struct NurbsData {
    int degree = 0;
    bool rational = false;
    bool closed = false;
    bool periodic = false;
    Points3d controlPoints;
    Doubles knots;
    Doubles weights;
};
bool ReadNurbsData(OxDbSpline& spline, NurbsData& data);

/// The loops of a hatch. `use` is called with each edge in order. Both give false for a loop of the other
/// form and for one that cannot be read.
template <class Use>
bool ForEachEdge(OxDbHatch& hatch, int loop, Use use) {
    long loopType = 0;
    OxArray<std::shared_ptr<OxGeCurve2d>> edges;
    OxArray<OxGeEntity2d::Kind> edgeTypes;
    if (hatch.getLoopAt(loop, loopType, edges, edgeTypes) != Oxsys::eOk) {
        return false;
    }
    for (int i = 0; i < LengthOf(edges); ++i) {
        use(*ElementAt(edges, i));
    }
    return true;
}
inline bool ReadLoop(OxDbHatch& hatch, int loop, Points2d& vertices, Doubles& bulges) {
    long loopType = 0;
    return hatch.getLoopAt(loop, loopType, vertices, bulges) == Oxsys::eOk;
}

/// The loops and the fill colour of a multi-polygon.
inline int CountLoops(OxDbMPolygon& polygon) {
    return static_cast<int>(polygon.loops());
}
inline bool ReadLoop(OxDbMPolygon& polygon, int loop, Points2d& vertices, Doubles& bulges) {
    return polygon.loop(static_cast<unsigned short>(loop), &vertices, &bulges);
}
inline OxCmColor FillColor(OxDbMPolygon& polygon) {
    return polygon.inside();
}

// ---- Texts, linetypes and text styles ----

/// A text that the database hands out; none counts as empty.
inline std::wstring TextOf(const wchar_t* text) {
    return text != nullptr ? std::wstring(text) : std::wstring();
}

/// The text at a dash, which stays the record's own; null where it has none.
inline const wchar_t* TextAt(OxDbLinetypeTableRecord& linetype, int dash) {
    const wchar_t* text = nullptr;
    return linetype.textAt(static_cast<unsigned int>(dash), text) == Oxsys::eOk ? text : nullptr;
}

/// The typeface, in a buffer that the library frees with delete[], and its style.
inline Oxsys::ErrorStatus ReadFont(OxDbTextStyleTableRecord& style, wchar_t*& typeface, bool& bold,
                                   bool& italic) {
    unsigned char characterSet = 0;
    long pitchAndFamily = 0;
    return style.font(typeface, bold, italic, characterSet, pitchAndFamily);
}

// ---- Services of the host's application ----

/// Looks for a compiled shape file of that name. Writes its path, ended by a zero, to `path`, which has room
/// for `length` characters.
inline Oxsys::ErrorStatus FindShapeFile(OxDbHostApplicationServices& services, wchar_t* path, int length,
                                        const wchar_t* name) {
    return services.lookFor(path, static_cast<std::size_t>(length), name, 2) ? Oxsys::eOk
                                                                             : Oxsys::ErrorStatus::notFound;
}

/// The drawing that is being worked on; null where there is none.
inline OxDbDatabase* WorkingDatabase(OxDbHostApplicationServices& services) {
    return services.currentDrawing();
}

} // namespace host
