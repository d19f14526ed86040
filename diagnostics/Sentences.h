// The one table from the code of a diagnostic to its name and its sentence.
#pragma once

#include "diagnostics/Diagnostic.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace diagnostics {

/// The stable name of a code: "missing-shape-file".
std::string_view NameOf(Code code);
/// The code of that name, if there is one.
std::optional<Code> CodeNamed(std::string_view name);

/// Every code, in the order of the table.
std::vector<Code> AllCodes();

/// "error", "warning" or "note".
std::string_view NameOf(Severity severity);

/// What is wrong and what became of it, without the place: "a blank is not allowed here; skipped".
std::string SentenceOf(const Diagnostic& diagnostic);
/// What is wrong, for a sentence of which it is a part.
std::string SentenceOf(Code code, const std::vector<std::string>& subjects = {});

/// What a code says whatever it is of: its sentence with "…" for the subjects.
std::string SummaryOf(Code code);
/// The same with what helps, and with what a tolerant reading makes of it.
std::string HelpOf(Code code);

/// The whole message in the form that editors know from compilers, in one line:
/// "gas.lin:14:5: error: a blank is not allowed here (linetype GAS)".
std::string MessageOf(const Diagnostic& diagnostic);
/// The same with the name of its code: "… (linetype GAS) [unexpected-blank]".
std::string MessageWithCode(const Diagnostic& diagnostic);

/// Whether one cause stands behind all places that it is said of.
bool HasOneCause(Code code);
/// Whether its sentence tells how many entities it is about.
bool CountsEntities(Code code);

/// What helps where a drawing has no unit; `isMetric` is what else it says of how it was drawn, if anything.
std::string UnitHelp(std::optional<bool> isMetric);

} // namespace diagnostics
