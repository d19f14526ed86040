// The result codes of reading and walking a linetype file.
#pragma once

#include <cstdint>

namespace LineConverter {

/// 0 is success; the first failure ends a parse.
enum LinResult : std::int32_t {
    kSuccess = 0,
    kOutOfMemory = 1,        // an allocation failed, or any other exception inside the parse
    kCannotOpen = 2,         // the file could not be opened
    kSyntaxError = 3,        // the text of the file is malformed
    kCannotConvert = 4,      // a style or file name has no wide form
    kStyleNotResolved = 5,   // a text style is not known, or there is nobody to ask
    kShapeFileNotLoaded = 6, // an SHX file was not found, is of the wrong kind or is damaged
    kCannotClose = 7,        // closing the file failed
};

} // namespace LineConverter
