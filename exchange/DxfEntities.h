// Entities of a DXF file, on their way into a block of the drawing.
#pragma once

#include "drawing/database/BlockReference.h"
#include "drawing/database/Database.h"
#include "drawing/entities/Texts.h"
#include "drawing/entities/WideSegments.h"
#include "drawing/geometry/BulgeVertex.h"
#include "exchange/DxfNotes.h"
#include "exchange/DxfRecords.h"
#include "exchange/DxfText.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace exchange {

/// A block that entities are put into.
struct DxfBlock {
    drawing::BlockRecord* record = nullptr;
    std::string name; ///< as UTF-8, for messages
    /// The handles of its entities, for the draw order; 0 where one has none. Entities behind the last one
    /// with a handle are not there.
    std::vector<std::uint64_t> handles;
};

/// Makes entities of the drawing from the records of a file, in the order of the file.
class DxfEntityReader {
public:
    DxfEntityReader(drawing::Database& database, const DxfTextDecoder& texts, DxfNotes& notes)
        : database_(database), texts_(texts), notes_(notes) {}

    /// Entities from here on belong to `block`, which must stay where it is; null: they are left out.
    void Begin(DxfBlock* block);
    /// No more entities of that block.
    void End();
    /// Takes a record that is no mark of the file's structure.
    void Take(const DxfRecord& record);

private:
    // Null for one that is left out, since a number that it takes is none.
    template <class T, class... Args>
    T* Add(const DxfRecord& record, Args&&... args);
    DxfPlace PlaceOf(const DxfRecord& record) const;
    // Whether a number of what must be right is none, and else that one of the rest is; both are told.
    bool IsLost(const DxfRecord& record);
    void TellRepaired(const DxfRecord& record);
    bool IsMirrored(const DxfRecord& record);
    const drawing::EntityProperties& Properties(const DxfRecord& record);
    void RequireLayer(const DxfRecord& record);
    const std::wstring& Name(std::string_view word, std::wstring fallback);

    bool TakeCurve(const DxfRecord& record);
    bool TakeText(const DxfRecord& record);
    void AddArc(const DxfRecord& record);
    void AddEllipse(const DxfRecord& record);
    void AddLightPolyline(const DxfRecord& record);
    void AddSpline(const DxfRecord& record);
    void AddHatch(const DxfRecord& record);
    void AddMPolygon(const DxfRecord& record);
    void AddInsert(const DxfRecord& record);
    void AddAttribute(const DxfRecord& record);
    drawing::TextData ReadText(const DxfRecord& record, int verticalCode);
    void AddText(const DxfRecord& record, bool isDefinition);
    void AddParagraphText(const DxfRecord& record);
    void AddOther(const DxfRecord& record);
    void TakeVertex(const DxfRecord& record);
    void FinishPolyline();

    /// A polyline whose vertices are records of their own.
    struct OpenPolyline {
        DxfKeptRecord record;
        std::vector<geometry::BulgeVertex> vertices;
        std::vector<drawing::SegmentWidth> widths;
        bool isMirrored = false;
        bool isDamaged = false; // has been told of
    };

    /// Finds names without a copy of them.
    struct NameHash {
        using is_transparent = void;
        std::size_t operator()(std::string_view name) const { return std::hash<std::string_view>()(name); }
    };

    drawing::Database& database_;
    const DxfTextDecoder& texts_;
    DxfNotes& notes_;
    DxfBlock* block_ = nullptr;
    std::optional<OpenPolyline> polyline_;
    drawing::BlockReference* insert_ = nullptr; // that attributes belong to
    drawing::EntityProperties properties_;      // of the entity that is read
    bool hasLayer_ = false;                     // its layer is in the table
    std::unordered_map<std::string, std::wstring, NameHash, std::equal_to<>> names_; // by their bytes
};

/// Group code 370, in hundredths of a millimetre; below 0 by layer, by block and default.
inline constexpr DxfRange kLineWeights = {OxDb::kLnWtByLwDefault, 211};

/// A scale of linetypes; 1 where it is none.
inline double PositiveScale(double scale) {
    return scale > 0.0 ? scale : 1.0;
}

/// The colour of group codes 62 and 420; `fallback` where there is none.
OxCmColor ReadColor(const DxfRecord& record, const OxCmColor& fallback);
/// The colour "by layer".
OxCmColor ByLayerColor();

} // namespace exchange
