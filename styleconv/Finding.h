// What is wrong with a file, or will surprise, and where: the form that editors know from compilers.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace styleconv {

enum class Severity : std::uint8_t {
    kError,   // a strict conversion fails or loses something
    kWarning, // it does not, but the result will surprise
    kNote,    // all is as it should be
};

/// "error", "warning" or "note".
const char* SeverityName(Severity severity);

struct Finding {
    std::string file;       // as messages call it
    std::uint64_t line = 0; // from 1; 0 where the file has no lines or the finding is of none of them
    Severity severity = Severity::kError;
    std::string message;
    std::string item; // "linetype GAS"; empty where it is of none
};

/// "gas.lin:14: error: U= is not a known placement key (linetype GAS)"
std::string FindingText(const Finding& finding);

/// By line; those of one line stay in their order.
void SortByLine(std::vector<Finding>& findings);

/// Says each on standard error.
void SayFindings(const std::vector<Finding>& findings);

} // namespace styleconv
