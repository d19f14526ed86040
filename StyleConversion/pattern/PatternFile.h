// Reads pattern files: bytes -> lines -> patterns.
#pragma once

#include "StyleConversion/pattern/PatternLine.h"
#include "StyleConversion/pattern/PatternPolicy.h"
#include "StyleConversion/pattern/PatternSlip.h"

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
    enum class End { kEndOfFile, kNotOpened, kReadFailed, kLineTooLong };

    End end = End::kEndOfFile;
    std::size_t endLine = 0;                                     // the line that was too long, else 0
    std::map<std::string, std::vector<std::size_t>> headerLines; // keyed by name: each of its headers
    std::map<std::string, std::vector<std::size_t>> familyLines; // keyed by name: each family, in file order
    std::vector<std::size_t> linesBeforeHeaders;                 // family lines that belong to no pattern
    std::vector<PatternSlip> slips;                              // under a policy that forgives
    Unit unit = Unit::kNone;                                     // of the last "%UNITS=" of a remark
    std::size_t unitLine = 0;                                    // its line
};

/// Reads the text of a pattern file into `file`, emptied first. The reading ends without a word at a line
/// that is too long; what was read before it stays. `reading`, where it is not null, is filled as well.
void ParsePatternFile(std::string_view bytes, PatternFile& file, PatternReading* reading = nullptr,
                      const PatternPolicy& policy = {});

/// The same from a file on disk. One that cannot be opened has no patterns; one that cannot be read to its
/// end has those read before.
void ReadPatternFile(const std::wstring& fileName, PatternFile& file, PatternReading* reading = nullptr);

} // namespace pattern
