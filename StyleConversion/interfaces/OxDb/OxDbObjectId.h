// Identifies an object of a drawing database.
#pragma once

struct OxDbStub;

/// A small value that names one object for as long as the object's database lives, whether the object is open
/// or not, erased or not. The null id names nothing. What it holds is the library's own business.
class OxDbObjectId {
public:
    constexpr OxDbObjectId() = default;
    /// For the library that makes ids.
    constexpr explicit OxDbObjectId(OxDbStub* stub) : stub_(stub) {}

    /// Whether it names nothing, and lets it do so. Ids of the same object are equal.
    constexpr bool isNull() const { return stub_ == nullptr; }
    constexpr void setNull() { stub_ = nullptr; }
    constexpr bool operator==(const OxDbObjectId& other) const { return stub_ == other.stub_; }
    constexpr bool operator!=(const OxDbObjectId& other) const { return !(*this == other); }

    /// For the library that made the id.
    constexpr OxDbStub* stub() const { return stub_; }

private:
    OxDbStub* stub_ = nullptr;
};
