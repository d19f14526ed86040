// The border between C and the jobs: null pointers, exceptions and threads end here.
#include "c/StyleConversionC.h"

#include "c/CallbackFront.h"
#include "c/Jobs.h"

#include <memory>
#include <utility>

namespace {

using c_interface::Job;

// Whether this thread is in a call, whose callback must not come back here: the encoding of narrow text is
// the thread's.
thread_local bool isInCall = false;

class Call {
public:
    Call() { isInCall = true; }
    ~Call() { isInCall = false; }
    Call(const Call&) = delete;
    Call& operator=(const Call&) = delete;
};

void Refuse(styleconversion_result& result, const char* error) {
    result.status = STYLECONVERSION_USAGE;
    result.error = error;
}

styleconversion_result* Run(Job job, const char* name, const void* bytes, size_t size, const char* options,
                            styleconversion_find_file find, void* context) noexcept {
    try {
        auto result = std::make_unique<styleconversion_result>();
        if (name == nullptr) {
            Refuse(*result, "the name is null");
        } else if (bytes == nullptr && size > 0) {
            Refuse(*result, "the bytes are null");
        } else if (isInCall) {
            Refuse(*result, "called from a callback");
        } else {
            const Call call;
            conversions::Input input;
            input.name = name;
            input.bytes = {static_cast<const char*>(bytes), size};
            c_interface::CallbackFront front(find, context);
            c_interface::RunJob(job, std::move(input), options, front, *result);
        }
        return result.release();
    } catch (...) {
        return nullptr;
    }
}

const char* TextOf(const std::string& text, size_t* size) {
    if (size != nullptr) {
        *size = text.size();
    }
    return text.c_str();
}

} // namespace

uint32_t styleconversion_interface(void) {
    return STYLECONVERSION_INTERFACE;
}

const char* styleconversion_version(void) {
    return STYLECONVERSION_VERSION;
}

styleconversion_result* styleconversion_convert(const char* name, const void* bytes, size_t size,
                                                const char* options, styleconversion_find_file find,
                                                void* context) {
    return Run(Job::kConvert, name, bytes, size, options, find, context);
}

styleconversion_result* styleconversion_list(const char* name, const void* bytes, size_t size,
                                             const char* options, styleconversion_find_file find,
                                             void* context) {
    return Run(Job::kList, name, bytes, size, options, find, context);
}

styleconversion_result* styleconversion_check(const char* name, const void* bytes, size_t size,
                                              const char* options, styleconversion_find_file find,
                                              void* context) {
    return Run(Job::kCheck, name, bytes, size, options, find, context);
}

int styleconversion_status(const styleconversion_result* result) {
    return result->status;
}

const char* styleconversion_document(const styleconversion_result* result, size_t* size) {
    return TextOf(result->document, size);
}

const char* styleconversion_diagnostics(const styleconversion_result* result, size_t* size) {
    return TextOf(result->diagnostics, size);
}

const char* styleconversion_error(const styleconversion_result* result, size_t* size) {
    return TextOf(result->error, size);
}

void styleconversion_release(styleconversion_result* result) {
    delete result;
}

int styleconversion_answer_file(styleconversion_answer* answer, const void* bytes, size_t size) {
    try {
        answer->isGiven = false;
        if (size > 0) {
            answer->bytes.assign(static_cast<const char*>(bytes), size);
        } else {
            answer->bytes.clear();
        }
        answer->isGiven = true;
        return 1;
    } catch (...) {
        return 0;
    }
}
