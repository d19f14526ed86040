// Whole calls of the C interface: options and bytes in, documents out.
#pragma once

#include "c/CallbackFront.h"
#include "c/Options.h"
#include "conversions/reading/Input.h"

#include <string>

/// What a call came to.
struct styleconversion_result {
    int status = STYLECONVERSION_DONE;
    std::string document;
    std::string diagnostics;
    std::string error;
};

namespace c_interface {

/// Only memory can fail: std::bad_alloc reaches the caller.
void RunJob(Job job, conversions::Input input, const char* options, CallbackFront& front,
            styleconversion_result& result);

} // namespace c_interface
