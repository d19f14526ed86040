// Hatch loops of edges as paths.
#include "OxDb/OxArray.h"
#include "OxDb/OxGeCurve2d.h"
#include "StyleConversion/block/Angles.h"
#include "StyleConversion/block/BlockConverter.h"
#include "StyleConversion/encoding/ScaledPath.h"

// Writes the edges of one loop in order; what is neither segment nor arc adds nothing.
class BlockConverter::EdgeLoopWriter {
public:
    EdgeLoopWriter(const BlockConverter& converter, std::wstring& path)
        : converter_(converter), path_(path) {}

    void Write(const OxGeCurve2d& edge) {
        if (edge.isKindOf(OxGe::kLineSeg2d)) {
            const auto& line = static_cast<const OxGeLineSeg2d&>(edge);
            MoveTo(line.startPoint());
            converter_.AppendLineToString(&path_, line.startPoint(), line.endPoint());
            current_ = line.endPoint();
        } else if (edge.isKindOf(OxGe::kCircArc2d)) {
            const auto& arc = static_cast<const OxGeCircArc2d&>(edge);
            WriteArc(arc, arc.radius(), arc.radius());
        } else if (edge.isKindOf(OxGe::kEllipArc2d)) {
            const auto& arc = static_cast<const OxGeEllipArc2d&>(edge);
            WriteArc(arc, arc.majorRadius(), arc.minorRadius());
        }
    }

private:
    // An ellipse's axes are taken as those of the drawing, whatever they are: the output is wanted so.
    template <class Arc>
    void WriteArc(const Arc& arc, double radiusX, double radiusY) {
        if (arc.isClosed()) {
            WriteWhole(arc.center(), radiusX, radiusY);
            return;
        }
        MoveTo(arc.startPoint());
        const double sweep = block::Sweep(arc.startAng(), arc.endAng());
        converter_.AppendArcString(&path_, radiusX, radiusY, 0.0, sweep >= block::kPi, arc.isClockWise(),
                                   arc.endPoint());
        current_ = arc.endPoint();
    }

    void WriteWhole(const OxGePoint2d& center, double radiusX, double radiusY) {
        const OxGePoint2d leftmost{center.x - radiusX, center.y};
        MoveTo(leftmost);
        const OxGePoint2d opposite{2.0 * center.x - leftmost.x, 2.0 * center.y - leftmost.y};
        converter_.AppendArcString(&path_, radiusX, radiusY, 0.0, true, true, opposite);
        converter_.AppendArcString(&path_, radiusX, radiusY, 0.0, true, true, leftmost);
        current_ = leftmost;
    }

    void MoveTo(const OxGePoint2d& start) {
        if (started_ && start.isEqualTo(current_)) {
            return;
        }
        // No blank, also behind the loop before: the output is wanted so.
        converter_.AppendPoint(path_, started_ ? encoding::kMove : encoding::kFirstMove, start);
        started_ = true;
    }

    const BlockConverter& converter_;
    std::wstring& path_;
    bool started_ = false;
    OxGePoint2d current_;
};

void BlockConverter::AppendEdgeLoop(std::wstring& path, const OxArray<const OxGeCurve2d*>& edges) const {
    EdgeLoopWriter writer(*this, path);
    for (const OxGeCurve2d* const edge : edges) {
        if (edge != nullptr) {
            writer.Write(*edge);
        }
    }
}
