// The drawing database in memory.
#include "drawing/database/Database.h"

#include "drawing/database/BlockReference.h"

#include <algorithm>
#include <array>
#include <unordered_set>

namespace drawing {

/// A table whose records are only ever looked up by name.
template <class TableInterface, class RecordInterface, Operation getAtOperation,
          OxDbStub* NamedThings::*member>
class LookupTable final : public Resident<TableInterface> {
public:
    explicit LookupTable(Core& core) : Resident<TableInterface>(core) {}

    Oxsys::ErrorStatus getAt(const wchar_t* name, RecordInterface*& record, OxDb::OpenMode /*mode*/,
                             bool openErased) const override {
        return OpenNamed(this->SharedCore(), getAtOperation, name, member, openErased, record);
    }
};

using LayerTable =
    LookupTable<OxDbLayerTable, OxDbLayerTableRecord, Operation::kLayerTableGetAt, &NamedThings::layer>;
using TextStyleTable = LookupTable<OxDbTextStyleTable, OxDbTextStyleTableRecord,
                                   Operation::kTextStyleTableGetAt, &NamedThings::textStyle>;

namespace {

template <class Record>
std::vector<Record*> RecordsOf(const ObjectList& list) {
    std::vector<Record*> records;
    records.reserve(list.Stubs().size());
    for (const OxDbStub* const stub : list.Stubs()) {
        records.push_back(static_cast<Record*>(stub->object));
    }
    return records;
}

constexpr std::array<const wchar_t*, 3> kBuiltInLinetypes = {L"ByLayer", L"ByBlock", L"Continuous"};

} // namespace

struct Database::Tables {
    explicit Tables(Core& core) : layerTable(core), textStyleTable(core), blockTable(core) {}

    bool IsBuiltIn(const OxDbStub* linetype) const {
        const std::vector<OxDbStub*>& stubs = builtInLinetypes.Stubs();
        return std::find(stubs.begin(), stubs.end(), linetype) != stubs.end();
    }

    LayerTable layerTable;
    TextStyleTable textStyleTable;
    BlockTable blockTable;
    ObjectList layers;
    ObjectList textStyles;
    ObjectList linetypes;
    ObjectList builtInLinetypes;
};

Database::Database() : core_(std::make_unique<Core>()), tables_(std::make_unique<Tables>(*core_)) {
    for (const wchar_t* const name : kBuiltInLinetypes) {
        NamedThings& things = core_->names.Things(core_->names.Intern(name));
        auto record = std::make_unique<LinetypeRecord>(*core_, name, std::vector<Dash>(), std::nullopt);
        things.linetype = &tables_->builtInLinetypes.Adopt(std::move(record)).Stub();
    }
}

Database::~Database() = default;

LayerRecord* Database::AddLayer(const std::wstring& name, const OxCmColor& color,
                                OxDb::LineWeight lineWeight) {
    NamedThings& things = core_->names.Things(core_->names.Intern(name));
    if (things.layer != nullptr) {
        return nullptr;
    }
    LayerRecord& record =
        tables_->layers.Adopt(std::make_unique<LayerRecord>(*core_, name, color, lineWeight));
    things.layer = &record.Stub();
    return &record;
}

LinetypeRecord* Database::AddLinetype(const std::wstring& name, std::vector<Dash> dashes,
                                      std::optional<double> patternLength) {
    NamedThings& things = core_->names.Things(core_->names.Intern(name));
    if (things.linetype != nullptr && !tables_->IsBuiltIn(things.linetype)) {
        return nullptr;
    }
    LinetypeRecord& record = tables_->linetypes.Adopt(
        std::make_unique<LinetypeRecord>(*core_, name, std::move(dashes), patternLength));
    things.linetype = &record.Stub();
    return &record;
}

TextStyleRecord* Database::AddTextStyle(const std::wstring& name, TextStyleData data) {
    NamedThings& things = core_->names.Things(core_->names.Intern(name));
    if (things.textStyle != nullptr) {
        return nullptr;
    }
    TextStyleRecord& record =
        tables_->textStyles.Adopt(std::make_unique<TextStyleRecord>(*core_, name, std::move(data)));
    things.textStyle = &record.Stub();
    return &record;
}

BlockRecord* Database::AddBlock(const std::wstring& name, const BlockData& data) {
    return AddBlock(name, data, MakeBlock());
}

std::unique_ptr<BlockRecord> Database::MakeBlock() {
    return std::make_unique<BlockRecord>(*core_);
}

BlockRecord* Database::AddBlock(const std::wstring& name, const BlockData& data,
                                std::unique_ptr<BlockRecord> block) {
    NamedThings& things = core_->names.Things(core_->names.Intern(name));
    if (things.block != nullptr) {
        Discard(std::move(block));
        return nullptr;
    }
    block->Set(name, data);
    BlockRecord& record = tables_->blockTable.Adopt(std::move(block));
    things.block = &record.Stub();
    return &record;
}

void Database::Discard(std::unique_ptr<BlockRecord> block) {
    std::unordered_set<OxDbStub*> inserts;
    std::unordered_set<NameIndex> inserted;
    for (std::size_t i = 0; block != nullptr && i < block->EntityCount(); ++i) {
        OxDbStub* const stub = block->EntityId(i).stub();
        if (stub->object->isKindOf(OxDbBlockReference::desc())) {
            inserts.insert(stub);
            inserted.insert(static_cast<const BlockReference*>(stub->object)->BlockName());
        }
    }
    for (const NameIndex name : inserted) {
        std::erase_if(core_->names.Things(name).references,
                      [&](OxDbStub* reference) { return inserts.contains(reference); });
    }
}

std::vector<LayerRecord*> Database::Layers() const {
    return RecordsOf<LayerRecord>(tables_->layers);
}

std::vector<LinetypeRecord*> Database::Linetypes() const {
    return RecordsOf<LinetypeRecord>(tables_->linetypes);
}

std::vector<TextStyleRecord*> Database::TextStyles() const {
    return RecordsOf<TextStyleRecord>(tables_->textStyles);
}

std::vector<BlockRecord*> Database::Blocks() const {
    return RecordsOf<BlockRecord>(tables_->blockTable.Records());
}

LayerRecord* Database::FindLayer(const std::wstring& name) const {
    const NamedThings* const things = core_->names.Find(name);
    return things != nullptr && things->layer != nullptr ? static_cast<LayerRecord*>(things->layer->object)
                                                         : nullptr;
}

LinetypeRecord* Database::FindLinetype(const std::wstring& name) const {
    const NamedThings* const things = core_->names.Find(name);
    return things != nullptr && things->linetype != nullptr
               ? static_cast<LinetypeRecord*>(things->linetype->object)
               : nullptr;
}

BlockRecord* Database::FindBlock(const std::wstring& name) const {
    const NamedThings* const things = core_->names.Find(name);
    return things != nullptr && things->block != nullptr ? static_cast<BlockRecord*>(things->block->object)
                                                         : nullptr;
}

const std::wstring* Database::MissingName(OxDbObjectId id) const {
    const OxDbStub* const stub = id.stub();
    if (stub == nullptr || stub->object != nullptr || stub == &core_->unknown) {
        return nullptr;
    }
    return &core_->names.Text(static_cast<const Core::Missing*>(stub)->name);
}

Oxsys::ErrorStatus Database::getSymbolTable(OxDbBlockTable*& table, OxDb::OpenMode /*mode*/) {
    return Open(*core_, Operation::kGetBlockTable, &tables_->blockTable.Stub(), false, table);
}

Oxsys::ErrorStatus Database::getSymbolTable(OxDbLayerTable*& table, OxDb::OpenMode /*mode*/) {
    return Open(*core_, Operation::kGetLayerTable, &tables_->layerTable.Stub(), false, table);
}

Oxsys::ErrorStatus Database::getSymbolTable(OxDbTextStyleTable*& table, OxDb::OpenMode /*mode*/) {
    return Open(*core_, Operation::kGetTextStyleTable, &tables_->textStyleTable.Stub(), false, table);
}

} // namespace drawing
