// Loops of vertices and bulges as paths.
#include "StyleConversion/block/LoopPath.h"

#include "StyleConversion/block/BlockConverter.h"
#include "StyleConversion/encoding/ScaledPath.h"

void BlockConverter::AppendLoop(std::wstring& path, const OxGePoint2dArray& vertices,
                                const OxGeDoubleArray& bulges) const {
    if (vertices.length() <= 2) {
        return;
    }
    AppendPoint(path, path.empty() ? encoding::kFirstMove : encoding::kMove, vertices[0]);
    // There is no segment back to the first vertex: filling closes the figure.
    for (int i = 1; i < vertices.length(); ++i) {
        const double bulge = block::BulgeAt(bulges, i - 1);
        if (bulge != 0.0) {
            const auto arc = block::ArcOfBulge(bulge, vertices[i - 1].distanceTo(vertices[i]));
            AppendArcString(&path, arc.radius, arc.radius, 0.0, arc.large, arc.sweep, vertices[i]);
        } else {
            AppendPoint(path, encoding::kLine, vertices[i]);
        }
    }
}
