// Reads shape files.
#pragma once

#include "StyleConversion/shx/ShapeFilePolicy.h"
#include "StyleConversion/shx/ShapeFileReport.h"
#include "StyleConversion/shx/ShapesInFile.h"
#include "StyleConversion/shx/ShxResult.h"

#include <cstdint>
#include <cstdio>
#include <string_view>

namespace ShxUtility {

/// Reads a whole file from its bytes. Bytes behind its end are not looked at.
///
/// `acceptedKinds` is a mask of ShapeFileKind bits; the bit of kFont accepts every "shapes " file, as whether
/// it is a font shows only later. `out` gives up its indexes and font information, but not its shapes:
/// entries are appended behind those that it has. `report`, reset first, says where reading stopped, and why.
///
/// After a failure `out` is what the entries read so far made of it: drop it. Returns kSuccess, kMalformed,
/// kKindNotAccepted, kOutOfMemory or kUnsupported.
ShxResult LoadShapeFile(std::string_view bytes, ShapesInFile& out, std::uint32_t acceptedKinds,
                        ShapeFileReport& report, const ShapeFilePolicy& policy = {});
ShxResult LoadShapeFile(std::string_view bytes, ShapesInFile& out, std::uint32_t acceptedKinds);

/// The same from the current position of `stream`, which the caller opened in binary mode and closes. On
/// success it stands behind what was read, as far as it can be positioned. kMalformed also where its
/// end-of-file indicator is set already, and kNoStream where there is no stream.
ShxResult LoadShapeFile(std::FILE* stream, ShapesInFile& out, std::uint32_t acceptedKinds);

} // namespace ShxUtility
