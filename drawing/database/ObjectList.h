// Objects that a container owns, in order, and the walk through them.
#pragma once

#include "drawing/database/Core.h"

#include <memory>
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

    template <class T>
    T& Adopt(std::unique_ptr<T> object) {
        stubs_.push_back(&object->Stub());
        return *object.release();
    }

    const std::vector<OxDbStub*>& Stubs() const { return stubs_; }

private:
    std::vector<OxDbStub*> stubs_;
};

/// A position in a list of objects. One behind the end and one before the beginning are "done".
class ListWalk {
public:
    ListWalk(const std::vector<OxDbStub*>& stubs, bool atBeginning, bool skipErased) : stubs_(&stubs) {
        Start(atBeginning, skipErased);
    }

    void Start(bool atBeginning, bool skipErased) {
        position_ = atBeginning ? 0 : static_cast<std::ptrdiff_t>(stubs_->size()) - 1;
        SkipErased(atBeginning, skipErased);
    }
    bool Done() const { return position_ < 0 || position_ >= static_cast<std::ptrdiff_t>(stubs_->size()); }
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
