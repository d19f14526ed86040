// Splines as polylines along them.
#pragma once

#include "StyleConversion/block/SplineArcs.h"
#include "StyleConversion/interfaces/HostNames.h"

#include <type_traits>
#include <vector>

namespace block {

/// Vertices along the spline from its start to its end, close enough for its size and no fewer, where that is
/// possible, than the points that define it, with straight segments between them. A faithful conversion has
/// as many as FollowClosely. None when the spline cannot be read or makes no curve.
std::vector<CurveVertex> SampleSpline(OxDbSpline& spline);

/// Arcs along a curve from its start to its end, off it by at most the part of its extent that a faithful
/// conversion may be.
std::vector<CurveVertex> FollowClosely(OxGeNurbCurve2d& curve);

/// An edge of a hatch as a spline; null when it is none, or the database's curves cannot be told apart.
template <class Edge>
OxGeNurbCurve2d* AsSpline(Edge& edge) {
    if constexpr (std::is_polymorphic_v<Edge>) {
        // Sampling changes no curve.
        return const_cast<OxGeNurbCurve2d*>(dynamic_cast<const OxGeNurbCurve2d*>(&edge));
    } else {
        return nullptr;
    }
}

} // namespace block
