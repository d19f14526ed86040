// The fixed sizes of linetype reading, each with its unit and reason.
#pragma once

#include <cstddef>

namespace LineConverter {

/// Bytes of a line buffer, its terminator included: a longer line of a file is read in pieces of one byte
/// less, and each piece counts as a line of its own.
constexpr std::size_t kLineBufferSize = 1024;

/// UTF-16 units, terminator included, of the parts into which a font file's name is taken apart. A name with
/// a longer part is not looked for.
constexpr std::size_t kDriveBufferSize = 3;
constexpr std::size_t kPathPartBufferSize = 256;

/// UTF-16 units, terminator included, of a path that is tried or that the host's file search writes: a drive,
/// a directory, a name and two extensions with room to spare. A longer path is not tried.
constexpr std::size_t kPathBufferSize = 1542;

/// Bytes of a linetype's name that an error keeps: the longest that a strict reading finds.
constexpr std::size_t kLongestNameInError = kLineBufferSize - 2;

/// Bytes of a line's text that an error keeps.
constexpr std::size_t kLongestTextInError = kLineBufferSize - 1;

} // namespace LineConverter
