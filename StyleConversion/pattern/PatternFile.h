// Reads pattern files: bytes -> lines -> patterns.
#pragma once

#include "StyleConversion/pattern/PatternError.h"
#include "StyleConversion/pattern/PatternLine.h"
#include "StyleConversion/pattern/PatternPolicy.h"

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace pattern {

/// Keyed by pattern name, in the order of the names' bytes.
using Descriptions = std::map<std::string, std::string>;
using Patterns = std::map<std::string, std::vector<PatternLine>>;

/// Both maps have the same keys. Names and descriptions are the file's bytes, families are in file order.
struct PatternFile {
    Descriptions descriptions;
    Patterns patterns;
};

/// Where the parts of a pattern file stood and where its reading ended: for messages, not for converting.
/// Lines are counted from 1.
struct PatternReading {
    enum class End { kEndOfFile, kLineTooLong };

    End end = End::kEndOfFile;
    std::size_t endLine = 0;                                     // the line that was too long, else 0
    std::map<std::string, std::vector<std::size_t>> headerLines; // keyed by name: each of its headers
    std::map<std::string, std::vector<std::size_t>> familyLines; // keyed by name: each family, in file order
    std::vector<std::size_t> linesBeforeHeaders;                 // family lines that belong to no pattern
    std::vector<PatternError> errors;                            // under a tolerant policy
    Unit unit = Unit::kNone;                                     // of the last "%UNITS=" of a remark
    std::size_t unitLine = 0;                                    // its line
};

/// Reads the text of a pattern file into `file`, emptied first. The reading ends without a word at a line
/// that is too long; what was read before it stays. `reading`, where it is not null, is filled as well.
void ParsePatternFile(std::string_view bytes, PatternFile& file, PatternReading* reading = nullptr,
                      const PatternPolicy& policy = {});

} // namespace pattern
