// The tables of a DXF file: layers, linetypes, text styles and what is said of blocks.
#pragma once

#include "drawing/database/Database.h"
#include "exchange/DxfNotes.h"
#include "exchange/DxfRecords.h"
#include "exchange/DxfText.h"

#include <cstdint>
#include <map>
#include <string>
#include <unordered_map>
#include <vector>

namespace exchange {

/// What the table of block records says of a block.
struct DxfBlockProperties {
    std::uint64_t handle = 0;
    OxDb::UnitsValue units = OxDb::kUnitsUndefined;
};

class DxfTableReader {
public:
    DxfTableReader(drawing::Database& database, const DxfTextDecoder& texts, DxfNotes& notes)
        : database_(database), texts_(texts), notes_(notes) {}

    /// An entry of a table; records of other types are passed over.
    void Take(const DxfRecord& record);
    /// All tables are read: linetypes find the styles of their shapes and texts.
    void Finish();

    /// By the block's name as it stands in the file, in small letters.
    const std::unordered_map<std::string, DxfBlockProperties>& Blocks() const { return blocks_; }

private:
    void TakeLayer(const DxfRecord& record);
    void TakeStyle(const DxfRecord& record);
    void TakeBlockRecord(const DxfRecord& record);
    void AddLinetype(const DxfRecord& record);
    std::wstring StyleOf(const DxfPair& handle) const;

    drawing::Database& database_;
    const DxfTextDecoder& texts_;
    DxfNotes& notes_;
    std::vector<DxfKeptRecord> linetypes_;
    std::map<std::uint64_t, std::wstring> styles_; // by their handles
    std::unordered_map<std::string, DxfBlockProperties> blocks_;
};

/// A name of the file in small letters, as far as they are ASCII.
std::string FoldedName(std::string_view name);

} // namespace exchange
