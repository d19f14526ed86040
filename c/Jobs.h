// Whole calls of the C interface: options and bytes in, documents out.
#pragma once

#include "c/CallbackFront.h"
#include "c/Options.h"
#include "conversions/Conversion.h"
#include "conversions/reading/FileKind.h"
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

/// As the command line tells kinds: by the name, and of documents and files of other names by what is in
/// them.
conversions::FileKind KindOf(const conversions::Input& input, const Options& options);

/// The symbols of one file, which is of that kind.
conversions::Conversion ConvertKind(conversions::FileKind kind, const conversions::Input& input,
                                    const Options& options, CallbackFront& front);

/// What a page of the file's symbols is called: the name without its folder.
std::string TitleOf(const std::string& file);

/// Only memory can fail: std::bad_alloc reaches the caller.
void RunJob(Job job, conversions::Input input, const char* options, CallbackFront& front,
            styleconversion_result& result);

} // namespace c_interface
