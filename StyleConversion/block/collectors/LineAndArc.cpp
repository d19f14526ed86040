// Lines and arcs.
#include "OxDb/OxDbCurves.h"
#include "StyleConversion/block/Angles.h"
#include "StyleConversion/block/BlockConverter.h"
#include "StyleConversion/block/BlockSymbol.h"
#include "StyleConversion/block/OpenLinetype.h"

void BlockConverter::CollectGeometryFromLine(const OxDbBlockTableRecord& record, const OxDbLine& line,
                                             block::BlockSymbol& symbol) const {
    auto& [path, shapes] = symbol.StartPath();
    block::Linetype linetype(line);
    ParseDashLine(linetype.Get(), block::InPlane(line.startPoint()), block::InPlane(line.endPoint()), path,
                  shapes);
    linetype.Close();
    FinishStroke(record, line, symbol);
}

void BlockConverter::CollectGeometryFromArc(const OxDbBlockTableRecord& record, const OxDbArc& arc,
                                            block::BlockSymbol& symbol) const {
    auto& [path, shapes] = symbol.StartPath();
    double startParameter = 0.0;
    double endParameter = 0.0;
    OxGePoint3d start;
    OxGePoint3d end;
    arc.getStartParam(startParameter);
    arc.getEndParam(endParameter);
    arc.getPointAtParam(startParameter, start);
    arc.getPointAtParam(endParameter, end);
    block::Linetype linetype(arc);
    ParseDashArc(linetype.Get(), block::InPlane(start), block::InPlane(end), block::InPlane(arc.center()),
                 arc.radius(), block::Sweep(startParameter, endParameter), arc.normal().z < 0.0, path,
                 shapes);
    linetype.Close();
    FinishStroke(record, arc, symbol);
}
