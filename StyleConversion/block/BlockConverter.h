// Turns the blocks of an open drawing into point symbols.
#pragma once

#include "OxDb/ErrorStatus.h"
#include "OxDb/OxDbObjectId.h"
#include "OxDb/OxDbTypes.h"
#include "StyleConversion/Export.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

class OxCmColor;
class OxDbArc;
class OxDbBlockTableRecord;
class OxDbCircle;
class OxDbDatabase;
class OxDbEllipse;
class OxDbEntity;
class OxDbHatch;
class OxDbLayerTableRecord;
class OxDbLine;
class OxDbLinetypeTableRecord;
class OxDbMPolygon;
class OxDbMText;
class OxDbPoint;
class OxDbPolyline;
class OxDbSpline;
class OxDbText;
class OxGeCurve2d;
struct OxGePoint2d;
template <class T>
class OxArray;

namespace ShxUtility {
struct ShapesInFile;
}

namespace TylModel {
class SimpleSymbolDefinition;
class SymbolDefinition;
} // namespace TylModel

namespace block {
class BlockSymbol;
struct NamedLayer;
} // namespace block

/// Converts one block at a time. Lengths and coordinates of the symbols are millimetres; the drawing's unit,
/// or the block's own where it has one, says how many of them a drawing unit is. A drawing without a unit
/// counts as one in metres.
///
/// The database is borrowed and must outlive the converter; it may be null, and every operation then fails
/// softly. What an operation opens in it is closed when it returns. One thread at a time: shapes in linetypes
/// are written through the shared buffer of the path commands.
class BlockConverter {
public:
    /// `database` may be null.
    STYLECONVERSION_API explicit BlockConverter(OxDbDatabase* database);
    /// Copies the list of layers; the database is shared.
    STYLECONVERSION_API BlockConverter(const BlockConverter& other);
    STYLECONVERSION_API BlockConverter& operator=(const BlockConverter& other);
    STYLECONVERSION_API ~BlockConverter();

    /// Replaces `names` by the names of the blocks that can be converted, in table order: those that are
    /// neither layouts nor anonymous. Returns 0, or 1 on failure; what was listed before it stays in `names`.
    STYLECONVERSION_API std::int32_t GetBlockNames(std::vector<std::wstring>& names);
    /// The same; returns the status of the database call that failed, or eNoDatabase without a database.
    STYLECONVERSION_API Oxsys::ErrorStatus GetBlockNamesEx(std::vector<std::wstring>& names);

    /// Entities on these layers are left out of every conversion from now on. Names are compared exactly, in
    /// the spelling that the entity has. Replaces the list of before.
    STYLECONVERSION_API void SetLayersToIgnore(const std::vector<std::wstring>& layers);

    /// Converts the block of that name (any block: layouts and anonymous ones too). The symbol, a
    /// SimpleSymbolDefinition, belongs to the caller. Null when there is no such block or it cannot be read.
    /// Entities that cannot be read or are of an unknown class are left out.
    STYLECONVERSION_API TylModel::SymbolDefinition* Convert(const std::wstring& blockName);
    /// Converts a block that the caller has opened for reading, and keeps open.
    STYLECONVERSION_API TylModel::SymbolDefinition* Convert(OxDbBlockTableRecord* record);

private:
    class EdgeLoopWriter;
    class PolylineWalk;

    OxDbDatabase* database_;
    double scale_ = 1.0; // millimetres per drawing unit
    std::vector<std::wstring> layersToIgnore_;

    // The frame: lists of blocks, and the way through the entities of one.
    Oxsys::ErrorStatus ListBlocks(std::vector<std::wstring>& names, bool& listed) const;
    bool ProcessBlock(OxDbBlockTableRecord& record, TylModel::SimpleSymbolDefinition& symbol);
    void ProcessInDrawOrder(OxDbBlockTableRecord& record, block::BlockSymbol& symbol);
    void ProcessEntity(const OxDbBlockTableRecord& record, OxDbEntity& entity, block::BlockSymbol& symbol);
    void SetScale(OxDb::UnitsValue units);
    void AssignPointUsage(block::BlockSymbol& symbol) const;

    // Looks a layer, or the entity's own, up. `layer` is null when it is not found; the caller closes it.
    void FindLayer(const wchar_t* name, OxDbLayerTableRecord*& layer) const;
    void FindEntityLayer(const OxDbEntity& entity, OxDbLayerTableRecord*& layer) const;
    // The entity's layer, looked up or known from an entity before; null when it is not found.
    block::NamedLayer* ReadEntityLayer(const OxDbEntity& entity, block::BlockSymbol& symbol) const;
    std::wstring GetEntityColor(const OxDbBlockTableRecord& record, const OxDbEntity& entity,
                                const OxCmColor& color, block::BlockSymbol& symbol) const;
    std::wstring GetEntityLineweight(const OxDbBlockTableRecord& record, const OxDbEntity& entity,
                                     block::BlockSymbol& symbol) const;

    // One collector for each class of entities: adds at most one graphic to the symbol.
    void CollectGeometryFromPoint(const OxDbBlockTableRecord& record, const OxDbPoint& point,
                                  block::BlockSymbol& symbol) const;
    void CollectGeometryFromLine(const OxDbBlockTableRecord& record, const OxDbLine& line,
                                 block::BlockSymbol& symbol) const;
    void CollectGeometryFromPolyline(const OxDbBlockTableRecord& record, const OxDbPolyline& polyline,
                                     block::BlockSymbol& symbol) const;
    void CollectGeometryFromSpline(const OxDbBlockTableRecord& record, const OxDbSpline& spline,
                                   block::BlockSymbol& symbol) const;
    void CollectGeometryFromArc(const OxDbBlockTableRecord& record, const OxDbArc& arc,
                                block::BlockSymbol& symbol) const;
    void CollectGeometryFromCircle(const OxDbBlockTableRecord& record, const OxDbCircle& circle,
                                   block::BlockSymbol& symbol) const;
    void CollectGeometryFromEllipse(const OxDbBlockTableRecord& record, const OxDbEllipse& ellipse,
                                    block::BlockSymbol& symbol) const;
    void CollectGeometryFromHatch(const OxDbBlockTableRecord& record, OxDbHatch& hatch,
                                  block::BlockSymbol& symbol) const;
    void CollectGeometryFromSolidHatch(const OxDbBlockTableRecord& record, const OxDbHatch& hatch,
                                       block::BlockSymbol& symbol) const;
    void CollectGeometryFromNonSolidHatch(const OxDbBlockTableRecord& record, OxDbHatch& hatch,
                                          block::BlockSymbol& symbol) const;
    void CollectGeometryFromMPolygon(const OxDbBlockTableRecord& record, const OxDbMPolygon& polygon,
                                     block::BlockSymbol& symbol) const;
    void CollectGeometryFromText(const OxDbBlockTableRecord& record, const OxDbText& text,
                                 block::BlockSymbol& symbol) const;
    void CollectGeometryFromMText(const OxDbBlockTableRecord& record, const OxDbMText& text,
                                  block::BlockSymbol& symbol) const;

    // The end of every stroked collector: appends the path of embedded shapes to the entity's own, resolves
    // colour and line weight, and adds a path to the symbol when there is any geometry.
    void FinishStroke(const OxDbBlockTableRecord& record, const OxDbEntity& entity,
                      block::BlockSymbol& symbol) const;

    // Linetypes: one straight or circular piece with its dashes, appended to `path`, and the shapes and texts
    // at the dashes, appended to `shapePath`. `linetype` may be null. Angles are radians.
    void ParseDashLine(const OxDbLinetypeTableRecord* linetype, const OxGePoint2d& start,
                       const OxGePoint2d& end, std::wstring& path, std::wstring& shapePath) const;
    void ParseDashArc(const OxDbLinetypeTableRecord* linetype, const OxGePoint2d& start,
                      const OxGePoint2d& end, const OxGePoint2d& center, double radius, double sweep,
                      bool clockwise, std::wstring& path, std::wstring& shapePath) const;
    void DashCircle(const OxDbLinetypeTableRecord& linetype, const OxGePoint2d& center, double radius,
                    std::wstring& path, std::wstring& shapePath) const;
    // Draws what dash `index` carries at `at`, where the direction of travel is `direction`, `stretch` times
    // its size.
    void DrawDashShape(const OxDbLinetypeTableRecord& linetype, int index, const OxGePoint2d& at,
                       double direction, double stretch, std::wstring& shapePath) const;

    // Boundary loops. One of vertices and bulges (tangents of a quarter of the included angle), where fewer
    // than three vertices add nothing; and one of edges.
    void AppendLoop(std::wstring& path, const OxArray<OxGePoint2d>& vertices,
                    const OxArray<double>& bulges) const;
    void AppendEdgeLoop(std::wstring& path, const OxArray<const OxGeCurve2d*>& edges) const;

    // Shape files. ParseShxId loads the file of a text style; ProcessShape draws one of its shapes and moves
    // x, y and scale to what its program left. Rotation in radians.
    bool ParseShxId(OxDbObjectId styleId, ShxUtility::ShapesInFile& shapes) const;
    std::wstring ProcessShape(const ShxUtility::ShapesInFile& shapes, int shapeNumber, double& scale,
                              double& x, double& y, double rotation) const;

    // Values as text. Lengths and points are scaled to millimetres, the rotation (degrees) is not.
    std::wstring Double2TylString(double value) const;
    std::wstring Point2TylString(const OxGePoint2d& point) const;
    std::wstring Int2TylString(std::int32_t value) const;
    std::wstring Lineweight2TylString(OxDb::LineWeight lineWeight) const;
    std::wstring Color2TylString(const OxCmColor& color) const;
    // The command and the point behind it.
    void AppendPoint(std::wstring& path, std::wstring_view command, const OxGePoint2d& point) const;
    void AppendLineToString(std::wstring* path, const OxGePoint2d& from, const OxGePoint2d& to) const;
    void AppendArcString(std::wstring* path, double radiusX, double radiusY, double rotation, bool largeArc,
                         bool sweep, const OxGePoint2d& end) const;
};
