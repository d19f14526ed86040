// What a check of files has found, as a JSON document.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace documents {

enum class Severity : std::uint8_t {
    kError,   // a strict conversion fails or loses something
    kWarning, // it does not, but the result will surprise
    kNote,    // all is as it should be
};

/// "error", "warning" or "note".
const char* SeverityName(Severity severity);

/// What is wrong with a file, or will surprise, and where. Texts are UTF-8.
struct Finding {
    std::string file;       // as messages call it
    std::uint64_t line = 0; // from 1; 0 where the file has no lines or the finding is of none of them
    Severity severity = Severity::kError;
    std::string message;
    std::string item;                                  // "linetype GAS"; empty where it is of none
    std::optional<std::uint64_t> byte = std::nullopt;  // from 0, in a file without lines
    std::optional<std::uint16_t> shape = std::nullopt; // the number of a shape or glyph
};

std::size_t CountOf(const std::vector<Finding>& findings, Severity severity);

/// The document, with the findings in their order.
std::string FindingsText(const std::vector<Finding>& findings);

} // namespace documents
