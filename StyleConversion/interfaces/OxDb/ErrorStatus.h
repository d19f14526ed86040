// What an operation of the drawing database reports.
#pragma once

#include <cstdint>

namespace Oxsys {

/// Success is eOk and only eOk; every other value is a failure. Values that are not listed may come too.
enum ErrorStatus : std::int32_t {
    eOk = 0,                  ///< Success.
    eNotImplemented = 1,      ///< The library cannot do it.
    eInvalidInput = 3,        ///< An argument makes no sense.
    eOutOfMemory = 6,         ///< There is no memory left.
    eBufferTooSmall = 7,      ///< The text does not fit.
    eInvalidIndex = 8,        ///< There is nothing of that index.
    eNoDatabase = 15,         ///< There is no drawing.
    eKeyNotFound = 30,        ///< There is nothing of that name.
    eDuplicateKey = 31,       ///< The name is taken.
    eNullObjectId = 40,       ///< The id names nothing.
    eUnknownObject = 41,      ///< The id names nothing of this drawing.
    eWasErased = 42,          ///< The object is erased.
    eNotThatKindOfClass = 43, ///< The object is of another class.
    eNotOpen = 44,            ///< The object is not open.
    eNotApplicable = 50,      ///< The object has nothing of that kind.
    eDegenerateGeometry = 51, ///< There is no such curve.
    eTooManyHatchLines = 52,  ///< The pattern gives more lines than allowed.
    eFileNotFound = 60,       ///< No file of that name was found.
    eIteratorDone = 70,       ///< The iterator stands behind the end.
};

} // namespace Oxsys
