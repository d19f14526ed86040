// The front of a job whose further files come from a callback of C.
#pragma once

#include "c/StyleConversionC.h"
#include "conversions/reading/Front.h"

#include <string>

/// What a callback puts its file into.
struct styleconversion_answer {
    bool isGiven = false;
    std::string bytes;
};

namespace c_interface {

class CallbackFront final : public conversions::Front {
public:
    /// The callback may be null: no file is there then.
    CallbackFront(styleconversion_find_file find, void* context) : find_(find), context_(context) {}

    /// A file by its name in UTF-8.
    styleconversion_answer Ask(const std::string& name) const;

    conversions::FoundFile FindShapeFile(const std::wstring& name) override;
    std::string PlacesSearched(const std::wstring& name) override;

private:
    styleconversion_find_file find_;
    void* context_;
};

} // namespace c_interface
