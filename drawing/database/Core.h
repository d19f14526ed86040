// What all objects of one drawing share, and what an id points to.
#pragma once

#include "OxDb/OxDbObject.h"
#include "drawing/database/DrawnAs.h"
#include "drawing/database/FailurePlan.h"
#include "drawing/database/NamePool.h"

#include <cstddef>
#include <cstdint>
#include <limits>
#include <unordered_map>

namespace drawing {

/// How often objects were opened and closed.
struct ObjectCounts {
    std::uint64_t opened = 0;
    std::uint64_t closed = 0;
    std::uint64_t wronglyClosed = 0; // calls of close() on objects that were not open

    /// Objects that are open, each as often as it was opened.
    std::uint64_t OpenNow() const { return opened - closed; }
};

struct Core;

} // namespace drawing

/// Stands for one object of a database; an id is a pointer to it. A stub whose object is null stands for
/// something that the drawing refers to but does not have.
struct OxDbStub {
    OxDbStub(drawing::Core& owner, OxDbObject* stubObject)
        : object(stubObject), core(&owner), openCount(0), erased(0), resident(1), hidden(0) {}

    OxDbObject* object;
    drawing::Core* core;
    // A drawing has as many of these as entities, so that each byte counts: one word for all of it.
    // NOLINTBEGIN(modernize-use-default-member-init): hosts read this as C++17, which has none for bits
    std::uint32_t openCount : 29;
    std::uint32_t erased : 1;
    std::uint32_t resident : 1; // 0: can be opened, but says that it is in no database
    std::uint32_t hidden : 1;   // an entity that is not shown; conversions look at it only where asked to
    // NOLINTEND(modernize-use-default-member-init)
    drawing::DrawnAsIndex drawnAs = 0; // of an entity
};

namespace drawing {

/// What the objects of one drawing share. It must outlive them.
struct Core {
    FailurePlan failures;
    ObjectCounts counts;
    std::size_t maximumHatchLines = std::numeric_limits<std::int32_t>::max(); // numHatchLines counts no more
    std::uint64_t hatchesTooDense = 0; // evaluations that were given up for too many lines
    NamePool names;
    DrawnAsPool drawnAs;
    OxDbStub unknown{*this, nullptr};
    // For ids of what the drawing refers to by a name that no table has.
    struct Missing : OxDbStub {
        Missing(Core& owner, NameIndex itsName) : OxDbStub(owner, nullptr), name(itsName) {}
        NameIndex name;
    };
    std::unordered_map<NameIndex, Missing> missing;

    Core() = default;
    Core(const Core&) = delete;
    Core& operator=(const Core&) = delete;
    ~Core() = default;
};

/// Opens the object that `stub` stands for, as a call of `operation`. On failure `object` is null.
OXDB_API Oxsys::ErrorStatus OpenObject(Core& core, Operation operation, OxDbStub* stub,
                                       const OxRxClass* requiredClass, bool openErased, OxDbObject*& object);

/// As above, with the class of the pointer.
template <class T>
Oxsys::ErrorStatus Open(Core& core, Operation operation, OxDbStub* stub, bool openErased, T*& object) {
    OxDbObject* opened = nullptr;
    const Oxsys::ErrorStatus status = OpenObject(core, operation, stub, T::desc(), openErased, opened);
    object = static_cast<T*>(opened);
    return status;
}

/// Opens the record that a table (the one that `table` of NamedThings stands for) has under `name`.
template <class T>
Oxsys::ErrorStatus OpenNamed(Core& core, Operation operation, const wchar_t* name,
                             OxDbStub* NamedThings::*table, bool openErased, T*& record) {
    const NamedThings* const things = name != nullptr ? core.names.Find(name) : nullptr;
    OxDbStub* const stub = things != nullptr ? things->*table : nullptr;
    const Oxsys::ErrorStatus status = Open(core, operation, stub, openErased, record);
    return status == Oxsys::eNullObjectId ? Oxsys::eKeyNotFound : status;
}

/// Ends one opening.
OXDB_API Oxsys::ErrorStatus CloseObject(OxDbStub& stub);

/// The id of what `stub` stands for; when that is null, of something that cannot be opened, but whose name is
/// known.
OXDB_API OxDbObjectId IdOrMissing(Core& core, OxDbStub* stub, NameIndex name);

/// A copy of `text` that is released with oxutDelBuffer.
OXDB_API wchar_t* AllocateText(const std::wstring& text);

/// Texts that oxutDelBuffer has not seen yet, in the whole process. Who frees one with delete[], which is as
/// good, leaves it counted.
OXDB_API std::int64_t LiveBufferCount();

/// Iterators that are out now, in the whole process.
OXDB_API std::int64_t LiveIteratorCount();

/// Base of the model's iterators: counts them.
class OXDB_API CountedIterator {
public:
    CountedIterator();
    ~CountedIterator();
    CountedIterator(const CountedIterator&) = delete;
    CountedIterator& operator=(const CountedIterator&) = delete;
};

} // namespace drawing
