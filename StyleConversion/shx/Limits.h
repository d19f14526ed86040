// The sizes that shape files and shape programs are held to.
#pragma once

#include <cstddef>
#include <cstdint>

namespace ShxUtility {

/// Bytes of the kind word with its space: the longest ones, "unifont " and "bigfont ", just fit.
inline constexpr std::size_t kLongestKindWord = 8;

/// Bytes of the version text with the 0x1A that ends it. Writers put a line of text there, never a page.
inline constexpr std::size_t kLongestVersion = 1024;

/// Bytes that a version text has at least: a digit, a full stop, a digit, and the 0x1A.
inline constexpr std::size_t kShortestVersion = 4;

/// Bytes of font information: the buffer that it is read into.
/// Required: R30
inline constexpr std::size_t kLongestFontInfo = 1024;

/// Bytes of font information that every font has: above, below, modes.
inline constexpr std::size_t kShortestFontInfo = 3;

/// Positions that a program can have saved at a time. The stack has a fourth slot that is never filled.
/// Required: R25
inline constexpr std::uint32_t kUsablePositions = 3;

/// Draw calls within one another: the shape itself, a subshape with a 16-bit number (from the top level of a
/// "unifont " file), and one for each of the 255 numbers that a subshape can name. Number 0 is no shape.
inline constexpr std::size_t kDeepestNesting = 257;

} // namespace ShxUtility
