// Opening and closing, buffers and iterators, each counted.
#include "drawing/database/Core.h"

#include "OxDb/OxDbDatabase.h"

#include <algorithm>
#include <atomic>

namespace drawing {
namespace {

std::atomic<std::int64_t> liveBuffers{0};
std::atomic<std::int64_t> liveIterators{0};

Oxsys::ErrorStatus WhyNotOpened(const OxDbStub* stub, const OxRxClass* requiredClass, bool openErased) {
    if (stub == nullptr) {
        return Oxsys::eNullObjectId;
    }
    if (stub->object == nullptr) {
        return Oxsys::eUnknownObject;
    }
    if (stub->erased && !openErased) {
        return Oxsys::eWasErased;
    }
    return stub->object->isKindOf(requiredClass) ? Oxsys::eOk : Oxsys::eNotThatKindOfClass;
}

} // namespace

Oxsys::ErrorStatus OpenObject(Core& core, Operation operation, OxDbStub* stub, const OxRxClass* requiredClass,
                              bool openErased, OxDbObject*& object) {
    object = nullptr;
    Oxsys::ErrorStatus status = Oxsys::eOk;
    if (core.failures.CallFails(operation, status)) {
        return status;
    }
    status = WhyNotOpened(stub, requiredClass, openErased);
    if (status == Oxsys::eOk) {
        ++stub->openCount;
        ++core.counts.opened;
        object = stub->object;
    }
    return status;
}

Oxsys::ErrorStatus CloseObject(OxDbStub& stub) {
    Core& core = *stub.core;
    if (stub.openCount == 0) {
        ++core.counts.wronglyClosed;
        return Oxsys::eNotOpen;
    }
    --stub.openCount;
    ++core.counts.closed;
    Oxsys::ErrorStatus status = Oxsys::eOk;
    core.failures.CallFails(Operation::kClose, status);
    return status;
}

OxDbObjectId IdOrMissing(Core& core, OxDbStub* stub, NameIndex name) {
    return OxDbObjectId(stub != nullptr ? stub : &core.missing.try_emplace(name, core, name).first->second);
}

wchar_t* AllocateText(const std::wstring& text) {
    auto* const copy = new wchar_t[text.size() + 1];
    std::copy_n(text.c_str(), text.size() + 1, copy);
    liveBuffers.fetch_add(1, std::memory_order_relaxed);
    return copy;
}

std::int64_t LiveBufferCount() {
    return liveBuffers.load(std::memory_order_relaxed);
}

std::int64_t LiveIteratorCount() {
    return liveIterators.load(std::memory_order_relaxed);
}

CountedIterator::CountedIterator() {
    liveIterators.fetch_add(1, std::memory_order_relaxed);
}

CountedIterator::~CountedIterator() {
    liveIterators.fetch_sub(1, std::memory_order_relaxed);
}

} // namespace drawing

void oxutDelBuffer(wchar_t*& buffer) {
    if (buffer != nullptr) {
        drawing::liveBuffers.fetch_sub(1, std::memory_order_relaxed);
        delete[] buffer;
        buffer = nullptr;
    }
}

namespace {

// An id knows its database through its stub; a null id belongs to none, and no plan can be asked about it.
Oxsys::ErrorStatus OpenId(OxDbObjectId id, drawing::Operation operation, const OxRxClass* requiredClass,
                          bool openErased, OxDbObject*& object) {
    object = nullptr;
    OxDbStub* const stub = id.stub();
    return stub == nullptr
               ? Oxsys::eNullObjectId
               : drawing::OpenObject(*stub->core, operation, stub, requiredClass, openErased, object);
}

} // namespace

Oxsys::ErrorStatus oxdbOpenOxDbEntity(OxDbEntity*& entity, OxDbObjectId id, OxDb::OpenMode /*mode*/,
                                      bool openErased) {
    OxDbObject* object = nullptr;
    const Oxsys::ErrorStatus status =
        OpenId(id, drawing::Operation::kOpenEntity, OxDbEntity::desc(), openErased, object);
    entity = static_cast<OxDbEntity*>(object);
    return status;
}

Oxsys::ErrorStatus oxdbOpenOxDbObject(OxDbObject*& object, OxDbObjectId id, OxDb::OpenMode /*mode*/,
                                      const OxRxClass* requiredClass, bool openErased) {
    return OpenId(id, drawing::Operation::kOpenObject, requiredClass, openErased, object);
}
