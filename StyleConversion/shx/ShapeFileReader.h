// Reads shape files from a stream.
#pragma once

#include "StyleConversion/shx/ShapesInFile.h"
#include "StyleConversion/shx/ShxResult.h"

#include <cstdint>
#include <cstdio>

namespace ShxUtility {

/// Reads a whole file from the current position of `stream`, which the caller opened in binary mode and
/// closes.
///
/// `acceptedKinds` is a mask of ShapeFileKind bits; the bit of kFont accepts every "shapes " file, as whether
/// it is a font shows only later. `out` gives up its indexes and font information, but not its shapes:
/// entries are appended behind those that it has.
///
/// After a failure `out` and the position of the stream are what the entries read so far made of them: drop
/// both. Returns kSuccess, kNoStream, kMalformed (also where the stream's end-of-file indicator is set at the
/// end), kKindNotAccepted, kOutOfMemory or kUnsupported.
ShxResult LoadShapeFile(std::FILE* stream, ShapesInFile& out, std::uint32_t acceptedKinds);

/// Reads the header up to its version and sets the kind and isVersion10 of `out`. The kind is set also where
/// it is then refused; a refused file's version is not read.
ShxResult ReadFileHeader(std::FILE* stream, ShapesInFile& out, std::uint32_t acceptedKinds);

/// Reads one entry: its name, a zero byte, and its program, `length` bytes together. Appends a shape to
/// `out`, which stays there after a failure, and enters it in the indexes.
///
/// A number that is known already is kMalformed. Number 0 is the font information: its bytes go to
/// `out.fontInfo`, and in a file of `kind` kShapes the kind of `out` becomes kFont.
ShxResult ReadShapeEntry(std::FILE* stream, ShapesInFile& out, std::uint16_t number, std::uint16_t length,
                         ShapeFileKind kind);

} // namespace ShxUtility
