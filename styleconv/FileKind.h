// The four kinds of files that the tool reads, told apart by their names.
#pragma once

#include <cstdint>
#include <string>

namespace styleconv {

enum class FileKind : std::uint8_t { kUnknown, kLinetypes, kPatterns, kShapes, kDrawing };

/// By the end of the path: .lin, .pat, .shx or .json, in upper or lower case.
FileKind FileKindOf(const std::string& path);

inline constexpr const char* kUnknownKind =
    "is of no known kind: its name should end in .lin, .pat, .shx or .json";

} // namespace styleconv
