#include "styleconv/process/Interruption.h"

#include <csignal>
#include <cstdlib>

namespace styleconv {
namespace {

volatile std::sig_atomic_t noted = 0;

void Note(int signal) {
    noted = signal;
    // Some systems forget the handler when it is called.
    std::signal(signal, Note);
}

void Catch(int signal) {
    if (std::signal(signal, Note) == SIG_IGN) {
        std::signal(signal, SIG_IGN);
    }
}

} // namespace

void NoteInterruptions() {
    Catch(SIGINT);
    Catch(SIGTERM);
#if defined(SIGHUP)
    Catch(SIGHUP);
#endif
}

int Interruption() {
    return noted;
}

void EndByInterruption(int signal) {
    // What shells give for a process that a signal ended, should it outlive that.
    constexpr int kEndedBySignal = 128;
    std::signal(signal, SIG_DFL);
    std::raise(signal);
    std::_Exit(kEndedBySignal + signal);
}

} // namespace styleconv
