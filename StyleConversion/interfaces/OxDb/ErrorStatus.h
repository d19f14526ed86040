// What an operation of the drawing database reports.
#pragma once

#include <cstdint>

namespace Oxsys {

/// Success is eOk and only eOk; every other value is a failure. Values that are not listed may come too.
enum ErrorStatus : std::int32_t {
    eOk = 0,
    eNotImplemented = 1,
    eInvalidInput = 3,
    eOutOfMemory = 6,
    eBufferTooSmall = 7,
    eInvalidIndex = 8,
    eNoDatabase = 15,
    eKeyNotFound = 30,
    eDuplicateKey = 31,
    eNullObjectId = 40,
    eUnknownObject = 41,
    eWasErased = 42,
    eNotThatKindOfClass = 43,
    eNotOpen = 44,
    eNotApplicable = 50,
    eDegenerateGeometry = 51,
    eTooManyHatchLines = 52,
    eFileNotFound = 60,
    eIteratorDone = 70,
};

} // namespace Oxsys
