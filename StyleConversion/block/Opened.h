// Objects of the drawing database that are open: closed exactly once, on every way out.
#pragma once

#include "OxDb/ErrorStatus.h"
#include "OxDb/OxDbDatabase.h"

#include <memory>

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

    void Close() {
        if (object_ != nullptr) {
            object_->close();
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

/// The name of an entity's layer, released with this object.
class LayerName {
public:
    explicit LayerName(const OxDbEntity& entity) : name_(entity.layer()) {}
    ~LayerName() { oxutDelBuffer(name_); }
    LayerName(const LayerName&) = delete;
    LayerName& operator=(const LayerName&) = delete;

    /// Null when the entity gave none.
    const wchar_t* Get() const { return name_; }

private:
    wchar_t* name_;
};

} // namespace block
