// Objects of the drawing database that are open: closed exactly once, on every way out.
#pragma once

#include "StyleConversion/interfaces/HostNames.h"

#include <memory>
#include <utility>

namespace block {

/// Holds one opened object. An opening goes: opened.Accept(database.open(opened.Receive(), ...)).
template <class T>
class Opened {
public:
    Opened() = default;
    ~Opened() { Close(); }
    Opened(const Opened&) = delete;
    Opened& operator=(const Opened&) = delete;

    /// Where an open call stores the object.
    T*& Receive() {
        Close();
        return object_;
    }

    /// Whether the call gave an object. After a failing status there is none, whatever the call stored.
    bool Accept(Oxsys::ErrorStatus status) {
        if (status != Oxsys::eOk) {
            object_ = nullptr;
        }
        return object_ != nullptr;
    }

    /// Opens the object of that id for reading; false when there is none, or it is of another class.
    bool Open(OxDbObjectId id) {
        Close();
        OxDbObject* opened = nullptr;
        const Oxsys::ErrorStatus status = oxdbOpenOxDbObject(opened, id, host::kForRead, T::desc(), false);
        if (status != Oxsys::eOk || opened == nullptr) {
            return false;
        }
        object_ = &host::As<T>(*opened);
        return true;
    }

    void Close() {
        if (object_ != nullptr) {
            static_cast<void>(object_->close());
            object_ = nullptr;
        }
    }

    T* Get() const { return object_; }
    T* operator->() const { return object_; }
    T& operator*() const { return *object_; }

private:
    T* object_ = nullptr;
};

/// The result of a newIterator call: takes the iterator, or gives none after a failing status.
template <class Iterator>
std::unique_ptr<Iterator> Accepted(Oxsys::ErrorStatus status, Iterator* iterator) {
    return std::unique_ptr<Iterator>(status == Oxsys::eOk ? iterator : nullptr);
}

/// A text that the database has handed out, given back to it with this object.
class HandedOutText {
public:
    explicit HandedOutText(wchar_t* text = nullptr) : text_(text) {}
    ~HandedOutText() { oxutDelBuffer(text_); }
    HandedOutText(const HandedOutText&) = delete;
    HandedOutText& operator=(const HandedOutText&) = delete;

    /// Where a call that hands out a text, once, stores it.
    wchar_t*& Receive() { return text_; }
    /// Null when there is none.
    const wchar_t* Get() const { return text_; }

private:
    wchar_t* text_;
};

/// The name of an entity's layer.
class LayerName : public HandedOutText {
public:
    explicit LayerName(OxDbEntity& entity) : HandedOutText(entity.layer()) {}
};

/// The linetype of an entity; none when it cannot be opened.
class Linetype : public Opened<OxDbLinetypeTableRecord> {
public:
    explicit Linetype(OxDbEntity& entity) { Open(entity.linetypeId()); }
};

/// Opens the first reference of a block, its first insert; false when it has none or it cannot be opened.
inline bool OpenFirstReference(OxDbBlockTableRecord& record, Opened<OxDbBlockReference>& reference) {
    OxDbBlockReferenceIdIterator* created = nullptr;
    const Oxsys::ErrorStatus status = record.newBlockReferenceIdIterator(created);
    const auto iterator = Accepted(status, created);
    if (iterator == nullptr) {
        return false;
    }
    host::GoToFirst(*iterator);
    return reference.Accept(iterator->getBlockReference(reference.Receive(), host::kForRead, false));
}

} // namespace block
