// Blocks: records, their entities and their draw order.
#include "drawing/database/Blocks.h"

#include "drawing/database/Lists.h"

namespace drawing {
namespace {

class EntityIterator final : public OxDbBlockTableRecordIterator {
public:
    EntityIterator(Core& core, const ListWalk& walk) : core_(core), walk_(walk) {}
    void start(bool atBeginning, bool skipErased) override { walk_.Start(atBeginning, skipErased); }
    bool done() const override { return walk_.Done(); }
    void step(bool forward, bool skipErased) override { walk_.Step(forward, skipErased); }
    Oxsys::ErrorStatus getEntity(OxDbEntity*& entity, OxDb::OpenMode /*mode*/,
                                 bool openErased) const override {
        return Open(core_, Operation::kBlockIteratorGetEntity, walk_.Current(), openErased, entity);
    }

private:
    Core& core_;
    ListWalk walk_;
    CountedIterator counted_;
};

class ReferenceIterator final : public OxDbBlockReferenceIdIterator {
public:
    ReferenceIterator(Core& core, const ListWalk& walk) : core_(core), walk_(walk) {}
    // Erased references are stood at too; opening them is what fails.
    void start() override { walk_.Start(true, false); }
    bool done() const override { return walk_.Done(); }
    void step() override { walk_.Step(true, false); }
    Oxsys::ErrorStatus getBlockReference(OxDbBlockReference*& reference, OxDb::OpenMode /*mode*/,
                                         bool openErased) const override {
        return Open(core_, Operation::kGetBlockReference, walk_.Current(), openErased, reference);
    }

private:
    Core& core_;
    ListWalk walk_;
    CountedIterator counted_;
};

class BlockIterator final : public OxDbBlockTableIterator {
public:
    BlockIterator(Core& core, const ListWalk& walk) : core_(core), walk_(walk) {}
    void start(bool atBeginning, bool skipErased) override { walk_.Start(atBeginning, skipErased); }
    bool done() const override { return walk_.Done(); }
    void step(bool forward, bool skipErased) override { walk_.Step(forward, skipErased); }
    Oxsys::ErrorStatus getRecord(OxDbBlockTableRecord*& record, OxDb::OpenMode /*mode*/,
                                 bool openErased) const override {
        return Open(core_, Operation::kBlockTableIteratorGetRecord, walk_.Current(), openErased, record);
    }

private:
    Core& core_;
    ListWalk walk_;
    CountedIterator counted_;
};

// A new iterator of the model's class T, as a call of `operation`.
template <class T, class Interface>
Oxsys::ErrorStatus MakeIterator(Core& core, Operation operation, const ListWalk& walk, Interface*& iterator) {
    Oxsys::ErrorStatus status = Oxsys::eOk;
    iterator = nullptr;
    if (!core.failures.CallFails(operation, status)) {
        iterator = new T(core, walk);
    }
    return status;
}

} // namespace

SortentsTable::SortentsTable(Core& core, std::vector<OxDbObjectId> order)
    : Resident(core), order_(std::move(order)) {}

SortentsTable::~SortentsTable() = default;

Oxsys::ErrorStatus SortentsTable::getFullDrawOrder(OxDbObjectIdArray& ids,
                                                   std::uint8_t /*honourMask*/) const {
    Oxsys::ErrorStatus status = Oxsys::eOk;
    ids.removeAll();
    if (!Fails(Operation::kGetFullDrawOrder, status)) {
        CopyTo(ids, order_);
    }
    return status;
}

BlockRecord::BlockRecord(Core& core) : NamedRecord(core, {}), nameIndex_(core.names.Intern({})) {}

BlockRecord::~BlockRecord() = default;

void BlockRecord::Set(const std::wstring& name, const BlockData& data) {
    SetName(name);
    nameIndex_ = SharedCore().names.Intern(name);
    data_ = data;
}

void BlockRecord::SetDrawOrder(std::vector<OxDbObjectId> order) {
    sortentsTable_ = std::make_unique<SortentsTable>(SharedCore(), std::move(order));
}

Oxsys::ErrorStatus BlockRecord::getSortentsTable(OxDbSortentsTable*& table, OxDb::OpenMode /*mode*/,
                                                 bool /*createIfNecessary*/) {
    OxDbStub* const stub = sortentsTable_ ? &sortentsTable_->Stub() : &SharedCore().unknown;
    const Oxsys::ErrorStatus status = Open(SharedCore(), Operation::kGetSortentsTable, stub, false, table);
    return status == Oxsys::eUnknownObject && !sortentsTable_ ? Oxsys::eKeyNotFound : status;
}

Oxsys::ErrorStatus BlockRecord::newIterator(OxDbBlockTableRecordIterator*& iterator, bool atBeginning,
                                            bool skipErased) const {
    return MakeIterator<EntityIterator>(SharedCore(), Operation::kBlockNewIterator,
                                        ListWalk(entities_.Stubs(), atBeginning, skipErased), iterator);
}

Oxsys::ErrorStatus BlockRecord::newBlockReferenceIdIterator(OxDbBlockReferenceIdIterator*& iterator) const {
    const std::vector<OxDbStub*>& references = SharedCore().names.Things(nameIndex_).references;
    return MakeIterator<ReferenceIterator>(SharedCore(), Operation::kNewBlockReferenceIterator,
                                           ListWalk(references, true, false), iterator);
}

BlockTable::BlockTable(Core& core) : Resident(core) {}

BlockTable::~BlockTable() = default;

Oxsys::ErrorStatus BlockTable::getAt(const wchar_t* name, OxDbBlockTableRecord*& record,
                                     OxDb::OpenMode /*mode*/, bool openErased) const {
    return OpenNamed(SharedCore(), Operation::kBlockTableGetAt, name, &NamedThings::block, openErased,
                     record);
}

Oxsys::ErrorStatus BlockTable::newIterator(OxDbBlockTableIterator*& iterator, bool atBeginning,
                                           bool skipErased) const {
    return MakeIterator<BlockIterator>(SharedCore(), Operation::kBlockTableNewIterator,
                                       ListWalk(records_.Stubs(), atBeginning, skipErased), iterator);
}

} // namespace drawing
