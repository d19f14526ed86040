// Points: strokes without length.
#include "OxDb/OxDbCurves.h"
#include "StyleConversion/block/Angles.h"
#include "StyleConversion/block/BlockConverter.h"
#include "StyleConversion/block/BlockSymbol.h"
#include "StyleConversion/encoding/ScaledPath.h"

void BlockConverter::CollectGeometryFromPoint(const OxDbBlockTableRecord& record, const OxDbPoint& point,
                                              block::BlockSymbol& symbol) const {
    std::wstring& path = symbol.StartPath().path;
    const OxGePoint2d position = block::InPlane(point.position());
    AppendPoint(path, encoding::kFirstMove, position);
    AppendPoint(path, encoding::kLine, position);
    FinishStroke(record, point, symbol);
}
