// Linetypes along lines, arcs, circles and polylines: how a pattern is fitted, and what writes its dashes.
#pragma once

#include "StyleConversion/block/Angles.h"
#include "StyleConversion/block/BlockConverter.h"
#include "StyleConversion/encoding/IntegerConversion.h"
#include "StyleConversion/interfaces/HostNames.h"

#include <cstdint>
#include <string>

namespace block {

/// A linetype's pattern, fitted to a length so that it sits centred there.
struct DashFit {
    /// Whole repetitions of the pattern; below 1 for none.
    std::int32_t repetitions;
    /// What is drawn before the first repetition, in place of its first dash, and again behind the last one.
    /// Drawing units.
    double lead;
};

inline int CountDashes(OxDbLinetypeTableRecord& linetype) {
    return static_cast<int>(linetype.numDashes());
}

/// False for null, a linetype that could not be opened: what has it is solid.
bool HasPattern(OxDbLinetypeTableRecord* linetype);

inline DashFit FitDashes(OxDbLinetypeTableRecord& linetype, double length) {
    const double patternLength = linetype.patternLength();
    const std::int32_t repetitions = encoding::ToInt32(length / patternLength);
    const double rest = length - repetitions * patternLength;
    const double first = linetype.dashLengthAt(0);
    const double lead = first > 0.0 && repetitions != 0 ? (first + rest) * 0.5 : rest * 0.5;
    return {repetitions, lead};
}

/// A segment of a polyline that has a length.
struct PolylineSegment {
    bool isArc = false;
    OxGePoint2d start;
    OxGePoint2d end;
    /// Along the segment; drawing units.
    double length = 0.0;
    /// Arcs only: the included angle, and the circle.
    double sweep = 0.0;
    ArcTravel travel{};
};

} // namespace block

/// Writes the dashes of one linetype to a path, and the shapes and texts at them to another one. Points and
/// lengths are in drawing units, angles in radians.
class BlockConverter::Dashes {
public:
    /// Everything is borrowed. Both paths are appended to.
    Dashes(const BlockConverter& converter, OxDbLinetypeTableRecord& linetype, std::wstring& path,
           std::wstring& shapePath)
        : converter_(converter), linetype_(linetype), path_(path), shapePath_(shapePath) {}

    int Count() const { return block::CountDashes(linetype_); }
    /// Above 0 a dash, 0 a dot, below 0 a gap.
    double LengthAt(int index) const { return linetype_.dashLengthAt(index); }

    /// The dash that follows the lead of a pattern.
    int FirstBehindLead() const;

    /// Begins a subpath behind what the path has.
    void StartAt(const OxGePoint2d& point);
    void MoveTo(const OxGePoint2d& point);
    void LineTo(const OxGePoint2d& point);
    /// A piece of a circle of that included angle.
    void ArcTo(const OxGePoint2d& point, double radius, double angle, bool clockwise);

    bool HasShape(int index) const { return !host::IsNull(linetype_.shapeStyleAt(index)); }
    /// Draws what dash `index` carries, if anything, at `at`, where the direction of travel is `direction`,
    /// `stretch` times its size.
    void DrawShape(int index, const OxGePoint2d& at, double direction, double stretch = 1.0);

    /// A whole number of repetitions around a circle, from its rightmost point on, where the path stands.
    void GoRound(const OxGePoint2d& center, double radius);

private:
    const BlockConverter& converter_;
    OxDbLinetypeTableRecord& linetype_;
    std::wstring& path_;
    std::wstring& shapePath_;
};

/// Dashes that run on over the vertices of a polyline: is shown its segments in order and writes one subpath
/// that begins at the first segment, with moves for the gaps.
///
/// The pattern is a row of entries. The first is the lead-in, which stands in the place of dash 0; when all
/// repetitions have been written, the lead-out follows as one more entry, and should anything be left of the
/// polyline then, the pattern runs on behind it. Without any whole repetition there is no lead-out.
class BlockConverter::PolylineDashes {
public:
    /// `dashes` is borrowed and has some. `fit` is that to the sum of the segments' lengths.
    PolylineDashes(Dashes& dashes, const block::DashFit& fit);

    void Add(const block::PolylineSegment& segment);

private:
    void WriteEntry(const block::PolylineSegment& segment, const block::Direction& direction, double angle);
    void DrawShape(const block::PolylineSegment& segment, double angle);
    void NextEntry();
    void NoteProgress(bool progressed, bool isWhole);
    void CutAtEnd(const block::PolylineSegment& segment, double left);
    void ArcTo(const block::PolylineSegment& segment, double angle, const OxGePoint2d& point);

    Dashes& dashes_;
    double lead_;
    /// Still to go of the current entry, in drawing units: above 0 drawn, 0 a dot, below 0 a gap.
    double remaining_;
    /// The dash of the linetype that the current entry is, or stands in for; -1 for a lead-in that is none.
    int index_;
    bool isLead_ = true;
    /// The current entry was cut at a vertex.
    bool isRest_ = false;
    /// Counts down to the lead-out, and wraps.
    std::uint32_t entriesLeft_;
    /// Whole entries of the pattern in a row that were too short to count.
    int idleEntries_ = 0;
    /// The pattern does not get on: everything from here is drawn.
    bool isSolid_;
    bool started_ = false;
    OxGePoint2d current_;
};
