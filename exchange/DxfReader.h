// Reads DXF files into drawings in memory.
#pragma once

#include "drawing/database/Database.h"
#include "exchange/DxfNotes.h"
#include "exchange/DxfPieces.h"

#include <cstddef>
#include <memory>
#include <string_view>

namespace exchange {

/// Whether bytes are more likely a DXF file than anything else: they begin with a section, or as its binary
/// form.
bool LooksLikeDxf(std::string_view bytes);

/// Reads a whole DXF file, ASCII or binary, of any version. What can be read as it is meant, or left out by
/// itself, is; `notes` says of each such thing. Null when the file is refused, with `fault` set but for the
/// file's name: it is none, or breaks off within a pair.
///
/// Entities of the sections ENTITIES and BLOCKS become entities of the blocks, those of the model space and
/// the layouts in layout blocks; see docs for what becomes of which entity. Names are those of the file,
/// texts are decoded.
std::unique_ptr<drawing::Database> ReadDxf(std::string_view bytes, diagnostics::Diagnostic& fault,
                                           DxfNotes& notes);
/// The same of a file that is never held as a whole: `pieceSize` bytes are read at once, or as many as a long
/// line or the entity that is read just now takes. From the first byte on, and maybe a second time: texts
/// that are no UTF-8 may come late. Where reading fails, the file seems to end; `source` must tell.
std::unique_ptr<drawing::Database> ReadDxf(ByteSource& source, diagnostics::Diagnostic& fault,
                                           DxfNotes& notes, std::size_t pieceSize = DxfPieces::kPieceSize);

} // namespace exchange
