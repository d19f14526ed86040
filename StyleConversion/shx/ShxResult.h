// What the shape operations report.
#pragma once

#include <cstdint>

namespace ShxUtility {

/// Result of every operation on shape files and shape programs; zero is success. 10 is not in use.
enum ShxResult : std::int32_t {
    kSuccess = 0,
    /// No stream was given.
    kNoStream = 1,
    /// A malformed or truncated file, or a malformed or truncated shape program.
    kMalformed = 2,
    /// The file is well-formed so far, but its kind is not among the accepted ones.
    kKindNotAccepted = 3,
    kOutOfMemory = 4,
    /// A program saved more than three positions.
    kPositionStackFull = 5,
    /// A program took back a position where none is saved.
    kPositionStackEmpty = 6,
    /// A subshape is a shape that is being drawn already.
    kRecursiveSubshape = 7,
    /// A subshape's number is not in the file.
    kSubshapeNotFound = 8,
    /// An instruction of a kind that no program produces.
    kUnknownInstruction = 9,
    /// A "bigfont " file, or a subshape in a program whose file kind has no encoding for its number.
    kUnsupported = 11,
};

} // namespace ShxUtility
