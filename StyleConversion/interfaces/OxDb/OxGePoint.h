// Points, vectors and tolerances of the geometry library.
#pragma once

#include "OxDb/Export.h"
#include "OxDb/OxArray.h"

#include <cmath>

/// Up to which distance two things count as equal.
class OXDB_API OxGeTol {
public:
    /// 1e-10 for points and for vectors.
    OxGeTol() = default;
    OxGeTol(double equalPoint, double equalVector) : equalPoint_(equalPoint), equalVector_(equalVector) {}

    /// The largest distance of equal points, in drawing units, and the largest difference of equal vectors.
    double equalPoint() const { return equalPoint_; }
    double equalVector() const { return equalVector_; }
    /// Each sets one of the two and returns this tolerance.
    OxGeTol& setEqualPoint(double value) {
        equalPoint_ = value;
        return *this;
    }
    OxGeTol& setEqualVector(double value) {
        equalVector_ = value;
        return *this;
    }

private:
    double equalPoint_ = 1e-10;
    double equalVector_ = 1e-10;
};

/// Tolerances that operations take when none is given.
class OXDB_API OxGeContext {
public:
    /// 1e-10 unless the host sets it otherwise, which it must not do while another thread converts.
    static OxGeTol gTol;
};

/// A direction and length in the plane.
struct OxGeVector2d {
    /// Drawing units.
    double x = 0.0;
    double y = 0.0;

    /// Drawing units, never negative.
    double length() const { return std::sqrt(x * x + y * y); }
    /// Exactly, coordinate by coordinate.
    bool operator==(const OxGeVector2d& other) const { return x == other.x && y == other.y; }
    bool operator!=(const OxGeVector2d& other) const { return !(*this == other); }
};

/// A direction and length in space.
struct OxGeVector3d {
    /// Drawing units.
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;

    /// Drawing units, never negative.
    double length() const { return std::sqrt(x * x + y * y + z * z); }
    /// Exactly, coordinate by coordinate.
    bool operator==(const OxGeVector3d& other) const { return x == other.x && y == other.y && z == other.z; }
    bool operator!=(const OxGeVector3d& other) const { return !(*this == other); }
};

/// A point of the plane.
struct OxGePoint2d {
    /// Drawing units.
    double x = 0.0;
    double y = 0.0;

    /// Drawing units.
    double distanceTo(const OxGePoint2d& other) const {
        const double dx = other.x - x;
        const double dy = other.y - y;
        return std::sqrt(dx * dx + dy * dy);
    }
    /// True when the distance is at most the tolerance's equalPoint(). False when a coordinate is NaN.
    bool isEqualTo(const OxGePoint2d& other, const OxGeTol& tolerance = OxGeContext::gTol) const {
        return distanceTo(other) <= tolerance.equalPoint();
    }
    /// Exactly, coordinate by coordinate.
    bool operator==(const OxGePoint2d& other) const { return x == other.x && y == other.y; }
    bool operator!=(const OxGePoint2d& other) const { return !(*this == other); }
};

/// A point of space. Entities of a block give their coordinates in the block's coordinate system.
struct OxGePoint3d {
    /// Drawing units.
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;

    /// Exactly, coordinate by coordinate.
    bool operator==(const OxGePoint3d& other) const { return x == other.x && y == other.y && z == other.z; }
    bool operator!=(const OxGePoint3d& other) const { return !(*this == other); }
};

/// Lists of points of the plane, as reads of entities and curves fill them.
using OxGePoint2dArray = OxArray<OxGePoint2d>;
/// As above, in space.
using OxGePoint3dArray = OxArray<OxGePoint3d>;
/// A list of numbers.
using OxGeDoubleArray = OxArray<double>;
