// Run-time class descriptors and the root class that answers with one.
#pragma once

#include "OxDb/Export.h"

/// Describes one class of the library: its name and its parent. There is one descriptor per class, so
/// descriptors are compared by address. They live as long as the process, or, for classes that a drawing
/// brings along, as long as that drawing's database.
class OxRxClass {
public:
    /// `name` must outlive the descriptor; `parent` is null for the root class.
    constexpr OxRxClass(const wchar_t* name, const OxRxClass* parent) : name_(name), parent_(parent) {}

    /// The class's name, without copying it, and the descriptor of its parent, null for the root class.
    const wchar_t* name() const { return name_; }
    const OxRxClass* myParent() const { return parent_; }

    /// True when this class is `other` or derives from it, at any depth. False for null.
    bool isDerivedFrom(const OxRxClass* other) const {
        const OxRxClass* current = this;
        while (current != nullptr && current != other) {
            current = current->parent_;
        }
        return current != nullptr;
    }

private:
    const wchar_t* name_;
    const OxRxClass* parent_;
};

/// Root of everything whose class can be asked for at run time.
class OXDB_API OxRxObject {
public:
    OxRxObject() = default;
    virtual ~OxRxObject();
    OxRxObject(const OxRxObject&) = delete;
    OxRxObject& operator=(const OxRxObject&) = delete;

    static const OxRxClass* desc();

    /// The class of this object: its own, not a base class that it is seen through. Never null.
    virtual const OxRxClass* isA() const = 0;

    /// True when the object's class is `classDescriptor` or derives from it.
    bool isKindOf(const OxRxClass* classDescriptor) const { return isA()->isDerivedFrom(classDescriptor); }
};
