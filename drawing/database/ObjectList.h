// Objects that a container owns, in order, and the walk through them.
#pragma once

#include "drawing/database/Arena.h"
#include "drawing/database/Core.h"

#include <memory>
#include <new>
#include <utility>
#include <vector>

namespace drawing {

/// Objects in order, reached by their stubs, deleted with the list.
class ObjectList {
public:
    ObjectList() = default;
    ~ObjectList() {
        for (const OxDbStub* const stub : stubs_) {
            delete stub->object;
        }
    }
    ObjectList(const ObjectList&) = delete;
    ObjectList& operator=(const ObjectList&) = delete;

    /// Takes the object over as the last one, and returns it.
    template <class T>
    T& Adopt(std::unique_ptr<T> object) {
        stubs_.push_back(&object->Stub());
        return *object.release();
    }

    /// In order of addition, erased ones too.
    const std::vector<OxDbStub*>& Stubs() const { return stubs_; }

private:
    std::vector<OxDbStub*> stubs_;
};

/// Entities in order, side by side in memory, which go with the list.
class EntityList {
public:
    EntityList() = default;
    ~EntityList() {
        for (const OxDbStub* const stub : stubs_) {
            std::destroy_at(stub->object);
        }
    }
    EntityList(const EntityList&) = delete;
    EntityList& operator=(const EntityList&) = delete;

    /// Makes an entity as the last one.
    template <class T, class... Args>
    T& Make(Args&&... args) {
        void* const place = arena_.Allocate(sizeof(T), alignof(T));
        std::unique_ptr<T, EndOnly> entity(new (place) T(std::forward<Args>(args)...));
        stubs_.push_back(&entity->Stub());
        return *entity.release();
    }

    /// In order of creation, erased ones too.
    const std::vector<OxDbStub*>& Stubs() const { return stubs_; }

private:
    struct EndOnly { // the memory is the arena's
        void operator()(OxDbObject* object) const { std::destroy_at(object); }
    };

    Arena arena_;
    std::vector<OxDbStub*> stubs_;
};

/// A position in a list of objects. One behind the end and one before the beginning are "done".
class ListWalk {
public:
    /// From the first object on, or from the last one back. The list must outlive the walk.
    ListWalk(const std::vector<OxDbStub*>& stubs, bool atBeginning, bool skipErased) : stubs_(&stubs) {
        Start(atBeginning, skipErased);
    }

    /// Begins anew. Erased objects are passed over where that is asked for, here and in Step.
    void Start(bool atBeginning, bool skipErased) {
        position_ = atBeginning ? 0 : static_cast<std::ptrdiff_t>(stubs_->size()) - 1;
        SkipErased(atBeginning, skipErased);
    }
    /// Whether there is no current object.
    bool Done() const { return position_ < 0 || position_ >= static_cast<std::ptrdiff_t>(stubs_->size()); }
    /// Goes on or back by one; nothing where the walk is done.
    void Step(bool forward, bool skipErased) {
        if (!Done()) {
            position_ += forward ? 1 : -1;
            SkipErased(forward, skipErased);
        }
    }
    /// Null when done.
    OxDbStub* Current() const { return Done() ? nullptr : (*stubs_)[static_cast<std::size_t>(position_)]; }

private:
    void SkipErased(bool forward, bool skipErased) {
        while (skipErased && !Done() && Current()->erased) {
            position_ += forward ? 1 : -1;
        }
    }

    const std::vector<OxDbStub*>* stubs_;
    std::ptrdiff_t position_ = 0;
};

} // namespace drawing
