// Signals by which a person or the system ends the process.
#pragma once

namespace styleconv {

/// From now on such a signal is noted, for whoever watches the work to act on. One that was ignored when the
/// process started, as in the background of a shell, stays ignored.
void NoteInterruptions();

/// The number of the signal that came, or 0.
int Interruption();

/// Ends the process as the signal would have done without NoteInterruptions.
[[noreturn]] void EndByInterruption(int signal);

} // namespace styleconv
