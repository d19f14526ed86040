// How far long work has come, on the last line of a terminal.
#pragma once

#include <cstddef>
#include <cstdio>
#include <string>
#include <string_view>

namespace styleconv {

/// Shows progress of the calling thread from now on where standard error is a terminal; elsewhere, of other
/// threads, and before, nothing is shown.
void AllowProgress();

/// Whether what is written there is shown on a terminal.
bool IsTerminal(std::FILE* stream);

/// A stage of the work begins: "Reading", "Converting", "Writing". `total` is how many items it has; 0 where
/// that is not known.
void BeginStage(std::string_view stage, std::size_t total = 0);

/// The stage "Writing". A result that goes to a terminal has it for itself: progress ends there.
void BeginWriting(bool toStandardOutput, std::size_t total);

/// What stands before the stage from now on, as "File 3 of 200, gas.pat: "; nothing where it is empty.
void NameProgress(std::string_view prefix);

/// The stage has come to its next item.
void StepStage();

/// Takes the line off the terminal, before anything else is written there and at the end of the work.
void ClearProgress();

/// The text of the line: "Converting 3 of 200", "Reading".
std::string ProgressText(std::string_view stage, std::size_t item, std::size_t total);

} // namespace styleconv
