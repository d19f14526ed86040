// Turns the blocks of an open drawing into point symbols.
#pragma once

#include "OxDb/OxDb.h"
#include "StyleConversion/Export.h"
#include "TylModel/TylModel.h"

#include <cstdint>
#include <string>
#include <vector>

namespace ShxUtility {
struct ShapesInFile;
}

namespace block {
class BlockSymbol;
} // namespace block

/// Converts blocks of one drawing, each into a symbol of its own.
///
/// A symbol has the block's entities in draw order, as paths and texts, the parameter ROTATION (degrees,
/// counter-clockwise, 0 unless the map says otherwise) and a point usage that turns it by that. Colours and
/// line weights by layer and by block become parameters, whose defaults are what the drawing has. Lengths and
/// coordinates are millimetres: the block's own unit, or the drawing's where the block has none, says how
/// many of them a drawing unit is. A drawing without a unit counts as one in metres.
///
/// What cannot be read is left out: an entity, an edge of a hatch, a linetype (the line is then solid), a
/// shape file. Blocks within the block, dimensions and other entities that are not drawn are left out as
/// well. Nothing is reported.
///
/// Colours are eight hexadecimal digits, alpha first: "ff0000ff". Texts stand in single quotes as they are:
/// apostrophes inside are not escaped.
///
/// Shape files of linetypes are looked for by the host services of the process, opened and closed at each
/// dash that carries something. A file that cannot be loaded stays open, and is opened anew at the next such
/// dash: a file search should not give such files out.
///
/// The database is borrowed and must outlive the converter. What an operation opens in it is closed when it
/// returns or throws. No operation throws but std::bad_alloc, after which the converter can be used as
/// before, and what the database's own operations throw. Where memory runs out while a shape file is read or
/// a shape drawn, nothing is thrown, and the dash is left without its shape. A converter is used by one
/// thread at a time; converters on two threads do not disturb each other where the database does not.
class BlockConverter {
public:
    /// `database` may be null; every operation then fails.
    STYLECONVERSION_API explicit BlockConverter(OxDbDatabase* database);
    /// Copies the list of layers to ignore; both converters read the same database.
    STYLECONVERSION_API BlockConverter(const BlockConverter& other);
    STYLECONVERSION_API BlockConverter& operator=(const BlockConverter& other);
    /// Leaves the database and all symbols alone.
    STYLECONVERSION_API ~BlockConverter();

    /// Replaces `names` by the names of the blocks that can be converted, in table order: those that are
    /// neither layouts nor anonymous. A record that cannot be read is left out. Returns 0, or 1 where the
    /// table cannot be read; `names` is then empty.
    STYLECONVERSION_API std::int32_t GetBlockNames(std::vector<std::wstring>& names);
    /// The same. Returns the status of the database call that failed, 15 (eNoDatabase) without a database.
    STYLECONVERSION_API Oxsys::ErrorStatus GetBlockNamesEx(std::vector<std::wstring>& names);

    /// Replaces the list of layers whose entities are left out of every conversion from now on; an empty one
    /// leaves none out. Names are compared exactly, in the spelling that the entity has.
    STYLECONVERSION_API void SetLayersToIgnore(const std::vector<std::wstring>& layers);

    /// Converts the block of that name (any block: layouts and anonymous ones too; the database decides
    /// whether case counts). The symbol, a SimpleSymbolDefinition, belongs to the caller, who deletes it.
    /// Null when there is no such block, or it or its name cannot be read.
    STYLECONVERSION_API TylModel::SymbolDefinition* Convert(const std::wstring& blockName);
    /// Converts a block that the caller has opened for reading, and that stays open and the caller's. Null as
    /// above, and for a null record.
    STYLECONVERSION_API TylModel::SymbolDefinition* Convert(OxDbBlockTableRecord* record);

private:
    class Dashes;
    class Loops;
    class PolylineDashes;

    OxDbDatabase* database_;
    double scale_ = 1.0; // millimetres per drawing unit
    std::vector<std::wstring> layersToIgnore_;

    // The frame. ProcessBlock is false where the block's name cannot be read. SetScale leaves the scale alone
    // for a unit that has no factor.
    bool ProcessBlock(OxDbBlockTableRecord& record, TylModel::SimpleSymbolDefinition& symbol);
    void ProcessEntity(OxDbBlockTableRecord& record, OxDbEntity& entity, block::BlockSymbol& symbol);
    void SetScale(OxDb::UnitsValue units);
    void AssignPointUsage(block::BlockSymbol& symbol) const;

    // Colour and line weight as texts: a value, or a reference to a parameter, which is added to the symbol
    // where it has none of that identifier. FindEntityLayer opens the entity's layer, which the caller
    // closes; null when it is not found.
    void FindEntityLayer(OxDbEntity& entity, OxDbLayerTableRecord*& layer) const;
    std::wstring GetEntityColor(OxDbBlockTableRecord& record, OxDbEntity& entity, const OxCmColor& color,
                                block::BlockSymbol& symbol) const;
    std::wstring GetEntityLineweight(OxDbBlockTableRecord& record, OxDbEntity& entity,
                                     block::BlockSymbol& symbol) const;

    // One collector for each class of entities: adds at most one graphic to the symbol, and the parameters
    // that its colour and line weight refer to.
    void CollectGeometryFromPoint(OxDbBlockTableRecord& record, OxDbPoint& point,
                                  block::BlockSymbol& symbol) const;
    void CollectGeometryFromLine(OxDbBlockTableRecord& record, OxDbLine& line,
                                 block::BlockSymbol& symbol) const;
    void CollectGeometryFromPolyline(OxDbBlockTableRecord& record, OxDbPolyline& polyline,
                                     block::BlockSymbol& symbol) const;
    // In the colour and weight of `owner`.
    void StrokePolyline(OxDbBlockTableRecord& record, OxDbPolyline& polyline, OxDbEntity& owner,
                        block::BlockSymbol& symbol) const;
    // Solid, with moves only where it is interrupted, so that corners are joined.
    void StrokeJoined(OxDbPolyline& polyline, std::wstring& path) const;
    void CollectGeometryFromSpline(OxDbBlockTableRecord& record, OxDbSpline& spline,
                                   block::BlockSymbol& symbol) const;
    void CollectGeometryFromArc(OxDbBlockTableRecord& record, OxDbArc& arc, block::BlockSymbol& symbol) const;
    void CollectGeometryFromCircle(OxDbBlockTableRecord& record, OxDbCircle& circle,
                                   block::BlockSymbol& symbol) const;
    void CollectGeometryFromEllipse(OxDbBlockTableRecord& record, OxDbEllipse& ellipse,
                                    block::BlockSymbol& symbol) const;
    void CollectGeometryFromHatch(OxDbBlockTableRecord& record, OxDbHatch& hatch,
                                  block::BlockSymbol& symbol) const;
    void CollectGeometryFromSolidHatch(OxDbBlockTableRecord& record, OxDbHatch& hatch,
                                       block::BlockSymbol& symbol) const;
    void CollectGeometryFromNonSolidHatch(OxDbBlockTableRecord& record, OxDbHatch& hatch,
                                          block::BlockSymbol& symbol) const;
    void CollectGeometryFromMPolygon(OxDbBlockTableRecord& record, OxDbMPolygon& polygon,
                                     block::BlockSymbol& symbol) const;
    void CollectGeometryFromText(OxDbBlockTableRecord& record, OxDbText& text,
                                 block::BlockSymbol& symbol) const;
    void CollectGeometryFromMText(OxDbBlockTableRecord& record, OxDbMText& text,
                                  block::BlockSymbol& symbol) const;
    void CollectLinesFromMText(OxDbBlockTableRecord& record, OxDbMText& text,
                               block::BlockSymbol& symbol) const;

    // One straight or circular piece in the dashes of a linetype, appended to `path`, and the shapes and
    // texts at the dashes, appended to `shapePath`. Without a linetype (null) or a pattern, solid. `sweep`,
    // in radians, is the included angle.
    void ParseDashLine(OxDbLinetypeTableRecord* linetype, const OxGePoint2d& start, const OxGePoint2d& end,
                       std::wstring& path, std::wstring& shapePath) const;
    void ParseDashArc(OxDbLinetypeTableRecord* linetype, const OxGePoint2d& start, const OxGePoint2d& end,
                      const OxGePoint2d& center, double radius, double sweep, bool clockwise,
                      std::wstring& path, std::wstring& shapePath) const;

    // ParseShxId loads the shape file of a text style. ProcessShape draws one of its shapes, turned by
    // `rotation` (radians), and moves x, y and scale to what its program left; empty where it cannot be
    // drawn.
    bool ParseShxId(OxDbObjectId styleId, ShxUtility::ShapesInFile& shapes) const;
    std::wstring ProcessShape(const ShxUtility::ShapesInFile& shapes, int shapeNumber, double& scale,
                              double& x, double& y, double rotation) const;

    // Values as texts. Lengths and points are scaled to millimetres; the rotation, in degrees, and line
    // weights, in hundredths of a millimetre, are not.
    std::wstring Double2TylString(double value) const;
    std::wstring Point2TylString(const OxGePoint2d& point) const;
    std::wstring Int2TylString(std::int32_t value) const;
    std::wstring Lineweight2TylString(int lineWeight) const;
    std::wstring Color2TylString(const OxCmColor& color) const;
    void AppendLineToString(std::wstring* path, const OxGePoint2d& from, const OxGePoint2d& to) const;
    void AppendArcString(std::wstring* path, double radiusX, double radiusY, double rotation, bool largeArc,
                         bool sweep, const OxGePoint2d& end) const;
};
