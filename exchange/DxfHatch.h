// Hatches and multi-polygons of a DXF file.
#pragma once

#include "drawing/entities/Areas.h"
#include "exchange/DxfRecords.h"

#include <vector>

namespace exchange {

/// What a HATCH holds; `isMirrored`: it is drawn from below, x to the left. Nothing where its boundary cannot
/// be read: a count is larger than the file, or a value is none.
std::optional<drawing::HatchData> ReadHatch(const DxfRecord& record, bool isMirrored);

/// The loops of an MPOLYGON, which are polylines; edges of another kind leave a loop out.
std::optional<std::vector<drawing::PolylineLoop>> ReadMPolygonLoops(const DxfRecord& record, bool isMirrored);

} // namespace exchange
