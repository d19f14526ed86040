// The kinds of files, told apart by their names and by what is in them.
#pragma once

#include "conversions/reading/Input.h"
#include "diagnostics/Diagnostic.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace conversions {

enum class FileKind : std::uint8_t { kUnknown, kLinetypes, kPatterns, kShapes, kDrawing, kSymbols };

/// By the end of the name: .lin, .pat, .shx, .json or .dxf, in upper or lower case.
FileKind KindByName(std::string_view name);

/// By what the file begins with; kUnknown where that is not clear.
FileKind KindByContents(std::string_view bytes);

/// Whether the contents are clearly a drawing's.
inline bool IsDrawing(std::string_view bytes) {
    return KindByContents(bytes) == FileKind::kDrawing;
}

/// Whether a drawing is a DXF file, and not a drawing document.
bool IsDxf(std::string_view name, std::string_view bytes);

/// What helps where a file is of another kind.
enum class KindAdvice : std::uint8_t { kOtherCommand, kOtherName };

/// That a file is clearly none of these, by the bytes that it begins with.
std::optional<diagnostics::Diagnostic> KnownStranger(const std::string& name, std::string_view bytes);

/// For a file that could not be used as one of `kind`: where it is of another kind, or clearly of none, that
/// alone is what is wrong, and replaces all that was found.
void TellWrongKind(const Input& input, FileKind kind, KindAdvice advice,
                   diagnostics::Diagnostics& diagnostics);
/// For one that was used: a warning where what is in it is of another kind.
void WarnOfKind(const Input& input, FileKind kind, diagnostics::Diagnostics& diagnostics);

} // namespace conversions
